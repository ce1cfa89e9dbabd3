#include "engines/logic/Positionszahl.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <utility>
#include <vector>

namespace {

/// Every combination in lexicographic order with its running number, by nothing but six loops.
template <class Tue> void alleKombinationen(Tue tue)
{
    std::int32_t nummer = 0;
    for (std::int32_t a = 1; a <= 44; ++a)
        for (std::int32_t b = a + 1; b <= 45; ++b)
            for (std::int32_t c = b + 1; c <= 46; ++c)
                for (std::int32_t d = c + 1; d <= 47; ++d)
                    for (std::int32_t e = d + 1; e <= 48; ++e)
                        for (std::int32_t f = e + 1; f <= 49; ++f)
                            tue(++nummer, Kombination{a, b, c, d, e, f});
}

/// The steps of the sum, written out with their products.
std::int64_t summeAusgeschrieben(const Kombination& z)
{
    const auto [z1, z2, z3, z4, z5, z6] = z;
    double p = 0;
    if (z1 != 1)
        for (double i = 0; i <= z1 - 2; ++i)
            p += (48 - i) * (47 - i) * (46 - i) * (45 - i) * (44 - i) / 120;
    if (z2 != z1 + 1)
        for (double i = z1 - 1; i <= z2 - 3; ++i)
            p += (47 - i) * (46 - i) * (45 - i) * (44 - i) / 24;
    if (z3 != z2 + 1)
        for (double i = z2 - 2; i <= z3 - 4; ++i)
            p += (46 - i) * (45 - i) * (44 - i) / 6;
    if (z4 != z3 + 1)
        for (double i = z3 - 3; i <= z4 - 5; ++i)
            p += (45 - i) * (44 - i) / 2;
    if (z5 != z4 + 1)
        p += (49 - (z4 + 1)) / 2.0 * (49 - z4) - (49 - z5) / 2.0 * (50 - z5);
    if (z6 != z5 + 1)
        p += z6 - (z5 + 1);
    return static_cast<std::int64_t>(p) + 1;
}

const std::vector<std::pair<Kombination, Positionszahl>> kBekannte{
    {{1, 2, 3, 4, 5, 6}, 1},
    {{1, 2, 3, 4, 5, 7}, 2},
    {{1, 2, 3, 4, 5, 8}, 3},
    {{5, 10, 20, 30, 40, 49}, 6'324'251},
    {{11, 12, 23, 34, 35, 48}, 10'771'741},
    {{15, 25, 27, 30, 42, 48}, 12'588'102},
    {{43, 45, 46, 47, 48, 49}, 13'983'815},
    {{44, 45, 46, 47, 48, 49}, 13'983'816},
};

TEST(Positionszahl, BekannteKombinationenAufAllenWegen)
{
    for (const auto& [zahlen, position] : kBekannte) {
        EXPECT_EQ(PositionszahlSumme(zahlen), position);
        EXPECT_EQ(PositionszahlZaehlen(zahlen), position);
        EXPECT_EQ(KombinationZaehlen(position), zahlen);
    }
}

TEST(Positionszahl, DieSummeTrifftJedeKombination)
{
    std::int32_t falsche = 0;
    std::int32_t letzte = 0;
    alleKombinationen([&](std::int32_t nummer, const Kombination& zahlen) {
        falsche += PositionszahlSumme(zahlen) != nummer;
        letzte = nummer;
    });
    EXPECT_EQ(falsche, 0);
    EXPECT_EQ(letzte, 13'983'816);
}

// Each count walks from the front, so the samples lie close at the front and wide behind; a step that shares no
// divisor with a row's length meets every place of a row.
TEST(Positionszahl, DasZaehlenTrifftDieselbenInBeidenRichtungen)
{
    constexpr std::int32_t kWeit = 30'011;
    std::int32_t naechste = 1;
    alleKombinationen([&](std::int32_t nummer, const Kombination& zahlen) {
        if (nummer != naechste && nummer != 13'983'816)
            return;
        naechste += nummer < 2'000 ? 1 : kWeit;
        ASSERT_EQ(KombinationZaehlen(nummer), zahlen) << nummer;
        ASSERT_EQ(PositionszahlZaehlen(zahlen), nummer);
    });
}

// The first and the last combination of every row of equal first three numbers.
TEST(Positionszahl, DasZaehlenTrifftDieRaenderDerReihen)
{
    for (std::int32_t a = 1; a <= 44; ++a)
        for (std::int32_t b = a + 1; b <= 45; b += 5)
            for (const Kombination& zahlen :
                 {Kombination{a, b, b + 1, b + 2, b + 3, b + 4}, Kombination{a, b, 46, 47, 48, 49}}) {
                if (!istAufsteigend(zahlen))
                    continue;
                const Positionszahl position = PositionszahlSumme(zahlen);
                ASSERT_EQ(PositionszahlZaehlen(zahlen), position);
                ASSERT_EQ(KombinationZaehlen(position), zahlen);
            }
}

TEST(Positionszahl, AusserhalbZaehltNichts)
{
    for (const Positionszahl position :
         {0, -1, 13'983'817, std::numeric_limits<Positionszahl>::max(), std::numeric_limits<Positionszahl>::min()})
        EXPECT_FALSE(KombinationZaehlen(position)) << position;
}

TEST(Positionszahl, WasNichtAufsteigtWirdNichtGezaehlt)
{
    for (const Kombination& zahlen : {Kombination{0, 0, 0, 0, 0, 0},
                                      {0, 1, 2, 3, 4, 5},
                                      {1, 2, 3, 4, 5, 50},
                                      {1, 2, 3, 4, 5, 5},
                                      {2, 1, 3, 4, 5, 6},
                                      {6, 5, 4, 3, 2, 1},
                                      {-1, 2, 3, 4, 5, 6},
                                      {1, 2, 3, 4, 5, std::numeric_limits<std::int32_t>::max()}})
        EXPECT_FALSE(PositionszahlZaehlen(zahlen));
}

TEST(Positionszahl, DieSummeNimmtAuchWasNichtAufsteigtWieEsSteht)
{
    std::uint32_t zustand = 12345;
    const auto wuerfel = [&zustand] {
        zustand = zustand * 1664525U + 1013904223U;
        return static_cast<std::int32_t>(zustand >> 16U) % 49 + 1;
    };
    for (int i = 0; i < 200'000; ++i) {
        const Kombination zahlen{wuerfel(), wuerfel(), wuerfel(), wuerfel(), wuerfel(), wuerfel()};
        ASSERT_EQ(PositionszahlSumme(zahlen), summeAusgeschrieben(zahlen));
    }
    // A number twice.
    EXPECT_EQ(PositionszahlSumme({1, 2, 3, 4, 5, 5}), 0);
    EXPECT_EQ(PositionszahlSumme({1, 1, 1, 1, 1, 1}), summeAusgeschrieben({1, 1, 1, 1, 1, 1}));
    EXPECT_EQ(PositionszahlSumme({49, 49, 49, 49, 49, 49}), summeAusgeschrieben({49, 49, 49, 49, 49, 49}));
}

TEST(Positionszahl, EineZahlAusserhalbHatKeinenPlatz)
{
    constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
    for (std::size_t stelle = 0; stelle < 6; ++stelle) {
        for (const std::int32_t unsinn : {0, -1, 50, kMax, kMin}) {
            Kombination zahlen{5, 10, 20, 30, 40, 49};
            zahlen[stelle] = unsinn;
            EXPECT_EQ(PositionszahlSumme(zahlen), 0) << stelle << ' ' << unsinn;
        }
    }
}

} // namespace

#include "engines/logic/KombinationAusNummer.h"
#include "engines/logic/Positionszahl.h"
#include "shell/logic/Binomial.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {

/// The combination behind another one, by the rule of a counter whose places ascend.
bool weiter(Kombination& zahlen)
{
    for (std::size_t stelle = zahlen.size(); stelle-- > 0;) {
        if (zahlen[stelle] == 44 + static_cast<std::int32_t>(stelle))
            continue;
        std::int32_t zahl = zahlen[stelle];
        for (; stelle < zahlen.size(); ++stelle)
            zahlen[stelle] = ++zahl;
        return true;
    }
    return false;
}

TEST(KombinationAusNummerTest, DieErsteUndDieLetzte)
{
    EXPECT_EQ(KombinationAusNummer(1), (Kombination{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(KombinationAusNummer(2), (Kombination{1, 2, 3, 4, 5, 7}));
    EXPECT_EQ(KombinationAusNummer(44), (Kombination{1, 2, 3, 4, 5, 49}));
    EXPECT_EQ(KombinationAusNummer(45), (Kombination{1, 2, 3, 4, 6, 7}));
    EXPECT_EQ(KombinationAusNummer(1'712'304), (Kombination{1, 45, 46, 47, 48, 49}));
    EXPECT_EQ(KombinationAusNummer(1'712'305), (Kombination{2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(KombinationAusNummer(13'983'815), (Kombination{43, 45, 46, 47, 48, 49}));
    EXPECT_EQ(KombinationAusNummer(13'983'816), (Kombination{44, 45, 46, 47, 48, 49}));
}

TEST(KombinationAusNummerTest, ZaehltAlleKombinationenDerReiheNachAuf)
{
    Kombination zahlen{1, 2, 3, 4, 5, 6};
    std::int32_t nummer = 1;
    do {
        ASSERT_EQ(KombinationAusNummer(nummer), zahlen) << nummer;
        ++nummer;
    } while (weiter(zahlen));
    EXPECT_EQ(nummer, kKombinationen6aus49 + 1);
}

TEST(KombinationAusNummerTest, IstDieUmkehrungDerGeschlossenenSumme)
{
    std::mt19937 zufall(49);
    std::uniform_int_distribution<std::int32_t> nummern(1, kKombinationen6aus49);
    for (int i = 0; i < 100'000; ++i) {
        const std::int32_t nummer = nummern(zufall);
        ASSERT_EQ(PositionszahlSumme(KombinationAusNummer(nummer)), nummer);
    }
}

TEST(KombinationAusNummerTest, EineNummerDanebenGibtDieNaechste)
{
    EXPECT_EQ(KombinationAusNummer(0), KombinationAusNummer(1));
    EXPECT_EQ(KombinationAusNummer(std::numeric_limits<std::int32_t>::min()), KombinationAusNummer(1));
    EXPECT_EQ(KombinationAusNummer(13'983'817), KombinationAusNummer(13'983'816));
    EXPECT_EQ(KombinationAusNummer(std::numeric_limits<std::int32_t>::max()), KombinationAusNummer(13'983'816));
}

} // namespace

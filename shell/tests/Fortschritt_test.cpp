#include "shell/logic/Fortschritt.h"

#include <chrono>
#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

namespace {

using namespace std::chrono_literals;

/// A clock that every step of a loop moves on, and that counts how often it was read.
struct Schrittuhr {
    Takt::Zeit zeit{};
    int blicke{0};

    Takt::Zeitquelle quelle()
    {
        return [this] {
            ++blicke;
            return zeit;
        };
    }
};

struct Lauf {
    std::vector<std::chrono::nanoseconds> zeiten; ///< of the reports, from the start of the run
    std::vector<std::uint64_t> staende;
    int blicke{0};
};

template <class Dauer> Lauf laufe(std::uint64_t schritte, Dauer dauerDesSchritts)
{
    Schrittuhr uhr;
    Lauf lauf;
    const auto anfang = uhr.zeit;
    Takt takt(
        [&](std::uint64_t erledigt) {
            lauf.zeiten.push_back(uhr.zeit - anfang);
            lauf.staende.push_back(erledigt);
            return true;
        },
        uhr.quelle());
    for (std::uint64_t i = 1; i <= schritte; ++i) {
        uhr.zeit += dauerDesSchritts(i);
        takt.schritt(i);
    }
    lauf.blicke = uhr.blicke;
    return lauf;
}

void erwarteAbstaende(const Lauf& lauf, std::chrono::nanoseconds hoechstens)
{
    std::chrono::nanoseconds letzte{0};
    for (const auto zeit : lauf.zeiten) {
        EXPECT_GE(zeit - letzte, 12ms);
        EXPECT_LE(zeit - letzte, hoechstens);
        letzte = zeit;
    }
}

TEST(Takt, SchnelleSchritteMeldenAlle12Bis16Millisekunden)
{
    const Lauf lauf = laufe(10'000'000, [](auto) { return 100ns; }); // one second
    EXPECT_GE(lauf.zeiten.size(), 62U);
    EXPECT_LE(lauf.zeiten.size(), 84U);
    erwarteAbstaende(lauf, 16ms);
}

TEST(Takt, SchnelleSchritteSehenSeltenAufDieUhr)
{
    const Lauf lauf = laufe(10'000'000, [](auto) { return 100ns; });
    EXPECT_LT(lauf.blicke, 3000); // of ten million steps
}

TEST(Takt, LangsameSchritteMeldenJedesMal)
{
    const Lauf lauf = laufe(50, [](auto) { return 20ms; });
    EXPECT_EQ(lauf.zeiten.size(), 50U);
    EXPECT_EQ(lauf.staende.back(), 50U);
}

TEST(Takt, PasstSichLangsamerWerdendenSchrittenAn)
{
    const Lauf lauf = laufe(2'000'000, [](std::uint64_t i) { return i < 1'000'000 ? 100ns : 1000ns; });
    erwarteAbstaende(lauf, 25ms); // once, where the pace changes, the run of steps is still the old one
}

TEST(Takt, MeldetDenStand)
{
    const Lauf lauf = laufe(100, [](auto) { return 6ms; });
    ASSERT_GE(lauf.staende.size(), 2U);
    EXPECT_EQ(lauf.staende[0], 2U);
    EXPECT_EQ(lauf.staende[1], 4U);
}

TEST(Takt, FalschHaeltAnUndFragtNichtWieder)
{
    Schrittuhr uhr;
    int meldungen = 0;
    Takt takt(
        [&](std::uint64_t) {
            ++meldungen;
            return false;
        },
        uhr.quelle());
    bool laeuft = true;
    int schritte = 0;
    while (laeuft && schritte < 1000) {
        uhr.zeit += 1ms;
        laeuft = takt.schritt(static_cast<std::uint64_t>(++schritte));
    }
    EXPECT_EQ(schritte, 12);
    EXPECT_FALSE(takt.laeuft());
    EXPECT_FALSE(takt.schritt(13));
    EXPECT_FALSE(takt.melde(14));
    EXPECT_EQ(meldungen, 1);
}

TEST(Takt, OhneZuhoererLaeuftEsWeiter)
{
    Takt takt(nullptr);
    for (std::uint64_t i = 0; i < 3'000'000; ++i)
        ASSERT_TRUE(takt.schritt(i));
    EXPECT_TRUE(takt.melde(1));
}

TEST(Takt, DieZeitDesZuhoerersZaehltNicht)
{
    Schrittuhr uhr;
    int meldungen = 0;
    Takt takt(
        [&](std::uint64_t) {
            ++meldungen;
            uhr.zeit += 500ms;
            return true;
        },
        uhr.quelle());
    for (std::uint64_t i = 1; i <= 24; ++i) {
        uhr.zeit += 1ms;
        takt.schritt(i);
    }
    EXPECT_EQ(meldungen, 2);
}

TEST(Takt, MeldeFragtSofort)
{
    Schrittuhr uhr;
    std::uint64_t stand = 0;
    Takt takt(
        [&](std::uint64_t erledigt) {
            stand = erledigt;
            return true;
        },
        uhr.quelle());
    EXPECT_TRUE(takt.melde(13'983'816));
    EXPECT_EQ(stand, 13'983'816U);
}

} // namespace

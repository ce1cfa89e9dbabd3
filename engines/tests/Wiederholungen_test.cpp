#include "engines/logic/Wiederholungen.h"
#include "testhilfen/ArchivAus.h"
#include "testhilfen/WiederholungenReferenz.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {

using Reihe = Zahlenreihe;

/// Rows of a small range, so that many of their sets come twice; sorted or as they fell.
std::vector<Reihe> zufaellige(std::size_t anzahl, std::int32_t von, std::int32_t bis, bool geordnet)
{
    std::mt19937 zufall(7);
    std::uniform_int_distribution<std::int32_t> zahl(von, bis);
    std::vector<Reihe> reihen(anzahl);
    for (Reihe& reihe : reihen) {
        for (std::int32_t& stelle : reihe)
            stelle = zahl(zufall);
        if (geordnet)
            std::ranges::sort(reihe);
    }
    return reihen;
}

std::string schluessel(const Wiederholung& wiederholung, int k)
{
    std::string text;
    for (std::size_t i = 0; i < static_cast<std::size_t>(k); ++i)
        text += (i > 0 ? "," : "") + std::to_string(wiederholung.zahlen[i]);
    return text;
}

void vergleiche(const ZiehungsArchiv& archiv)
{
    for (int k = 2; k <= 6; ++k) {
        SCOPED_TRACE(k);
        const Wiederholungen ergebnis = WiederholungsSuche(archiv, k);
        const Referenz::Gezaehlte soll = Referenz::suche(archiv, k);
        std::map<std::string, std::int32_t> mehrfache;
        for (const Wiederholung& wiederholung : ergebnis.mehrfache)
            mehrfache[schluessel(wiederholung, k)] = wiederholung.anzahl;
        EXPECT_EQ(ergebnis.Wiederholungslaenge, k);
        EXPECT_TRUE(ergebnis.vollstaendig);
        EXPECT_EQ(ergebnis.AnzahlEinmal, soll.AnzahlEinmal);
        EXPECT_EQ(static_cast<std::size_t>(ergebnis.AnzahlMehrfach), soll.mehrfache.size());
        EXPECT_EQ(ergebnis.mehrfache.size(), soll.mehrfache.size());
        EXPECT_EQ(mehrfache, soll.mehrfache);
        EXPECT_TRUE(std::ranges::is_sorted(ergebnis.mehrfache, {}, &Wiederholung::zahlen));
    }
}

TEST(WiederholungsSuche, GibtDasselbeWieDieTexte)
{
    vergleiche(archivAus(zufaellige(400, 1, 49, true)));
    vergleiche(archivAus(zufaellige(400, 1, 9, true)));
}

TEST(WiederholungsSuche, NimmtDieSpaltenWieSieStehen)
{
    vergleiche(archivAus(zufaellige(200, 1, 9, false)));
    const ZiehungsArchiv verkehrt = archivAus({{7, 19, 30, 31, 32, 33}, {19, 7, 40, 41, 42, 43}});
    EXPECT_EQ(WiederholungsSuche(verkehrt, 2).AnzahlMehrfach, 0);
    const ZiehungsArchiv doppelt = archivAus({{5, 5, 5, 8, 9, 10}});
    ASSERT_EQ(WiederholungsSuche(doppelt, 2).mehrfache.size(), 4U);
    EXPECT_EQ(WiederholungsSuche(doppelt, 2).mehrfache[0].zahlen, (Reihe{5, 5}));
    EXPECT_EQ(WiederholungsSuche(doppelt, 2).mehrfache[0].anzahl, 3);
}

TEST(WiederholungsSuche, ErtraegtJedenWert)
{
    constexpr auto kMin = std::numeric_limits<std::int32_t>::min();
    constexpr auto kMax = std::numeric_limits<std::int32_t>::max();
    vergleiche(archivAus(zufaellige(60, -300, 300, false)));
    vergleiche(archivAus(zufaellige(60, kMin, kMax, false)));
    vergleiche(archivAus({{kMin, -1, 0, 1, 256, kMax}, {kMin, -1, 0, 1, 256, kMax}, {kMin, kMin, 0, 0, kMax, kMax}}));
    // Numbers that are alike in all bytes but one.
    vergleiche(archivAus({{1, 257, 65537, 16777217, 1, 257}, {257, 1, 65537, 16777217, 1, 257}}));
}

TEST(WiederholungsSuche, LeeresArchivHatNichts)
{
    for (int k = 2; k <= 6; ++k) {
        const Wiederholungen ergebnis = WiederholungsSuche(ZiehungsArchiv(), k);
        EXPECT_TRUE(ergebnis.vollstaendig);
        EXPECT_EQ(ergebnis.AnzahlEinmal, 0);
        EXPECT_EQ(ergebnis.AnzahlMehrfach, 0);
    }
}

TEST(WiederholungsSuche, EineZiehungZerfaelltInLauterEinmalige)
{
    const ZiehungsArchiv archiv = archivAus({{3, 12, 13, 16, 23, 41}});
    const std::array<std::int32_t, 5> soll{15, 20, 15, 6, 1};
    for (int k = 2; k <= 6; ++k) {
        EXPECT_EQ(WiederholungsSuche(archiv, k).AnzahlEinmal, soll[static_cast<std::size_t>(k - 2)]);
        EXPECT_TRUE(WiederholungsSuche(archiv, k).mehrfache.empty());
    }
}

TEST(WiederholungsSuche, LauterGleicheZiehungen)
{
    const ZiehungsArchiv zwei = archivAus({{3, 12, 13, 16, 23, 41}, {3, 12, 13, 16, 23, 41}});
    EXPECT_EQ(WiederholungsSuche(zwei, 6).AnzahlMehrfach, 1);
    EXPECT_EQ(WiederholungsSuche(zwei, 6).AnzahlEinmal, 0);
    vergleiche(archivAus(std::vector<Reihe>(300, {3, 12, 13, 16, 23, 41})));
    // One and the same number everywhere: no byte differs.
    vergleiche(archivAus(std::vector<Reihe>(3, {7, 7, 7, 7, 7, 7})));
}

TEST(WiederholungsSuche, AndereLaengenGibtEsNicht)
{
    for (const int k : {-1, 0, 1, 7, 1000}) {
        const Wiederholungen ergebnis = WiederholungsSuche(archivAus({{1, 2, 3, 4, 5, 6}}), k);
        EXPECT_EQ(ergebnis.Wiederholungslaenge, 0);
        EXPECT_FALSE(ergebnis.vollstaendig);
    }
}

TEST(WiederholungsSuche, MeldetBeideSchritteVonAnfangAn)
{
    std::vector<std::pair<Suchschritt, std::uint64_t>> gemeldet;
    WiederholungsSuche(archivAus({{1, 2, 3, 4, 5, 6}}), 3, [&](Suchschritt schritt, std::uint64_t erledigt) {
        gemeldet.emplace_back(schritt, erledigt);
        return true;
    });
    ASSERT_EQ(gemeldet.size(), 2U);
    EXPECT_EQ(gemeldet[0], std::pair(Suchschritt::Zerlegen, std::uint64_t{0}));
    EXPECT_EQ(gemeldet[1], std::pair(Suchschritt::Vergleichen, std::uint64_t{0}));
}

TEST(WiederholungsSuche, HaeltVorDerErstenZiehungAn)
{
    int meldungen = 0;
    const Wiederholungen ergebnis =
        WiederholungsSuche(archivAus(std::vector<Reihe>(9, {1, 2, 3, 4, 5, 6})), 2, [&](Suchschritt, std::uint64_t) {
            ++meldungen;
            return false;
        });
    EXPECT_EQ(meldungen, 1);
    EXPECT_FALSE(ergebnis.vollstaendig);
    EXPECT_TRUE(ergebnis.mehrfache.empty());
}

TEST(WiederholungsSuche, HaeltZwischenDenSchrittenAn)
{
    const Wiederholungen ergebnis =
        WiederholungsSuche(archivAus(std::vector<Reihe>(9, {1, 2, 3, 4, 5, 6})), 2,
                           [](Suchschritt schritt, std::uint64_t) { return schritt == Suchschritt::Zerlegen; });
    EXPECT_FALSE(ergebnis.vollstaendig);
    EXPECT_TRUE(ergebnis.mehrfache.empty());
}

TEST(WiederholungsSuche, BehaeltWasBisZumAnhaltenGezaehltWar)
{
    const std::vector<Reihe> reihen = zufaellige(98301, 1, 49, true);
    const ZiehungsArchiv archiv = archivAus(reihen);
    const Wiederholungen ganz = WiederholungsSuche(archiv, 4);
    const Wiederholungen teil = WiederholungsSuche(archiv, 4, [](Suchschritt schritt, std::uint64_t erledigt) {
        return schritt == Suchschritt::Zerlegen || erledigt == 0;
    });
    if (teil.vollstaendig)
        GTEST_SKIP() << "counted before anybody asked";
    EXPECT_LT(teil.mehrfache.size(), ganz.mehrfache.size());
    for (std::size_t i = 0; i < teil.mehrfache.size(); ++i)
        EXPECT_EQ(teil.mehrfache[i].zahlen, ganz.mehrfache[i].zahlen);
}

TEST(WiederholungsSuche, MeldetSichOftGenug)
{
    const ZiehungsArchiv archiv = archivAus(zufaellige(98301, -1'000'000, 1'000'000, false));
    using Uhr = std::chrono::steady_clock;
    auto zuletzt = Uhr::now();
    Uhr::duration laengste{};
    WiederholungsSuche(archiv, 3, [&](Suchschritt, std::uint64_t) {
        laengste = std::max(laengste, Uhr::now() - zuletzt);
        zuletzt = Uhr::now();
        return true;
    });
    EXPECT_LT(laengste, std::chrono::milliseconds(200)); // generous: the machine may be busy
}

} // namespace

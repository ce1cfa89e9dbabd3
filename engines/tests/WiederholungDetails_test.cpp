#include "archive/logic/Ziehungskalender.h"
#include "engines/logic/WiederholungDetails.h"
#include "testhilfen/ArchivAus.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {

using Reihe = Zahlenreihe;
using Zeilen = std::vector<std::string>;

/// Draws with dates, in a combined archive too.
ZiehungsArchiv datierte(const std::vector<Reihe>& reihen)
{
    std::vector<TestZiehung> ziehungen;
    for (std::size_t i = 0; i < reihen.size(); ++i)
        ziehungen.push_back({1955, 41 + static_cast<std::int32_t>(i % 10), reihen[i]});
    ZiehungsArchiv archiv = archivAus(Samstagslotto, ziehungen);
    BaueSamstagsDaten(archiv);
    archiv.DatumAlle = archiv.Datum;
    for (std::string& datum : archiv.DatumAlle)
        datum += " (B)";
    return archiv;
}

Zeilen alle(const Detailzeilen& details)
{
    Zeilen zeilen;
    for (std::size_t i = 0; i < details.anzahl(); ++i)
        zeilen.push_back(details.zeile(i));
    return zeilen;
}

/// The draws by the plain membership test.
Zeilen bloecke(const ZiehungsArchiv& archiv, int k, const Wiederholungsart& art, const Zeilen& ergebniszeilen)
{
    Zeilen zeilen;
    for (const std::string& ergebniszeile : ergebniszeilen) {
        zeilen.push_back("Kombination:" + std::string(zahlenteil(ergebniszeile, k)));
        zeilen.push_back(std::string(art.striche, '-'));
        const auto gesucht = zahlenDerZeile(ergebniszeile, k);
        for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr) {
            const auto zahlen = archiv.gewinnzahlen(nr);
            int gefunden = 0;
            while (gefunden < k && std::ranges::count(zahlen, gesucht[static_cast<std::size_t>(gefunden)]) > 0)
                ++gefunden;
            if (gefunden == k)
                zeilen.push_back(detailzeile(archiv, nr, art));
        }
        zeilen.push_back(std::string(art.striche, '-'));
    }
    return zeilen;
}

TEST(WiederholungDetails, EineZiehungAlsZeile)
{
    const ZiehungsArchiv archiv = datierte({{3, 12, 13, 16, 23, 41}});
    EXPECT_EQ(detailzeile(archiv, 1, kEineSpielart), "1955/41  03 12 13 16 23 41   So, 09.10.1955");
    EXPECT_EQ(detailzeile(archiv, 1, kAlleSpielarten), "1955/41  03 12 13 16 23 41   So, 09.10.1955 (B)");
}

TEST(WiederholungDetails, EinBlockJeZeile)
{
    const ZiehungsArchiv archiv =
        datierte({{7, 19, 30, 31, 32, 33}, {1, 2, 3, 4, 5, 6}, {7, 18, 19, 47, 48, 49}, {6, 7, 8, 9, 10, 11}});
    const Zeilen soll{
        "Kombination:  7 19",
        "-------------------------------------------",
        "1955/41  07 19 30 31 32 33   So, 09.10.1955",
        "1955/43  07 18 19 47 48 49   So, 23.10.1955",
        "-------------------------------------------",
    };
    EXPECT_EQ(alle(wiederholungDetails(archiv, 2, kEineSpielart, Zeilen{" 2 mal ->   7 19"})), soll);
    const Zeilen sollAlle{
        "Kombination:   7 19",
        "------------------------------------------------",
        "1955/41  07 19 30 31 32 33   So, 09.10.1955 (B)",
        "1955/43  07 18 19 47 48 49   So, 23.10.1955 (B)",
        "------------------------------------------------",
    };
    EXPECT_EQ(alle(wiederholungDetails(archiv, 2, kAlleSpielarten, Zeilen{"  2 mal ->   7 19"})), sollAlle);
}

TEST(WiederholungDetails, DieSechsHabenEigeneSpalten)
{
    const ZiehungsArchiv archiv = datierte({{15, 25, 27, 30, 42, 48}, {1, 2, 3, 4, 5, 6}, {15, 25, 27, 30, 42, 48}});
    const Zeilen zeilen = alle(wiederholungDetails(archiv, 6, kEineSpielart, Zeilen{" 2 mal-> 15 25 27 30 42 48"}));
    ASSERT_EQ(zeilen.size(), 5U);
    EXPECT_EQ(zeilen[0], "Kombination: 15 25 27 30 42 48");
    EXPECT_TRUE(zeilen[3].starts_with("1955/43  15 25 27 30 42 48   "));
}

TEST(WiederholungDetails, FindetDieselbenZiehungenWieDieProbeJederEinzelnen)
{
    std::mt19937 zufall(3);
    std::uniform_int_distribution<std::int32_t> zahl(1, 12);
    std::vector<Reihe> reihen(500);
    for (Reihe& reihe : reihen) {
        std::ranges::generate(reihe, [&] { return zahl(zufall); });
        std::ranges::sort(reihe);
    }
    const ZiehungsArchiv archiv = datierte(reihen);
    for (int k = 2; k <= 6; ++k) {
        Zeilen ergebniszeilen;
        for (const Wiederholung& wiederholung : WiederholungsSuche(archiv, k).mehrfache)
            ergebniszeilen.push_back(ergebniszeile(wiederholung, k, kAlleSpielarten));
        ASSERT_FALSE(ergebniszeilen.empty());
        EXPECT_EQ(alle(wiederholungDetails(archiv, k, kAlleSpielarten, ergebniszeilen)),
                  bloecke(archiv, k, kAlleSpielarten, ergebniszeilen));
    }
}

TEST(WiederholungDetails, UnsinnigeZahlenWerdenInDenSpaltenGesucht)
{
    constexpr auto kMax = std::numeric_limits<std::int32_t>::max();
    const ZiehungsArchiv archiv =
        datierte({{-5, 0, 7, 120, 50, kMax}, {7, 7, 0, 0, 120, -5}, {1, 2, 3, 4, 5, 6}, {kMax, 120, 50, 7, 0, -5}});
    const Zeilen ergebniszeilen{" 2 mal ->   7120",  "  2 mal -> 120  7",       "  2 mal ->  -5  0",
                                "  2 mal ->  50 50", " 2 mal -> -502147483647", "1000 mal ->   7 19",
                                "  2 mal ->   0  7"};
    EXPECT_EQ(alle(wiederholungDetails(archiv, 2, kAlleSpielarten, ergebniszeilen)),
              bloecke(archiv, 2, kAlleSpielarten, ergebniszeilen));
    const Zeilen zeilen = alle(wiederholungDetails(archiv, 2, kAlleSpielarten, Zeilen{"  2 mal ->  -5120"}));
    EXPECT_EQ(zeilen.size(), 6U);
}

TEST(WiederholungDetails, LeeresArchivGibtLeereBloecke)
{
    const Zeilen zeilen = alle(wiederholungDetails(ZiehungsArchiv(), 2, kEineSpielart, Zeilen{" 9 mal ->   7 19"}));
    EXPECT_EQ(zeilen.size(), 3U);
    EXPECT_EQ(wiederholungDetails(ZiehungsArchiv(), 2, kEineSpielart, {}).anzahl(), 0U);
}

TEST(WiederholungDetails, GrenzenDerWorte)
{
    for (const std::size_t anzahl : {63U, 64U, 65U, 127U, 128U}) {
        const ZiehungsArchiv archiv = datierte(std::vector<Reihe>(anzahl, {1, 2, 3, 4, 5, 6}));
        EXPECT_EQ(wiederholungDetails(archiv, 2, kEineSpielart, Zeilen{" 2 mal ->   1  6"}).anzahl(), anzahl + 3);
    }
}

TEST(WiederholungDetails, HaeltAn)
{
    const ZiehungsArchiv archiv = datierte(std::vector<Reihe>(32767, {1, 2, 3, 4, 5, 6}));
    const Zeilen ergebniszeilen(1000, " 2 mal ->   1  6");
    const Detailzeilen teil =
        wiederholungDetails(archiv, 2, kEineSpielart, ergebniszeilen, [](std::uint64_t) { return false; });
    EXPECT_LT(teil.anzahl(), 1000U * 32770U);
    EXPECT_EQ(teil.anzahl() % 32770U, 0U);
}

} // namespace

#include "statistics/logic/ZusammenHaeufigkeit.h"
#include "testhilfen/ArchivAus.h"

#include <gtest/gtest.h>
#include <numeric>
#include <vector>

namespace {

/// Two draws of Saturday, two of Wednesday and one of its draw B, as a combined load leaves them.
ZiehungsArchiv fuenfZiehungen()
{
    ZiehungsArchiv archiv = archivAus(Samstagslotto, {{1986, 22, {1, 2, 3, 4, 5, 6}, 0},
                                                      {1986, 24, {1, 2, 3, 4, 5, 7}, 49},
                                                      {1986, 23, {1, 2, 3, 10, 11, 12}, 49},
                                                      {1986, 24, {1, 2, 3, 10, 11, 13}, 48},
                                                      {1986, 23, {1, 20, 21, 22, 23, 24}, 25}});
    archiv.DatumAlle = {
        "", "Sa, 31.05.1986", "Sa, 14.06.1986", "Mi, 04.06.1986", "Mi, 11.06.1986", "Mi, 04.06.1986 (B)"};
    return archiv;
}

ZusammenHaeufigkeitswahl alle()
{
    return {.maske = 7, .samstagsziehungen = 2, .letzte = {}};
}

std::int32_t anzahl(const ZusammenHaeufigkeit& haeufigkeit, int zahl)
{
    return haeufigkeit.anzahl.at(static_cast<std::size_t>(zahl - 1));
}

std::int32_t summe(const ZusammenHaeufigkeit& haeufigkeit)
{
    return std::accumulate(haeufigkeit.anzahl.begin(), haeufigkeit.anzahl.end(), 0);
}

TEST(ZusammenHaeufigkeit, ZaehltAlleSpieleZusammen)
{
    const ZusammenHaeufigkeit haeufigkeit = frequencyRange(fuenfZiehungen(), alle());
    EXPECT_EQ(haeufigkeit.ziehungen, 5);
    ASSERT_EQ(haeufigkeit.anzahl.size(), 49U);
    EXPECT_EQ(anzahl(haeufigkeit, 1), 5);
    EXPECT_EQ(anzahl(haeufigkeit, 2), 4);
    EXPECT_EQ(anzahl(haeufigkeit, 10), 2);
    EXPECT_EQ(anzahl(haeufigkeit, 49), 0);
    EXPECT_EQ(summe(haeufigkeit), 30);
    EXPECT_EQ(ueberschrift(haeufigkeit), "Auswertung von: Sa, 31.05.1986 bis Sa, 14.06.1986");
}

TEST(ZusammenHaeufigkeit, EineZusatzzahlVonNullZaehltNicht)
{
    auto wahl = alle();
    wahl.mitZZ = true;
    const ZusammenHaeufigkeit haeufigkeit = frequencyRange(fuenfZiehungen(), wahl);
    EXPECT_EQ(anzahl(haeufigkeit, 49), 2);
    EXPECT_EQ(anzahl(haeufigkeit, 25), 1);
    EXPECT_EQ(summe(haeufigkeit), 34);
}

TEST(ZusammenHaeufigkeit, DieLetztenSindDieJuengstenTage)
{
    auto wahl = alle();
    wahl.letzte = 2;
    const ZusammenHaeufigkeit haeufigkeit = frequencyRange(fuenfZiehungen(), wahl);
    EXPECT_EQ(haeufigkeit.ziehungen, 2);
    EXPECT_EQ(anzahl(haeufigkeit, 7), 1);
    EXPECT_EQ(anzahl(haeufigkeit, 13), 1);
    EXPECT_EQ(anzahl(haeufigkeit, 20), 0);
    EXPECT_EQ(ueberschrift(haeufigkeit), "Auswertung von: Mi, 11.06.1986 bis Sa, 14.06.1986");
}

TEST(ZusammenHaeufigkeit, MehrLetzteAlsZiehungenSindAlle)
{
    for (const std::int32_t letzte : {5, 6, 1'000'000'000}) {
        auto wahl = alle();
        wahl.letzte = letzte;
        EXPECT_EQ(frequencyRange(fuenfZiehungen(), wahl).ziehungen, 5) << letzte;
    }
    for (const std::int32_t letzte : {0, -3}) {
        auto wahl = alle();
        wahl.letzte = letzte;
        EXPECT_EQ(frequencyRange(fuenfZiehungen(), wahl).ziehungen, 0) << letzte;
    }
}

TEST(ZusammenHaeufigkeit, OhneSpielartZaehltNichtsVomArchiv)
{
    const ZusammenHaeufigkeit haeufigkeit = frequencyRange(fuenfZiehungen(), {.maske = 0, .letzte = {}});
    EXPECT_EQ(haeufigkeit.ziehungen, 0);
    EXPECT_EQ(haeufigkeit.anzahl, std::vector<std::int32_t>(49, 0));
    EXPECT_EQ(ueberschrift(haeufigkeit), "");
}

TEST(ZusammenHaeufigkeit, EinLeeresArchivZaehltNichts)
{
    const ZusammenHaeufigkeit haeufigkeit = frequencyRange(ZiehungsArchiv{}, alle());
    EXPECT_EQ(haeufigkeit.ziehungen, 0);
    EXPECT_EQ(summe(haeufigkeit), 0);
    EXPECT_EQ(ueberschrift(haeufigkeit), "");
}

// The first 757 draws of Wednesday

/// So many draws of Wednesday, a week apart from 04.06.1986 on, behind `samstage` of Saturday. The number of a draw
/// tells its place.
ZiehungsArchiv mittwoche(int samstage, int mittwoche)
{
    std::vector<TestZiehung> ziehungen(static_cast<std::size_t>(samstage), {1955, 41, {49, 48, 47, 46, 45, 44}, 0});
    for (int i = 0; i < mittwoche; ++i)
        ziehungen.push_back({1986, 23, {i < 757 ? 1 : 2, 10, 11, 12, 13, 14}, 0});
    ZiehungsArchiv archiv = archivAus(Samstagslotto, ziehungen);
    archiv.DatumAlle.resize(ziehungen.size() + 1, "Mi, 04.06.1986");
    return archiv;
}

TEST(ZusammenHaeufigkeit, AbDezember2000FehlenDieErsten757Mittwochsziehungen)
{
    const ZusammenHaeufigkeitswahl wahl{.maske = 3, .samstagsziehungen = 5, .letzte = {}, .nurAb2000 = true};
    const ZusammenHaeufigkeit haeufigkeit = frequencyRange(mittwoche(5, 760), wahl);
    EXPECT_EQ(haeufigkeit.ziehungen, 8);
    EXPECT_EQ(anzahl(haeufigkeit, 1), 0);
    EXPECT_EQ(anzahl(haeufigkeit, 2), 3);
    EXPECT_EQ(anzahl(haeufigkeit, 49), 5);
}

TEST(ZusammenHaeufigkeit, OhneSamstagBeginntDerMittwochAmAnfang)
{
    const ZusammenHaeufigkeitswahl wahl{.maske = 2, .letzte = {}, .nurAb2000 = true};
    EXPECT_EQ(frequencyRange(mittwoche(0, 757), wahl).ziehungen, 0);
    EXPECT_EQ(frequencyRange(mittwoche(0, 758), wahl).ziehungen, 1);
}

TEST(ZusammenHaeufigkeit, OhneMittwochBleibtAuchVor2000Alles)
{
    const ZusammenHaeufigkeitswahl wahl{.maske = 5, .samstagsziehungen = 5, .letzte = {}, .nurAb2000 = true};
    EXPECT_EQ(frequencyRange(mittwoche(5, 10), wahl).ziehungen, 15);
}

// The old game "7 aus 38"

TEST(ZusammenHaeufigkeit, NurSiebenAus38HatAchtunddreissigZahlen)
{
    const ZusammenHaeufigkeit ohne = frequencyRange(fuenfZiehungen(), {.maske = 0, .letzte = {}, .mit7aus38 = true});
    EXPECT_EQ(ohne.ziehungen, 214);
    ASSERT_EQ(ohne.anzahl.size(), 38U);
    EXPECT_EQ(anzahl(ohne, 1), 41);
    EXPECT_EQ(anzahl(ohne, 34), 23);
    EXPECT_EQ(anzahl(ohne, 38), 32);
    EXPECT_EQ(summe(ohne), 1498);
    EXPECT_EQ(ueberschrift(ohne), "Auswertung von: Mi, 28.04.1982 bis 28.05.1986 (7aus38)");

    const ZusammenHaeufigkeit mit =
        frequencyRange(fuenfZiehungen(), {.maske = 0, .letzte = {}, .mitZZ = true, .mit7aus38 = true});
    EXPECT_EQ(anzahl(mit, 6), 63);
    EXPECT_EQ(anzahl(mit, 38), 36);
    EXPECT_EQ(summe(mit), 1712);
}

TEST(ZusammenHaeufigkeit, SiebenAus38KommtZuJederWahlHinzu)
{
    auto wahl = alle();
    wahl.letzte = 1;
    wahl.mit7aus38 = true;
    const ZusammenHaeufigkeit haeufigkeit = frequencyRange(fuenfZiehungen(), wahl);
    EXPECT_EQ(haeufigkeit.ziehungen, 215);
    ASSERT_EQ(haeufigkeit.anzahl.size(), 49U);
    EXPECT_EQ(anzahl(haeufigkeit, 1), 42);
    EXPECT_EQ(anzahl(haeufigkeit, 8), 41);
    EXPECT_EQ(anzahl(haeufigkeit, 49), 0);
    EXPECT_EQ(ueberschrift(haeufigkeit), "Auswertung von: Mi, 28.04.1982 (7aus38) bis Sa, 14.06.1986");
}

} // namespace

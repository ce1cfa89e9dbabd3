#include "tips/logic/Tippvorschlag.h"

#include <gtest/gtest.h>
#include <set>

namespace {

constexpr double kMittag = 43200;

/// Every number as often as it is high: 49 comes most.
Haeufigkeit steigend()
{
    Haeufigkeit haeufigkeit;
    for (int zahl = 1; zahl <= 49; ++zahl)
        haeufigkeit.anzahl[static_cast<std::size_t>(zahl - 1)] = static_cast<std::int16_t>(zahl);
    return haeufigkeit;
}

/// The lower a number, the longer it has been away.
ZuletztAuswertung fallend()
{
    ZuletztAuswertung zuletzt;
    zuletzt.Grenze = 100;
    for (int zahl = 1; zahl <= 49; ++zahl)
        zuletzt.auftreten[static_cast<std::size_t>(zahl - 1)].ZiehungsNr = 50 + zahl;
    return zuletzt;
}

Wochenstatistik woche()
{
    Wochenstatistik statistik;
    statistik.anzahl[6] = 12;
    statistik.anzahl[19] = 12;
    statistik.anzahl[30] = 3;
    return statistik;
}

std::vector<std::string> texte(const Statistikliste& liste)
{
    std::vector<std::string> zeilen;
    for (const Statistikzeile& zeile : liste.zeilen)
        zeilen.push_back(zeile.text);
    return zeilen;
}

bool enthaelt(const Kombination& tip, int zahl)
{
    return std::ranges::find(tip, zahl) != tip.end();
}

} // namespace

TEST(Tippvorschlag, DieWochenlisteBeginntMitDerHaeufigsten)
{
    const Statistikliste liste = fillWochenListe(woche());
    ASSERT_EQ(liste.zeilen.size(), 49U);
    EXPECT_EQ(texte(liste)[0], "12 * 20");
    EXPECT_EQ(texte(liste)[1], "12 *  7");
    EXPECT_EQ(texte(liste)[2], " 3 * 31");
    EXPECT_EQ(texte(liste)[3], " 0 * 49");
    EXPECT_EQ(liste.zahl(1), 20);
    EXPECT_EQ(liste.zahl(49), 1);
}

TEST(Tippvorschlag, DieAnderenListenEndenMitDerBesten)
{
    const Statistikliste haeufig = fillHaeufigkeitListe(steigend());
    EXPECT_EQ(texte(haeufig)[0], "001 01");
    EXPECT_EQ(texte(haeufig)[48], "049 49");
    EXPECT_EQ(haeufig.zahl(1), 49);
    EXPECT_EQ(haeufig.zahl(2), 48);
    const Statistikliste abwesend = fillAbwesenheitListe(fallend());
    EXPECT_EQ(texte(abwesend)[48], "049 01");
    EXPECT_EQ(abwesend.zahl(1), 1);
}

TEST(Tippvorschlag, BeiGleichenWertenKommtDieHoehereZahlZuerst)
{
    const Statistikliste liste = fillHaeufigkeitListe({});
    EXPECT_EQ(texte(liste)[48], "000 49");
    EXPECT_EQ(liste.zahl(1), 49);
    EXPECT_EQ(liste.zahl(2), 48);
}

TEST(Tippvorschlag, DerTextBestimmtDieFolgeAuchUeber999)
{
    Haeufigkeit haeufigkeit;
    haeufigkeit.anzahl[4] = 1000;
    haeufigkeit.anzahl[8] = 999;
    EXPECT_EQ(fillHaeufigkeitListe(haeufigkeit).zahl(1), 9);
}

TEST(Tippvorschlag, EineUngeleseneStatistikHatLauterNullen)
{
    EXPECT_EQ(texte(fillAbwesenheitListe({}))[0], "000 01");
    EXPECT_EQ(texte(fillAbwesenheitListe({}))[48], "000 49");
}

TEST(Tippvorschlag, OhneWunschSechsZufallszahlen)
{
    Zufall zufall(1);
    std::set<Kombination> tipps;
    for (std::size_t k = 1; k <= 12; ++k) {
        const Kombination tip = generateTip({}, k, zufall, kMittag);
        EXPECT_TRUE(istAufsteigend(tip));
        tipps.insert(tip);
    }
    EXPECT_GT(tipps.size(), 10U);
}

TEST(Tippvorschlag, JedeStatistikGibtDieZahlDesRangs)
{
    Zufall zufall(1);
    const Tippwunsch wunsch{.bank1 = {}, .bank2 = {}, .statistiken = {fillHaeufigkeitListe(steigend())}};
    for (std::size_t k = 1; k <= 12; ++k)
        EXPECT_TRUE(enthaelt(generateTip(wunsch, k, zufall, kMittag), static_cast<int>(50 - k)));
}

TEST(Tippvorschlag, AlleFuenfWuenscheLassenEineZufallszahl)
{
    Zufall zufall(1);
    const Tippwunsch wunsch{
        .bank1 = 30,
        .bank2 = 31,
        .statistiken = {fillWochenListe(woche()), fillHaeufigkeitListe(steigend()), fillAbwesenheitListe(fallend())}};
    const Kombination erster = generateTip(wunsch, 1, zufall, kMittag);
    for (const int zahl : {30, 31, 20, 49, 1})
        EXPECT_TRUE(enthaelt(erster, zahl)) << zahl;
    const Kombination zweiter = generateTip(wunsch, 2, zufall, kMittag);
    for (const int zahl : {30, 31, 7, 48, 2})
        EXPECT_TRUE(enthaelt(zweiter, zahl)) << zahl;
}

TEST(Tippvorschlag, EineVergebeneZahlRuecktDenRangNurInDiesemTipp)
{
    Zufall zufall(1);
    const Tippwunsch wunsch{.bank1 = 49, .bank2 = {}, .statistiken = {fillHaeufigkeitListe(steigend())}};
    EXPECT_TRUE(enthaelt(generateTip(wunsch, 1, zufall, kMittag), 48));
    const Kombination zweiter = generateTip(wunsch, 2, zufall, kMittag);
    EXPECT_TRUE(enthaelt(zweiter, 48));
    EXPECT_TRUE(enthaelt(zweiter, 49));
}

TEST(Tippvorschlag, DieZeileHatFesteSpalten)
{
    const std::string zeile = tippzeile(3, {4, 8, 15, 30, 38, 43});
    EXPECT_EQ(zeile, " Tip   3:   4  8 15 30 38 43");
    EXPECT_EQ(zeile.substr(11, 2), " 4"); // characters 12-13, counted from 1
    EXPECT_EQ(zeile.substr(26, 2), "43");
    EXPECT_EQ(tippzeile(12, {1, 2, 3, 4, 5, 49}), " Tip  12:   1  2  3  4  5 49");
}

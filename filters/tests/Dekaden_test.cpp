#include "filters/logic/Dekaden.h"
#include "testhilfen/ArchivAus.h"

#include <gmock/gmock.h>
#include <limits>
#include <numeric>

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr auto kMin = std::numeric_limits<std::int32_t>::min();
constexpr auto kMax = std::numeric_limits<std::int32_t>::max();

std::vector<Ziehungsfund> ziehungen(const std::vector<Zahlenreihe>& reihen)
{
    return alleZiehungen(archivAus(reihen), datumVon);
}

TEST(Dekaden, DieGrenzenLiegenVorDenVollenZehnern)
{
    EXPECT_THAT(dekadenzahlen({1, 9, 10, 19, 20, 29}), ElementsAre(2, 2, 2, 0, 0));
    EXPECT_THAT(dekadenzahlen({30, 39, 40, 41, 48, 49}), ElementsAre(0, 0, 0, 2, 4));
}

TEST(Dekaden, DerCodeZaehltDieBesetztenDekaden)
{
    EXPECT_EQ(codeVon({6, 0, 0, 0, 0}), 16U);
    EXPECT_EQ(codeVon({0, 0, 0, 0, 6}), 1U);
    EXPECT_EQ(codeVon({1, 1, 1, 1, 2}), 31U);
    EXPECT_EQ(codeVon({2, 0, 4, 0, 0}), 20U);
    EXPECT_EQ(codeVon({}), 0U);
}

TEST(Dekaden, DieZeileNenntDieAnzahlenUnterIhremKopf)
{
    const std::string zeile = dekadenzeile(ziehungen({{3, 12, 13, 16, 23, 41}})[0]);
    EXPECT_EQ(zeile, "2000/01   03 12 13 16 23 41  |  1  |  3  |  1  |  0  |  1");
    EXPECT_EQ(kDekadenkopf.substr(31, 3), "0-9");
    EXPECT_EQ(zeile[32], '1');
    EXPECT_EQ(kDekadenkopf.substr(54, 5), "40-49");
    EXPECT_EQ(zeile[56], '1');
}

TEST(Dekaden, DieSucheFindetJeDekadeDieZiehungenMitDerAnzahl)
{
    const auto alle = ziehungen({{1, 2, 3, 10, 11, 12}, {1, 2, 10, 11, 12, 20}, {1, 10, 20, 30, 40, 41}});
    const Dekadensuche drei = sucheDekaden(alle, 3);
    EXPECT_EQ(drei.gesucht, 3);
    EXPECT_THAT(drei.stellen[0], ElementsAre(0));
    EXPECT_THAT(drei.stellen[1], ElementsAre(0, 1));
    EXPECT_THAT(drei.stellen[2], IsEmpty());
    EXPECT_THAT(sucheDekaden(alle, 0).stellen[4], ElementsAre(0, 1));
    EXPECT_THAT(sucheDekaden(alle, 2).stellen[4], ElementsAre(2));
}

TEST(Dekaden, DerBerichtNenntDieErsteDekadeAnders)
{
    EXPECT_EQ(bericht(sucheDekaden(ziehungen({{1, 2, 3, 10, 11, 12}}), 3)),
              "Anzahl der Ziehungen: \n"
              "Ziehungen mit 3 Gewinnzahlen im Bereich 0-9   :     1\n"
              "Ziehungen mit 3 Gewinnzahlen im Bereich 10-19 :     1\n"
              "Ziehungen mit 3 Gewinnzahlen im Bereich 20-29 :     0\n"
              "Ziehungen mit 3 Gewinnzahlen im Bereich 30-39 :     0\n"
              "Ziehungen mit 3 Gewinnzahlen im Bereich 40-49 :     0");
    EXPECT_EQ(dekadenname(0), "1-9");
}

TEST(Dekaden, EineKonstellationVerlangtAlleIhreDekadenUndKeineAndere)
{
    const auto alle = ziehungen({{1, 2, 3, 10, 11, 12}, {1, 2, 10, 11, 12, 20}, {1, 10, 11, 12, 13, 14}});
    const Konstellationssuche suche = sucheKonstellation(alle, 24);
    EXPECT_THAT(suche.stellen, ElementsAre(0, 2));
    EXPECT_EQ(ergebnistext(suche), "Anzahl der Ziehungen: 2");
}

TEST(Dekaden, WasNochNichtAufgetretenIst)
{
    const auto alle = ziehungen({{1, 2, 3, 10, 11, 12}});
    EXPECT_EQ(ergebnistext(sucheKonstellation(alle, 31)), " Die Konstellationan ist noch nicht aufgetreten.");
    for (std::size_t dekade = 0; dekade < kDekaden; ++dekade)
        EXPECT_EQ(ergebnistext(sucheKonstellation(alle, gewicht(dekade))),
                  " Die Konstellationan alle \"6 Gewinnzahlen in nur einer Dekade\" ist noch nicht aufgetreten.");
}

TEST(Dekaden, OhneDekadeWirdNichtsGesucht)
{
    const Konstellationssuche suche = sucheKonstellation(ziehungen({{0, 50, 51, 52, 53, 54}}), 0);
    EXPECT_THAT(suche.stellen, IsEmpty());
    EXPECT_EQ(ergebnistext(suche), "Anzahl der Ziehungen: 0");
}

TEST(Dekaden, DieUebersichtHatJedenCodeEinmalVonObenNachUnten)
{
    Dekadenverteilung verteilung{};
    std::iota(verteilung.begin(), verteilung.end(), 0); // a count that names its code
    const auto zeilen = uebersicht(verteilung);
    ASSERT_THAT(zeilen, SizeIs(31 + 4 + 4));
    EXPECT_EQ(zeilen[0], "Alle 6 Gewinnzahlen in nur einer Dekade");
    EXPECT_EQ(zeilen[1], "|   x   |   -   |   -   |   -   |   -   |  :16");
    EXPECT_EQ(zeilen[5], "|   -   |   -   |   -   |   -   |   x   |  :1");
    EXPECT_EQ(zeilen[7], "Die 6 Gewinnzahlen in zwei Dekaden");
    EXPECT_EQ(zeilen[8], "|   x   |   x   |   -   |   -   |   -   |  :24");
    EXPECT_EQ(zeilen[9], "|   x   |   -   |   x   |   -   |   -   |  :20");
    EXPECT_EQ(zeilen[17], "|   -   |   -   |   -   |   x   |   x   |  :3");
    EXPECT_EQ(zeilen[19], "Die 6 Gewinnzahlen in drei Dekaden");
    EXPECT_EQ(zeilen[20], "|   x   |   x   |   x   |   -   |   -   |  :28");
    EXPECT_EQ(zeilen[31], "Die 6 Gewinnzahlen in vier Dekaden");
    EXPECT_EQ(zeilen[36], "|   -   |   x   |   x   |   x   |   x   |  :15");
    EXPECT_EQ(zeilen[38], "|   x   |   x   |   x   |   x   |   x   |  :31");
}

TEST(Dekaden, DieVerteilungZaehltJedeZiehungEinmal)
{
    const Dekadenverteilung verteilung = zaehleKonstellationen(
        ziehungen({{1, 2, 3, 4, 5, 6}, {1, 2, 3, 4, 5, 9}, {1, 10, 20, 30, 40, 49}, {40, 41, 42, 43, 44, 45}}));
    EXPECT_EQ(verteilung[16], 2);
    EXPECT_EQ(verteilung[31], 1);
    EXPECT_EQ(verteilung[1], 1);
    EXPECT_EQ(std::accumulate(verteilung.begin(), verteilung.end(), 0), 4);
}

TEST(Dekaden, OhneZiehungIstAllesLeer)
{
    EXPECT_THAT(sucheDekaden({}, 0).stellen, Each(IsEmpty()));
    EXPECT_THAT(zaehleKonstellationen({}), Each(0));
    EXPECT_EQ(ergebnistext(sucheKonstellation({}, 31)), " Die Konstellationan ist noch nicht aufgetreten.");
}

TEST(Dekaden, WasKeineZahlIstLiegtInKeinerDekade)
{
    const auto alle = ziehungen({{kMin, -11, 0, 50, 99, kMax}, {1, 2, 3, 4, 5, 60}});
    EXPECT_THAT(dekadenzahlen(alle[0].zahlen), Each(0));
    EXPECT_THAT(dekadenzahlen(alle[1].zahlen), ElementsAre(5, 0, 0, 0, 0));
    EXPECT_EQ(zaehleKonstellationen(alle)[0], 1);
    EXPECT_THAT(dekadenzeile(alle[0]), HasSubstr("  |  0  |  0  |  0  |  0  |  0"));
}

TEST(Dekaden, EineVolleDatei)
{
    const auto alle = ziehungen(std::vector<Zahlenreihe>(kMaxZiehungenJeDatei, {1, 10, 20, 30, 40, 41}));
    EXPECT_THAT(sucheDekaden(alle, 1).stellen[3], SizeIs(kMaxZiehungenJeDatei));
    EXPECT_EQ(uebersicht(zaehleKonstellationen(alle)).back(), "|   x   |   x   |   x   |   x   |   x   |  :32767");
}

} // namespace

#include "statistics/logic/Balkengraphik.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::Each;
using testing::ElementsAre;

using Werte = std::vector<Balkenwert>;

/// 49 numbers with one count, but for the first and the last.
Werte mitAnzahlen(std::int16_t alle, std::int16_t erste, std::int16_t letzte)
{
    std::array<std::int16_t, 49> anzahl{};
    anzahl.fill(alle);
    anzahl.front() = erste;
    anzahl.back() = letzte;
    return balkenwerte(anzahl, 1);
}

Balkengraphik normal(const Werte& werte)
{
    return balkengraphik(werte, Balkenansicht::Normal);
}

Balkengraphik zoom(const Werte& werte)
{
    return balkengraphik(werte, Balkenansicht::Zoom);
}

std::vector<int> koepfe(const Balkengraphik& graphik)
{
    std::vector<int> oben;
    for (const Balken& balken : graphik.balken)
        oben.push_back(balken.oben);
    return oben;
}

std::vector<Balkenmarke> marken(const Balkengraphik& graphik)
{
    std::vector<Balkenmarke> marken;
    for (const Balken& balken : graphik.balken)
        marken.push_back(balken.marke);
    return marken;
}

TEST(Balkengraphik, NormalReichtVonNullBisZumHoechsten)
{
    const Balkengraphik graphik = normal(mitAnzahlen(50, 100, 25));
    EXPECT_DOUBLE_EQ(graphik.massstab.skalenfaktor(), 34.2);
    EXPECT_DOUBLE_EQ(graphik.massstab.balkenfaktor(), 34.6);
    EXPECT_EQ(koepfe(graphik)[0], 3890 - 3460);
    EXPECT_EQ(koepfe(graphik)[1], 3890 - 1730);
    EXPECT_EQ(koepfe(graphik)[48], 3890 - 865);
    EXPECT_THAT(graphik.skala, ElementsAre("100,00", "75,00", "50,00", "25,00", "0,00"));
}

TEST(Balkengraphik, ZoomReichtVomNiedrigstenBisZumHoechsten)
{
    const Balkengraphik graphik = zoom(mitAnzahlen(98, 100, 93));
    EXPECT_DOUBLE_EQ(graphik.massstab.skalenfaktor(), 3420.0 / 7);
    EXPECT_DOUBLE_EQ(graphik.massstab.balkenfaktor(), 3460.0 / 7);
    EXPECT_EQ(koepfe(graphik)[0], 430);
    EXPECT_EQ(koepfe(graphik)[1], 1419); // 3890 - 5 * 3460 / 7 = 1418.57
    EXPECT_EQ(koepfe(graphik)[48], 3860);
    EXPECT_THAT(graphik.skala, ElementsAre("100,00", "98,25", "96,50", "94,75", "93,00"));
}

TEST(Balkengraphik, EinBalkenDerHoeheNullBleibtSichtbar)
{
    const Balkengraphik graphik = normal(mitAnzahlen(1000, 0, 8));
    EXPECT_EQ(koepfe(graphik)[0], 3860);
    EXPECT_EQ(koepfe(graphik)[48], 3860); // 3890 - 27.68 lies below
    EXPECT_EQ(koepfe(normal(mitAnzahlen(1000, 9, 8)))[0], 3859);
}

TEST(Balkengraphik, OhneJedeZahlIstDerMassstabEins)
{
    const Balkengraphik graphik = normal(mitAnzahlen(0, 0, 0));
    EXPECT_DOUBLE_EQ(graphik.massstab.skalenfaktor(), 3420);
    EXPECT_DOUBLE_EQ(graphik.massstab.balkenfaktor(), 3460);
    EXPECT_THAT(koepfe(graphik), Each(3860));
    EXPECT_THAT(graphik.skala, Each("0,00"));
}

TEST(Balkengraphik, OhneWerteGibtEsKeineBalken)
{
    for (const Balkenansicht ansicht : {Balkenansicht::Normal, Balkenansicht::Zoom}) {
        const Balkengraphik graphik = balkengraphik({}, ansicht);
        EXPECT_TRUE(graphik.balken.empty());
        EXPECT_THAT(graphik.skala, Each("0,00"));
    }
}

TEST(Balkengraphik, ZoomBeiGleichenAnzahlenZeigtAlleAmFuss)
{
    const Balkengraphik graphik = zoom(mitAnzahlen(7, 7, 7));
    EXPECT_DOUBLE_EQ(graphik.massstab.skalenfaktor(), 3420);
    EXPECT_DOUBLE_EQ(graphik.massstab.balkenfaktor(), 3460);
    EXPECT_THAT(koepfe(graphik), Each(3860));
    EXPECT_THAT(graphik.skala, Each("7,00"));
}

TEST(Balkengraphik, NormalBeiGleichenAnzahlenZeigtAlleAmKopf)
{
    EXPECT_THAT(koepfe(normal(mitAnzahlen(7, 7, 7))), Each(430));
}

TEST(Balkengraphik, LinienTeilenDieSkalaInViertel)
{
    const auto viertel = ElementsAre(440, 1295, 2150, 3005, 3860);
    EXPECT_THAT(normal(mitAnzahlen(50, 100, 25)).linien, viertel);
    EXPECT_THAT(zoom(mitAnzahlen(98, 100, 93)).linien, viertel);
    EXPECT_THAT(normal({}).linien, viertel);
}

TEST(Balkengraphik, ZehnZiffernBeginnenBeiNull)
{
    const Werte werte = balkenwerte(std::array{3, 9, 3, 5}, 0);
    EXPECT_EQ(werte, (Werte{{0, 3}, {1, 9}, {2, 3}, {3, 5}}));
    const Balkengraphik graphik = normal(werte);
    EXPECT_EQ(graphik.balken[1].wert, (Balkenwert{1, 9}));
    EXPECT_THAT(marken(graphik), ElementsAre(Balkenmarke::Niedrigster, Balkenmarke::Hoechster, Balkenmarke::Niedrigster,
                                             Balkenmarke::Keine));
}

TEST(Balkengraphik, WasBeidesIstGiltAlsNiedrigster)
{
    EXPECT_THAT(marken(normal(mitAnzahlen(7, 7, 7))), Each(Balkenmarke::Niedrigster));
}

TEST(Balkengraphik, NachHaeufigkeitStehenGleicheNachZahl)
{
    EXPECT_EQ(nachHaeufigkeit(balkenwerte(std::array{3, 9, 3, 5, 9}, 1)),
              (Werte{{2, 9}, {5, 9}, {4, 5}, {1, 3}, {3, 3}}));
}

} // namespace

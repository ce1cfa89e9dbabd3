#include "statistics/logic/Balkengraphik.h"
#include "testhilfen/ArchivAus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

namespace {

using testing::Each;
using testing::ElementsAre;

Haeufigkeit mitAnzahlen(std::int16_t alle, std::int16_t erste, std::int16_t letzte)
{
    Haeufigkeit haeufigkeit;
    haeufigkeit.anzahl.fill(alle);
    haeufigkeit.anzahl.front() = erste;
    haeufigkeit.anzahl.back() = letzte;
    return haeufigkeit;
}

TEST(Balkengraphik, NormalReichtVonNullBisZumHoechsten)
{
    const Balkengraphik graphik = balkenNormal(mitAnzahlen(50, 100, 25));
    EXPECT_DOUBLE_EQ(graphik.massstab.skalenfaktor(), 34.2);
    EXPECT_DOUBLE_EQ(graphik.massstab.balkenfaktor(), 34.6);
    EXPECT_EQ(graphik.oben[0], 3890 - 3460);
    EXPECT_EQ(graphik.oben[1], 3890 - 1730);
    EXPECT_EQ(graphik.oben[48], 3890 - 865);
    EXPECT_THAT(graphik.skala, ElementsAre("100,00", "75,00", "50,00", "25,00", "0,00"));
}

TEST(Balkengraphik, ZoomReichtVomNiedrigstenBisZumHoechsten)
{
    const Balkengraphik graphik = balkenZoom(mitAnzahlen(98, 100, 93));
    EXPECT_DOUBLE_EQ(graphik.massstab.skalenfaktor(), 3420.0 / 7);
    EXPECT_DOUBLE_EQ(graphik.massstab.balkenfaktor(), 3460.0 / 7);
    EXPECT_EQ(graphik.oben[0], 430);
    EXPECT_EQ(graphik.oben[1], 1419); // 3890 - 5 * 3460 / 7 = 1418.57
    EXPECT_EQ(graphik.oben[48], 3860);
    EXPECT_THAT(graphik.skala, ElementsAre("100,00", "98,25", "96,50", "94,75", "93,00"));
}

TEST(Balkengraphik, EinBalkenDerHoeheNullBleibtSichtbar)
{
    const Balkengraphik graphik = balkenNormal(mitAnzahlen(1000, 0, 8));
    EXPECT_EQ(graphik.oben[0], 3860);
    EXPECT_EQ(graphik.oben[48], 3860); // 3890 - 27.68 lies below
    EXPECT_EQ(balkenNormal(mitAnzahlen(1000, 9, 8)).oben[0], 3859);
}

TEST(Balkengraphik, OhneJedeZahlIstDerMassstabEins)
{
    const Balkengraphik graphik = balkenNormal(Haeufigkeit{});
    EXPECT_DOUBLE_EQ(graphik.massstab.skalenfaktor(), 3420);
    EXPECT_DOUBLE_EQ(graphik.massstab.balkenfaktor(), 3460);
    EXPECT_THAT(graphik.oben, Each(3860));
    EXPECT_THAT(graphik.skala, Each("0,00"));
}

TEST(Balkengraphik, ZoomBeiGleichenAnzahlenZeigtAlleAmFuss)
{
    const Balkengraphik graphik = balkenZoom(mitAnzahlen(7, 7, 7));
    EXPECT_DOUBLE_EQ(graphik.massstab.skalenfaktor(), 3420);
    EXPECT_DOUBLE_EQ(graphik.massstab.balkenfaktor(), 3460);
    EXPECT_THAT(graphik.oben, Each(3860));
    EXPECT_THAT(graphik.skala, Each("7,00"));
}

TEST(Balkengraphik, NormalBeiGleichenAnzahlenZeigtAlleAmKopf)
{
    EXPECT_THAT(balkenNormal(mitAnzahlen(7, 7, 7)).oben, Each(430));
}

TEST(Balkengraphik, LinienTeilenDieSkalaInViertel)
{
    const auto viertel = ElementsAre(440, 1295, 2150, 3005, 3860);
    EXPECT_THAT(balkenNormal(mitAnzahlen(50, 100, 25)).linien, viertel);
    EXPECT_THAT(balkenZoom(mitAnzahlen(98, 100, 93)).linien, viertel);
    EXPECT_THAT(balkenNormal(Haeufigkeit{}).linien, viertel);
}

// The text line of a bar

ZiehungsArchiv dreiJahre()
{
    return archivAus(
        Samstagslotto,
        {{1955, 41, {1, 2, 3, 4, 5, 6}, 0}, {1956, 1, {1, 2, 3, 4, 5, 6}, 0}, {1957, 1, {1, 2, 3, 4, 5, 6}, 0}});
}

std::string textFuerEins(Auswertebereich bereich, ZZModus modus)
{
    const ZiehungsArchiv archiv = dreiJahre();
    const Bereichspruefung pruefung = bereich.pruefe();
    if (!pruefung.bereich)
        return "kein Bereich";
    HaeufigkeitAuswertung auswertung = werteAus(archiv, *pruefung.bereich, bereich.angabe(), modus);
    auswertung.zuletztVor[0] = 12;
    return balkenText(auswertung, 1);
}

std::string nachJahren(std::string bis, ZZModus modus)
{
    Auswertebereich bereich{1955, 1957, 3};
    bereich.setzeBis(std::move(bis));
    return textFuerEins(bereich, modus);
}

std::string bisZiehung(std::string nr, ZZModus modus)
{
    Auswertebereich bereich{1955, 1957, 3};
    bereich.zeigeBisZiehung();
    bereich.setzeBisZiehung(std::move(nr));
    return textFuerEins(bereich, modus);
}

TEST(BalkenText, BisZumLetztenSpieljahrMitWochen)
{
    EXPECT_EQ(nachJahren("1957", ZZModus::Ohne), "Zahl 1 -> 3 mal gezogen, zuletzt gezogen vor: 12 Wochen (ohne ZZ)");
    EXPECT_EQ(nachJahren("1957", ZZModus::Mit), "Zahl 1 -> 3 mal gezogen, zuletzt gezogen vor: 12 Wochen (mit ZZ)");
    EXPECT_EQ(nachJahren("1957", ZZModus::Nur), "Zahl 1 -> 0 mal gezogen, zuletzt gezogen vor: 12 Wochen (nur ZZ)");
}

TEST(BalkenText, VorDemLetztenSpieljahrOhneWochen)
{
    EXPECT_EQ(nachJahren("1956", ZZModus::Ohne), "Zahl 1 -> 2 mal gezogen, (ohne ZZ)");
    EXPECT_EQ(nachJahren("1956", ZZModus::Mit), "Zahl 1 -> 2 mal gezogen,  (mit ZZ)");
    EXPECT_EQ(nachJahren("1956", ZZModus::Nur), "Zahl 1 -> 0 mal gezogen,  (nur ZZ)");
}

TEST(BalkenText, NachDemLetztenSpieljahrOhneWochen)
{
    EXPECT_EQ(nachJahren("1958", ZZModus::Ohne), "Zahl 1 -> 3 mal gezogen, (ohne ZZ)");
    EXPECT_EQ(nachJahren("9999", ZZModus::Mit), "Zahl 1 -> 3 mal gezogen,  (mit ZZ)");
}

TEST(BalkenText, BisZurLetztenZiehungMitWochen)
{
    EXPECT_EQ(bisZiehung("3", ZZModus::Ohne), "Zahl 1 -> 3 mal gezogen, zuletzt gezogen vor: 12 Wochen (ohne ZZ)");
    EXPECT_EQ(bisZiehung("99", ZZModus::Ohne), "Zahl 1 -> 3 mal gezogen, zuletzt gezogen vor: 12 Wochen (ohne ZZ)");
}

TEST(BalkenText, VorDerLetztenZiehungOhneWochen)
{
    EXPECT_EQ(bisZiehung("2", ZZModus::Ohne), "Zahl 1 -> 2 mal gezogen, (ohne ZZ)");
    EXPECT_EQ(bisZiehung("2", ZZModus::Nur), "Zahl 1 -> 0 mal gezogen,  (nur ZZ)");
}

} // namespace

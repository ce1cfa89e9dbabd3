#include "statistics/logic/Zahlengruppen.h"
#include "testhilfen/ArchivAus.h"

#include <gmock/gmock.h>
#include <numeric>

namespace {

using testing::Each;
using testing::ElementsAre;

ZiehungsArchiv dreiZiehungen()
{
    return archivAus(Samstagslotto, {{1955, 41, {3, 12, 13, 16, 23, 41}, 0},
                                     {1956, 25, {1, 9, 10, 20, 30, 40}, 49},
                                     {1957, 1, {7, 8, 14, 15, 48, 49}, 2}});
}

TEST(Zahlengruppen, OhneZusatzzahlZaehlenDieSechs)
{
    const Zahlengruppen gruppen = zaehleGruppen(dreiZiehungen(), 1955, 1957, ZZModus::Ohne);
    EXPECT_EQ(gruppen.Ausgewertet, 3);
    EXPECT_EQ(gruppen.Gerade, 9);
    EXPECT_EQ(gruppen.Ungerade, 9);
    EXPECT_EQ(gruppen.OhneZusatzzahl, 0);
    EXPECT_EQ(gruppen.gesamtzahl(), 18);
    EXPECT_THAT(gruppen.zehnergruppen(), ElementsAre(5, 6, 2, 1, 4));
    EXPECT_THAT(gruppen.Septiden, ElementsAre(3, 6, 3, 1, 1, 2, 2));
}

TEST(Zahlengruppen, MitZusatzzahlZaehltSieWoEsSieGibt)
{
    const Zahlengruppen gruppen = zaehleGruppen(dreiZiehungen(), 1955, 1957, ZZModus::Mit);
    EXPECT_EQ(gruppen.Gerade, 10);
    EXPECT_EQ(gruppen.Ungerade, 10);
    EXPECT_EQ(gruppen.OhneZusatzzahl, 1);
    EXPECT_EQ(gruppen.gesamtzahl(), 20);
    EXPECT_THAT(gruppen.zehnergruppen(), ElementsAre(6, 6, 2, 1, 5));
    EXPECT_THAT(gruppen.Septiden, ElementsAre(4, 6, 3, 1, 1, 2, 3));
}

TEST(Zahlengruppen, NurDieZusatzzahl)
{
    const Zahlengruppen gruppen = zaehleGruppen(dreiZiehungen(), 1955, 1957, ZZModus::Nur);
    EXPECT_EQ(gruppen.Gerade, 1);
    EXPECT_EQ(gruppen.Ungerade, 1);
    EXPECT_EQ(gruppen.gesamtzahl(), 2);
    EXPECT_THAT(gruppen.zehnergruppen(), ElementsAre(1, 0, 0, 0, 1));
}

TEST(Zahlengruppen, NurZusatzzahlenVorIhrerEinfuehrungSindKeine)
{
    const Zahlengruppen gruppen = zaehleGruppen(dreiZiehungen(), 1955, 1955, ZZModus::Nur);
    EXPECT_EQ(gruppen.Ausgewertet, 1);
    EXPECT_EQ(gruppen.gesamtzahl(), 0);
    EXPECT_EQ(gruppen.Gerade + gruppen.Ungerade, 0);
}

TEST(Zahlengruppen, VerkehrteJahreGebenNichts)
{
    const Zahlengruppen gruppen = zaehleGruppen(dreiZiehungen(), 1957, 1955, ZZModus::Mit);
    EXPECT_EQ(gruppen.Ausgewertet, 0);
    EXPECT_EQ(gruppen.gesamtzahl(), 0);
    EXPECT_THAT(gruppen.Septiden, Each(0));
}

TEST(Zahlengruppen, WasKeineZahlIstZaehltNirgends)
{
    const ZiehungsArchiv archiv = archivAus(Samstagslotto, {{2000, 1, {-1, 0, 50, 99, 7, 2000000000}, 77}});
    const Zahlengruppen gruppen = zaehleGruppen(archiv, 2000, 2000, ZZModus::Mit);
    EXPECT_EQ(gruppen.Gerade, 0);
    EXPECT_EQ(gruppen.Ungerade, 1);
    EXPECT_EQ(gruppen.OhneZusatzzahl, 1);
}

TEST(Zahlengruppen, DerDruckNenntSpielModusUndJahre)
{
    const Druckauftrag auftrag = druckauftrag(zaehleGruppen(dreiZiehungen(), 1955, 1957, ZZModus::Mit));
    EXPECT_THAT(auftrag.kopf, ElementsAre("                         Samstagslotto",
                                          "** Wieviele gerade/ungerade Zahlen - Zehnergruppen **  mit ZZ ",
                                          "                 von 1955 bis 1957"));
    ASSERT_EQ(auftrag.zeilen.size(), 17U);
    EXPECT_EQ(auftrag.zeilen[0], "Gesamtzahl der gezogenen Gewinnzahlen: 20");
    EXPECT_EQ(auftrag.zeilen[8], "Davon in Vierzigergruppe (40-49)     : 5");
    EXPECT_EQ(auftrag.zeilen[9], "Septiden:");
    EXPECT_EQ(auftrag.zeilen[11], "                         (08-15)     : 6");
}

} // namespace

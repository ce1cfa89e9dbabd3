#include "filters/logic/Serienzeilen.h"
#include "filters/tests/Zufallsfolge.h"

#include <bit>
#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::vector<Plumpserie> gefundene(const Seriensuche& suche)
{
    std::vector<Plumpserie> serien;
    for (const Serie& serie : suche.serien) {
        Plumpserie eine{{}, serie.erste, serie.laenge};
        for (Zahlenmenge rest = serie.zahlen; rest != 0; rest &= rest - 1)
            eine.zahlen.push_back(std::countr_zero(rest));
        serien.push_back(eine);
    }
    return serien;
}

std::vector<std::string> alleZeilen(const Serienzeilen& zeilen)
{
    std::vector<std::string> alle;
    for (std::size_t nr = 0; nr < zeilen.anzahl(); ++nr)
        alle.push_back(zeilen.zeile(nr));
    return alle;
}

std::vector<TestZiehung> ziehungen(const std::vector<Zahlenreihe>& reihen)
{
    std::vector<TestZiehung> alle;
    alle.reserve(reihen.size());
    for (const Zahlenreihe& reihe : reihen)
        alle.push_back({2000, static_cast<int>(alle.size()) + 1, reihe});
    return alle;
}

TEST(Serien, EineZahlInDreiZiehungenHintereinander)
{
    const auto folge = folgeAus(
        ziehungen({{1, 2, 3, 4, 5, 7}, {7, 11, 12, 13, 14, 15}, {7, 21, 22, 23, 24, 25}, {31, 32, 33, 34, 35, 36}}));
    EXPECT_THAT(gefundene(sucheSerien(folge, {.mindestens = 2})), ElementsAre(Plumpserie{{7}, 0, 3}));
    EXPECT_THAT(sucheSerien(folge, {.mindestens = 4}).serien, IsEmpty());
}

TEST(Serien, EineSerieReichtBisZurLetztenZiehung)
{
    const auto folge = folgeAus(ziehungen({{1, 2, 3, 4, 5, 6}, {9, 11, 12, 13, 14, 15}, {9, 21, 22, 23, 24, 25}}));
    EXPECT_THAT(gefundene(sucheSerien(folge, {.mindestens = 2})), ElementsAre(Plumpserie{{9}, 1, 2}));
}

TEST(Serien, EineUnterbrocheneZahlHatZweiSerien)
{
    const auto folge = folgeAus(ziehungen({{7, 1, 2, 3, 4, 5},
                                           {7, 11, 12, 13, 14, 15},
                                           {21, 22, 23, 24, 25, 26},
                                           {7, 31, 32, 33, 34, 35},
                                           {7, 41, 42, 43, 44, 45}}));
    EXPECT_THAT(gefundene(sucheSerien(folge, {.mindestens = 2})),
                ElementsAre(Plumpserie{{7}, 0, 2}, Plumpserie{{7}, 3, 2}));
}

TEST(Serien, EineZiehungIstEineSerieDerLaengeEins)
{
    const auto folge = folgeAus(ziehungen({{1, 2, 3, 4, 5, 6}}));
    EXPECT_THAT(sucheSerien(folge, {.mindestens = 1}).serien, SizeIs(6));
    EXPECT_THAT(sucheSerien(folge, {.mindestens = 2}).serien, IsEmpty());
}

TEST(Serien, EinLeeresArchivHatKeine)
{
    EXPECT_THAT(sucheSerien(folgeAus({}), {.mindestens = 1}).serien, IsEmpty());
    EXPECT_THAT(sucheSerien(folgeAus({}), {.zahlen = 3, .mindestens = 1}).serien, IsEmpty());
}

TEST(Serien, DieZusatzzahlZaehltNurAufWunschUndNieAlsNull)
{
    std::vector<TestZiehung> alle = ziehungen({{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12}, {13, 14, 15, 16, 17, 18}});
    EXPECT_THAT(sucheSerien(folgeAus(alle), {.mindestens = 2, .mitZusatzzahl = true}).serien, IsEmpty());
    alle[1].zz = 3;
    EXPECT_THAT(sucheSerien(folgeAus(alle), {.mindestens = 2}).serien, IsEmpty());
    EXPECT_THAT(gefundene(sucheSerien(folgeAus(alle), {.mindestens = 2, .mitZusatzzahl = true})),
                ElementsAre(Plumpserie{{3}, 0, 2}));
}

TEST(Serien, EineZusatzzahlDieAuchGezogenIstZaehltEinmal)
{
    std::vector<TestZiehung> alle = ziehungen({{1, 2, 3, 4, 5, 6}, {3, 7, 8, 9, 10, 11}});
    alle[0].zz = alle[1].zz = 3;
    EXPECT_THAT(gefundene(sucheSerien(folgeAus(alle), {.mindestens = 2, .mitZusatzzahl = true})),
                ElementsAre(Plumpserie{{3}, 0, 2}));
}

TEST(Serien, DreiZahlenEndenMitDerErstenDieAusbleibt)
{
    const auto folge = folgeAus(ziehungen({{1, 2, 3, 4, 5, 6},
                                           {1, 2, 3, 4, 15, 16},
                                           {1, 2, 3, 4, 25, 26},
                                           {1, 2, 3, 34, 35, 36},
                                           {41, 42, 43, 44, 45, 46}}));
    EXPECT_THAT(gefundene(sucheSerien(folge, {.zahlen = 3, .mindestens = 3})),
                ElementsAre(Plumpserie{{1, 2, 3}, 0, 4}, Plumpserie{{1, 2, 4}, 0, 3}, Plumpserie{{1, 3, 4}, 0, 3},
                            Plumpserie{{2, 3, 4}, 0, 3}));
}

TEST(Serien, SechsGleicheZahlenInZweiZiehungen)
{
    const auto folge = folgeAus(ziehungen({{4, 8, 15, 16, 23, 42}, {4, 8, 15, 16, 23, 42}}));
    EXPECT_THAT(gefundene(sucheSerien(folge, {.zahlen = 6, .mindestens = 2})),
                ElementsAre(Plumpserie{{4, 8, 15, 16, 23, 42}, 0, 2}));
    EXPECT_THAT(sucheSerien(folge, {.zahlen = 6, .mindestens = 3}).serien, IsEmpty());
}

TEST(Serien, WasKeineZahlIstWirdNieGefunden)
{
    const auto folge = folgeAus({{2000, 1, {0, -5, 50, 99, 2147483647, 7}, -2147483647 - 1},
                                 {2000, 2, {0, -5, 50, 99, 2147483647, 7}, 64},
                                 {2000, 3, {7, 7, 7, 7, 7, 7}, 7}});
    for (const bool mitZusatzzahl : {false, true})
        EXPECT_THAT(gefundene(sucheSerien(folge, {.mindestens = 1, .mitZusatzzahl = mitZusatzzahl})),
                    ElementsAre(Plumpserie{{7}, 0, 3}));
}

TEST(Serien, FindetDieselbenWieDieEinfachenSchleifen)
{
    for (const int hoechste : {9, 14, 30, 49}) {
        const auto alle = zufallsziehungen(300, hoechste, static_cast<std::uint64_t>(hoechste));
        const auto folge = folgeAus(alle);
        for (std::int32_t mindestens = 1; mindestens <= 8; ++mindestens)
            for (const bool zz : {false, true})
                EXPECT_EQ(gefundene(sucheSerien(folge, {.mindestens = mindestens, .mitZusatzzahl = zz})),
                          einzelneSerienPlump(plumpAus(alle, zz), static_cast<std::size_t>(mindestens)));
    }
}

TEST(Serien, VonDreiZahlenSindDieDerEinfachenSchleifen)
{
    for (const int hoechste : {9, 14}) {
        const auto alle = zufallsziehungen(300, hoechste, static_cast<std::uint64_t>(hoechste));
        for (std::int32_t mindestens = 1; mindestens <= 5; ++mindestens)
            EXPECT_EQ(gefundene(sucheSerien(folgeAus(alle), {.zahlen = 3, .mindestens = mindestens})),
                      dreierSerienPlump(plumpAus(alle, false), static_cast<std::size_t>(mindestens), hoechste));
    }
}

// --- The list

TEST(Serienzeilen, EinBlockNenntZahlLaengeUndZiehungen)
{
    std::vector<TestZiehung> alle = ziehungen({{3, 12, 13, 16, 23, 41}, {3, 11, 18, 30, 32, 49}});
    alle[1].zz = 7;
    const Serienzeilen zeilen(sucheSerien(folgeAus(alle), {.mindestens = 2}), kSerienEinesSpiels);
    EXPECT_THAT(alleZeilen(zeilen),
                ElementsAre("---------------------------- Gewinnzahlzahl 3 --------------------------------  ",
                            "                      2 mal in Folge gezogen (ohne die ZZ) ",
                            " 2000  01  03 12 13 16 23 41  00    -                    Nr.     1",
                            " 2000  02  03 11 18 30 32 49  07    -                    Nr.     2",
                            std::string(68, '-')));
}

TEST(Serienzeilen, DerKopfNenntAlleDreiZahlen)
{
    const auto folge = folgeAus(ziehungen({{1, 2, 3, 4, 5, 6}, {1, 12, 3, 14, 5, 16}, {1, 22, 3, 24, 5, 26}}));
    const Serienzeilen zeilen(sucheSerien(folge, {.zahlen = 3, .mindestens = 3}), kSerienEinesSpiels);
    EXPECT_EQ(zeilen.zeile(0),
              "---------------------------- Gewinnzahlzahl 1, 3, 5 --------------------------------  ");
    EXPECT_EQ(zeilen.anzahl(), 6U);
}

TEST(Serienzeilen, MitZusatzzahlSagtDieZweiteZeile)
{
    const auto folge = folgeAus(ziehungen({{1, 2, 3, 4, 5, 6}}));
    const Serienzeilen zeilen(sucheSerien(folge, {.mindestens = 1, .mitZusatzzahl = true}), kSerienEinesSpiels);
    EXPECT_EQ(zeilen.zeile(1), "                      1 mal in Folge gezogen (mit ZZ) ");
}

TEST(Serienzeilen, OhneSerieStehtNurDieEineZeile)
{
    const Seriensuche nichts = sucheSerien(folgeAus(ziehungen({{1, 2, 3, 4, 5, 6}})), {.mindestens = 5});
    EXPECT_THAT(alleZeilen(Serienzeilen(nichts, kSerienEinesSpiels)),
                ElementsAre("---------------------- noch nicht aufgetreten -------------------------------------  "));
    EXPECT_THAT(alleZeilen(Serienzeilen(nichts, kSerienZusammen)),
                ElementsAre("----------------- noch nicht aufgetreten -------------------------------------  "));
}

TEST(Serienzeilen, ZusammenIstDerKopfKuerzer)
{
    const auto folge = folgeAus(ziehungen({{9, 2, 3, 4, 5, 6}, {9, 12, 13, 14, 15, 16}}));
    const Serienzeilen zeilen(sucheSerien(folge, {.mindestens = 2}), kSerienZusammen);
    EXPECT_EQ(zeilen.zeile(0), "--------------- Gewinnzahlzahl 9 --------------------------------  ");
    EXPECT_EQ(zeilen.zeile(1), "                      2 mal in Folge gezogen ");
}

TEST(Serienzeilen, JedeZeileLaesstSichEinzelnMachen)
{
    const auto folge = folgeAus(zufallsziehungen(120, 12, 5));
    const Serienzeilen zeilen(sucheSerien(folge, {.mindestens = 2}), kSerienEinesSpiels);
    std::size_t nr = 0;
    for (const Serie& serie : zeilen.suche().serien) {
        EXPECT_THAT(zeilen.zeile(nr++), testing::HasSubstr("Gewinnzahlzahl"));
        EXPECT_THAT(zeilen.zeile(nr++), testing::HasSubstr(std::to_string(serie.laenge) + " mal in Folge"));
        for (std::uint32_t i = 0; i < serie.laenge; ++i)
            EXPECT_EQ(zeilen.zeile(nr++), folgezeile(*folge, serie.erste + i));
    }
    EXPECT_EQ(zeilen.zeile(nr), std::string(68, '-'));
    EXPECT_EQ(zeilen.anzahl(), nr + 1);
}

} // namespace

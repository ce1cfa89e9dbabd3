#include "filters/logic/Endziffern.h"
#include "testhilfen/ArchivAus.h"

#include <gmock/gmock.h>
#include <limits>

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr auto kMin = std::numeric_limits<std::int32_t>::min();
constexpr auto kMax = std::numeric_limits<std::int32_t>::max();

/// One draw of each constellation, in the order of the choice.
const std::vector<Zahlenreihe> kBeispiele{{1, 2, 3, 4, 5, 6},     {1, 11, 2, 3, 4, 5},   {1, 11, 21, 2, 3, 4},
                                          {1, 11, 2, 12, 3, 4},   {1, 11, 21, 31, 2, 3}, {1, 11, 21, 2, 12, 3},
                                          {1, 11, 21, 31, 41, 2}, {1, 11, 2, 12, 3, 13}, {1, 11, 2, 12, 22, 32},
                                          {1, 11, 21, 2, 12, 22}};

std::vector<Ziehungsfund> ziehungen(const std::vector<Zahlenreihe>& reihen)
{
    return alleZiehungen(archivAus(reihen), datumVon);
}

TEST(Endziffern, ZaehltDieLetztenZiffern)
{
    EXPECT_THAT(endziffern({9, 10, 19, 20, 40, 49}), ElementsAre(3, 0, 0, 0, 0, 0, 0, 0, 0, 3));
    EXPECT_EQ(konstellationVon(endziffern({9, 10, 19, 20, 40, 49})), (Endzifferkonstellation{.D = 2}));
}

TEST(Endziffern, DieZeileNenntZiffernUndKonstellationUnterIhremKopf)
{
    ZiehungsArchiv archiv = archivAus({{1, 11, 21, 31, 2, 3}});
    archiv.Datum.emplace_back("So, 09.10.1955");
    const std::string zeile = endzifferzeile(alleZiehungen(archiv, datumVon)[0]);
    EXPECT_EQ(zeile, "2000/01   01 11 21 31 02 03    So, 09.10.1955   |-|4|1|1|-|-|-|-|-|-|    |2|-|-|1|-|");
    EXPECT_EQ(zeile.size(), kEndzifferkopf.size());
    EXPECT_EQ(kEndzifferkopf.find('|'), zeile.find('|'));
    EXPECT_EQ(kEndzifferkopf.find("Datum"), zeile.find("So"));
    EXPECT_EQ(zeile[kEndzifferkopf.find('V')], '1');
}

TEST(Endziffern, JedeKonstellationFindetIhreZiehungen)
{
    const auto alle = ziehungen(kBeispiele);
    for (std::size_t nummer = 0; nummer < kEndzifferkonstellationen; ++nummer) {
        const Endziffernsuche suche = sucheEndziffern(alle, nummer);
        ASSERT_THAT(suche.funde, SizeIs(1)) << nummer;
        EXPECT_EQ(suche.funde[0].zahlen, kBeispiele[nummer]);
        EXPECT_EQ(suche.nummer, nummer);
    }
    EXPECT_THAT(zaehleEndziffern(alle).ziehungen, Each(1));
}

TEST(Endziffern, JedeKonstellationHatSechsZahlen)
{
    for (std::size_t nummer = 0; nummer < kEndzifferkonstellationen; ++nummer) {
        const auto& [E, Z, D, V, F] = konstellation(nummer);
        EXPECT_EQ(E + 2 * Z + 3 * D + 4 * V + 5 * F, 6) << nummer;
        EXPECT_EQ(moeglicheFaelle(nummer).size(), 38U) << nummer;
    }
}

TEST(Endziffern, DieErgebniszeileZaehltEineUndVieleUndKeine)
{
    const auto alle = ziehungen({kBeispiele[0], kBeispiele[0], kBeispiele[6]});
    EXPECT_EQ(ergebniszeile(sucheEndziffern(alle, 0)), "2 Ziehungen (66,667%) von 3 Ziehungen ");
    EXPECT_EQ(ergebniszeile(sucheEndziffern(alle, 6)), "1 Ziehung  (33,333%) von 3 Ziehungen ");
    EXPECT_EQ(ergebniszeile(sucheEndziffern(alle, 9)), "      *** Noch nicht aufgetreten ***");
}

TEST(Endziffern, DieUebersichtStelltArchivUndMoeglicheFaelleNebeneinander)
{
    const auto zeilen = uebersicht(zaehleEndziffern(ziehungen({kBeispiele[0], kBeispiele[5]})));
    ASSERT_THAT(zeilen, SizeIs(16));
    const std::string striche(103, '-');
    for (const std::size_t i : {0U, 2U, 13U, 15U})
        EXPECT_EQ(zeilen[i], striche) << i;
    EXPECT_EQ(
        zeilen[1],
        " Endzifferkonstellation            Ziehungen mit dieser Konstellation          überhaupt mögliche Fälle");
    EXPECT_EQ(zeilen[3], " 6 verschiedene Endziffern                   1 Ziehungen  50,000%"
                         "                    2.887.500  20,649%");
    EXPECT_EQ(zeilen[8], " 1 x 3 gleiche, 1 x 2 gleiche, 1 x 1         1 Ziehungen  50,000%"
                         "                      316.800   2,265%");
    EXPECT_EQ(zeilen[14], "                                             2 Ziehungen 100,000%"
                          "                   13.983.816 100,000%");
    for (std::size_t i = 3; i < 13; ++i)
        EXPECT_EQ(zeilen[i].size(), striche.size()) << i;
}

TEST(Endziffern, OhneZiehungSindDieAnteileNull)
{
    EXPECT_THAT(uebersicht(zaehleEndziffern({}))[3], HasSubstr("       0 Ziehungen   0,000%"));
    EXPECT_EQ(ergebniszeile(sucheEndziffern({}, 0)), "      *** Noch nicht aufgetreten ***");
}

TEST(Endziffern, WasKeineZahlIstHatKeineEndziffer)
{
    const auto alle = ziehungen({{kMin, -7, 0, 50, 60, kMax}, {10, 10, 10, 10, 10, 10}});
    EXPECT_THAT(endziffern(alle[0].zahlen), Each(0));
    EXPECT_EQ(konstellationVon(endziffern(alle[1].zahlen)), Endzifferkonstellation{}); // no digit ends six numbers
    EXPECT_THAT(zaehleEndziffern(alle).ziehungen, Each(0));
    EXPECT_THAT(endzifferzeile(alle[0]), HasSubstr("|-|-|-|-|-|-|-|-|-|-|    |-|-|-|-|-|"));
    for (std::size_t nummer = 0; nummer < kEndzifferkonstellationen; ++nummer)
        EXPECT_THAT(sucheEndziffern(alle, nummer).funde, IsEmpty());
}

TEST(Endziffern, EineVolleDatei)
{
    const auto alle = ziehungen(std::vector<Zahlenreihe>(kMaxZiehungenJeDatei, kBeispiele[9]));
    EXPECT_EQ(ergebniszeile(sucheEndziffern(alle, 9)), "32767 Ziehungen (100,000%) von 32767 Ziehungen ");
}

} // namespace

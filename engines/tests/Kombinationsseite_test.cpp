#include "engines/logic/KombinationAusNummer.h"
#include "engines/logic/Kombinationsseite.h"
#include "engines/logic/Trefferliste.h"
#include "engines/tests/Trefferarchiv.h"
#include "shell/logic/Zahlen.h"
#include "testhilfen/ZaehlerReferenz.h"

#include <gtest/gtest.h>

namespace {

TEST(KombinationsseiteTest, EineZeileAlsText)
{
    Kombinationszeile zeile{2'101'234, {2, 5, 11, 24, 35, 48}, {}};
    EXPECT_EQ(kombinationszeile(zeile),
              " 2.101.234   02 05 11 24 35 48  |  0 |  0 |  0 |  0 |  0 |  0 |  0 |   0 |  0 | GF: 000");
    zeile.zaehler.mitSuperzahl = {0, 0, 28, 7, 5, 3, 1};
    zeile.zaehler.ohneSuperzahl = {0, 0, 0, 128, 6, 4, 2};
    EXPECT_EQ(kombinationszeile(zeile),
              " 2.101.234   02 05 11 24 35 48  |  1 |  2 |  3 |  4 |  5 |  6 |  7 | 128 | 28 | GF: 184");
    zeile.nummer = 1;
    EXPECT_EQ(kombinationszeile(zeile).substr(0, 13), "         1   ");
    zeile.nummer = 13'983'816;
    EXPECT_EQ(kombinationszeile(zeile).substr(0, 13), "13.983.816   ");
}

TEST(KombinationsseiteTest, DerKopfStehtUeberDenSpalten)
{
    const std::string zeile = kombinationszeile({1, {1, 2, 3, 4, 5, 6}, {}});
    const std::string kopf = kKombinationskopf;
    for (std::size_t stelle = 0; stelle < kopf.rfind('|'); ++stelle)
        EXPECT_EQ(kopf[stelle] == '|', zeile[stelle] == '|') << stelle;
}

TEST(KombinationsseiteTest, GrosseZaehlerWerdenNichtAbgeschnitten)
{
    Kombinationszeile zeile{1, {1, 2, 3, 4, 5, 6}, {}};
    zeile.zaehler.ohneSuperzahl[6] = 98'301;
    EXPECT_EQ(kombinationszeile(zeile),
              "         1   01 02 03 04 05 06  |  0 | 98301 |  0 |  0 |  0 |  0 |  0 |   0 |  0 | GF: 98301");
}

TEST(KombinationsseiteTest, DieErsteSeite)
{
    const std::vector<Kombinationszeile> seite = kombinationsseite(ZiehungsArchiv{}, 1, 0);
    ASSERT_EQ(seite.size(), 30U);
    EXPECT_EQ(seite.front().nummer, 1);
    EXPECT_EQ(seite.back().nummer, 30);
    EXPECT_EQ(seite.back().zahlen, (Kombination{1, 2, 3, 4, 5, 35}));
}

TEST(KombinationsseiteTest, DieLetzteSeiteEndetMitDerLetztenKombination)
{
    EXPECT_EQ(kLetzteSeite, 13'983'787);
    const std::vector<Kombinationszeile> seite = kombinationsseite(ZiehungsArchiv{}, kLetzteSeite, 0);
    ASSERT_EQ(seite.size(), 30U);
    EXPECT_EQ(seite.back().nummer, 13'983'816);
    EXPECT_EQ(zahlentext(seite.back().zahlen), "44 45 46 47 48 49");
    EXPECT_EQ(kombinationsseite(ZiehungsArchiv{}, 13'983'816, 0).size(), 1U);
    EXPECT_TRUE(kombinationsseite(ZiehungsArchiv{}, 13'983'817, 0).empty());
}

TEST(KombinationsseiteTest, DieZaehlerSindDieDerFlaggentafel)
{
    const ZiehungsArchiv archiv = zufallsarchiv(2000, 1955);
    for (const std::int32_t erste : {1, 7'000'000, kLetzteSeite})
        for (const Kombinationszeile& zeile : kombinationsseite(archiv, erste, 3))
            EXPECT_EQ(zeile.zaehler, trefferEinfach(archiv, zeile.zahlen, 3));
}

} // namespace

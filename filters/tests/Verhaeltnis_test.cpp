#include "filters/logic/Verhaeltnis.h"
#include "testhilfen/ArchivAus.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <numeric>
#include <set>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A combined archive, as its loader makes it.
ZiehungsArchiv zusammen(const std::vector<Zahlenreihe>& reihen)
{
    ZiehungsArchiv archiv = archivAus(reihen);
    for (std::size_t nr = 1; nr <= reihen.size(); ++nr)
        archiv.DatumAlle.push_back("Sa, 01.01.2000");
    return archiv;
}

std::set<int> zahlenVon(const Verhaeltnisart& art)
{
    std::set<int> zahlen;
    for (int zahl = 1; zahl <= 49; ++zahl)
        if (art.gehoertDazu(zahl))
            zahlen.insert(zahl);
    return zahlen;
}

const std::vector<const Verhaeltnisart*> kAlleArten{&kGeradeUngerade, &kTiefHoch, &kPrimzahlen, &kRandzahlen};

TEST(Verhaeltnis, GeradeSindDieGeraden)
{
    std::set<int> gerade;
    for (int zahl = 2; zahl <= 48; zahl += 2)
        gerade.insert(zahl);
    EXPECT_EQ(zahlenVon(kGeradeUngerade), gerade);
}

TEST(Verhaeltnis, TiefSindEinsBis24)
{
    std::set<int> tief;
    for (int zahl = 1; zahl <= 24; ++zahl)
        tief.insert(zahl);
    EXPECT_EQ(zahlenVon(kTiefHoch), tief);
}

TEST(Verhaeltnis, PrimSindDie15DieNurSichSelbstAlsTeilerHaben)
{
    std::set<int> prim;
    for (int zahl = 2; zahl <= 49; ++zahl) {
        int teiler = 0;
        for (int t = 1; t <= zahl; ++t)
            teiler += zahl % t == 0;
        if (teiler == 2)
            prim.insert(zahl);
    }
    EXPECT_THAT(prim, SizeIs(15));
    EXPECT_EQ(zahlenVon(kPrimzahlen), prim);
    EXPECT_EQ(std::set<int>(kAllePrimzahlen.begin(), kAllePrimzahlen.end()), prim);
}

TEST(Verhaeltnis, AmRandLiegen24)
{
    EXPECT_THAT(zahlenVon(kRandzahlen),
                ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 14, 15, 21, 22, 28, 29, 35, 36, 42, 43, 44, 45, 46, 47, 48, 49));
}

TEST(Verhaeltnis, SechsGeradeUndTiefeZahlen)
{
    const ZiehungsArchiv archiv = zusammen({{2, 4, 6, 8, 10, 12}});
    EXPECT_THAT(FiltereZiehungen(archiv, kGeradeUngerade, 6).funde, SizeIs(1));
    EXPECT_THAT(FiltereZiehungen(archiv, kTiefHoch, 6).funde, SizeIs(1));
    EXPECT_THAT(FiltereZiehungen(archiv, kTiefHoch, 5).funde, IsEmpty());
}

TEST(Verhaeltnis, DieZeileNenntWocheZahlenUndDatum)
{
    const ZiehungsArchiv archiv = zusammen({{1, 2, 3, 4, 5, 6}, {3, 12, 24, 33, 41, 49}});
    const Verhaeltnissuche suche = FiltereZiehungen(archiv, kGeradeUngerade, 2);
    ASSERT_THAT(suche.funde, SizeIs(1));
    EXPECT_EQ(fundzeile(suche.funde[0], 2), "2000/01   03 12 24 33 41 49  Sa, 01.01.2000");
    EXPECT_EQ(suche.funde[0].zahlen, (Kombination{3, 12, 24, 33, 41, 49}));
}

TEST(Verhaeltnis, DieUebersichtZaehltJedeZiehungEinmal)
{
    const ZiehungsArchiv archiv = zusammen({{1, 3, 5, 7, 9, 11}, {2, 4, 6, 8, 10, 12}, {1, 2, 3, 4, 5, 6}});
    for (const Verhaeltnisart* art : kAlleArten) {
        const Verhaeltnissuche suche = FiltereZiehungen(archiv, *art, 3);
        EXPECT_EQ(std::accumulate(suche.ziehungen.begin(), suche.ziehungen.end(), 0), 3);
    }
    EXPECT_THAT(uebersicht(FiltereZiehungen(archiv, kGeradeUngerade, 3), kGeradeUngerade),
                ElementsAre(" davon    G : U         %", "----------------------------", "     6:0        133,333 %",
                            "     5:1        0 0,000 %", "     4:2        0 0,000 %", "     3:3        133,333 %",
                            "     2:4        0 0,000 %", "     1:5        0 0,000 %", "     0:6        133,333 %"));
}

TEST(Verhaeltnis, DieUebersichtDerPrimzahlenZaehltBreiter)
{
    const ZiehungsArchiv archiv = zusammen({{2, 3, 5, 7, 11, 13}});
    const auto zeilen = uebersicht(FiltereZiehungen(archiv, kPrimzahlen, 6), kPrimzahlen);
    EXPECT_EQ(zeilen[0], " davon Ziehungen mit:  ");
    EXPECT_EQ(zeilen[1], std::string(31, '-'));
    EXPECT_EQ(zeilen[2], "   6 PrimZ.       1100,000 %");
    EXPECT_EQ(zeilen[8], "   0 PrimZ.       0 0,000 %");
}

TEST(Verhaeltnis, OhneZiehungSindDieAnteileNull)
{
    const Verhaeltnissuche suche = FiltereZiehungen(ZiehungsArchiv{}, kRandzahlen, 0);
    EXPECT_THAT(suche.funde, IsEmpty());
    EXPECT_EQ(uebersicht(suche, kRandzahlen)[2], "     6:0        0 0,000 %");
    EXPECT_EQ(uebersicht(suche, kRandzahlen)[1], std::string(32, '-'));
}

TEST(Verhaeltnis, DieErgebniszeileNenntDieWahl)
{
    const ZiehungsArchiv archiv = zusammen({{1, 26, 27, 28, 29, 30}});
    EXPECT_EQ(ergebniszeile(FiltereZiehungen(archiv, kTiefHoch, 1), kTiefHoch), "1  Ziehungen [Eine Zahl   tief  5:1]");
    EXPECT_EQ(ergebniszeile(FiltereZiehungen(archiv, kTiefHoch, 6), kTiefHoch), "0  Ziehungen [Alle Zahlen tief  6:0]");
    EXPECT_EQ(ergebniszeile(FiltereZiehungen(archiv, kGeradeUngerade, 3), kGeradeUngerade),
              "1  Ziehungen [Drei Zahlen geraded 3:3]");
}

} // namespace

#include "engines/logic/Zusammengezogene.h"
#include "testhilfen/ArchivAus.h"

#include <gtest/gtest.h>
#include <numeric>

namespace {

const std::vector<Zahlenreihe> kReihen{{1, 2, 3, 4, 5, 49}, {1, 3, 10, 20, 30, 49}, {2, 3, 4, 5, 6, 7}};

TEST(Zusammengezogene, ZaehltZuEinerZahl)
{
    const Zusammengezogene ergebnis = zaehleZusammengezogene(archivAus(kReihen), {49});
    EXPECT_EQ(ergebnis.ziehungen, 3);
    EXPECT_EQ(ergebnis.anzahlen[1], 2);
    EXPECT_EQ(ergebnis.anzahlen[2], 1);
    EXPECT_EQ(ergebnis.anzahlen[6], 0);
    const std::vector<std::string> zeilen = zeilenNachZahl(ergebnis);
    ASSERT_EQ(zeilen.size(), 48U);
    EXPECT_EQ(zeilen.front(), " 1  ->    2");
    EXPECT_EQ(zeilen[9], "10  ->    1");
    EXPECT_EQ(zeilen.back(), "48  ->    0"); // its own row is left out
}

TEST(Zusammengezogene, ZaehltZuZweiZahlen)
{
    const Zusammengezogene ergebnis = zaehleZusammengezogene(archivAus(kReihen), {3, 1});
    EXPECT_EQ(ergebnis.anzahlen[49], 2);
    EXPECT_EQ(ergebnis.anzahlen[2], 1);
    EXPECT_EQ(ergebnis.anzahlen[6], 0);
    EXPECT_EQ(zeilenNachZahl(ergebnis).size(), 47U);
    EXPECT_EQ(zeilenNachZahl(ergebnis).front(), " 2  ->    1");
}

TEST(Zusammengezogene, OrdnetNachDemTextDerZeile)
{
    const std::vector<std::string> zeilen = zeilenNachHaeufigkeit(zaehleZusammengezogene(archivAus(kReihen), {49}));
    ASSERT_EQ(zeilen.size(), 48U);
    EXPECT_EQ(zeilen.front(), "   0  ->  6");
    EXPECT_EQ(zeilen[46], "   2  ->  1");
    EXPECT_EQ(zeilen[47], "   2  ->  3");
}

TEST(Zusammengezogene, OhneZiehungenIstAllesNull)
{
    const std::vector<std::string> zeilen = zeilenNachHaeufigkeit(zaehleZusammengezogene({}, {1}));
    EXPECT_EQ(zeilen.front(), "   0  ->  2");
    EXPECT_EQ(zeilen.size(), 48U);
}

TEST(Zusammengezogene, WasKeineZahlIstZaehltNirgends)
{
    const ZiehungsArchiv archiv = archivAus(std::vector<Zahlenreihe>{{7, 7, 8, 0, 99, -4}});
    const Zusammengezogene ergebnis = zaehleZusammengezogene(archiv, {8});
    EXPECT_EQ(ergebnis.anzahlen[7], 1);
    EXPECT_EQ(std::accumulate(ergebnis.anzahlen.begin(), ergebnis.anzahlen.end(), 0), 2); // 7 and 8 itself
}

} // namespace

#include "filters/logic/Zahlenlinie.h"

#include <gmock/gmock.h>
#include <map>

namespace {

constexpr Farbe kBlau{0, 0, 255};
constexpr Farbe kGelb{255, 255, 0};

std::map<int, std::string> zellen(const Folgeziehung& ziehung)
{
    std::map<int, std::string> nachSpalte;
    for (const Linienzelle& zelle : linienzellen(ziehung, 12))
        EXPECT_TRUE(nachSpalte.emplace(zelle.spalte, zelle.text).second) << zelle.spalte;
    return nachSpalte;
}

Folgeziehung ziehung(const Kombination& zahlen, std::int32_t superzahl)
{
    return {.jjjj = 2000, .sw = 48, .zahlen = zahlen, .superzahl = superzahl, .datum = "Mi, 29.11.2000"};
}

TEST(Zahlenlinie, HatFuenfSpaltenUndEinenTrennerNebenJederZahl)
{
    EXPECT_EQ(Liniespalten::kAnzahl, 3 + 2 + 2 * 49);
    for (int zahl = 1; zahl <= 49; ++zahl) {
        EXPECT_TRUE(Liniespalten::istZahl(Liniespalten::spalteVon(zahl)));
        EXPECT_TRUE(Liniespalten::istTrenner(Liniespalten::spalteVon(zahl) + 1));
    }
    for (const int spalte : {Liniespalten::kDatum, Liniespalten::kNull, Liniespalten::kDatum2, Liniespalten::kAnz}) {
        EXPECT_FALSE(Liniespalten::istZahl(spalte));
        EXPECT_FALSE(Liniespalten::istTrenner(spalte));
    }
}

TEST(Zahlenlinie, JedeZahlStehtInIhrerSpalte)
{
    const std::map<int, std::string> soll{
        {0, "2000-11-29 Mi"},   {2, "01"},    {4, "02"}, {6, "03"}, {40, "20"}, {82, "41"}, {98, "49"}, {14, "7"},
        {100, "2000-11-29 Mi"}, {102, "  12"}};
    EXPECT_EQ(zellen(ziehung({1, 2, 3, 20, 41, 49}, 7)), soll);
}

TEST(Zahlenlinie, EineGezogeneSuperzahlTraegtEineMarke)
{
    EXPECT_EQ(zellen(ziehung({1, 2, 7, 20, 41, 49}, 7)).at(14), "07 ");
}

TEST(Zahlenlinie, DieSuperzahlNullStehtVorDerEins)
{
    EXPECT_EQ(zellen(ziehung({1, 2, 7, 20, 41, 49}, 0)).at(Liniespalten::kNull), "0");
}

TEST(Zahlenlinie, VorDerSuperzahlStehtKeine)
{
    EXPECT_EQ(zellen(ziehung({11, 12, 17, 20, 41, 49}, kOhneSuperzahl)).size(), 9U);
}

TEST(Zahlenlinie, OhneSuperzahlTraegtAuchDieElfKeineMarke)
{
    EXPECT_EQ(zellen(ziehung({1, 2, 7, 11, 41, 49}, kOhneSuperzahl)).at(22), "11");
}

TEST(Zahlenlinie, WasKeineZahlIstHatKeineZelle)
{
    EXPECT_EQ(zellen(ziehung({0, -1, 50, 51, 99, 2147483647}, 38)).size(), 3U);
    EXPECT_EQ(zellen(ziehung({0, -1, 50, 51, 99, 2147483647}, -4)).size(), 3U);
}

TEST(Zahlenlinie, FaerbtGezogeneBlauUndDieSuperzahlGelb)
{
    EXPECT_EQ(linienfarbe(0, 14, "07").farben.grund, kBlau);
    EXPECT_EQ(linienfarbe(0, 14, "7").farben.grund, kGelb);
    EXPECT_EQ(linienfarbe(0, Liniespalten::kNull, "0").farben.grund, kGelb);
    EXPECT_EQ(linienfarbe(0, 14, "07 ").farben.grund, kBlau);
    EXPECT_EQ(linienfarbe(0, 14, "07 ").farben.schrift, kGelb);
}

TEST(Zahlenlinie, OhneTextBleibtDieZeileGestreift)
{
    for (const int spalte : {0, 1, 14, 100, 102}) {
        EXPECT_EQ(linienfarbe(0, spalte, "").farben.grund, (Farbe{217, 252, 253}));
        EXPECT_EQ(linienfarbe(1, spalte, "").farben.grund, (Farbe{255, 255, 255}));
    }
    EXPECT_EQ(linienfarbe(0, 15, "").farben.grund, (Farbe{192, 192, 192}));
    EXPECT_EQ(linienfarbe(0, 0, "2000-11-29 Mi").farben.grund, (Farbe{217, 252, 253}));
}

} // namespace

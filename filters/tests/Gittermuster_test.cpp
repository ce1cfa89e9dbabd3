#include "filters/logic/Gittermuster.h"
#include "testhilfen/ArchivAus.h"

#include <gmock/gmock.h>
#include <limits>
#include <numeric>
#include <random>

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::SizeIs;

/// Draws of six different numbers by chance, ascending.
std::vector<Zahlenreihe> zufaellige(std::size_t anzahl)
{
    std::mt19937 zufall(49);
    std::vector<int> alle(49);
    std::iota(alle.begin(), alle.end(), 1);
    std::vector<Zahlenreihe> reihen(anzahl);
    for (Zahlenreihe& reihe : reihen) {
        std::ranges::shuffle(alle, zufall);
        std::copy_n(alle.begin(), reihe.size(), reihe.begin());
        std::ranges::sort(reihe);
    }
    return reihen;
}

TEST(Gittermuster, SechsInEinerLinieHatDenCode6)
{
    EXPECT_EQ(codeVon({1, 2, 3, 4, 5, 6}, Linienart::Zeile), 6);
    EXPECT_EQ(codeVon({1, 2, 3, 4, 5, 6}, Linienart::Spalte), 111111);
    EXPECT_EQ(codeVon({7, 14, 21, 28, 35, 42}, Linienart::Spalte), 6);
    EXPECT_EQ(codeVon({44, 45, 46, 47, 48, 49}, Linienart::Zeile), 6);
}

TEST(Gittermuster, DerCodeNenntDieVollstenLinienZuletzt)
{
    EXPECT_EQ(codeVon({1, 2, 3, 8, 9, 15}, Linienart::Zeile), 123);
    EXPECT_EQ(codeVon({1, 2, 3, 8, 9, 15}, Linienart::Spalte), 123);
    EXPECT_EQ(codeVon({1, 8, 15, 22, 29, 37}, Linienart::Spalte), 15);
    EXPECT_EQ(codeVon({1, 2, 9, 10, 17, 18}, Linienart::Zeile), 222);
    EXPECT_EQ(codeVon({1, 9, 17, 25, 33, 41}, Linienart::Spalte), 111111);
}

TEST(Gittermuster, JedesMusterFindetSeineZiehungen)
{
    const std::array<Zahlenreihe, kGittermuster> beispiele{{{1, 2, 3, 4, 5, 6},
                                                            {1, 2, 3, 4, 5, 8},
                                                            {1, 2, 3, 4, 8, 9},
                                                            {1, 2, 3, 4, 8, 15},
                                                            {1, 2, 3, 8, 9, 10},
                                                            {1, 2, 3, 8, 9, 15},
                                                            {1, 2, 3, 8, 15, 22},
                                                            {1, 2, 8, 9, 15, 16},
                                                            {1, 2, 8, 9, 15, 22},
                                                            {1, 2, 8, 15, 22, 29},
                                                            {1, 8, 15, 22, 29, 36}}};
    const ZiehungsArchiv archiv = archivAus({beispiele.begin(), beispiele.end()});
    for (std::size_t muster = 0; muster < kGittermuster; ++muster) {
        const Mustersuche suche = BerechneMuster(archiv, Linienart::Zeile, muster);
        ASSERT_THAT(suche.funde, SizeIs(1)) << muster;
        EXPECT_EQ(suche.funde[0].zahlen, beispiele[muster]);
        EXPECT_EQ(suche.muster, muster);
    }
    EXPECT_THAT(zaehleMuster(archiv).zeilen, Each(1));
}

TEST(Gittermuster, JedeZiehungZeigtGenauEinMuster)
{
    const ZiehungsArchiv archiv = archivAus(zufaellige(500));
    const Musterverteilung verteilung = zaehleMuster(archiv);
    EXPECT_EQ(std::accumulate(verteilung.zeilen.begin(), verteilung.zeilen.end(), 0), 500);
    EXPECT_EQ(std::accumulate(verteilung.spalten.begin(), verteilung.spalten.end(), 0), 500);
    for (std::size_t muster = 0; muster < kGittermuster; ++muster) {
        EXPECT_THAT(BerechneMuster(archiv, Linienart::Zeile, muster).funde,
                    SizeIs(static_cast<std::size_t>(verteilung.zeilen[muster])));
        EXPECT_THAT(BerechneMuster(archiv, Linienart::Spalte, muster).funde,
                    SizeIs(static_cast<std::size_t>(verteilung.spalten[muster])));
    }
}

TEST(Gittermuster, DieErgebniszeileZaehltEineUndViele)
{
    const ZiehungsArchiv archiv = archivAus({{1, 2, 3, 4, 5, 6}, {1, 2, 3, 4, 5, 8}, {2, 3, 4, 5, 6, 8}});
    EXPECT_EQ(ergebniszeile(BerechneMuster(archiv, Linienart::Zeile, 0)), "1 Ziehung  (33,33%) von 3 Ziehungen ");
    EXPECT_EQ(ergebniszeile(BerechneMuster(archiv, Linienart::Zeile, 1)), "2 Ziehungen (66,67%) von 3 Ziehungen ");
    EXPECT_EQ(ergebniszeile(BerechneMuster(archiv, Linienart::Zeile, 2)), "0 Ziehungen (0,00%) von 3 Ziehungen ");
}

TEST(Gittermuster, DieBeschriftungenNennenZeileOderSpalte)
{
    EXPECT_EQ(beschriftung(0, Linienart::Zeile), "6 Zahlen in einer Zeile");
    EXPECT_EQ(beschriftung(0, Linienart::Spalte), "6 Zahlen in einer Spalte");
    EXPECT_EQ(beschriftung(1, Linienart::Zeile), "5 Zahlen in einer Zeile");
    EXPECT_EQ(beschriftung(1, Linienart::Spalte), "5 Zahlen in einer Spalte");
    for (std::size_t muster = 2; muster < kGittermuster; ++muster)
        EXPECT_EQ(beschriftung(muster, Linienart::Zeile), beschriftung(muster, Linienart::Spalte));
    EXPECT_EQ(beschriftung(10, Linienart::Zeile), "6 x 1 Zahl");
}

TEST(Gittermuster, DieUebersichtZeigtBeideRichtungen)
{
    const auto zeilen = uebersicht(zaehleMuster(archivAus({{1, 2, 3, 4, 5, 6}, {1, 2, 3, 8, 9, 10}})));
    ASSERT_THAT(zeilen, SizeIs(29));
    const std::string striche(69, '-');
    EXPECT_EQ(zeilen[0], striche);
    EXPECT_EQ(zeilen[1], " Verteilung der Gewinnzahlen auf die Tippfeld-Zeilen");
    EXPECT_EQ(zeilen[2], striche);
    EXPECT_EQ(zeilen[3], "6 Zahlen in einer Zeile        1 50,00");
    EXPECT_EQ(zeilen[7], "2 x 3 Zahlen                   1 50,00");
    EXPECT_EQ(zeilen[13], "6 x 1 Zahl                     0  0,00");
    EXPECT_EQ(zeilen[14], "");
    EXPECT_EQ(zeilen[16], " Verteilung der Gewinnzahlen auf die Tippfeld-Spalten");
    EXPECT_EQ(zeilen[18], "6 Zahlen in einer Spalte       0  0,00");
    EXPECT_EQ(zeilen[25], "3 x 2 Zahlen                   1 50,00");
    EXPECT_EQ(zeilen[28], "6 x 1 Zahl                     1 50,00");
}

TEST(Gittermuster, EineEinzigeZiehungFuelltHundertProzent)
{
    EXPECT_EQ(uebersicht(zaehleMuster(archivAus({{1, 2, 3, 4, 5, 6}})))[3], "6 Zahlen in einer Zeile        1100,00");
}

TEST(Gittermuster, OhneZiehungSindDieAnteileNull)
{
    EXPECT_EQ(uebersicht(zaehleMuster({}))[3], "6 Zahlen in einer Zeile        0  0,00");
    EXPECT_EQ(ergebniszeile(BerechneMuster({}, Linienart::Zeile, 0)), "0 Ziehungen (0,00%) von 0 Ziehungen ");
}

TEST(Gittermuster, WasKeineZahlIstLiegtInKeinerLinie)
{
    constexpr auto kMin = std::numeric_limits<std::int32_t>::min();
    constexpr auto kMax = std::numeric_limits<std::int32_t>::max();
    const ZiehungsArchiv archiv = archivAus({{kMin, -1, 0, 50, 99, kMax}, {1, 2, 3, 4, 5, 50}, {0, 0, 0, 0, 0, 0}});
    EXPECT_EQ(codeVon(archiv.gewinnzahlen(1), Linienart::Zeile), 0);
    EXPECT_EQ(codeVon(archiv.gewinnzahlen(1), Linienart::Spalte), 0);
    EXPECT_EQ(codeVon(archiv.gewinnzahlen(2), Linienart::Zeile), 5);
    const Musterverteilung verteilung = zaehleMuster(archiv);
    EXPECT_THAT(verteilung.zeilen, Each(0));
    EXPECT_THAT(verteilung.spalten, Each(0));
    EXPECT_EQ(verteilung.AnzahlZiehungen, 3);
}

TEST(Gittermuster, EineVolleDatei)
{
    const ZiehungsArchiv archiv = archivAus(std::vector<Zahlenreihe>(kMaxZiehungenJeDatei, {1, 2, 3, 8, 9, 15}));
    EXPECT_EQ(ergebniszeile(BerechneMuster(archiv, Linienart::Spalte, 5)),
              "32767 Ziehungen (100,00%) von 32767 Ziehungen ");
    EXPECT_EQ(uebersicht(zaehleMuster(archiv))[8], "1 x 3, 1 x 2, 1 x 1 Zahl   32767100,00");
}

} // namespace

#include "statistics/logic/Matrix.h"
#include "testhilfen/ArchivAus.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

namespace {

constexpr auto kMaximum = Zellmarke::Maximum;
constexpr auto kMinimum = Zellmarke::Minimum;

/// A combined archive: two Saturday draws and one of each Wednesday game, of which two fall into another year than
/// their Spieljahr.
ZiehungsArchiv zusammen()
{
    ZiehungsArchiv archiv = archivAus(Samstagslotto, {{2010, 52, {1, 2, 3, 4, 5, 6}, 7},
                                                      {2013, 1, {1, 2, 3, 4, 5, 49}, 0},
                                                      {2015, 1, {1, 2, 13, 14, 15, 16}, 0},
                                                      {1986, 23, {44, 45, 46, 47, 48, 49}, 1}});
    archiv.DatumAlle = {"", "Sa, 01.01.2011", "Sa, 05.01.2013", "Mi, 31.12.2014", "Mi, 04.06.1986 (B)"};
    archiv.Datum = {"", "Mi, 04.06.1986"};
    archiv.s = {0, 3, 0, 9, kOhneSuperzahl};
    return archiv;
}

Matrix zahlen(const ZiehungsArchiv& archiv, Matrixzeilen zeilen, ZZModus modus = ZZModus::Ohne)
{
    return matrix(archiv, Matrixspalten::Gewinnzahlen, zeilen, modus);
}

Matrix superzahlen(const ZiehungsArchiv& archiv, Matrixzeilen zeilen)
{
    return matrix(archiv, Matrixspalten::Superzahlen, zeilen, ZZModus::Ohne);
}

/// `stelle` counts from 0.
Zahlenzelle zelle(const Matrix& matrix, std::int32_t schluessel, std::size_t stelle)
{
    for (const Zahlenzeile& zeile : matrix.tabelle.zeilen)
        if (zeile.schluessel == schluessel)
            return zeile.zellen.at(stelle);
    ADD_FAILURE() << "no row " << schluessel;
    return {};
}

std::int32_t summe(const Matrix& matrix)
{
    std::int32_t summe = 0;
    for (const Zahlenzeile& zeile : matrix.tabelle.zeilen)
        for (const Zahlenzelle& eine : zeile.zellen)
            summe += eine.anzahl;
    return summe;
}

TEST(Matrix, HatImmerAlle53Wochen)
{
    const Matrix wochen = zahlen(zusammen(), Matrixzeilen::Spielwochen);
    ASSERT_EQ(wochen.tabelle.zeilen.size(), 53U);
    EXPECT_EQ(wochen.tabelle.zeilen.front().schluessel, 1);
    EXPECT_EQ(wochen.tabelle.zeilen.back().schluessel, 53);
    EXPECT_EQ(zelle(wochen, 1, 0), (Zahlenzelle{2, kMaximum}));
    EXPECT_EQ(zelle(wochen, 1, 48), (Zahlenzelle{1, Zellmarke::Keine}));
    EXPECT_EQ(zelle(wochen, 1, 47), (Zahlenzelle{0, kMinimum}));
    EXPECT_EQ(zelle(wochen, 53, 0), (Zahlenzelle{0, kMaximum})); // nothing drawn: all are both
    EXPECT_EQ(wochen.tabelle.rekord, (Tabellenrekord{2, 1, 1}));
}

TEST(Matrix, ZaehltNachZZModus)
{
    const ZiehungsArchiv archiv = zusammen();
    EXPECT_EQ(summe(zahlen(archiv, Matrixzeilen::Spielwochen, ZZModus::Ohne)), 24);
    EXPECT_EQ(summe(zahlen(archiv, Matrixzeilen::Spielwochen, ZZModus::Mit)), 26);
    const Matrix nur = zahlen(archiv, Matrixzeilen::Spielwochen, ZZModus::Nur);
    EXPECT_EQ(summe(nur), 2);
    EXPECT_EQ(zelle(nur, 52, 6), (Zahlenzelle{1, kMaximum}));
    EXPECT_EQ(zelle(nur, 23, 0), (Zahlenzelle{1, kMaximum}));
}

// The draws stand file by file, so the first and the last of them are not those of the first and last year.
TEST(Matrix, DieJahreGehenVomKleinstenZumGroessten)
{
    const Matrix nachWoche = zahlen(zusammen(), Matrixzeilen::JahreNachSpielwoche);
    ASSERT_EQ(nachWoche.tabelle.zeilen.size(), 30U);
    EXPECT_EQ(nachWoche.tabelle.zeilen.front().schluessel, 1986);
    EXPECT_EQ(nachWoche.tabelle.zeilen.back().schluessel, 2015);
    EXPECT_EQ(zelle(nachWoche, 1986, 48), (Zahlenzelle{1, kMaximum}));
    EXPECT_EQ(zelle(nachWoche, 2010, 0), (Zahlenzelle{1, kMaximum}));
    EXPECT_EQ(zelle(nachWoche, 2015, 12), (Zahlenzelle{1, kMaximum}));
}

TEST(Matrix, NachDatumZaehltDasJahrDesTages)
{
    const Matrix nachDatum = zahlen(zusammen(), Matrixzeilen::JahreNachDatum);
    ASSERT_EQ(nachDatum.tabelle.zeilen.size(), 29U);
    EXPECT_EQ(nachDatum.tabelle.zeilen.front().schluessel, 1986); // behind this year stands " (B)"
    EXPECT_EQ(nachDatum.tabelle.zeilen.back().schluessel, 2014);
    EXPECT_EQ(zelle(nachDatum, 2010, 0), (Zahlenzelle{0, kMaximum}));
    EXPECT_EQ(zelle(nachDatum, 2011, 0), (Zahlenzelle{1, kMaximum}));
    EXPECT_EQ(zelle(nachDatum, 2014, 12), (Zahlenzelle{1, kMaximum}));
    EXPECT_EQ(summe(nachDatum), 24);
}

TEST(Matrix, OhneDatumZaehltDasSpieljahr)
{
    ZiehungsArchiv archiv = zusammen();
    archiv.DatumAlle.resize(2);
    const Matrix nachDatum = zahlen(archiv, Matrixzeilen::JahreNachDatum);
    EXPECT_EQ(nachDatum.tabelle.zeilen.back().schluessel, 2015);
    EXPECT_EQ(zelle(nachDatum, 2011, 0), (Zahlenzelle{1, kMaximum}));
    EXPECT_EQ(summe(nachDatum), 24);
}

TEST(Matrix, DieSuperzahlHatZehnSpalten)
{
    const Matrix wochen = superzahlen(zusammen(), Matrixzeilen::Spielwochen);
    ASSERT_EQ(wochen.tabelle.zeilen.size(), 53U);
    for (const Zahlenzeile& zeile : wochen.tabelle.zeilen)
        EXPECT_EQ(zeile.zellen.size(), 10U);
    EXPECT_EQ(zelle(wochen, 52, 3), (Zahlenzelle{1, kMaximum}));
    EXPECT_EQ(zelle(wochen, 1, 0), (Zahlenzelle{1, kMaximum}));
    EXPECT_EQ(zelle(wochen, 1, 9), (Zahlenzelle{1, kMaximum}));
    EXPECT_EQ(summe(wochen), 3); // the draw before the Superzahl has none
    EXPECT_EQ(wochen.tabelle.rekord, (Tabellenrekord{1, 0, 1}));
}

TEST(Matrix, EineZiehungOhneSuperzahlGibtDochIhrJahr)
{
    const Matrix jahre = superzahlen(zusammen(), Matrixzeilen::JahreNachSpielwoche);
    EXPECT_EQ(jahre.tabelle.zeilen.front().schluessel, 1986);
    EXPECT_EQ(jahre.tabelle.zeilen.back().schluessel, 2015);
    EXPECT_EQ(summe(jahre), 3);
}

TEST(Matrix, LeeresArchiv)
{
    const ZiehungsArchiv leer;
    EXPECT_EQ(zahlen(leer, Matrixzeilen::Spielwochen).tabelle.zeilen.size(), 53U);
    EXPECT_EQ(summe(zahlen(leer, Matrixzeilen::Spielwochen)), 0);
    EXPECT_TRUE(zahlen(leer, Matrixzeilen::JahreNachDatum).tabelle.zeilen.empty());
    EXPECT_TRUE(superzahlen(leer, Matrixzeilen::JahreNachSpielwoche).tabelle.zeilen.empty());
    EXPECT_EQ(zahlen(leer, Matrixzeilen::JahreNachDatum).tabelle.rekord, std::nullopt);
}

TEST(Matrix, EineEinzigeZiehung)
{
    ZiehungsArchiv archiv = archivAus(Samstagslotto, {{2020, 7, {1, 2, 3, 4, 5, 6}, 0}});
    archiv.DatumAlle = {"", "Sa, 15.02.2020"};
    for (const auto zeilen : {Matrixzeilen::JahreNachDatum, Matrixzeilen::JahreNachSpielwoche}) {
        const Matrix jahre = zahlen(archiv, zeilen);
        ASSERT_EQ(jahre.tabelle.zeilen.size(), 1U);
        EXPECT_EQ(jahre.tabelle.rekord, (Tabellenrekord{1, 1, 2020}));
    }
    EXPECT_EQ(zahlen(archiv, Matrixzeilen::Spielwochen).tabelle.rekord, (Tabellenrekord{1, 1, 7}));
}

TEST(Matrix, NichtGezaehltWirdWasNachEinerFehlgeschlagenenLadungUebrigIst)
{
    ZiehungsArchiv archiv = zusammen();
    archiv.AnzahlZiehungen = 0;
    EXPECT_EQ(summe(zahlen(archiv, Matrixzeilen::Spielwochen)), 0);
    EXPECT_TRUE(zahlen(archiv, Matrixzeilen::JahreNachSpielwoche).tabelle.zeilen.empty());
}

TEST(Matrix, UnmoeglicheWerteZaehlenNicht)
{
    const ZiehungsArchiv archiv = archivAus(Samstagslotto, {{-5, 0, {1, 2, 3, 4, 5, 6}, 0},
                                                            {2147483647, 99, {1, 2, 3, 4, 5, 6}, 0},
                                                            {-2147483647 - 1, -1, {1, 2, 3, 4, 5, 6}, 0},
                                                            {2000, 2147483647, {0, 50, -3, 2147483647, 5, 6}, 99},
                                                            {2003, 4, {1, 2, 3, 4, 5, 6}, -1}});
    EXPECT_EQ(summe(zahlen(archiv, Matrixzeilen::Spielwochen, ZZModus::Mit)), 6);
    for (const auto zeilen : {Matrixzeilen::JahreNachDatum, Matrixzeilen::JahreNachSpielwoche}) {
        const Matrix jahre = zahlen(archiv, zeilen, ZZModus::Mit);
        ASSERT_EQ(jahre.tabelle.zeilen.size(), 4U);
        EXPECT_EQ(jahre.tabelle.zeilen.front().schluessel, 2000);
        EXPECT_EQ(summe(jahre), 8);
    }
}

TEST(Matrix, NurUnmoeglicheJahreGebenKeineZeilen)
{
    const ZiehungsArchiv archiv =
        archivAus(Samstagslotto, {{-5, 1, {1, 2, 3, 4, 5, 6}, 0}, {10000, 1, {1, 2, 3, 4, 5, 6}, 0}});
    EXPECT_TRUE(zahlen(archiv, Matrixzeilen::JahreNachSpielwoche).tabelle.zeilen.empty());
}

TEST(Matrix, DieAeusserstenJahreGebenZehntausendZeilen)
{
    const ZiehungsArchiv archiv =
        archivAus(Samstagslotto, {{9999, 1, {1, 2, 3, 4, 5, 6}, 0}, {0, 1, {1, 2, 3, 4, 5, 6}, 0}});
    EXPECT_EQ(zahlen(archiv, Matrixzeilen::JahreNachSpielwoche).tabelle.zeilen.size(), 10'000U);
}

/// Draws of every kind by chance, some of them hostile.
ZiehungsArchiv zufallsarchiv(std::mt19937& zufall)
{
    const auto wert = [&zufall](int von, int bis) { return std::uniform_int_distribution(von, bis)(zufall); };
    std::vector<TestZiehung> ziehungen(static_cast<std::size_t>(wert(0, 200)));
    for (TestZiehung& ziehung : ziehungen) {
        ziehung = {wert(1954, 1990), wert(-1, 55), {}, wert(-1, 51)};
        for (std::int32_t& zahl : ziehung.zahlen)
            zahl = wert(-1, 51);
    }
    ZiehungsArchiv archiv = archivAus(Samstagslotto, ziehungen);
    for (std::int32_t& s : archiv.s)
        s = wert(-1, 11);
    return archiv;
}

TEST(Matrix, GleichtDerSchleifeUeberJedeZelle)
{
    std::mt19937 zufall(35);
    for (int lauf = 0; lauf < 60; ++lauf) {
        const ZiehungsArchiv archiv = zufallsarchiv(zufall);
        const bool wochen = lauf % 2 == 0;
        const auto modus = static_cast<ZZModus>(lauf % 3 + 1);
        const bool superzahl = lauf % 4 == 3;
        const Matrix gezaehlt = matrix(archiv, superzahl ? Matrixspalten::Superzahlen : Matrixspalten::Gewinnzahlen,
                                       wochen ? Matrixzeilen::Spielwochen : Matrixzeilen::JahreNachSpielwoche, modus);
        for (const Zahlenzeile& zeile : gezaehlt.tabelle.zeilen) {
            std::int32_t min = 1'000'000;
            std::int32_t max = -1;
            for (std::size_t i = 0; i < zeile.zellen.size(); ++i) {
                const int zahl = static_cast<int>(i) + (superzahl ? 0 : 1);
                std::int32_t soll = 0;
                for (std::size_t nr = 1; nr < archiv.jjjj.size(); ++nr) {
                    if ((wochen ? archiv.sw : archiv.jjjj)[nr] != zeile.schluessel)
                        continue;
                    if (superzahl)
                        soll += archiv.s[nr] == zahl;
                    else if (modus != ZZModus::Nur)
                        for (const std::int32_t eine : archiv.gewinnzahlen(nr))
                            soll += eine == zahl;
                    if (!superzahl && modus != ZZModus::Ohne)
                        soll += archiv.zz[nr] == zahl;
                }
                EXPECT_EQ(zeile.zellen[i].anzahl, soll);
                min = std::min(min, soll);
                max = std::max(max, soll);
            }
            for (const Zahlenzelle& eine : zeile.zellen)
                EXPECT_EQ(eine.marke, eine.anzahl == max ? kMaximum : eine.anzahl == min ? kMinimum : Zellmarke::Keine);
        }
    }
}

TEST(Matrixzelle, TraegtIhreMarkenImText)
{
    EXPECT_EQ(matrixzelle({7, Zellmarke::Keine}, false), "7");
    EXPECT_EQ(matrixzelle({12, kMaximum}, false), "12\n");
    EXPECT_EQ(matrixzelle({0, kMinimum}, false), "\n0");
    EXPECT_EQ(matrixzelle({12, kMaximum}, true), "12\n\x1D");
}

TEST(Matrixfarbe, FolgtDemText)
{
    const Farbpaar gelb{{255, 255, 0}, {0, 0, 0}};
    const Farbpaar rot{{255, 0, 0}, {255, 255, 255}};
    const Farbpaar blau{{109, 116, 248}, {255, 255, 255}};
    for (const bool gewaehlt : {false, true}) {
        EXPECT_EQ(matrixfarbe("12\n\x1D", 0, gewaehlt), gelb);
        EXPECT_EQ(matrixfarbe("\n0\x1D", 1, gewaehlt), gelb);
        EXPECT_EQ(matrixfarbe("12\n", 0, gewaehlt), rot);
        EXPECT_EQ(matrixfarbe("\n0", 1, gewaehlt), blau);
    }
    EXPECT_EQ(matrixfarbe("7", 0, false), (Farbpaar{{217, 252, 253}, {0, 0, 0}}));
    EXPECT_EQ(matrixfarbe("7", 1, false), (Farbpaar{{255, 255, 255}, {0, 0, 0}}));
    EXPECT_EQ(matrixfarbe("7", 0, true), (Farbpaar{{255, 192, 128}, {0, 0, 0}}));
    EXPECT_EQ(matrixfarbe("", 1, true), (Farbpaar{{255, 192, 128}, {0, 0, 0}}));
}

TEST(Rekordtext, NenntAnzahlUndModus)
{
    const ZiehungsArchiv archiv = zusammen();
    EXPECT_EQ(rekordtext(zahlen(archiv, Matrixzeilen::Spielwochen, ZZModus::Ohne)),
              "Maximum zu einer Spielwoche gezogen:  2 mal (ohne Zusatzzahl)");
    EXPECT_EQ(rekordtext(zahlen(archiv, Matrixzeilen::JahreNachDatum, ZZModus::Mit)),
              "Maximum in einem Spieljahr gezogen:  1 mal (mit Zusatzzahl)");
    EXPECT_EQ(rekordtext(zahlen(archiv, Matrixzeilen::JahreNachSpielwoche, ZZModus::Nur)),
              "Maximum in einem Spieljahr gezogen:  1 mal (nur Zusatzzahl)");
    EXPECT_EQ(rekordtext(superzahlen(archiv, Matrixzeilen::Spielwochen)),
              "Maximum zu einer Spielwoche gezogen:  1 mal");
    EXPECT_EQ(rekordtext(superzahlen(archiv, Matrixzeilen::JahreNachDatum)),
              "Maximum in einem Spieljahr gezogen:  1 mal ");
    EXPECT_EQ(rekordtext(Matrix{}), "");
}

TEST(Zeilenname, HatFesteStellen)
{
    EXPECT_EQ(zeilenname(Matrixzeilen::Spielwochen, 7), "07");
    EXPECT_EQ(zeilenname(Matrixzeilen::JahreNachDatum, 1955), "1955");
    EXPECT_EQ(zeilenname(Matrixzeilen::JahreNachSpielwoche, 5), "0005");
    EXPECT_EQ(zeilentitel(Matrixzeilen::Spielwochen), "SW");
    EXPECT_EQ(zeilentitel(Matrixzeilen::JahreNachSpielwoche), "Jahr");
}

} // namespace

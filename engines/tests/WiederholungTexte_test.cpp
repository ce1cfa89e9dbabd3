#include "engines/logic/WiederholungTexte.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace {

using Reihe = std::array<std::int32_t, 6>;

TEST(WiederholungTexte, DieZeileZeigtAnzahlUndZahlen)
{
    EXPECT_EQ(ergebniszeile({{7, 19}, 9}, 2, kEineSpielart), " 9 mal ->   7 19");
    EXPECT_EQ(ergebniszeile({{7, 19}, 9}, 2, kAlleSpielarten), "  9 mal ->   7 19");
    EXPECT_EQ(ergebniszeile({{7, 19}, 103}, 2, kEineSpielart), "103 mal ->   7 19");
    EXPECT_EQ(ergebniszeile({{7, 19, 20}, 9}, 3, kEineSpielart), " 9 mal ->   7 19 20");
    EXPECT_EQ(ergebniszeile({{7, 19, 20}, 9}, 3, kAlleSpielarten), "  9 mal ->   7 19 20");
    for (const Wiederholungsart& art : {kEineSpielart, kAlleSpielarten}) {
        EXPECT_EQ(ergebniszeile({{7, 19, 20, 40}, 4}, 4, art), " 4 mal ->   7 19 20 40");
        EXPECT_EQ(ergebniszeile({{7, 19, 20, 40, 41}, 3}, 5, art), " 3 mal ->   7 19 20 40 41");
        EXPECT_EQ(ergebniszeile({{15, 25, 27, 30, 42, 48}, 2}, 6, art), " 2 mal-> 15 25 27 30 42 48");
    }
}

TEST(WiederholungTexte, EineUnsinnigeZahlVerbreitertIhrFeld)
{
    EXPECT_EQ(ergebniszeile({{-50, 12345}, 2}, 2, kEineSpielart), " 2 mal -> -5012345");
}

TEST(WiederholungTexte, DieZahlenWerdenAusBeidenBreitenGleichGelesen)
{
    const Reihe soll{7, 19};
    EXPECT_EQ(zahlenDerZeile(" 9 mal ->   7 19", 2), soll);
    EXPECT_EQ(zahlenDerZeile("  9 mal ->   7 19", 2), soll);
    EXPECT_EQ(zahlenDerZeile("103 mal ->   7 19", 2), soll);
}

TEST(WiederholungTexte, JedeZeileWirdZurueckgelesen)
{
    const Reihe zahlen{1, 9, 10, 11, 48, 49};
    for (const Wiederholungsart& art : {kEineSpielart, kAlleSpielarten}) {
        for (int k = 2; k <= 6; ++k) {
            for (const int anzahl : {2, 10, 99, 1000, 98301}) {
                Reihe soll{};
                std::copy_n(zahlen.begin(), k, soll.begin());
                EXPECT_EQ(zahlenDerZeile(ergebniszeile({zahlen, anzahl}, k, art), k), soll);
            }
        }
    }
}

TEST(WiederholungTexte, EineKurzeZeileGibtNullen)
{
    EXPECT_EQ(zahlenDerZeile("", 6), Reihe{});
    EXPECT_EQ(zahlenDerZeile(" 9 mal ->   7", 3), (Reihe{7, 0, 0}));
    EXPECT_EQ(zahlenteil("", 2), "");
}

TEST(WiederholungTexte, DerKopfDerDetailsNimmtDenRestDerZeile)
{
    EXPECT_EQ(zahlenteil(" 9 mal ->   7 19", 2), "  7 19");
    EXPECT_EQ(zahlenteil("  9 mal ->   7 19", 2), "   7 19");
    EXPECT_EQ(zahlenteil("1254 mal ->   7 19", 2), "   7 19");
    EXPECT_EQ(zahlenteil(" 2 mal-> 15 25 27 30 42 48", 6), " 15 25 27 30 42 48");
}

// The order of a list is that of its texts: a blank stands before every digit, so counts of one width are ranked, and
// wider ones fall among them.
TEST(WiederholungTexte, MehrAlsNeunundneunzigFallenInDieTextfolge)
{
    std::vector<std::string> zeilen;
    for (const int anzahl : {9, 10, 11, 99, 100, 103})
        zeilen.push_back(ergebniszeile({{7, 19}, anzahl}, 2, kEineSpielart).substr(0, 7));
    std::ranges::sort(zeilen);
    EXPECT_EQ(zeilen, (std::vector<std::string>{" 9 mal ", "10 mal ", "100 mal", "103 mal", "11 mal ", "99 mal "}));
}

TEST(WiederholungTexte, DieLeereZusammenfassung)
{
    EXPECT_EQ(leereWiederholungszusammenfassung(), "      Kombinationen\r\n"
                                                   "--------------------------------\r\n"
                                                   "  überhaupt mögliche: -\r\n"
                                                   "   noch nie gezogene: -\r\n"
                                                   "     einmal gezogene: -\r\n"
                                                   "   mehrfach gezogene: -\r\n");
}

TEST(WiederholungTexte, DieZusammenfassungDerPaareIstOhneGruppen)
{
    Wiederholungen ergebnis;
    ergebnis.Wiederholungslaenge = 2;
    ergebnis.AnzahlEinmal = 3;
    ergebnis.AnzahlMehrfach = 1;
    EXPECT_EQ(zusammenfassung(ergebnis), "      Zweierkombinationen\r\n"
                                         "--------------------------------\r\n"
                                         "  überhaupt mögliche: 1176\r\n"
                                         "   noch nie gezogene: 1172\r\n"
                                         "     einmal gezogene: 3\r\n"
                                         "   mehrfach gezogene: 1\r\n");
    ergebnis.AnzahlEinmal = 2000;
    EXPECT_NE(zusammenfassung(ergebnis).find("noch nie gezogene: -825\r\n"), std::string::npos);
}

TEST(WiederholungTexte, DieAnderenZusammenfassungenSindGruppiert)
{
    const std::array<std::array<std::string, 3>, 4> soll{{
        {"      Dreierkombinationen\r\n", "mögliche: 18.424\r\n", "nie gezogene: 12.424\r\n"},
        {"      Viererkombinationen\r\n", "mögliche: 211.876\r\n", "nie gezogene: 205.876\r\n"},
        {"      Fünferkombinationen\r\n", "mögliche: 1.906.884\r\n", "nie gezogene: 1.900.884\r\n"},
        {"      Sechserkombinationen\r\n", "mögliche: 13.983.816\r\n", "nie gezogene: 13.977.816\r\n"},
    }};
    for (int k = 3; k <= 6; ++k) {
        Wiederholungen ergebnis;
        ergebnis.Wiederholungslaenge = k;
        ergebnis.AnzahlEinmal = 4321;
        ergebnis.AnzahlMehrfach = 1679;
        const std::string text = zusammenfassung(ergebnis);
        const auto& teile = soll[static_cast<std::size_t>(k - 3)];
        EXPECT_TRUE(text.starts_with(teile[0]));
        EXPECT_NE(text.find(teile[1]), std::string::npos);
        EXPECT_NE(text.find(teile[2]), std::string::npos);
        EXPECT_NE(text.find("einmal gezogene: 4.321\r\n"), std::string::npos);
        EXPECT_TRUE(text.ends_with("mehrfach gezogene: 1.679\r\n"));
    }
}

TEST(WiederholungTexte, EinLeeresErgebnisHatNullenUndAlleNochVorSich)
{
    Wiederholungen ergebnis;
    ergebnis.Wiederholungslaenge = 6;
    const std::string text = zusammenfassung(ergebnis);
    EXPECT_NE(text.find("nie gezogene: 13.983.816\r\n"), std::string::npos);
    EXPECT_NE(text.find("einmal gezogene: 0\r\n"), std::string::npos);
    EXPECT_NE(text.find("mehrfach gezogene: 0\r\n"), std::string::npos);
}

TEST(WiederholungTexte, ErkenntDieZeileOhneSechser)
{
    EXPECT_TRUE(istKeineSechser(kKeineSechserwiederholungen));
    EXPECT_FALSE(istKeineSechser(" 2 mal-> 15 25 27 30 42 48"));
    EXPECT_FALSE(istKeineSechser(""));
}

} // namespace

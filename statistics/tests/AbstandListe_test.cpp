#include "statistics/logic/AbstandListe.h"

#include <array>
#include <cstddef>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

AbstandAuswertung auswertung(int zahl, ZZModus modus, std::int32_t zz = 34)
{
    AbstandAuswertung ergebnis;
    ergebnis.zahl = zahl;
    ergebnis.ZaehlModus = modus;
    ergebnis.Spielart = Samstagslotto;
    ergebnis.treffer = {{7, 1956, 5, "So, 29.01.1956", {3, 7, 12, 34, 41, 49}, zz, 6},
                        {12, 1956, 10, "So, 04.03.1956", {3, 7, 12, 34, 41, 49}, zz, 5}};
    ergebnis.laengster = 0;
    ergebnis.AnzahlZiehungen = 3693;
    ergebnis.ersteZiehung = "1955/41";
    ergebnis.letzteZiehung = "2026/29";
    ergebnis.letztesDatum = "Sa, 18.07.2026";
    return ergebnis;
}

/// The cells of the first hit, joined by "|".
std::string zeile(int zahl, ZZModus modus, std::int32_t zz = 34)
{
    std::string text;
    for (const std::string& zelle : abstandZellen(auswertung(zahl, modus, zz), 0))
        text += zelle + "|";
    return text;
}

TEST(AbstandListe, HatDreiundzwanzigSpaltenMitElfTrennern)
{
    int trenner = 0;
    for (int spalte = 0; spalte < AbstandSpalten::kAnzahl; ++spalte) {
        const std::string schluessel(AbstandSpalten::kSchluessel[static_cast<std::size_t>(spalte)]);
        const bool istTrenner = AbstandSpalten::istTrenner(spalte);
        EXPECT_EQ(istTrenner, schluessel == "trenner" + std::to_string(trenner)) << spalte;
        trenner += istTrenner;
    }
    EXPECT_EQ(trenner, 11);
}

TEST(AbstandListe, DerTrefferTraegtEinLeerzeichen)
{
    EXPECT_EQ(zeile(7, ZZModus::Ohne), "   7||1956||05||So, 29.01.1956||03||07 ||12||34||41||49||34||   6|");
    EXPECT_EQ(zeile(49, ZZModus::Mit), "   7||1956||05||So, 29.01.1956||03||07||12||34||41||49 ||34||   6|");
}

TEST(AbstandListe, OhneZusatzzahlBleibtDieseOhneMarke)
{
    EXPECT_EQ(zeile(34, ZZModus::Ohne, 34), "   7||1956||05||So, 29.01.1956||03||07||12||34 ||41||49||34||   6|");
}

TEST(AbstandListe, NurZusatzzahlMarkiertNurDiese)
{
    EXPECT_EQ(zeile(34, ZZModus::Nur, 34), "   7||1956||05||So, 29.01.1956||03||07||12||34||41||49||34 ||   6|");
    EXPECT_EQ(zeile(20, ZZModus::Mit, 20), "   7||1956||05||So, 29.01.1956||03||07||12||34||41||49||20 ||   6|");
}

TEST(AbstandListe, KeineZusatzzahlIstEinStrich)
{
    EXPECT_EQ(abstandZellen(auswertung(7, ZZModus::Ohne, 0), 0)[20], "-");
    EXPECT_EQ(abstandZellen(auswertung(7, ZZModus::Mit, 0), 0)[20], "-");
}

constexpr Farbe kSchwarz{0, 0, 0};
constexpr Farbe kRot{255, 0, 0};

TEST(Farbpaarn, ZeilenWechselnVonNullAn)
{
    EXPECT_EQ(abstandFarbe(0, 0, "   7", false), (Farbpaar{{217, 252, 253}, kSchwarz}));
    EXPECT_EQ(abstandFarbe(1, 0, "  12", false), (Farbpaar{{255, 255, 255}, kSchwarz}));
    EXPECT_EQ(abstandFarbe(2, 6, "So, 29.01.1956", false), (Farbpaar{{217, 252, 253}, kSchwarz}));
}

TEST(Farbpaarn, DieZeileDesLaengstenAbstandsIstOrange)
{
    for (const int zeile : {0, 1}) {
        EXPECT_EQ(abstandFarbe(zeile, 0, "   7", true), (Farbpaar{{255, 192, 128}, kSchwarz}));
        EXPECT_EQ(abstandFarbe(zeile, 8, "03", true), (Farbpaar{{255, 192, 128}, kSchwarz}));
        EXPECT_EQ(abstandFarbe(zeile, 22, "   6", true), (Farbpaar{{255, 192, 128}, kRot}));
    }
}

TEST(Farbpaarn, TrennerSindGrauInJederZeile)
{
    for (int spalte = 1; spalte <= 21; spalte += 2)
        for (const bool laengster : {false, true})
            EXPECT_EQ(abstandFarbe(1, spalte, "", laengster).grund, (Farbe{192, 192, 192})) << spalte;
}

TEST(Farbpaarn, EineZahlMitLeerzeichenIstEinTreffer)
{
    for (int spalte = 8; spalte <= 20; spalte += 2) {
        EXPECT_EQ(abstandFarbe(0, spalte, "07 ", true), (Farbpaar{{128, 255, 255}, kRot})) << spalte;
        EXPECT_EQ(abstandFarbe(0, spalte, "07", false), (Farbpaar{{217, 252, 253}, kSchwarz})) << spalte;
    }
    EXPECT_EQ(abstandFarbe(0, 20, "-", false).schrift, kSchwarz);
    EXPECT_EQ(abstandFarbe(0, 2, "1956", false).schrift, kSchwarz);
}

TEST(Farbpaarn, DieWochenSindRot)
{
    EXPECT_EQ(abstandFarbe(0, 22, "   6", false), (Farbpaar{{217, 252, 253}, kRot}));
    EXPECT_EQ(abstandFarbe(1, 22, "   6", false), (Farbpaar{{255, 255, 255}, kRot}));
}

TEST(AbstandBericht, StehtInDerReihenfolgeDerListe)
{
    const std::string erwartet = "\r\n*** SAMSTAGSLOTTO ***\r\n"
                                 "Statistik für die Gewinnzahl: 7   (ohne Zusatzzahl)\r\n"
                                 "\r\n"
                                 " ZNr. Jahr  SW  Datum           Z1  Z2  Z3  Z4  Z5  Z6  ZZ   Wochen\r\n"
                                 "   7  1956  05  So, 29.01.1956  03  07  12  34  41  49   -     6  \r\n"
                                 "  12  1956  10  So, 04.03.1956  03  07  12  34  41  49   -     5  \r\n"
                                 "\r\n"
                                 "Erfassungsstand: 2026/29  Sa, 18.07.2026\r\n"
                                 "Anzahl der ausgewerteten Ziehungen: 3693\r\n"
                                 "Anzahl der Ziehungen mit der ausgewählten Gewinnzahl: 2  (SAMSTAGSLOTTO)\r\n"
                                 "\r\n"
                                 "Hinweis: Falls die Spalten der Tabelle nicht ordentlich dargestellt werden, \r\n"
                                 "wählen sie für die Ansicht eine nichtproportionale Schriftart (z.B. Courier).\r\n";
    EXPECT_EQ(abstandBericht(auswertung(7, ZZModus::Ohne, 0), std::vector<std::size_t>{0, 1}), erwartet);
}

TEST(AbstandBericht, FolgtEinerUmgeordnetenListe)
{
    const std::string bericht = abstandBericht(auswertung(34, ZZModus::Nur), std::vector<std::size_t>{1, 0});
    EXPECT_NE(bericht.find("34   (nur Zusatzzahl)\r\n"), std::string::npos);
    const auto spaeter = bericht.find("  12  1956  10  So, 04.03.1956  03  07  12  34  41  49  34     5  \r\n");
    const auto frueher = bericht.find("   7  1956  05  So, 29.01.1956  03  07  12  34  41  49  34     6  \r\n");
    ASSERT_NE(spaeter, std::string::npos);
    ASSERT_NE(frueher, std::string::npos);
    EXPECT_LT(spaeter, frueher);
}

TEST(AbstandBericht, OhneTrefferGibtEsKeinen)
{
    EXPECT_EQ(abstandBericht(AbstandAuswertung(), {}), "");
}

} // namespace

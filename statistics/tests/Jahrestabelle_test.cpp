#include "shell/logic/Texte.h"
#include "statistics/logic/Jahrestabelle.h"
#include "testhilfen/ArchivAus.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <string>

namespace {

using testing::HasSubstr;

/// The last draw of 2010 falls into 2011, the first one of 2015 into 2014.
ZiehungsArchiv jahreswechsel()
{
    ZiehungsArchiv archiv = archivAus(Samstagslotto, {{2010, 51, {1, 2, 3, 4, 5, 6}, 7},
                                                      {2010, 52, {1, 2, 3, 4, 5, 49}, 8},
                                                      {2011, 1, {1, 11, 12, 13, 14, 15}, 49},
                                                      {2014, 52, {1, 2, 3, 4, 5, 6}, 0},
                                                      {2015, 1, {1, 2, 3, 4, 5, 6}, 0}});
    archiv.Datum = {
        "", "Sa, 25.12.2010", "Sa, 01.01.2011", "Sa, 08.01.2011", "Sa, 27.12.2014", "Mi, 31.12.2014", "Sa, 10.01.2015"};
    return archiv;
}

const Zahlenzeile& imJahr(const Jahrestabelle& tabelle, std::int32_t jahr)
{
    const auto& zeilen = tabelle.tabelle.zeilen;
    return *std::ranges::find(zeilen, jahr, &Zahlenzeile::schluessel);
}

Zahlenzelle zelle(const Jahrestabelle& tabelle, std::int32_t jahr, int zahl)
{
    return imJahr(tabelle, jahr).zellen[static_cast<std::size_t>(zahl - 1)];
}

std::int32_t summe(const Zahlenzeile& zeile)
{
    std::int32_t alle = 0;
    for (const Zahlenzelle& eine : zeile.zellen)
        alle += eine.anzahl;
    return alle;
}

std::int32_t summe(const Jahrestabelle& tabelle)
{
    std::int32_t alle = 0;
    for (const Zahlenzeile& zeile : tabelle.tabelle.zeilen)
        alle += summe(zeile);
    return alle;
}

TEST(YearTable, NachSpielwocheZaehltDasSpieljahr)
{
    const Jahrestabelle tabelle = yearTable(jahreswechsel(), ZZModus::Ohne, false);
    ASSERT_EQ(tabelle.tabelle.zeilen.size(), 6U);
    EXPECT_EQ(tabelle.tabelle.zeilen.front().schluessel, 2010);
    EXPECT_EQ(tabelle.tabelle.zeilen.back().schluessel, 2015);
    EXPECT_EQ(summe(imJahr(tabelle, 2010)), 12);
    EXPECT_EQ(summe(imJahr(tabelle, 2011)), 6);
    EXPECT_EQ(summe(imJahr(tabelle, 2012)), 0);
    EXPECT_EQ(summe(imJahr(tabelle, 2014)), 6);
    EXPECT_EQ(summe(imJahr(tabelle, 2015)), 6);
}

TEST(YearTable, NachDatumZaehltDasJahrDesTages)
{
    const Jahrestabelle tabelle = yearTable(jahreswechsel(), ZZModus::Ohne, true);
    EXPECT_EQ(tabelle.tabelle.zeilen.back().schluessel, 2014); // the year of the last draw's day
    EXPECT_EQ(summe(imJahr(tabelle, 2010)), 6);
    EXPECT_EQ(summe(imJahr(tabelle, 2011)), 12);
    EXPECT_EQ(summe(imJahr(tabelle, 2014)), 12);
    EXPECT_EQ(summe(tabelle), summe(yearTable(jahreswechsel(), ZZModus::Ohne, false)));
}

TEST(YearTable, ZaehltNachModus)
{
    const ZiehungsArchiv archiv = jahreswechsel();
    EXPECT_EQ(zelle(yearTable(archiv, ZZModus::Ohne, false), 2010, 7).anzahl, 0);
    EXPECT_EQ(zelle(yearTable(archiv, ZZModus::Mit, false), 2010, 7).anzahl, 1);
    EXPECT_EQ(zelle(yearTable(archiv, ZZModus::Mit, false), 2010, 1).anzahl, 2);
    EXPECT_EQ(zelle(yearTable(archiv, ZZModus::Nur, false), 2010, 1).anzahl, 0);
    EXPECT_EQ(zelle(yearTable(archiv, ZZModus::Nur, false), 2010, 8).anzahl, 1);
    EXPECT_EQ(summe(yearTable(archiv, ZZModus::Nur, false)), 3);
}

TEST(YearTable, MarkiertDieExtremeEinesJahres)
{
    const Jahrestabelle tabelle = yearTable(jahreswechsel(), ZZModus::Ohne, false);
    for (const int zahl : {1, 2, 3, 4, 5})
        EXPECT_EQ(zelle(tabelle, 2010, zahl), (Zahlenzelle{2, Zellmarke::Maximum})) << zahl;
    for (const int zahl : {6, 49})
        EXPECT_EQ(zelle(tabelle, 2010, zahl), (Zahlenzelle{1, Zellmarke::Keine})) << zahl;
    for (const int zahl : {7, 48})
        EXPECT_EQ(zelle(tabelle, 2010, zahl), (Zahlenzelle{0, Zellmarke::Minimum})) << zahl;
}

TEST(YearTable, OhneTrefferIstAllesMaximum)
{
    const Jahrestabelle tabelle = yearTable(jahreswechsel(), ZZModus::Nur, false);
    for (const Zahlenzelle& eine : imJahr(tabelle, 2015).zellen)
        EXPECT_EQ(eine, (Zahlenzelle{0, Zellmarke::Maximum}));
}

TEST(YearTable, RekordIstDerErsteUndKleinste)
{
    const Jahrestabelle tabelle = yearTable(jahreswechsel(), ZZModus::Ohne, false);
    EXPECT_EQ(tabelle.tabelle.rekord, (Tabellenrekord{2, 1, 2010}));
    const Jahrestabelle nachDatum = yearTable(jahreswechsel(), ZZModus::Ohne, true);
    EXPECT_EQ(nachDatum.tabelle.rekord, (Tabellenrekord{2, 1, 2011}));
    const Jahrestabelle ohneZahl =
        yearTable(archivAus(Samstagslotto, {{2020, 1, {1, 2, 3, 4, 5, 6}, 0}}), ZZModus::Nur, false);
    EXPECT_EQ(ohneZahl.tabelle.rekord, (Tabellenrekord{0, 1, 2020}));
}

TEST(YearTable, LeeresArchivHatKeineZeilen)
{
    for (const bool nachDatum : {false, true}) {
        const Jahrestabelle leer = yearTable(archivAus(Samstagslotto, {}), ZZModus::Mit, nachDatum);
        EXPECT_TRUE(leer.tabelle.zeilen.empty());
        EXPECT_EQ(leer.tabelle.rekord, std::nullopt);
    }
}

TEST(YearTable, UnmoeglicheJahreSprengenDieTabelleNicht)
{
    const auto zeilen = [](std::int32_t erstes, std::int32_t letztes) {
        const ZiehungsArchiv archiv =
            archivAus(Samstagslotto, {{erstes, 1, {1, 2, 3, 4, 5, 6}, 0}, {letztes, 1, {1, 2, 3, 4, 5, 6}, 0}});
        return yearTable(archiv, ZZModus::Ohne, false).tabelle.zeilen.size();
    };
    EXPECT_EQ(zeilen(-2147483647, 2147483647), 10000U);
    EXPECT_EQ(zeilen(2147483647, 2147483647), 0U);
    EXPECT_EQ(zeilen(2020, 1990), 0U);
    EXPECT_EQ(zeilen(1955, 1955), 1U);
}

TEST(Datumsjahre, OhneDatumGiltDasSpieljahr)
{
    ZiehungsArchiv archiv = archivAus(
        Samstagslotto, {{2010, 52, {1, 2, 3, 4, 5, 6}, 0}, {2012, 1, {1, 2, 3, 4, 5, 6}, 0}, {2013, 1, {}, 0}});
    archiv.Datum = {"", "Sa, 01.01.2011", ""};
    EXPECT_THAT(datumsjahre(archiv, archiv.Datum), testing::ElementsAre(0, 2011, 2012, 2013));
}

TEST(ZaehleTabelle, NachSpielwoche)
{
    const ZiehungsArchiv archiv = jahreswechsel();
    const Zahlentabelle tabelle = zaehleTabelle(gewinnzahlspalten(archiv, ZZModus::Ohne), archiv.sw, 1, 53);
    ASSERT_EQ(tabelle.zeilen.size(), 53U);
    EXPECT_EQ(tabelle.zeilen[0].zellen[0].anzahl, 2);
    EXPECT_EQ(tabelle.zeilen[51].zellen[0].anzahl, 2);
    EXPECT_EQ(tabelle.zeilen[52].zellen[0].marke, Zellmarke::Maximum);
    EXPECT_EQ(tabelle.rekord, (Tabellenrekord{2, 1, 1}));
}

TEST(JahrestabellenDatei, NennenSpielUndModus)
{
    EXPECT_EQ(jahrestabellenDatei(SpielartStart, ZZModus::Ohne), "pro_jahr_samstag_ohne_ZZ.htm");
    EXPECT_EQ(jahrestabellenDatei(Samstagslotto, ZZModus::Ohne), "pro_jahr_samstag_ohne_ZZ.htm");
    EXPECT_EQ(jahrestabellenDatei(Samstagslotto, ZZModus::Mit), "pro_jahr_samstag_mit_ZZ.htm");
    EXPECT_EQ(jahrestabellenDatei(Samstagslotto, ZZModus::Nur), "pro_jahr_samstag_nur_ZZ.htm");
    EXPECT_EQ(jahrestabellenDatei(Mittwochslotto, ZZModus::Ohne), "pro_jahr_mittwoch_ohne_ZZ.htm");
    EXPECT_EQ(jahrestabellenDatei(Mittwochslotto, ZZModus::Mit), "pro_jahr_mittwoch_mit_ZZ.htm");
    EXPECT_EQ(jahrestabellenDatei(Mittwochslotto, ZZModus::Nur), "pro_jahr_mittwoch_nur_ZZ.htm");
    EXPECT_EQ(jahrestabellenDatei(MittwochslottoB, ZZModus::Ohne), "pro_jahr_mittwoch-b_ohne_ZZ.htm");
    EXPECT_EQ(jahrestabellenDatei(MittwochslottoB, ZZModus::Mit), "pro_jahr_mittwoch-b_mit_ZZ.htm");
    EXPECT_EQ(jahrestabellenDatei(MittwochslottoB, ZZModus::Nur), "pro_jahr_mittwoch-b_nur_ZZ.htm");
}

/// A golden page: the lines of a text as a page has them, CR LF and ISO 8859-1.
std::string alsSeite(std::string_view text)
{
    std::string bytes;
    while (!text.empty()) {
        const char32_t zeichen = naechstesZeichen(text);
        bytes += zeichen == '\n' ? std::string("\r\n") : std::string(1, static_cast<char>(zeichen));
    }
    return bytes;
}

std::string wiederhole(const std::string& text, int anzahl)
{
    std::string alle;
    for (int i = 0; i < anzahl; ++i)
        alle += text;
    return alle;
}

std::string kopfzeile()
{
    std::string zeile = "<tr><th>GZ</th>";
    for (const char* const zahl : {"1", "2", "3", "4", "5", "6", "7", "8", "9"})
        zeile += std::string("<th>&nbsp;") + zahl + "</th>";
    for (int zahl = 10; zahl <= 49; ++zahl)
        zeile += "<th>" + std::to_string(zahl) + "</th>";
    return zeile + "<th>GZ</th></tr>\n";
}

TEST(JahrestabellenSeite, IstDieGanzeSeite)
{
    const ZiehungsArchiv archiv = archivAus(MittwochslottoB, {{1986, 23, {1, 2, 3, 4, 5, 6}, 7},
                                                              {1986, 24, {1, 2, 3, 4, 5, 7}, 49},
                                                              {1987, 1, {44, 45, 46, 47, 48, 49}, 0}});
    const std::string rot2 = "<td><font color=red>2</font></td>";
    const std::string rot1 = "<td><font color=red>1</font></td>";
    const std::string blau = "<td><font color=blue>0</font></td>";
    const std::string erwartet =
        R"(<!doctype html public "-//W3C//DTD HTML 4.0 //EN">
<html>
<head>
<meta name="viewport" content="initial-scale=1,maximum-scale=2,user-scalable=yes"/>
<meta name="mobile-web-app-capable" content="yes">
<meta http-equiv="Content-Type"
content="text/html; charset=iso-8859-1">
<meta name="author" content="Tombrix">
<meta name="generator" content="Tombrix">
<meta name="format-detection" content="telephone=no">
<HTTP-EQUIV="PRAGMA" CONTENT="NO-CACHE">
<title>Die Häufigkeit der Gewinnzahlen pro Spieljahr</title>
<style type="text/css">
<!--
body {background-color: white;color: black;font: 12px arial,helvetica,sans-serif;}
h3 {font: bold 14px arial,helvetica,sans-serif;}
Table {background-color: white;border-style:solid;border-width:1px;border-color:black;}
th {background-color: bisque;border-style:solid;border-width:1px;border-color:beige;padding:1px 3px;}
td {border-style:solid;border-width:1px;border-color:beige;padding:1px 3px;text-align:right;}
@media print  {
@page {size: landscape;margin: 10mm;}
body {font-size:10px;}
Table {border-spacing:0;}
th,td {padding:0 2px;}
}
-->
</style>
</head>
<body>
<center>
<h3>- Häufigkeit der Gewinnzahlen pro Spieljahr (MITTWOCHSLOTTO (B) mit Zusatzzahl)</h3>
<table>
<thead>
)" + kopfzeile() +
        "</thead>\n<tbody>\n"
        "<tr><th>1986</th>" +
        wiederhole(rot2, 5) + "<td>1</td>" + rot2 + wiederhole(blau, 41) + "<td>1</td>" +
        "<th>1986</th></tr>\n"
        "<tr><th>1987</th>" +
        wiederhole(blau, 43) + wiederhole(rot1, 6) + "<th>1987</th></tr>\n" + kopfzeile() +
        R"(</tbody>
</table>
<p>
Legende: GZ-> die Gewinnzahlen (1-49); Ziehungshäufigkeit pro Spieljahr: Maxima "rot"; Minima "blau" dargestellt.<br>
In einem Jahr am häufigsten gezogene Zahl: 1; Jahr: 1986 ->  2 mal gezogen (mit Zusatzzahl)<br>
Mittwochslotto Ziehung (B) wurde nach der 48. Ziehung 2000 (29.11) eingestellt. Seitdem wird nur noch eine Mittwochsziehung ausgespielt
</p>
</center>
</body>
</html>
)";
    EXPECT_EQ(jahrestabellenSeite(yearTable(archiv, ZZModus::Mit, false)), alsSeite(erwartet));
}

TEST(JahrestabellenSeite, NenntJedesSpielMitEinemLeerzeichenVorDemModus)
{
    const auto seite = [](std::int16_t spielart, ZZModus modus) {
        return jahrestabellenSeite(yearTable(archivAus(spielart, {{1990, 1, {1, 2, 3, 4, 5, 6}, 0}}), modus, false));
    };
    EXPECT_THAT(seite(SpielartStart, ZZModus::Ohne), HasSubstr("(SAMSTAGSLOTTO ohne Zusatzzahl)</h3>"));
    EXPECT_THAT(seite(Mittwochslotto, ZZModus::Mit), HasSubstr("(MITTWOCHSLOTTO mit Zusatzzahl)</h3>"));
    EXPECT_THAT(seite(MittwochslottoB, ZZModus::Nur), HasSubstr("(MITTWOCHSLOTTO (B) nur Zusatzzahl)</h3>"));
    EXPECT_THAT(seite(Samstagslotto, ZZModus::Ohne), testing::Not(HasSubstr("eingestellt")));
    EXPECT_THAT(seite(Mittwochslotto, ZZModus::Ohne), testing::Not(HasSubstr("eingestellt")));
}

TEST(JahrestabellenSeite, LeeresArchivHatNurDenKopfUndKeinenRekord)
{
    const std::string seite = jahrestabellenSeite(yearTable(archivAus(Samstagslotto, {}), ZZModus::Ohne, true));
    EXPECT_EQ(ZaehleVorkommen(seite, "<tr>"), 2);
    EXPECT_EQ(ZaehleVorkommen(seite, "<td>"), 0);
    EXPECT_THAT(seite, testing::Not(HasSubstr("In einem Jahr")));
    EXPECT_THAT(seite, HasSubstr("</html>"));
}

} // namespace

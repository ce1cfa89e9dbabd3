#include "archive/logic/Spielarttexte.h"
#include "reports/frame/HtmlSeite.h"
#include "shell/logic/Lottozahl.h"
#include "shell/logic/Texte.h"
#include "statistics/logic/Jahrestabelle.h"

namespace {

HtmlZeilen stil()
{
    return {"body {background-color: white;color: black;font: 12px arial,helvetica,sans-serif;}",
            "h3 {font: bold 14px arial,helvetica,sans-serif;}",
            "Table {background-color: white;border-style:solid;border-width:1px;border-color:black;}",
            "th {background-color: bisque;border-style:solid;border-width:1px;border-color:beige;padding:1px 3px;}",
            "td {border-style:solid;border-width:1px;border-color:beige;padding:1px 3px;text-align:right;}",
            "@media print  {",
            "@page {size: landscape;margin: 10mm;}",
            "body {font-size:10px;}",
            "Table {border-spacing:0;}",
            "th,td {padding:0 2px;}",
            "}"};
}

std::string kopfzeile()
{
    std::string zeile = "<tr><th>GZ</th>";
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
        zeile.append("<th>").append(zahl < 10 ? "&nbsp;" : "").append(std::to_string(zahl)).append("</th>");
    return zeile + "<th>GZ</th></tr>";
}

std::string zelle(const Zahlenzelle& zelle)
{
    const std::string anzahl = std::to_string(zelle.anzahl);
    switch (zelle.marke) {
    case Zellmarke::Maximum:
        return "<td><font color=red>" + anzahl + "</font></td>";
    case Zellmarke::Minimum:
        return "<td><font color=blue>" + anzahl + "</font></td>";
    case Zellmarke::Keine:
        break;
    }
    return "<td>" + anzahl + "</td>";
}

std::string jahreszeile(const Zahlenzeile& zeile)
{
    const std::string jahr = "<th>" + std::to_string(zeile.schluessel) + "</th>";
    std::string html = "<tr>" + jahr;
    for (const Zahlenzelle& eine : zeile.zellen)
        html += zelle(eine);
    return html + jahr + "</tr>";
}

void schreibeTabelle(HtmlSeite& seite, const Zahlentabelle& tabelle)
{
    seite.zeile("<table>").zeile("<thead>").zeile(kopfzeile()).zeile("</thead>").zeile("<tbody>");
    for (const Zahlenzeile& zeile : tabelle.zeilen)
        seite.zeile(jahreszeile(zeile));
    seite.zeile(kopfzeile()).zeile("</tbody>").zeile("</table>");
}

void schreibeFuss(HtmlSeite& seite, const Jahrestabelle& jahrestabelle, const std::string& modus)
{
    seite.zeile("<p>").zeile(
        "Legende: GZ-> die Gewinnzahlen (1-49); Ziehungshäufigkeit pro Spieljahr: Maxima \"rot\"; Minima "
        "\"blau\" dargestellt.<br>");
    if (const auto& rekord = jahrestabelle.tabelle.rekord)
        seite.zeile("In einem Jahr am häufigsten gezogene Zahl: " + std::to_string(rekord->zahl) +
                    "; Jahr: " + std::to_string(rekord->schluessel) + " ->  " + std::to_string(rekord->anzahl) +
                    " mal gezogen (" + modus + ")<br>");
    if (jahrestabelle.Spielart == MittwochslottoB)
        seite.zeile("Mittwochslotto Ziehung (B) wurde nach der 48. Ziehung 2000 (29.11) eingestellt. Seitdem wird nur "
                    "noch eine Mittwochsziehung ausgespielt");
    seite.zeile("</p>");
}

std::string_view dateiteil(std::int16_t spielart)
{
    switch (spielart) {
    case Mittwochslotto:
        return "mittwoch";
    case MittwochslottoB:
        return "mittwoch-b";
    default:
        return "samstag";
    }
}

} // namespace

std::string jahrestabellenSeite(const Jahrestabelle& jahrestabelle)
{
    const std::string modus = zzText(jahrestabelle.ZaehlModus);
    const std::string spiel(trim(spielartGross(jahrestabelle.Spielart)));
    HtmlSeite seite(
        {.titel = "Die Häufigkeit der Gewinnzahlen pro Spieljahr", .doctype = kDoctypeHtml40, .stil = stil()});
    seite.zeile("<body>")
        .zeile("<center>")
        .zeile("<h3>- Häufigkeit der Gewinnzahlen pro Spieljahr (" + spiel + " " + modus + ")</h3>");
    schreibeTabelle(seite, jahrestabelle.tabelle);
    schreibeFuss(seite, jahrestabelle, modus);
    return seite.zeile("</center>").zeile("</body>").zeile("</html>").bytes();
}

std::string jahrestabellenDatei(std::int16_t spielart, ZZModus modus)
{
    return "pro_jahr_" + std::string(dateiteil(spielart)) + "_" + std::string(zzWort(modus)) + "_ZZ.htm";
}

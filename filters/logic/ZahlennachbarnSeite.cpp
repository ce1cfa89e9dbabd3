#include "filters/logic/ZahlennachbarnSeite.h"

#include "archive/logic/Spielarttexte.h"
#include "filters/logic/ZahlennachbarnListe.h"
#include "reports/frame/HtmlSeite.h"
#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"

#include <algorithm>

namespace {

HtmlZeilen stil()
{
    return verbinde({hausStil("505px", "600px"),
                     {".gruppe_h,.gruppe {width:150px;font-size:12px;}",
                      ".jahr_h {width:78px;font-size:12px;}",
                      ".jahr {width:44px;font-size:12px;}",
                      ".woche {width:32px;font-size:12px;}",
                      ".sart_h,.sart {width:36px;font-size:12px;}",
                      ".datum_h,.datum_n {width:104px;font-size:12px;}",
                      ".zahl,.zahl_n,.zahl_g,.sz {width:26px;font-size:12px;}",
                      "th,td {padding:1px 0;text-align:center;}",
                      "@media screen  {",
                      "th {letter-spacing:0;position:sticky;top:0;box-shadow:0 0 0 2px #000005;}",
                      "th {background-color:#008000;color:yellow;}",
                      "td {background-color:#fff;}",
                      ".zahl_g {background-color:#80ffff;color:red;font-weight:bold;}",
                      "}",
                      "@media print  {",
                      "h1 {font-size:16px;}",
                      "h2 {font-size:12px;}",
                      "table {margin:0 auto;border-collapse:collapse;}",
                      "th {border-bottom:1px solid #000;}",
                      "tr {break-inside:avoid;}",
                      ".zahl_n {color:#666;}",
                      ".zahl_g {font-weight:bold;}",
                      "}"}});
}

std::string spielname(std::int16_t spielart)
{
    return std::string(trim(spielartName(spielart)));
}

/// The year of the first draw of all games that were searched.
std::string_view erstesJahr(const Nachbarsuche& suche)
{
    std::string_view jahr = erstesSpieljahr(Mittwochslotto);
    for (const Nachbardatei& datei : suche.dateien)
        jahr = std::min(jahr, erstesSpieljahr(datei.Spielart));
    return jahr;
}

std::string ueberschrift(const Nachbarsuche& suche)
{
    return std::string(suche.gruppe.seitenkopf) + (suche.zusammen ? "  " : " seit der 1.Ziehung  ") +
           std::string(erstesJahr(suche));
}

std::string anzahlzeile(const Nachbarsuche& suche)
{
    std::string zeile;
    for (const Nachbardatei& datei : suche.dateien)
        zeile += spielname(datei.Spielart) + ": " + std::to_string(datei.treffer) + " mal &nbsp; ";
    if (suche.dateien.size() > 1)
        zeile += "zusammen: " + std::to_string(suche.treffer.size()) + " mal ";
    return zeile;
}

std::string stand(const Nachbarsuche& suche, const Nachbardatei& datei)
{
    const std::string spiel = suche.zusammen ? spielname(datei.Spielart) + ", " : "";
    return spiel + "Erfassungsstand der Ziehungsdatei: " + datei.letzteZiehung +
           " [Spieljahr/Spielwoche], Anzahl der Ziehungen: " + std::to_string(datei.AnzahlZiehungen);
}

std::string element(std::string_view name, std::string_view klasse, std::string_view inhalt)
{
    std::string html = "<";
    html.append(name).append(" class=\"").append(klasse).append("\">").append(inhalt);
    return html.append("</").append(name).append(">");
}

std::string kopfzeile(bool zusammen)
{
    std::string zeile = "<tr>" + element("th", "gruppe_h", "Gruppe") + R"(<th class="jahr_h" colspan="2">Jahr/SW</th>)";
    if (zusammen)
        zeile += element("th", "sart_h", "SArt");
    zeile += element("th", "datum_h", "Datum");
    for (int i = 1; i <= 6; ++i)
        zeile += element("th", "zahl", "Z" + std::to_string(i));
    return zeile + element("th", "sz", "SZ") + "</tr>";
}

std::string trefferzeile(const Nachbarsuche& suche, const Nachbartreffer& treffer)
{
    std::string zeile = "<tr>" + element("td", "gruppe", htmlMaskiert(suche.gruppe.gruppentext)) +
                        element("td", "jahr", Format(treffer.jjjj, "0000")) +
                        element("td", "woche", Format(treffer.sw, "00"));
    if (suche.zusammen)
        zeile += element("td", "sart", nachbarspiel(treffer.Spielart));
    zeile += element("td", "datum_n", htmlMaskiert(treffer.datum));
    for (const std::int32_t zahl : treffer.zahlen)
        zeile += element("td", gehoertZurGruppe(treffer, zahl) ? "zahl_g" : "zahl_n", Format(zahl, "00"));
    return zeile + element("td", "sz", superzahltext(treffer)) + "</tr>";
}

std::string seitenanfang(const Nachbarsuche& suche)
{
    HtmlSeite seite({.titel = "Zahlennachbarn", .doctype = {}, .stil = stil()});
    seite.zeile("<body>").zeile("<center>").zeile("<h1>" + htmlMaskiert(ueberschrift(suche)) + "</h1>");
    if (!suche.vollstaendig)
        seite.zeile("<h2>Die Suche wurde abgebrochen.</h2>");
    seite.zeile("<h2>" + anzahlzeile(suche) + "</h2>");
    for (const Nachbardatei& datei : suche.dateien)
        seite.zeile("<p>" + stand(suche, datei) + "</p>");
    seite.zeile("<div class=\"scroll\"><table>");
    seite.zeile("<thead>").zeile(kopfzeile(suche.zusammen)).zeile("</thead>").zeile("<tbody>");
    return seite.bytes();
}

constexpr std::string_view kSeitenende = "</tbody>\r\n</table></div>\r\n</center></body>\r\n</html>\r\n";

} // namespace

bool schreibeNachbarnSeite(const Nachbarsuche& suche, const std::function<bool(std::string_view bytes)>& ausgabe)
{
    const auto schreibeZeile = [&](const Nachbartreffer& treffer) {
        return ausgabe(htmlBytes(trefferzeile(suche, treffer).append(kZeilenende), HtmlZeichensatz::Iso8859_1));
    };
    return ausgabe(seitenanfang(suche)) && std::ranges::all_of(suche.treffer, schreibeZeile) && ausgabe(kSeitenende);
}

std::string nachbarnSeite(const Nachbarsuche& suche)
{
    std::string seite;
    schreibeNachbarnSeite(suche, [&seite](std::string_view bytes) {
        seite += bytes;
        return true;
    });
    return seite;
}

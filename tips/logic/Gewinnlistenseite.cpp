#include "reports/frame/HtmlSeite.h"
#include "shell/logic/Lottozahl.h"
#include "shell/logic/Texte.h"
#include "shell/logic/Tippfeld7x7.h"
#include "tips/logic/Zeitreiseausgabe.h"
#include "tips/logic/Zeitreisetafel.h"
#include "tips/logic/Zeitreisetexte.h"

#include <utility>

namespace {

using Feld = Zeitreisespalte::Feld;

/// What the list of several games differs in: its first column holds the year and the week.
struct Breiten {
    std::string_view ersteSpalte;
    std::string_view liste;
};

constexpr Breiten breiten(Zeitreiseform form)
{
    return form == Zeitreiseform::Zusammen ? Breiten{"60px", "615px"} : Breiten{"50px", "605px"};
}

/// A counter in the table of classes.
struct Klassenzeile {
    std::string_view richtige;
    std::int32_t trefferzahl;
    bool mitSuperzahl;
};

constexpr std::array<Klassenzeile, kGewinnklassen> kKlassen{{
    {"Sechser mit Superzahl:", 6, true},
    {"Sechser :", 6, false},
    {"Fünfer mit Superzahl:", 5, true},
    {"Fünfer :", 5, false},
    {"Vierer mit Superzahl:", 4, true},
    {"Vierer :", 4, false},
    {"Dreier mit Superzahl:", 3, true},
    {"Dreier :", 3, false},
    {"Zweier mit Superzahl :", 2, true},
}};

HtmlZeilen listenStil(const Breiten& breite)
{
    return {"#liste table, .ts, .gt {border-collapse:separate;border-spacing:1px;background-color:#c0c0c0;}",
            "#liste table {width:100%;}",
            "#liste th {position:sticky;top:0;padding:4px 6px;background-color:#008000;color:white;letter-spacing:0;}",
            "#liste td {padding:2px 6px;text-align:center;background-color:#fff;white-space:nowrap;}",
            "#liste td:nth-child(1) {width:" + std::string(breite.ersteSpalte) + ";}",
            "#liste td.zahl_g {background-color:#80ffff;color:red;}",
            "#liste td.zahl_zg {background-color:#ffff00;}"};
}

HtmlZeilen tafelStil()
{
    return {".kopf {font:bold 14px verdana,sans-serif;margin:12px 0;}",
            ".satz {display:block;font:13px verdana,sans-serif;margin:12px 0;}",
            ".fuss {font:11px verdana,sans-serif;margin-top:12px;}",
            ".tafeln {display:flex;gap:24px;align-items:flex-start;}",
            ".ts td {width:24px;height:20px;text-align:center;background-color:#fff;}",
            ".ts td.zahl_gt {background-color:cyan;color:red;font-weight:bold;}",
            ".sz {font:bold 13px verdana,sans-serif;margin-top:6px;}",
            ".gt th {padding:4px;letter-spacing:0;background-color:#008000;color:white;}",
            ".gt td {padding:2px 6px;background-color:#fff;}",
            ".gt td:nth-child(1), .gt td:nth-child(3) {text-align:right;}",
            "@media print {* {print-color-adjust:exact;-webkit-print-color-adjust:exact;} button {display:none;}}"};
}

constexpr std::string_view kScript =
    R"(<script>function klapp(){var l=document.getElementById("liste").style;var auf=l.overflow=="visible";)"
    R"(l.overflow=auf?"auto":"visible";l.height=auf?"":"auto";}</script>)";

/// The game as a sentence names it: "Mittwochslotto (b)".
std::string spielname(const Zeitreise& zeitreise)
{
    std::string namen;
    for (const std::int16_t spielart : zeitreise.spielarten) {
        const std::string gross = spielartenGross({spielart});
        const bool einzige = zeitreise.spielarten.size() == 1;
        const std::string name = gross.substr(0, 1) + kleinbuchstaben(gross.substr(1));
        namen.append(namen.empty() ? "" : " + ").append(einzige ? name : std::string(trim(name)));
    }
    return namen;
}

std::string kopfzeile(const Zeitreise& zeitreise)
{
    return R"(<div class="kopf">)" + spielname(zeitreise) + " - Gewinne der ausgewählten Zahlenkombination (" +
           zahlenMitBlank(zeitreise) + " Superzahl:" + std::to_string(zeitreise.tipSZ) + ") seit der 1.Ziehung  " +
           std::string(erstesSpieljahr(zeitreise.seit1955() ? Samstagslotto : Mittwochslotto)) + " -<br></div>";
}

std::string_view zellklasse(const Zeitreisespalte& spalte, const std::string& text)
{
    if (!text.starts_with(' '))
        return "";
    return spalte.feld == Feld::Zahl ? R"( class="zahl_g")" : R"( class="zahl_zg")";
}

std::string listenzeile(const Zeitreise& zeitreise, const Zeitreisezeile& zeile)
{
    std::string html = "<tr>";
    for (const Zeitreisespalte& spalte : zeitreisespalten(zeitreise.form)) {
        const std::string text = zeitreisezelle(zeitreise, zeile, spalte);
        html.append("<td").append(zellklasse(spalte, text)).append(">").append(trim(text)).append("</td>");
    }
    return html + "</tr>";
}

void schreibeListe(HtmlSeite& seite, const Zeitreise& zeitreise)
{
    seite.zeile(R"(<div class="scroll" id="liste">)").zeile("<table>").zeile("<thead><tr>");
    for (const Zeitreisespalte& spalte : zeitreisespalten(zeitreise.form))
        seite.zeile("<th>" + std::string(spalte.titel) + "</th>");
    seite.zeile("</tr></thead>").zeile("<tbody>");
    for (const Zeitreisezeile& zeile : zeitreise.zeilen)
        seite.zeile(listenzeile(zeitreise, zeile));
    seite.zeile("</tbody>").zeile("</table>").zeile("</div>");
    seite.zeile(
        R"html(<button type="button" title="Liste auf- oder zuklappen" onclick="klapp()">&#8597;</button>)html");
}

void schreibeSatz(HtmlSeite& seite, const Zeitreise& zeitreise)
{
    seite
        .zeile(R"(<span class="satz">Hätte man die ausgewählten 6 Zahlen im )" + spielname(zeitreise) +
               (zeitreise.seit1955() ? " ab der 1.&nbsp;Ziehung (9. Oktober 1955) ständig gespielt,<br>"
                                     : " ab der 1.&nbsp;Ziehung (4. Juni 1986) ständig gespielt,<br>"))
        .zeile("wären also folgende Gewinne erzielt worden:</span>");
}

void schreibeTippfeld(HtmlSeite& seite, const Zeitreise& zeitreise)
{
    Tippfeld7x7 feld;
    feld.zeige(zeitreise.zahlen);
    seite.zeile("<div>").zeile(R"(<table class="ts">)");
    std::string reihe;
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl) {
        reihe += (feld.markiert(zahl) ? R"(<td class="zahl_gt">)" : "<td>") + std::to_string(zahl) + "</td>";
        if (zahl % Tippfeld7x7::kJeZeile == 0)
            seite.zeile("<tr>" + std::exchange(reihe, {}) + "</tr>");
    }
    seite.zeile("</table>")
        .zeile(R"(<div class="sz">Superzahl: )" + std::to_string(zeitreise.tipSZ) + "</div>")
        .zeile("</div>");
}

void schreibeKlassen(HtmlSeite& seite, const Zeitreise& zeitreise)
{
    seite.zeile(R"(<table class="gt">)").zeile("<tr><th>GK</th><th>Richtige</th><th>Anz.</th></tr>");
    int gewinnklasse = 0;
    for (const Klassenzeile& klasse : kKlassen)
        seite.zeile("<tr><td>" + std::to_string(++gewinnklasse) + "</td><td>" + std::string(klasse.richtige) +
                    "</td><td>" + std::to_string(zaehlerstand(zeitreise, klasse.trefferzahl, klasse.mitSuperzahl)) +
                    "</td></tr>");
    seite
        .zeile("<tr><td></td><td>Gewinnf&auml;lle gesamt:</td><td>" + std::to_string(zeitreise.bilanz.gewinne()) +
               "</td></tr>")
        .zeile("</table>");
}

std::string fusszeile(const Zeitreise& zeitreise)
{
    const bool mehrere = zeitreise.form == Zeitreiseform::Zusammen;
    return R"(<div class="fuss">Erfassungsstand der Ziehungsdatei: )" + zeitreise.bis + " [Spieljahr/Spielwoche]" +
           (mehrere ? ", Anzahl der ausgewerteten Ziehungen: " : ", Anzahl der Ziehungen: ") +
           std::to_string(zeitreise.ziehungen) + "</div>";
}

} // namespace

std::string writeHtml(const Zeitreise& zeitreise)
{
    const Breiten breite = breiten(zeitreise.form);
    HtmlSeite seite({.titel = "Gewinnliste für die ausgewählte Tippkombination",
                     .doctype = kDoctypeHtml5,
                     .zeichensatz = HtmlZeichensatz::Utf8,
                     .stil = verbinde({hausStil("253px", breite.liste), listenStil(breite), tafelStil()})});
    seite.zeile("<body>").zeile(kScript).zeile(kopfzeile(zeitreise));
    schreibeListe(seite, zeitreise);
    schreibeSatz(seite, zeitreise);
    seite.zeile(R"(<div class="tafeln">)");
    schreibeTippfeld(seite, zeitreise);
    schreibeKlassen(seite, zeitreise);
    return seite.zeile("</div>").zeile(fusszeile(zeitreise)).zeile("</body>").zeile("</html>").bytes();
}

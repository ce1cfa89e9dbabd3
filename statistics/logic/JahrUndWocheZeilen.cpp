#include "statistics/logic/JahrUndWocheZeilen.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/logic/ClipReport.h"
#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"

namespace {

void haengeAn(Anzahlzeilen& liste, std::string zeile, std::int32_t anzahl)
{
    if (liste.zeilen.empty() || anzahl > liste.maximum) {
        liste.maximum = anzahl;
        liste.hoechste.clear();
    }
    if (anzahl == liste.maximum)
        liste.hoechste.push_back(liste.zeilen.size());
    liste.zeilen.push_back(std::move(zeile));
}

std::string bericht(const JahrUndWoche& auswertung, std::string_view frage, std::string_view kopf,
                    std::span<const std::string> zeilen)
{
    const bool nurZZ = auswertung.ZaehlModus == ZZModus::Nur;
    const std::string modus = nurZZ ? "nur die Zusatzzahl" : zzText(auswertung.ZaehlModus);
    const std::string gezaehlt = " (" + modus + (nurZZ ? ")" : ") ");
    const std::string spiel = grossbuchstaben(" im " + std::string(spielartName(auswertung.Spielart)));
    return ClipReport()
        .leerzeile()
        .zeile("*** Wie oft wurde die Zahl " + std::to_string(auswertung.zahl) + std::string(frage) + spiel)
        .zeile("   (" + modus + ",  Stand: " + auswertung.letzteZiehung + ")")
        .leerzeile()
        .zeile(kopf)
        .zeilen(zeilen)
        .leerzeile()
        .zeile("Ziehungen mit der ausgewählten Gewinnzahl: " + std::to_string(auswertung.proJahr.gesamt) + gezaehlt)
        .schlusshinweis()
        .text();
}

} // namespace

Anzahlzeilen jahreszeilen(const HaeufigkeitProJahr& haeufigkeit)
{
    Anzahlzeilen liste;
    for (const Jahresanzahl& jahr : haeufigkeit.jahre)
        haengeAn(liste, Format(jahr.jahr, "0000") + "  " + Format(jahr.anzahl, "@@@@@@@"), jahr.anzahl);
    return liste;
}

Anzahlzeilen wochenzeilen(const HaeufigkeitProWoche& haeufigkeit)
{
    Anzahlzeilen liste;
    for (std::size_t i = 0; i < haeufigkeit.size(); ++i)
        haengeAn(liste, Format(i + 1, "@@@@@") + "  " + Format(haeufigkeit[i], "@@@@@@@@"), haeufigkeit[i]);
    return liste;
}

std::vector<std::string> detailzeilen(std::span<const Jahrestreffer> jahre)
{
    std::vector<std::string> zeilen;
    for (const Jahrestreffer& treffer : jahre) {
        if (!zeilen.empty())
            zeilen.emplace_back("============================");
        const std::string jahr = Format(treffer.jahr, "0000");
        for (const std::int32_t woche : treffer.wochen)
            zeilen.push_back(jahr + "   SW " + Format(woche, "00"));
        zeilen.emplace_back("----------------------------");
        zeilen.push_back("** " + jahr + " Summe=" + Format(treffer.wochen.size(), "@@@@") + " **");
    }
    return zeilen;
}

std::string berichtProJahr(const JahrUndWoche& auswertung, std::span<const std::string> zeilen)
{
    return bericht(auswertung, " pro Jahr gezogen ? ***", "  Jahr   Häufigkeit", zeilen);
}

std::string berichtProWoche(const JahrUndWoche& auswertung, std::span<const std::string> zeilen)
{
    return bericht(auswertung, " pro Spielwoche gezogen ? ***", "Spielwoche   Häufigkeit", zeilen);
}

#include "engines/logic/VollsucheTexte.h"

#include "engines/logic/Vollsuche.h"
#include "shell/logic/ClipReport.h"
#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr std::string_view kStrich = "--------------------------------";
constexpr std::array<std::string_view, 4> kSummen{
    "überhaupt mögliche: ", " noch nie gezogene: ", "   einmal gezogene: ", " mehrfach gezogene: "};
constexpr std::string_view kAnzahlmaske = "##,###,##0";

constexpr std::array<Groessentexte, 5> kGroessen{{
    {"&Zweier-Wiederholungen", "Zweierwiederholungen", "      Zweierkombinationen", "", "@@@@"},
    {"&Dreier-Wiederholungen", "Dreierwiederholungen", "      Dreierkombinationen", "", "@@@@@@@"},
    // The head of the fours has always lacked its r.
    {"&Vierer-Wiederholungen", "Viererwiederholungen", "      Vierekombinationen", "Suche nach Viererkombinationen",
     "@@@@"},
    {"&Fünfer-Wiederholungen", "Fünferwiederholungen", "      Fünferkombinationen", "", "@@@@@"},
    {"&Sechser-Wiederholungen", "Sechserwiederholungen", "      Sechserkombinationen",
     "Suche nach Sechserwiederholungen", "@@@@@"},
}};

std::string zusammenfassung(std::string_view kopf, const std::array<std::string, 4>& zahlen)
{
    std::string text = std::string(kopf) + std::string(kZeilenende) + std::string(kStrich);
    for (std::size_t i = 0; i < zahlen.size(); ++i)
        text.append(kZeilenende).append(kSummen[i]).append(zahlen[i]);
    return text;
}

std::string wochentext(const std::pair<std::int32_t, std::int32_t>& jahrUndWoche)
{
    return Format(jahrUndWoche.first, "0000") + "/" + Format(jahrUndWoche.second, "00");
}

/// What the texts of two dates such as "So, 09.10.1955" are compared by: year, month, day. Any other text comes first.
std::array<std::string_view, 3> datumsfolge(std::string_view datum)
{
    return {Mid(datum, 11, 4), Mid(datum, 8, 2), Mid(datum, 5, 2)};
}

/// The ZiehungsNr of the latest of the draws; of several on one day the last; 0 without draws.
std::size_t letzteZiehung(const ZiehungsArchiv& archiv, const std::vector<std::string>& daten)
{
    const auto folge = [&daten](std::size_t nr) {
        return datumsfolge(nr < daten.size() ? std::string_view(daten[nr]) : std::string_view());
    };
    std::size_t letzte = 0;
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr)
        if (folge(nr) >= folge(letzte))
            letzte = nr;
    return letzte;
}

std::string bericht(const Suchquelle& quelle, const std::string& titel, std::span<const std::string> zeilen)
{
    if (zeilen.empty())
        return {};
    return ClipReport()
        .spiel(grossbuchstaben(quelle.spiel))
        .zeile(titel)
        .leerzeile()
        .zeilen(zeilen)
        .leerzeile()
        .zeile("Erfassungstand der Ziehungen: " + quelle.jahrUndWoche + "  " + quelle.datum)
        .ausgewerteteZiehungen(quelle.ziehungen)
        .schlusshinweis()
        .text();
}

} // namespace

const Groessentexte& groessentexte(int groesse)
{
    return kGroessen.at(static_cast<std::size_t>(groesse - 2));
}

std::string wiederholungszeile(std::span<const std::int32_t> zahlen, std::uint32_t haeufigkeit)
{
    const auto& texte = groessentexte(static_cast<int>(zahlen.size()));
    return Format(haeufigkeit, texte.maske) + " mal -> " + zahlentext(zahlen);
}

std::string suchtitel(const ZiehungsArchiv& archiv, std::string_view spiel)
{
    std::string titel(kSuchtitel);
    if (spiel.empty())
        return titel;
    titel.append("   ").append(spiel);
    if (archiv.AnzahlZiehungen == 0)
        return titel;
    std::pair erste(archiv.jjjj[1], archiv.sw[1]);
    std::pair letzte = erste;
    for (std::size_t nr = 2; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr) {
        const std::pair diese(archiv.jjjj[nr], archiv.sw[nr]);
        erste = std::min(erste, diese);
        letzte = std::max(letzte, diese);
    }
    return titel + "   " + Format(archiv.AnzahlZiehungen, "0") + " Ziehungen von " + wochentext(erste) + " bis " +
           wochentext(letzte);
}

std::string zusammenfassung(const Suchergebnis& ergebnis)
{
    return zusammenfassung(groessentexte(ergebnis.groesse).kopf,
                           {Format(ergebnis.SuchlaeufeGesamt, kAnzahlmaske), Format(ergebnis.NieGezogen, kAnzahlmaske),
                            Format(ergebnis.EinmalGezogen, kAnzahlmaske),
                            Format(ergebnis.wiederholungen.size(), kAnzahlmaske)});
}

std::string leereZusammenfassung()
{
    return zusammenfassung("        Kombinationen", {"-", "-", "-", "-"});
}

std::string suchlaeufeText(const Suchergebnis& ergebnis)
{
    return "Suchläufe: " + Format(ergebnis.Suchlaeufe, kAnzahlmaske) + " von " +
           Format(ergebnis.SuchlaeufeGesamt, "##,###,###");
}

std::string suchlaeufeMitProzent(const Suchergebnis& ergebnis)
{
    const double prozent = ergebnis.SuchlaeufeGesamt == 0
                               ? 0.0
                               : static_cast<double>(ergebnis.Suchlaeufe) * 100.0 / ergebnis.SuchlaeufeGesamt;
    return suchlaeufeText(ergebnis) + "  " + Format(prozent, "#0.#0") + "%";
}

std::string alleSuchlaeufe(const Suchergebnis& ergebnis)
{
    return suchlaeufeText(ergebnis) + "  100%";
}

std::int64_t suchzeit(Zeitpunkt start, Zeitpunkt jetzt)
{
    return std::max<std::int64_t>(1, std::chrono::floor<std::chrono::seconds>(jetzt - start).count()) + 1;
}

std::string schaetzung(const Suchergebnis& ergebnis, std::int64_t sekunden)
{
    const double gesamt = ergebnis.Suchlaeufe == 0
                              ? -1.0
                              : static_cast<double>(sekunden) / ergebnis.Suchlaeufe * ergebnis.SuchlaeufeGesamt - 1.0;
    const std::string text = gesamt < 0 ? "" : uhrtext(static_cast<std::int64_t>(gesamt));
    return text.empty() ? "00.00.00" : text;
}

Suchquelle suchquelle(const ZiehungsArchiv& archiv, std::string_view spiel, const std::vector<std::string>& daten)
{
    const std::size_t letzte = letzteZiehung(archiv, daten);
    return {std::string(spiel), jahrUndWoche(archiv, letzte), letzte < daten.size() ? daten[letzte] : "",
            archiv.AnzahlZiehungen};
}

std::string wiederholungsbericht(const Suchquelle& quelle, int groesse, std::span<const std::string> zeilen)
{
    return zeilen.empty()
               ? ""
               : bericht(quelle, std::string(groessentexte(groesse).wiederholungen) + " im " + quelle.spiel, zeilen);
}

std::string nieGezogenBericht(const Suchquelle& quelle, std::span<const std::string> zeilen)
{
    return bericht(quelle, "Noch nie gezogene Dreierkombinationen im " + quelle.spiel, zeilen);
}

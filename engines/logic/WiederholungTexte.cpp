#include "engines/logic/WiederholungTexte.h"

#include "archive/logic/Zahlenmenge.h"
#include "shell/logic/Binomial.h"
#include "shell/logic/Format.h"
#include "shell/logic/Lottozahl.h"
#include "shell/logic/Texte.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>

namespace {

constexpr std::array<Wiederholungsname, 5> kNamen{{
    {"Zweierwiederholungen", "Zweierkombinationen", "1176",
     "Bitte warten, jede Ziehung wird in 15 mögliche Zweierkombinationen zerlegt ...",
     "Bitte warten, die Zweierkombinationen werden verglichen, sortiert und gezählt ..."},
    {"Dreierwiederholungen", "Dreierkombinationen", "18.424",
     "Bitte warten, jede Ziehung wird in 20 mögliche Dreierkombinationen zerlegt ...",
     "Bitte warten, die Dreierkombinationen werden verglichen, sortiert und gezählt ..."},
    {"Viererwiederholungen", "Viererkombinationen", "211.876",
     "Bitte warten, jede Ziehung wird in 15 mögliche Viererkombinationen zerlegt ...",
     "Bitte warten, die Viererkombinationen werden verglichen, sortiert und gezählt ..."},
    {"Fünferwiederholungen", "Fünferkombinationen", "1.906.884",
     "Bitte warten, jede Ziehung wird in 6 mögliche Fünferkombinationen zerlegt ...",
     "Bitte warten, die Fünferkombinationen werden verglichen, sortiert und gezählt ..."},
    {"Sechserwiederholungen", "Sechserkombinationen", "13.983.816",
     "Bitte warten, die Sechserkombinationen werden aufbereitet ...",
     "Bitte warten, die Sechserkombinationen werden sortiert und gezählt ..."},
}};

constexpr std::string_view kMaskeAbVier = "@@"; ///< of the counts of four numbers and more
constexpr std::size_t kZahlbreite = 3;

constexpr std::string_view kStriche = "--------------------------------";
constexpr std::string_view kMoegliche = "  überhaupt mögliche: ";
constexpr std::string_view kNie = "   noch nie gezogene: ";
constexpr std::string_view kEinmal = "     einmal gezogene: ";
constexpr std::string_view kMehrfach = "   mehrfach gezogene: ";

/// The character, counted from 1, at which the numbers are looked for. With counts of two digits it is the second
/// character of the first number, with three digits the first: a number of up to two digits is in the window either
/// way. Wider counts move it.
std::size_t erstesFenster(std::string_view ergebniszeile, int k)
{
    constexpr std::size_t kUebliche = 3;
    const std::size_t ziffern = std::min(ergebniszeile.find(" mal"), ergebniszeile.size());
    return (k == 6 ? 10 : 12) + std::max(ziffern, kUebliche) - kUebliche;
}

struct Angaben {
    std::string_view kombinationen;
    std::string moegliche, nie, einmal, mehrfach;
};

std::string zusammenfassung(const Angaben& angaben)
{
    std::string text;
    const auto zeile = [&text](std::string_view links, std::string_view rechts) {
        text.append(links).append(rechts).append(kZeilenende);
    };
    zeile("      ", angaben.kombinationen);
    zeile(kStriche, {});
    zeile(kMoegliche, angaben.moegliche);
    zeile(kNie, angaben.nie);
    zeile(kEinmal, angaben.einmal);
    zeile(kMehrfach, angaben.mehrfach);
    return text;
}

} // namespace

const Wiederholungsname& wiederholungsname(int k)
{
    return kNamen.at(static_cast<std::size_t>(k - kKleinsteWiederholung));
}

bool istKeineSechser(std::string_view ergebniszeile)
{
    return ergebniszeile.starts_with(kKeineSechserwiederholungen.substr(0, 5));
}

std::string ergebniszeile(const Wiederholung& wiederholung, int k, const Wiederholungsart& art)
{
    std::string zeile = Format(wiederholung.anzahl, k <= 3 ? art.anzahlMaske : kMaskeAbVier);
    zeile += k == 6 ? " mal->" : " mal -> ";
    for (std::size_t i = 0; i < static_cast<std::size_t>(k); ++i)
        zeile += Format(wiederholung.zahlen[i], "@@@");
    return zeile;
}

std::array<std::int32_t, 6> zahlenDerZeile(std::string_view ergebniszeile, int k)
{
    std::array<std::int32_t, 6> zahlen{};
    const std::size_t erstes = erstesFenster(ergebniszeile, k);
    for (std::size_t i = 0; i < static_cast<std::size_t>(k); ++i)
        zahlen[i] = fuehrendeZahl(Mid(ergebniszeile, erstes + i * kZahlbreite, kZahlbreite));
    return zahlen;
}

std::string_view zahlenteil(std::string_view ergebniszeile, int k)
{
    return Mid(ergebniszeile, erstesFenster(ergebniszeile, k) - 1);
}

std::string leereWiederholungszusammenfassung()
{
    return zusammenfassung({"Kombinationen", "-", "-", "-", "-"});
}

std::string zusammenfassung(const Wiederholungen& ergebnis)
{
    const int k = ergebnis.Wiederholungslaenge;
    const auto anzahl = [k](std::int64_t wert) { return Format(wert, k == 2 ? "" : "##,###,##0"); };
    const std::int64_t nie = Binomial(kHoechsteZahl, k) - ergebnis.AnzahlMehrfach - ergebnis.AnzahlEinmal;
    const Wiederholungsname& name = wiederholungsname(k);
    return zusammenfassung({name.kombinationen, std::string(name.moegliche), anzahl(nie), anzahl(ergebnis.AnzahlEinmal),
                            anzahl(ergebnis.AnzahlMehrfach)});
}

std::string suchzeittext(double millisekunden)
{
    return "Suchzeit = " + Dezimaltext(millisekunden / 1000, 2) + " s";
}

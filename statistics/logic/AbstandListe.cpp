#include "statistics/logic/AbstandListe.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/logic/ClipReport.h"
#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"

namespace {

using Spalten = AbstandSpalten;

constexpr std::size_t kUnmarkierteLaenge = 2;

constexpr Farbe kRot{255, 0, 0};
constexpr Farbe kTreffer{128, 255, 255};

std::string zahlzelle(std::int32_t zahl, bool zaehlt, int gesucht)
{
    return Format(zahl, "00") + (zaehlt && zahl == gesucht ? " " : "");
}

std::string berichtszeile(const AbstandZellen& zellen)
{
    std::string zeile;
    const auto haenge = [&zeile](std::string_view text) { zeile.append(text).append("  "); };
    haenge(zellen[0]);
    for (std::size_t spalte = Spalten::kJahr; spalte <= Spalten::kDatum; spalte += 2)
        haenge(zellen[spalte]);
    for (std::size_t spalte = Spalten::kZ1; spalte <= Spalten::kZZ; spalte += 2)
        haenge(Format(trim(zellen[spalte]), "@@"));
    haenge(zellen[Spalten::kWochen]);
    return zeile;
}

} // namespace

AbstandZellen abstandZellen(const AbstandAuswertung& auswertung, std::size_t treffer)
{
    const AbstandTreffer& hier = auswertung.treffer[treffer];
    AbstandZellen zellen;
    zellen[0] = Format(hier.ZiehungsNr, "@@@@");
    zellen[Spalten::kJahr] = Format(hier.jjjj, "0000");
    zellen[Spalten::kJahr + 2] = Format(hier.sw, "00");
    zellen[Spalten::kDatum] = hier.datum;
    std::size_t spalte = Spalten::kZ1;
    for (const std::int32_t zahl : hier.gewinnzahlen) {
        zellen[spalte] = zahlzelle(zahl, zaehltGewinnzahlen(auswertung.ZaehlModus), auswertung.zahl);
        spalte += 2;
    }
    zellen[Spalten::kZZ] =
        hier.zz == 0 ? "-" : zahlzelle(hier.zz, zaehltZusatzzahl(auswertung.ZaehlModus), auswertung.zahl);
    zellen[Spalten::kWochen] = Format(hier.wochen, "@@@@");
    return zellen;
}

Farbpaar abstandFarbe(int zeile, int spalte, std::string_view text, bool laengster)
{
    const Farbe grund = laengster ? Listenfarben::Hervorgehoben : Listenfarben::zeilengrund(zeile);
    if (Spalten::istTrenner(spalte))
        return {Listenfarben::Trenner, Listenfarben::Schrift};
    if (spalte == Spalten::kWochen)
        return {grund, kRot};
    if (spalte >= Spalten::kZ1 && spalte <= Spalten::kZZ && text.size() > kUnmarkierteLaenge)
        return {kTreffer, kRot};
    return {grund, Listenfarben::Schrift};
}

std::string abstandBericht(const AbstandAuswertung& auswertung, std::span<const std::size_t> reihenfolge)
{
    if (reihenfolge.empty())
        return {};
    const std::string spiel(spielartGross(auswertung.Spielart));
    ClipReport bericht;
    bericht.spiel(spiel)
        .zeile("Statistik für die Gewinnzahl: " + std::to_string(auswertung.zahl) + "  " + " (" +
               zzText(auswertung.ZaehlModus) + ")")
        .leerzeile()
        .zeile(" ZNr. Jahr  SW  Datum           Z1  Z2  Z3  Z4  Z5  Z6  ZZ   Wochen");
    for (const std::size_t treffer : reihenfolge)
        bericht.zeile(berichtszeile(abstandZellen(auswertung, treffer)));
    bericht.leerzeile()
        .erfassungsstand(auswertung.letzteZiehung, auswertung.letztesDatum)
        .ausgewerteteZiehungen(auswertung.AnzahlZiehungen)
        .zeile("Anzahl der Ziehungen mit der ausgewählten Gewinnzahl: " + std::to_string(auswertung.treffer.size()) +
               "  (" + spiel + ")")
        .leerzeile()
        .schlusshinweis();
    return bericht.text();
}

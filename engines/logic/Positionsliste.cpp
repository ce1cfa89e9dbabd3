#include "engines/logic/Positionsliste.h"

#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>
#include <utility>

namespace {

constexpr char kGruppenpunkt = '.';
constexpr std::size_t kStellen = 11;         ///< of the Positionszahl at the head of a line
constexpr std::size_t kErsteGewinnzahl = 27; ///< where a line has it, counted from 1
constexpr std::size_t kSchritt = 3;          ///< from one Gewinnzahl to the next
constexpr std::size_t kSichereStellen = 18;
constexpr std::int64_t kZuGross = 1'000'000'000'000'000'000;

} // namespace

std::optional<std::int64_t> liesGruppierteZahl(std::string_view text)
{
    text = trim(text);
    const bool negativ = text.starts_with('-');
    if (negativ || text.starts_with('+'))
        text.remove_prefix(1);
    // A point stands between digits, or it groups nothing.
    if (text.empty() || !istZiffer(text.front()) || !istZiffer(text.back()))
        return {};
    std::int64_t betrag = 0;
    std::size_t stellen = 0;
    for (const char zeichen : text) {
        if (zeichen == kGruppenpunkt)
            continue;
        if (!istZiffer(zeichen))
            return {};
        stellen += betrag > 0 || zeichen != '0';
        betrag = stellen > kSichereStellen ? kZuGross : betrag * 10 + (zeichen - '0');
    }
    return negativ ? -betrag : betrag;
}

std::optional<Positionszahl> liesPositionszahl(std::string_view text)
{
    const auto zahl = liesGruppierteZahl(text);
    if (!zahl || !istPositionszahl(*zahl))
        return {};
    return static_cast<Positionszahl>(*zahl);
}

Positionsbereichspruefung pruefePositionsbereich(std::string_view von, std::string_view bis)
{
    const auto erste = liesGruppierteZahl(von);
    const auto letzte = liesGruppierteZahl(bis);
    if (!erste)
        return {{}, "Fehler: Bereich 'von' ist nicht numerisch."};
    if (!letzte)
        return {{}, "Fehler: Bereich 'bis' ist nicht numerisch."};
    if (!istPositionszahl(*erste))
        return {{}, "Fehler: 'von' muss im Bereich von 1-13.983.816 liegen"};
    if (!istPositionszahl(*letzte))
        return {{}, "Fehler: 'bis' muss im Bereich von 1-13.983.816 liegen"};
    if (*letzte < *erste)
        return {{}, "Fehler: 'bis' muss grösser 'von' sein."};
    return {Positionsbereich{static_cast<Positionszahl>(*erste), static_cast<Positionszahl>(*letzte)}, {}};
}

std::string positionszeile(const ZiehungsArchiv& archiv, std::size_t nr)
{
    const Kombination zahlen = archiv.gewinnzahlen(nr);
    std::string zeile = Format(PositionszahlSumme(zahlen), "#,###,###");
    zeile.insert(0, kStellen - std::min(kStellen, zeile.size()), ' ');
    return zeile + "  ->  " + jahrUndWoche(archiv, nr) + "  " + zahlentext(zahlen);
}

std::optional<Positionszahl> positionInZeile(std::string_view zeile)
{
    return liesPositionszahl(zeile.substr(0, kStellen));
}

Kombination zahlenInZeile(std::string_view zeile)
{
    Kombination zahlen{};
    std::size_t stelle = kErsteGewinnzahl;
    for (std::int32_t& zahl : zahlen) {
        zahl = ganzzahl(Mid(zeile, stelle, 2)).value_or(0);
        stelle += kSchritt;
    }
    return zahlen;
}

std::string Positionsliste::anzahlText() const
{
    return (ausBereich ? "Anzahl der Ziehungen im gewählten Bereich: " : "Anzahl der Ziehungen: ") +
           std::to_string(zeilen.size());
}

Positionsliste positionsliste(const ZiehungsArchiv& archiv, const std::optional<Positionsbereich>& bereich,
                              const Fortschritt& fortschritt)
{
    Positionsliste liste;
    liste.ausBereich = bereich.has_value();
    Takt takt(fortschritt);
    const auto anzahl = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    for (std::size_t nr = 1; nr <= anzahl && takt.schritt(nr); ++nr) {
        std::string zeile = positionszeile(archiv, nr);
        const auto position = positionInZeile(zeile);
        if (!bereich || (position && bereich->enthaelt(*position)))
            liste.zeilen.push_back(std::move(zeile));
    }
    return liste;
}

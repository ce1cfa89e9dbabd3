#include "statistics/logic/Zahlentabelle.h"

#include <algorithm>

namespace {

constexpr std::int32_t kGroessteSuperzahl = 9;

void markiere(Zahlenzeile& zeile)
{
    const auto [min, max] = std::ranges::minmax(zeile.zellen, {}, &Zahlenzelle::anzahl);
    for (Zahlenzelle& zelle : zeile.zellen)
        if (zelle.anzahl == max.anzahl)
            zelle.marke = Zellmarke::Maximum;
        else if (zelle.anzahl == min.anzahl)
            zelle.marke = Zellmarke::Minimum;
}

std::optional<Tabellenrekord> rekordVon(std::span<const Zahlenzeile> zeilen, std::int32_t kleinste)
{
    std::optional<Tabellenrekord> rekord;
    for (const Zahlenzeile& zeile : zeilen) {
        const auto hoechste = std::ranges::max_element(zeile.zellen, {}, &Zahlenzelle::anzahl);
        if (!rekord || hoechste->anzahl > rekord->anzahl)
            rekord = {hoechste->anzahl, static_cast<int>(hoechste - zeile.zellen.begin()) + kleinste, zeile.schluessel};
    }
    return rekord;
}

} // namespace

Zaehlspalten gewinnzahlspalten(const ZiehungsArchiv& archiv, ZZModus modus)
{
    Zaehlspalten zahlen{.spalten = {}, .AnzahlZiehungen = archiv.AnzahlZiehungen};
    if (zaehltGewinnzahlen(modus))
        zahlen.spalten = {&archiv.z1, &archiv.z2, &archiv.z3, &archiv.z4, &archiv.z5, &archiv.z6};
    if (zaehltZusatzzahl(modus))
        zahlen.spalten.push_back(&archiv.zz);
    return zahlen;
}

Zaehlspalten superzahlspalte(const ZiehungsArchiv& archiv)
{
    return {.spalten = {&archiv.s},
            .AnzahlZiehungen = archiv.AnzahlZiehungen,
            .kleinste = 0,
            .groesste = kGroessteSuperzahl};
}

Zahlentabelle zaehleTabelle(const Zaehlspalten& gezaehlt, std::span<const std::int32_t> schluessel, std::int32_t von,
                            std::int32_t bis)
{
    const auto& [spalten, anzahl, kleinste, groesste] = gezaehlt;
    Zahlentabelle tabelle;
    for (std::int32_t wert = von; wert <= bis; ++wert)
        tabelle.zeilen.push_back({wert, std::vector<Zahlenzelle>(static_cast<std::size_t>(groesste - kleinste + 1))});
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(anzahl); ++nr) {
        if (schluessel[nr] < von || schluessel[nr] > bis)
            continue;
        Zahlenzeile& zeile = tabelle.zeilen[static_cast<std::size_t>(schluessel[nr] - von)];
        for (const ZiehungsArchiv::Spalte* spalte : spalten)
            if (const std::int32_t zahl = (*spalte)[nr]; zahl >= kleinste && zahl <= groesste)
                ++zeile.zellen[static_cast<std::size_t>(zahl - kleinste)].anzahl;
    }
    for (Zahlenzeile& zeile : tabelle.zeilen)
        markiere(zeile);
    tabelle.rekord = rekordVon(tabelle.zeilen, kleinste);
    return tabelle;
}

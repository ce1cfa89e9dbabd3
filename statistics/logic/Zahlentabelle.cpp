#include "statistics/logic/Zahlentabelle.h"

#include "shell/logic/Lottozahl.h"

#include <algorithm>

namespace {

void zaehle(Zahlenzeile& zeile, std::int32_t zahl)
{
    if (gibtEs(zahl))
        ++zeile.zellen[static_cast<std::size_t>(zahl - 1)].anzahl;
}

void zaehleZiehung(Zahlenzeile& zeile, const ZiehungsArchiv& archiv, std::size_t nr, ZZModus modus)
{
    if (zaehltGewinnzahlen(modus))
        for (const std::int32_t zahl : archiv.gewinnzahlen(nr))
            zaehle(zeile, zahl);
    if (zaehltZusatzzahl(modus))
        zaehle(zeile, archiv.zz[nr]);
}

void markiere(Zahlenzeile& zeile)
{
    const auto [min, max] = std::ranges::minmax(zeile.zellen, {}, &Zahlenzelle::anzahl);
    for (Zahlenzelle& zelle : zeile.zellen)
        if (zelle.anzahl == max.anzahl)
            zelle.marke = Zellmarke::Maximum;
        else if (zelle.anzahl == min.anzahl)
            zelle.marke = Zellmarke::Minimum;
}

std::optional<Tabellenrekord> rekordVon(std::span<const Zahlenzeile> zeilen)
{
    std::optional<Tabellenrekord> rekord;
    for (const Zahlenzeile& zeile : zeilen) {
        for (std::size_t i = 0; i < zeile.zellen.size(); ++i)
            if (!rekord || zeile.zellen[i].anzahl > rekord->anzahl)
                rekord = {zeile.zellen[i].anzahl, static_cast<int>(i + 1), zeile.schluessel};
    }
    return rekord;
}

} // namespace

Zahlentabelle zaehleTabelle(const ZiehungsArchiv& archiv, ZZModus modus, std::span<const std::int32_t> schluessel,
                            std::int32_t von, std::int32_t bis)
{
    Zahlentabelle tabelle;
    for (std::int32_t wert = von; wert <= bis; ++wert)
        tabelle.zeilen.push_back({wert, {}});
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr)
        if (schluessel[nr] >= von && schluessel[nr] <= bis)
            zaehleZiehung(tabelle.zeilen[static_cast<std::size_t>(schluessel[nr] - von)], archiv, nr, modus);
    for (Zahlenzeile& zeile : tabelle.zeilen)
        markiere(zeile);
    tabelle.rekord = rekordVon(tabelle.zeilen);
    return tabelle;
}

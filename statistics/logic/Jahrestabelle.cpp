#include "statistics/logic/Jahrestabelle.h"

#include "archive/logic/Tagesfolge.h"

#include <algorithm>

std::vector<std::int32_t> datumsjahre(const ZiehungsArchiv& archiv, std::span<const std::string> datum)
{
    std::vector<std::int32_t> jahre = archiv.jjjj;
    for (std::size_t nr = 1; nr < std::min(jahre.size(), datum.size()); ++nr)
        jahre[nr] = jahrDesTages(datum[nr]).value_or(jahre[nr]);
    return jahre;
}

Jahrestabelle yearTable(const ZiehungsArchiv& archiv, ZZModus zzModus, bool byDate)
{
    Jahrestabelle ergebnis{.tabelle = {}, .Spielart = archiv.Spielart, .ZaehlModus = zzModus, .nachDatum = byDate};
    if (archiv.AnzahlZiehungen < 1)
        return ergebnis;
    const std::vector<std::int32_t> jahre = byDate ? datumsjahre(archiv, archiv.Datum) : archiv.jjjj;
    const std::int32_t von = std::max(jahre[1], 0);
    const std::int32_t bis = std::min(jahre[static_cast<std::size_t>(archiv.AnzahlZiehungen)], kLetztesJahr);
    ergebnis.tabelle = zaehleTabelle(gewinnzahlspalten(archiv, zzModus), jahre, von, bis);
    return ergebnis;
}

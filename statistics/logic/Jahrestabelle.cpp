#include "statistics/logic/Jahrestabelle.h"

#include "shell/logic/Zahlen.h"

#include <algorithm>

namespace {

constexpr std::size_t kJahresstellen = 4;
constexpr std::int32_t kLetztesJahr = 9999;

std::int32_t jahrDesDatums(const ZiehungsArchiv& archiv, std::size_t nr)
{
    const std::string_view datum = datumVon(archiv, nr);
    const std::string_view jahr = datum.substr(datum.size() - std::min(datum.size(), kJahresstellen));
    return ganzzahl(jahr).value_or(archiv.jjjj[nr]);
}

} // namespace

std::vector<std::int32_t> datumsjahre(const ZiehungsArchiv& archiv)
{
    std::vector<std::int32_t> jahre(archiv.jjjj.size());
    for (std::size_t nr = 1; nr < jahre.size(); ++nr)
        jahre[nr] = jahrDesDatums(archiv, nr);
    return jahre;
}

Jahrestabelle yearTable(const ZiehungsArchiv& archiv, ZZModus zzModus, bool byDate)
{
    Jahrestabelle ergebnis{.tabelle = {}, .Spielart = archiv.Spielart, .ZaehlModus = zzModus, .nachDatum = byDate};
    if (archiv.AnzahlZiehungen < 1)
        return ergebnis;
    const std::vector<std::int32_t> jahre = byDate ? datumsjahre(archiv) : archiv.jjjj;
    const std::int32_t von = std::max(jahre[1], 0);
    const std::int32_t bis = std::min(jahre[static_cast<std::size_t>(archiv.AnzahlZiehungen)], kLetztesJahr);
    ergebnis.tabelle = zaehleTabelle(archiv, zzModus, jahre, von, bis);
    return ergebnis;
}

#include "statistics/logic/ZusammenZuletzt.h"

#include "archive/logic/Tagesfolge.h"
#include "shell/logic/Format.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <string_view>

namespace {

constexpr int kSamstag = 1;
constexpr int kMittwoch = 2;

/// Reads the game off the day of the week: the draws of Saturday were once held on Sundays, now and then on a Monday.
/// The draw of Tuesday, 26.12.1961 belongs to none.
int spielVon(std::string_view datum)
{
    const std::string_view tag = datum.substr(0, 2);
    if (tag == "Sa" || tag == "So" || tag == "Mo")
        return kSamstag;
    return tag == "Mi" ? kMittwoch : 0;
}

/// Where a number was taken last; the first row, and no draw, as long as it was not.
struct Fundort {
    std::size_t reihe = 0;      ///< place in the order of the days
    std::size_t ziehungsNr = 0; ///< 0: none
};
using Fundorte = std::array<Fundort, kHoechsteZahl>; ///< index: number - 1

Fundorte sucheLetzte(const ZiehungsArchiv& archiv, const std::vector<std::int32_t>& lstSort, int maske)
{
    Fundorte orte{};
    for (std::size_t reihe = 0; reihe < lstSort.size(); ++reihe) {
        const auto nr = static_cast<std::size_t>(lstSort[reihe]);
        if ((spielVon(datumAlleVon(archiv, nr)) & maske) == 0)
            continue;
        for (const std::int32_t zahl : archiv.gewinnzahlen(nr))
            if (gibtEs(zahl))
                orte[static_cast<std::size_t>(zahl - 1)] = {reihe, nr};
    }
    return orte;
}

std::string zeile(const Zuletzteintrag& eintrag)
{
    return Format(eintrag.zahl, "@@") + "  " + Format(eintrag.ausspielungen, "@@") + "  " + eintrag.datum;
}

template <class Eintraege> std::vector<std::string> zeilen(const ZusammenZuletzt& zuletzt, const Eintraege& eintraege)
{
    std::vector<std::string> zeilen;
    if (zuletzt.ziehungen > 0)
        std::ranges::transform(eintraege, std::back_inserter(zeilen), zeile);
    return zeilen;
}

} // namespace

ZusammenZuletzt lastDrawn(const ZiehungsArchiv& archiv, int maske)
{
    std::vector<std::int32_t> lstSort;
    if (maske != 0)
        lstSort = tagesfolge(archiv, Tagesordnung::NachZeilentext);
    const Fundorte orte = sucheLetzte(archiv, lstSort, maske);
    ZusammenZuletzt zuletzt;
    zuletzt.maske = maske;
    zuletzt.ziehungen = static_cast<std::int32_t>(lstSort.size());
    for (std::size_t i = 0; i < orte.size(); ++i) {
        Zuletzteintrag& eintrag = zuletzt.eintraege[i];
        eintrag.zahl = static_cast<int>(i + 1);
        if (!lstSort.empty())
            eintrag.ausspielungen = zuletzt.ziehungen - 1 - static_cast<std::int32_t>(orte[i].reihe);
        if (orte[i].ziehungsNr > 0)
            eintrag.datum = datumAlleVon(archiv, orte[i].ziehungsNr);
    }
    return zuletzt;
}

std::vector<std::string> zeilenNachZahl(const ZusammenZuletzt& zuletzt)
{
    return zeilen(zuletzt, zuletzt.eintraege);
}

std::vector<std::string> zeilenNachAusspielungen(const ZusammenZuletzt& zuletzt)
{
    auto geordnet = zuletzt.eintraege;
    std::ranges::stable_sort(geordnet, std::greater{}, &Zuletzteintrag::ausspielungen);
    return zeilen(zuletzt, geordnet);
}

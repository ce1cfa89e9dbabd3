#include "statistics/logic/Superzahlen.h"

#include "archive/logic/Tagesfolge.h"
#include "statistics/logic/Mittwochsbeginn.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <numeric>
#include <tuple>

namespace {

constexpr std::int32_t kJuengsteSamstagsziehungen = 3000;
constexpr std::int32_t kJuengsteMittwochsziehungen = 1400;

bool istZiffer(std::int32_t superzahl)
{
    return superzahl >= 0 && superzahl < static_cast<std::int32_t>(kSuperzahlen);
}

/// The first draw of the game that is looked at.
std::int32_t beginn(std::int16_t spielart, bool nurAb2000)
{
    return nurAb2000 && spielart == Mittwochslotto ? kEinzigeMittwochsziehungBeginn : 1;
}

/// A digit in the order of the days.
struct Zeitpunkt {
    std::string tag; ///< "2026-07-18 Sa"
    int ziffer = 0;
    std::string datum;

    bool operator<(const Zeitpunkt& anderer) const
    {
        return std::tie(tag, ziffer) < std::tie(anderer.tag, anderer.ziffer);
    }
};

void merkeJuengste(std::vector<Zeitpunkt>& lstTemp, const Superzahlquelle* quelle, std::int32_t nach)
{
    if (!quelle)
        return;
    for (std::size_t ziffer = 0; ziffer < kSuperzahlen; ++ziffer)
        if (const auto& letzte = quelle->zuletzt[ziffer]; letzte && letzte->ZiehungsNr > nach)
            lstTemp.push_back({tagestext(letzte->datum), static_cast<int>(ziffer), letzte->datum});
}

std::int32_t wochenseit(const Superzahlquelle* quelle, int ziffer)
{
    const auto stelle = static_cast<std::size_t>(ziffer);
    return quelle && quelle->zuletzt[stelle] ? quelle->zuletzt[stelle]->wochen
                                             : std::numeric_limits<std::int32_t>::max();
}

} // namespace

std::int32_t Superzahlstatistik::ziehungen() const
{
    return std::transform_reduce(quellen.begin(), quellen.end(), 0, std::plus{},
                                 std::mem_fn(&Superzahlquelle::ziehungen));
}

std::int32_t Superzahlstatistik::mitSuperzahl() const
{
    return std::transform_reduce(quellen.begin(), quellen.end(), 0, std::plus{},
                                 std::mem_fn(&Superzahlquelle::mitSuperzahl));
}

Ziffernzaehler Superzahlstatistik::anzahl() const
{
    Ziffernzaehler summe{};
    for (const Superzahlquelle& quelle : quellen)
        std::ranges::transform(summe, quelle.anzahl, summe.begin(), std::plus{});
    return summe;
}

const Superzahlquelle* Superzahlstatistik::quelle(std::int16_t spielart) const
{
    const auto stelle = std::ranges::find(quellen, spielart, &Superzahlquelle::spielart);
    return stelle == quellen.end() ? nullptr : &*stelle;
}

void superzahlCounts(Superzahlstatistik& statistik, const ZiehungsArchiv& archiv)
{
    const std::int32_t ab = beginn(archiv.Spielart, statistik.nurAb2000);
    Superzahlquelle quelle;
    quelle.spielart = archiv.Spielart;
    quelle.ziehungen = std::max(archiv.AnzahlZiehungen - ab + 1, 0);
    Ziffernzaehler letzte{}; // ZiehungsNr
    for (std::int32_t nr = std::max(ab, superzahlBeginn(archiv.Spielart)); nr <= archiv.AnzahlZiehungen; ++nr) {
        ++quelle.mitSuperzahl;
        const std::int32_t superzahl = archiv.s[static_cast<std::size_t>(nr)];
        if (!istZiffer(superzahl))
            continue;
        ++quelle.anzahl[static_cast<std::size_t>(superzahl)];
        letzte[static_cast<std::size_t>(superzahl)] = nr;
    }
    for (std::size_t ziffer = 0; ziffer < kSuperzahlen; ++ziffer)
        if (const std::int32_t nr = letzte[ziffer]; nr > 0)
            quelle.zuletzt[ziffer] = {nr, archiv.AnzahlZiehungen - nr, datumVon(archiv, static_cast<std::size_t>(nr))};
    statistik.quellen.push_back(quelle);
}

std::vector<GemeinsameSuperzahl> gemeinsameSuperzahlen(const Superzahlstatistik& statistik)
{
    const Superzahlquelle* samstag = statistik.quelle(Samstagslotto);
    const Superzahlquelle* mittwoch = statistik.quelle(Mittwochslotto);
    std::vector<Zeitpunkt> lstTemp;
    merkeJuengste(lstTemp, samstag, kJuengsteSamstagsziehungen);
    merkeJuengste(lstTemp, mittwoch, kJuengsteMittwochsziehungen);
    std::ranges::sort(lstTemp, std::less{});
    std::vector<GemeinsameSuperzahl> zeilen;
    for (auto zeitpunkt = lstTemp.rbegin(); zeitpunkt != lstTemp.rend(); ++zeitpunkt) {
        const int ziffer = zeitpunkt->ziffer;
        if (std::ranges::find(zeilen, ziffer, &GemeinsameSuperzahl::ziffer) == zeilen.end())
            zeilen.push_back(
                {ziffer, std::min(wochenseit(samstag, ziffer), wochenseit(mittwoch, ziffer)), zeitpunkt->datum});
    }
    return zeilen;
}

#include "filters/logic/Zahlenlinie.h"

#include "archive/logic/Tagesfolge.h"
#include "shell/logic/Format.h"

#include <algorithm>

namespace {

using namespace Liniespalten;

constexpr Farbe kWeiss{255, 255, 255};
constexpr Farbe kBlau{0, 0, 255};
constexpr Farbe kGelb{255, 255, 0};

constexpr std::int32_t kHoechsteSuperzahl = 9;
constexpr std::size_t kGezogen = 2; ///< characters of a drawn number; one more if it is the Superzahl too

constexpr bool istSuperzahlMitSpalte(std::int32_t superzahl)
{
    return superzahl >= 1 && superzahl <= kHoechsteSuperzahl;
}

bool istZugleichSuperzahl(const Folgeziehung& ziehung, std::int32_t zahl)
{
    return zahl == ziehung.superzahl && istSuperzahlMitSpalte(zahl);
}

} // namespace

std::vector<Linienzelle> linienzellen(const Folgeziehung& ziehung, std::size_t nr)
{
    const std::string tag = tagestext(ziehung.datum);
    std::vector<Linienzelle> zellen{{kDatum, tag}, {kDatum2, tag}, {kAnz, Format(std::to_string(nr), "@@@@")}};
    for (const std::int32_t zahl : ziehung.zahlen)
        if (gibtEs(zahl))
            zellen.push_back({spalteVon(zahl), Format(zahl, "00") + (istZugleichSuperzahl(ziehung, zahl) ? " " : "")});
    if (ziehung.superzahl == 0)
        zellen.push_back({kNull, "0"});
    else if (istSuperzahlMitSpalte(ziehung.superzahl) && std::ranges::count(ziehung.zahlen, ziehung.superzahl) == 0)
        zellen.push_back({spalteVon(ziehung.superzahl), std::to_string(ziehung.superzahl)});
    return zellen;
}

Linienfarbe linienfarbe(int zeile, int spalte, std::string_view text)
{
    if (istTrenner(spalte))
        return {{Listenfarben::Trenner, Listenfarben::Schrift}, true};
    if ((!istZahl(spalte) && spalte != kNull) || text.empty())
        return {{Listenfarben::zeilengrund(zeile), Listenfarben::Schrift}, false};
    if (text.size() < kGezogen)
        return {{kGelb, Listenfarben::Schrift}, true};
    return {{kBlau, text.size() > kGezogen ? kGelb : kWeiss}, true};
}

#include "statistics/logic/ZuletztGezogen.h"

#include "shell/logic/Lottozahl.h"

#include <algorithm>

namespace {

constexpr std::int32_t kSuchbeginnSamstag = 2000;
constexpr std::int32_t kSuchbeginnMittwoch = 241;

/// Gives a number the draw it was met in, unless a later one has been met before. True if it is new.
bool merke(ZuletztGezogen& letzte, std::int32_t zahl, std::int32_t nr)
{
    if (!gibtEs(zahl))
        return false;
    std::int32_t& eintrag = letzte[static_cast<std::size_t>(zahl - 1)];
    if (eintrag != 0)
        return false;
    eintrag = nr;
    return true;
}

/// The numbers of a draw that are new.
int merkeZiehung(ZuletztGezogen& letzte, const ZiehungsArchiv& archiv, std::int32_t nr, ZZModus modus)
{
    const auto i = static_cast<std::size_t>(nr);
    int neue = 0;
    if (zaehltGewinnzahlen(modus))
        for (const std::int32_t zahl : archiv.gewinnzahlen(i))
            neue += merke(letzte, zahl, nr);
    if (zaehltZusatzzahl(modus))
        neue += merke(letzte, archiv.zz[i], nr);
    return neue;
}

} // namespace

ZuletztGezogen zuletztGezogen(const ZiehungsArchiv& archiv, std::int32_t von, std::int32_t bis, ZZModus modus)
{
    ZuletztGezogen letzte{};
    const std::int32_t erste = std::max(von, 1);
    int offen = static_cast<int>(letzte.size());
    // From the newest draw down, so that the search ends as soon as all numbers are met.
    for (std::int32_t nr = std::min(bis, archiv.AnzahlZiehungen); nr >= erste && offen > 0; --nr)
        offen -= merkeZiehung(letzte, archiv, nr, modus);
    return letzte;
}

std::int32_t suchbeginn(std::int16_t spielart)
{
    return istSamstag(spielart) ? kSuchbeginnSamstag : kSuchbeginnMittwoch;
}

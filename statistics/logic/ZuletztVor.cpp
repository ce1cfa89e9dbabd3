#include "statistics/logic/ZuletztVor.h"

namespace {

constexpr std::int32_t kSuchbeginnSamstag = 2000;
constexpr std::int32_t kSuchbeginnMittwoch = 241;

/// Gives a number the draw it was met in, unless a later one has been met before. True if it is new.
bool merke(ZuletztVor& letzte, std::int32_t zahl, std::int32_t nr)
{
    if (zahl < 1 || zahl > 49)
        return false;
    std::int32_t& eintrag = letzte[static_cast<std::size_t>(zahl - 1)];
    if (eintrag != 0)
        return false;
    eintrag = nr;
    return true;
}

/// The numbers of a draw that are new.
int merkeZiehung(ZuletztVor& letzte, const ZiehungsArchiv& archiv, std::int32_t nr, ZZModus modus)
{
    const auto i = static_cast<std::size_t>(nr);
    int neue = 0;
    if (zaehltGewinnzahlen(modus)) {
        for (const std::int32_t zahl : archiv.gewinnzahlen(i))
            neue += merke(letzte, zahl, nr);
    }
    if (zaehltZusatzzahl(modus))
        neue += merke(letzte, archiv.zz[i], nr);
    return neue;
}

} // namespace

ZuletztVor zuletztVor(const ZiehungsArchiv& archiv, ZZModus modus)
{
    const std::int32_t beginn = istSamstag(archiv.Spielart) ? kSuchbeginnSamstag : kSuchbeginnMittwoch;
    ZuletztVor letzte{};
    int offen = static_cast<int>(letzte.size());
    // From the newest draw down, so that the search ends as soon as all numbers are met.
    for (std::int32_t nr = archiv.AnzahlZiehungen; nr >= beginn && offen > 0; --nr)
        offen -= merkeZiehung(letzte, archiv, nr, modus);
    for (std::int32_t& eintrag : letzte)
        eintrag = archiv.AnzahlZiehungen - eintrag;
    return letzte;
}

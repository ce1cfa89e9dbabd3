#include "engines/logic/Zusammengezogene.h"

#include "archive/logic/Zahlenmenge.h"
#include "shell/logic/Format.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace {

/// Calls `tue` with each number but the chosen ones, ascending, and its count.
template <class Tue> void jede(const Zusammengezogene& ergebnis, Tue tue)
{
    for (std::int32_t zahl = 1; zahl <= kHoechsteZahl; ++zahl)
        if (std::ranges::find(ergebnis.gewaehlte, zahl) == ergebnis.gewaehlte.end())
            tue(zahl, ergebnis.anzahlen[static_cast<std::size_t>(zahl)]);
}

} // namespace

Zusammengezogene zaehleZusammengezogene(const ZiehungsArchiv& archiv, std::vector<std::int32_t> gewaehlte)
{
    Zusammengezogene ergebnis{std::move(gewaehlte), {}, archiv.AnzahlZiehungen};
    const Zahlenmenge verlangte = zahlenmenge(ergebnis.gewaehlte);
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr) {
        const Zahlenmenge ziehung = zahlenmenge(archiv.gewinnzahlen(nr));
        if ((ziehung & verlangte) == verlangte)
            for (Zahlenmenge rest = ziehung; rest != 0; rest &= rest - 1)
                ++ergebnis.anzahlen[static_cast<std::size_t>(std::countr_zero(rest))];
    }
    return ergebnis;
}

std::vector<std::string> zeilenNachZahl(const Zusammengezogene& ergebnis)
{
    std::vector<std::string> zeilen;
    jede(ergebnis, [&zeilen](std::int32_t zahl, std::int32_t anzahl) {
        zeilen.push_back(Format(zahl, "@@") + "  -> " + Format(anzahl, "@@@@"));
    });
    return zeilen;
}

std::vector<std::string> zeilenNachHaeufigkeit(const Zusammengezogene& ergebnis)
{
    std::vector<std::string> zeilen;
    jede(ergebnis, [&zeilen](std::int32_t zahl, std::int32_t anzahl) {
        zeilen.push_back(Format(anzahl, "@@@@") + "  -> " + Format(zahl, "@@"));
    });
    std::ranges::sort(zeilen);
    return zeilen;
}

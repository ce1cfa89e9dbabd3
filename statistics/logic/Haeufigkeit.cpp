#include "statistics/logic/Haeufigkeit.h"

#include "shell/logic/Lottozahl.h"

#include <algorithm>
#include <limits>
#include <tuple>
#include <utility>

namespace {

/// Counts by number; slot 0 takes "no number", the last slot everything outside 1..49.
using Tafel = std::array<std::int32_t, 51>;

constexpr std::uint32_t kFachAusserhalb = 50;

std::int32_t& fach(Tafel& tafel, std::int32_t zahl)
{
    return tafel[std::min(static_cast<std::uint32_t>(zahl), kFachAusserhalb)];
}

void zaehleZiehung(const ZiehungsArchiv& archiv, std::size_t nr, ZZModus modus, Tafel& tafel)
{
    if (zaehltGewinnzahlen(modus))
        for (const std::int32_t zahl : archiv.gewinnzahlen(nr))
            ++fach(tafel, zahl);
    if (zaehltZusatzzahl(modus))
        ++fach(tafel, archiv.zz[nr]);
}

void merkeLetzte(Haeufigkeit& summe, const ZiehungsArchiv& archiv, std::size_t nr)
{
    summe.LetzteZiehung = static_cast<std::int32_t>(nr);
    const auto bisher = std::pair(summe.letztesSpieljahr, summe.letzteSpielwoche);
    const auto neu = std::pair(archiv.jjjj[nr], archiv.sw[nr]);
    std::tie(summe.letztesSpieljahr, summe.letzteSpielwoche) = std::max(bisher, neu);
}

} // namespace

void zaehleDazu(Haeufigkeit& summe, const ZiehungsArchiv& archiv, const Ziehungsbereich& bereich, ZZModus modus)
{
    Tafel tafel{};
    std::copy(summe.anzahl.begin(), summe.anzahl.end(), tafel.begin() + 1);
    const auto ende = static_cast<std::size_t>(bereich.ende(archiv.AnzahlZiehungen));
    std::size_t letzte = 0;
    for (std::size_t nr = 1; nr <= ende; ++nr) {
        if (archiv.jjjj[nr] < bereich.von || archiv.jjjj[nr] > bereich.bis)
            continue;
        zaehleZiehung(archiv, nr, modus, tafel);
        ++summe.AusgewerteteZiehungen;
        letzte = nr;
    }
    if (letzte > 0)
        merkeLetzte(summe, archiv, letzte);
    std::transform(tafel.begin() + 1, tafel.begin() + kFachAusserhalb, summe.anzahl.begin(), [](std::int32_t anzahl) {
        return static_cast<std::int16_t>(std::min<std::int32_t>(anzahl, std::numeric_limits<std::int16_t>::max()));
    });
}

Haeufigkeit zaehleHaeufigkeit(const ZiehungsArchiv& archiv, const Ziehungsbereich& bereich, ZZModus modus)
{
    Haeufigkeit haeufigkeit;
    zaehleDazu(haeufigkeit, archiv, bereich, modus);
    return haeufigkeit;
}

Extremwerte extremwerte(const Haeufigkeit& haeufigkeit)
{
    const auto [min, max] = std::minmax_element(haeufigkeit.anzahl.begin(), haeufigkeit.anzahl.end());
    Extremwerte extreme{.max = *max, .min = *min, .maxima = {}, .minima = {}};
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl) {
        const std::int16_t anzahl = haeufigkeit.fuer(zahl);
        if (anzahl == extreme.max) {
            extreme.zahlMax = zahl;
            extreme.maxima.set(static_cast<std::size_t>(zahl));
        }
        if (anzahl == extreme.min) {
            extreme.zahlMin = zahl;
            extreme.minima.set(static_cast<std::size_t>(zahl));
        }
    }
    return extreme;
}

#include "statistics/logic/JahrUndWoche.h"

#include "shell/logic/Zahlen.h"
#include "statistics/logic/Zahltreffer.h"

namespace {

/// Walks through the draws: `neuesJahr` is called for the first year and for each change, `treffer` for each hit.
template <class NeuesJahr, class Treffer>
void durchlaufe(const ZiehungsArchiv& archiv, int zahl, ZZModus modus, NeuesJahr neuesJahr, Treffer treffer)
{
    std::int32_t jahr = fuehrendeZahl(erstesSpieljahr(archiv.Spielart));
    neuesJahr(jahr);
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr) {
        if (archiv.jjjj[nr] != jahr) {
            jahr = archiv.jjjj[nr];
            neuesJahr(jahr);
        }
        if (trifft(archiv, nr, zahl, modus))
            treffer(archiv.sw[nr]);
    }
}

} // namespace

HaeufigkeitProJahr countPerYear(const ZiehungsArchiv& archiv, int number, ZZModus zzModus)
{
    HaeufigkeitProJahr haeufigkeit;
    durchlaufe(
        archiv, number, zzModus,
        [&](std::int32_t jahr) {
            haeufigkeit.jahre.push_back({jahr, 0});
        },
        [&](std::int32_t) {
            ++haeufigkeit.jahre.back().anzahl;
            ++haeufigkeit.gesamt;
        });
    return haeufigkeit;
}

HaeufigkeitProWoche countPerWeek(const ZiehungsArchiv& archiv, int number, ZZModus zzModus)
{
    HaeufigkeitProWoche haeufigkeit{};
    durchlaufe(
        archiv, number, zzModus, [](std::int32_t) {},
        [&](std::int32_t woche) {
            if (woche >= 1 && woche <= kSpielwochen)
                ++haeufigkeit[static_cast<std::size_t>(woche - 1)];
        });
    return haeufigkeit;
}

std::vector<Jahrestreffer> trefferProJahr(const ZiehungsArchiv& archiv, int number, ZZModus zzModus)
{
    std::vector<Jahrestreffer> jahre;
    durchlaufe(
        archiv, number, zzModus,
        [&](std::int32_t jahr) {
            jahre.push_back({jahr, {}});
        },
        [&](std::int32_t woche) { jahre.back().wochen.push_back(woche); });
    return jahre;
}

JahrUndWoche werteJahrUndWocheAus(const ZiehungsArchiv& archiv, int zahl, ZZModus modus)
{
    return {.zahl = zahl,
            .ZaehlModus = modus,
            .Spielart = archiv.Spielart,
            .proJahr = countPerYear(archiv, zahl, modus),
            .proWoche = countPerWeek(archiv, zahl, modus),
            .treffer = trefferProJahr(archiv, zahl, modus),
            .letzteZiehung = jahrUndWoche(archiv, static_cast<std::size_t>(archiv.AnzahlZiehungen))};
}

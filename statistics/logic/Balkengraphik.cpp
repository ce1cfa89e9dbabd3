#include "statistics/logic/Balkengraphik.h"

#include "shell/logic/Format.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::array<double, 5> kAnteile{1.0, 0.75, 0.5, 0.25, 0.0};

int twips(double wert)
{
    return static_cast<int>(std::lround(wert));
}

Balkengraphik zeichne(const Haeufigkeit& haeufigkeit, const Massstab& massstab, std::int32_t hoechster)
{
    Balkengraphik graphik;
    graphik.massstab = massstab;
    for (std::size_t i = 0; i < graphik.oben.size(); ++i) {
        const double hoehe = (haeufigkeit.anzahl[i] - massstab.fuss) * massstab.balkenfaktor();
        graphik.oben[i] = std::min(twips(Balkengraphik::kGrundlinie - hoehe), Balkengraphik::kTiefsterKopf);
    }
    const double spanne = hoechster - massstab.fuss;
    for (std::size_t i = 0; i < kAnteile.size(); ++i) {
        graphik.skala[i] = Format(massstab.fuss + kAnteile[i] * spanne, "#0.00");
        const double hoehe = kAnteile[i] * massstab.spanne * massstab.skalenfaktor();
        graphik.linien[i] = twips(Balkengraphik::kTiefsterKopf - hoehe);
    }
    return graphik;
}

/// How the mode stands behind the count when the weeks are left out: one blank without Zusatzzahl, else two.
std::string ohneWochen(ZZModus modus)
{
    return (modus == ZZModus::Ohne ? ", (" : ",  (") + zzKurztext(modus) + ")";
}

std::string mitWochen(std::int32_t wochen, ZZModus modus)
{
    return ", zuletzt gezogen vor: " + std::to_string(wochen) + " Wochen (" + zzKurztext(modus) + ")";
}

} // namespace

Balkengraphik balkenNormal(const Haeufigkeit& haeufigkeit)
{
    const Extremwerte extreme = extremwerte(haeufigkeit);
    return zeichne(haeufigkeit, {0, std::max<std::int32_t>(extreme.max, 1)}, extreme.max);
}

Balkengraphik balkenZoom(const Haeufigkeit& haeufigkeit)
{
    const Extremwerte extreme = extremwerte(haeufigkeit);
    return zeichne(haeufigkeit, {extreme.min, std::max(extreme.max - extreme.min, 1)}, extreme.max);
}

std::string balkenText(const HaeufigkeitAuswertung& auswertung, int zahl)
{
    const ZZModus modus = auswertung.ZaehlModus;
    const std::int32_t wochen = auswertung.zuletztVor[static_cast<std::size_t>(zahl - 1)];
    return "Zahl " + std::to_string(zahl) + " -> " + std::to_string(auswertung.haeufigkeit.fuer(zahl)) +
           " mal gezogen" + (auswertung.erreichtLetzteZiehung ? mitWochen(wochen, modus) : ohneWochen(modus));
}

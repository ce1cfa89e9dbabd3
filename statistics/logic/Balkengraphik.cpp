#include "statistics/logic/Balkengraphik.h"

#include "shell/logic/Format.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

constexpr std::array<double, 5> kAnteile{1.0, 0.75, 0.5, 0.25, 0.0};

struct Grenzen {
    std::int32_t min = 0;
    std::int32_t max = 0;
};

Grenzen grenzen(const std::vector<Balkenwert>& werte)
{
    if (werte.empty())
        return {};
    const auto [min, max] = std::ranges::minmax(werte, {}, &Balkenwert::anzahl);
    return {min.anzahl, max.anzahl};
}

int twips(double wert)
{
    return static_cast<int>(std::lround(wert));
}

int kopf(std::int32_t anzahl, const Massstab& massstab)
{
    const double hoehe = (anzahl - massstab.fuss) * massstab.balkenfaktor();
    return std::min(twips(Balkengraphik::kGrundlinie - hoehe), Balkengraphik::kTiefsterKopf);
}

Balkenmarke marke(std::int32_t anzahl, const Grenzen& grenzen)
{
    if (anzahl == grenzen.min)
        return Balkenmarke::Niedrigster;
    return anzahl == grenzen.max ? Balkenmarke::Hoechster : Balkenmarke::Keine;
}

} // namespace

std::vector<Balkenwert> nachHaeufigkeit(std::vector<Balkenwert> werte)
{
    std::ranges::stable_sort(werte, std::greater{}, &Balkenwert::anzahl);
    return werte;
}

Balkengraphik balkengraphik(const std::vector<Balkenwert>& werte, Balkenansicht ansicht)
{
    const Grenzen extreme = grenzen(werte);
    const std::int32_t fuss = ansicht == Balkenansicht::Zoom ? extreme.min : 0;
    Balkengraphik graphik;
    graphik.massstab = {fuss, std::max(extreme.max - fuss, 1)};
    for (const Balkenwert& wert : werte)
        graphik.balken.push_back({wert, kopf(wert.anzahl, graphik.massstab), marke(wert.anzahl, extreme)});
    for (std::size_t i = 0; i < kAnteile.size(); ++i) {
        graphik.skala[i] = Format(fuss + kAnteile[i] * (extreme.max - fuss), "#0.00");
        const double hoehe = kAnteile[i] * graphik.massstab.spanne * graphik.massstab.skalenfaktor();
        graphik.linien[i] = twips(Balkengraphik::kTiefsterKopf - hoehe);
    }
    return graphik;
}

#include "bench/Archive.h"
#include "bench/Messlauf.h"
#include "testhilfen/Pruefordner.h"
#include "tips/logic/Scheinvergleich.h"
#include "tips/logic/Tippscheinname.h"

#include <algorithm>
#include <numeric>

// A thousand slips of twelve tips against all Saturday draws, beside a plain loop that scores each tip and each draw
// by itself and makes the text of every row at once.

namespace {

constexpr int kScheine = 1000;

std::vector<Tippreihe> zufallstipps(std::mt19937& zufall)
{
    std::vector<Tippreihe> reihen(kTippsJeSchein);
    for (Tippreihe& reihe : reihen) {
        std::array<std::int32_t, 49> alle{};
        std::iota(alle.begin(), alle.end(), 1);
        std::shuffle(alle.begin(), alle.end(), zufall);
        std::sort(alle.begin(), alle.begin() + 6);
        for (std::size_t i = 0; i < 6; ++i)
            reihe.zahlen[i] = std::to_string(alle[i]);
        reihe.superzahl = std::to_string(zufall() % 10);
    }
    return reihen;
}

class Scheine {
public:
    Scheine()
    {
        std::mt19937 zufall(49);
        for (int i = 0; i < kScheine; ++i)
            saveSlip(ordner_.pfad(), Samstagslotto, std::to_string(200'000 + i), zufallstipps(zufall));
        namen_ = tippscheinNamen(ordner_.pfad(), Samstagslotto);
    }
    const std::filesystem::path& ordner() const { return ordner_.pfad(); }
    const std::vector<std::string>& namen() const { return namen_; }

private:
    Pruefordner ordner_;
    std::vector<std::string> namen_;
};

const Scheine& scheine()
{
    static const Scheine alle;
    return alle;
}

Scheinvergleich vergleicheAlle()
{
    Scheinvergleich vergleich(samstagsarchiv(), kLinieAlleScheine);
    compareAllSlips(vergleich, scheine().ordner(), scheine().namen());
    return vergleich;
}

struct Plump {
    Trefferbilanz bilanz;
    std::vector<std::string> gewinne;
};

Plump vergleichePlump()
{
    Plump plump;
    for (const std::string& name : scheine().namen()) {
        for (const Tippreihe& reihe : loadSlip(scheine().ordner() / name).reihen) {
            const Kombination tipp = kombinationVon(reihe).value_or(Kombination{});
            const std::int32_t superzahl = superzahlVon(reihe).value_or(-1);
            for (std::int32_t nr = 1; nr <= samstagsarchiv().AnzahlZiehungen; ++nr) {
                const Tippbewertung bewertung = bewerteNeu(samstagsarchiv(), nr, tipp, superzahl, Samstagslotto);
                plump.bilanz.zaehle(bewertung);
                if (bewertung.istGewinn())
                    plump.gewinne.push_back(jahrUndWoche(samstagsarchiv(), static_cast<std::size_t>(nr)));
            }
        }
    }
    return plump;
}

bool gleich()
{
    const Scheinvergleich vergleich = vergleicheAlle();
    Plump plump = vergleichePlump();
    plump.bilanz.haeufigkeit = {};
    const std::size_t koepfe = 1 + kScheine * (3 + 2 * kTippsJeSchein);
    return vergleich.bilanz() == plump.bilanz && vergleich.zeilenzahl() == koepfe + plump.gewinne.size();
}

void tausendScheine(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        stand.counters["Zeilen"] = static_cast<double>(vergleicheAlle().zeilenzahl());
}

void tausendScheinePlump(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(vergleichePlump());
}

void einBildVollZeilen(benchmark::State& stand)
{
    const Scheinvergleich vergleich = vergleicheAlle();
    for ([[maybe_unused]] auto _ : stand)
        for (std::size_t i = 0; i < 40; ++i)
            benchmark::DoNotOptimize(vergleich.zeile(vergleich.zeilenzahl() / 2 + i));
}

BENCHMARK(tausendScheine)->Unit(benchmark::kMillisecond);
BENCHMARK(tausendScheinePlump)->Unit(benchmark::kMillisecond);
BENCHMARK(einBildVollZeilen)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    return messe(argc, argv, gleich);
}

// How many draws share exactly 3, 4, 5 and 6 numbers with each of the 13,983,816 combinations: the kernel beside the
// plain ways. The plain ways count every 700th combination and are scaled up; `mal_flaggen` says how many times faster
// a way is than the table of flags in the same run.

#include "bench/Archive.h"
#include "engines/logic/KombinationAusNummer.h"
#include "engines/logic/Trefferkern.h"
#include "engines/logic/Trefferreferenz.h"
#include "engines/logic/Treffersuche.h"
#include "shell/logic/Binomial.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <random>

namespace {

using Befehlssatz = Trefferkern::Befehlssatz;
constexpr std::int32_t kSchritt = 700;

struct Reihen {
    std::vector<Zahlenmenge> mengen;
    std::vector<std::array<std::int32_t, 6>> zahlen;

    void fuegeHinzu(const std::array<std::int32_t, 6>& reihe)
    {
        zahlen.push_back(reihe);
        mengen.push_back(zahlenmenge(reihe));
    }
};

/// The real draws of all three games.
const Reihen& echte()
{
    static const Reihen geladen = [] {
        Reihen reihen;
        for (std::size_t nr = 1; nr <= static_cast<std::size_t>(alleZiehungen().AnzahlZiehungen); ++nr)
            reihen.fuegeHinzu(alleZiehungen().gewinnzahlen(nr));
        return reihen;
    }();
    return geladen;
}

/// As many as three files can hold, by chance.
const Reihen& meiste()
{
    static const Reihen gezogen = [] {
        std::mt19937 zufall(49);
        std::uniform_int_distribution<std::int32_t> nummer(1, kKombinationen6aus49);
        Reihen reihen;
        for (int i = 0; i < 3 * kMaxZiehungenJeDatei; ++i)
            reihen.fuegeHinzu(KombinationAusNummer(nummer(zufall)));
        return reihen;
    }();
    return gezogen;
}

double sekundenFuerAlle(const std::function<void(std::int32_t)>& zaehle)
{
    std::int32_t gezaehlt = 0;
    const auto start = std::chrono::steady_clock::now();
    for (std::int32_t nummer = 1; nummer <= kKombinationen6aus49; nummer += kSchritt, ++gezaehlt)
        zaehle(nummer);
    const std::chrono::duration<double> dauer = std::chrono::steady_clock::now() - start;
    return dauer.count() * kKombinationen6aus49 / gezaehlt;
}

double mitFlaggen(const Reihen& reihen)
{
    return sekundenFuerAlle([&](std::int32_t nummer) {
        benchmark::DoNotOptimize(trefferMitFlaggen(KombinationAusNummer(nummer), reihen.zahlen));
    });
}

double mitMengen(const Reihen& reihen)
{
    return sekundenFuerAlle([&](std::int32_t nummer) {
        benchmark::DoNotOptimize(trefferMitMengen(zahlenmenge(KombinationAusNummer(nummer)), reihen.mengen));
    });
}

/// Measured once for the ratios of all others.
double flaggenEchte()
{
    static const double sekunden = mitFlaggen(echte());
    return sekunden;
}

void vergleiche(benchmark::State& zustand, double sekunden)
{
    zustand.counters["mal_flaggen"] = flaggenEchte() / sekunden;
}

void Flaggentafel(benchmark::State& zustand)
{
    for ([[maybe_unused]] auto _ : zustand)
        zustand.SetIterationTime(flaggenEchte());
}
BENCHMARK(Flaggentafel)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

void Mengen(benchmark::State& zustand)
{
    double sekunden = 0;
    for ([[maybe_unused]] auto _ : zustand)
        zustand.SetIterationTime(sekunden = mitMengen(echte()));
    vergleiche(zustand, sekunden);
}
BENCHMARK(Mengen)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

/// Tables and walk, with every count of the four taken once.
void Kern(benchmark::State& zustand, const Reihen& reihen, Befehlssatz befehlssatz)
{
    std::size_t bytes = 0;
    double sekunden = 0;
    for ([[maybe_unused]] auto _ : zustand) {
        const auto start = std::chrono::steady_clock::now();
        const Trefferkern kern(49, reihen.mengen, befehlssatz);
        std::uint64_t summe = 0;
        kern.durchlaufe(6, 3, [&summe](const auto& block) {
            std::uint32_t teil = 0;
            for (std::size_t h = 3; h <= 6; ++h)
                for (std::size_t i = 0; i < block.anzahl; ++i)
                    teil += block.treffer[h][i];
            summe += teil;
            return true;
        });
        benchmark::DoNotOptimize(summe);
        sekunden += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        bytes = kern.tafelgroesse();
    }
    vergleiche(zustand, sekunden / static_cast<double>(zustand.iterations()));
    zustand.counters["MiB"] = static_cast<double>(bytes) / (1 << 20);
    zustand.SetLabel(std::string(Trefferkern::name(befehlssatz)));
}

void KernEchte(benchmark::State& zustand)
{
    Kern(zustand, echte(), static_cast<Befehlssatz>(zustand.range(0)));
}
void KernMeisteReihen(benchmark::State& zustand)
{
    Kern(zustand, meiste(), static_cast<Befehlssatz>(zustand.range(0)));
}
constexpr auto kEinfach = static_cast<int>(Befehlssatz::Einfach);
constexpr auto kBester = static_cast<int>(Befehlssatz::Bester);
BENCHMARK(KernEchte)->Arg(kEinfach)->Arg(kBester)->Unit(benchmark::kMillisecond);
BENCHMARK(KernMeisteReihen)->Arg(kEinfach)->Arg(kBester)->Unit(benchmark::kMillisecond);

/// The whole search of the best and worst combinations, to lists in order: thresholds of all games, or none.
void Suche(benchmark::State& zustand)
{
    const Trefferschwellen schwellen = trefferschwellen(static_cast<int>(zustand.range(0)));
    double sekunden = 0;
    for ([[maybe_unused]] auto _ : zustand) {
        const auto start = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(sucheTreffer(echte().mengen, schwellen, zustand.range(0) != 0));
        sekunden += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
    vergleiche(zustand, sekunden / static_cast<double>(zustand.iterations()));
}
BENCHMARK(Suche)->Arg(7)->Arg(0)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();

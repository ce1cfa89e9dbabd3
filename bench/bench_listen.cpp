#include "bench/Ergebniszeilen.h"
#include "listcontrol/logic/ListBoxSort.h"
#include "listcontrol/logic/modShellSort.h"
#include "shell/logic/Format.h"
#include "shell/logic/ListenModell.h"
#include "shell/logic/Zufall.h"

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

// Result lists of the size that the searches make, beside the library's sort of the same lines. Each row of the table
// names its time as a multiple of that reference, taken in the same run.

namespace {

constexpr std::size_t kElemente = 100'000;

const std::vector<std::int32_t>& zahlen()
{
    static const std::vector<std::int32_t> neu = [] {
        Zufall zufall(1955);
        std::vector<std::int32_t> feld(kElemente);
        std::ranges::generate(feld, [&] { return static_cast<std::int32_t>(zufall.Rnd() * 1e9); });
        return feld;
    }();
    return neu;
}

std::vector<std::string> kopiereUndSortiere()
{
    std::vector<std::string> zeilen;
    zeilen.reserve(kZeilen);
    for (const std::string& zeile : ergebniszeilen())
        zeilen.push_back(zeile);
    std::ranges::sort(zeilen);
    return zeilen;
}

std::vector<std::string> fuelleSortierteListe()
{
    ListenModell liste({.Sorted = true});
    for (const std::string& zeile : ergebniszeilen())
        liste.AddItem(zeile);
    return liste.zeilen();
}

std::vector<std::string> fuelleUndSortiereListe()
{
    ListenModell liste;
    for (const std::string& zeile : ergebniszeilen())
        liste.AddItem(zeile);
    ListBoxSort(liste);
    return liste.zeilen();
}

std::vector<std::int32_t> sortiereZahlen()
{
    std::vector<std::int32_t> feld = zahlen();
    std::ranges::sort(feld);
    return feld;
}

int vergleiche(const void* links, const void* rechts)
{
    const std::int32_t l = *static_cast<const std::int32_t*>(links);
    const std::int32_t r = *static_cast<const std::int32_t*>(rechts);
    return l > r ? 1 : (l < r ? -1 : 0);
}

std::vector<std::int32_t> shellSortiereZahlen()
{
    std::vector<std::int32_t> feld = zahlen();
    ShellSort(feld.data(), feld.size(), sizeof(std::int32_t), &vergleiche);
    return feld;
}

/// Times `tue` alone and notes the ratio to `bezug`, which runs beside it in turn.
template <class Tue, class Bezug> void messe(benchmark::State& stand, Tue tue, Bezug bezug)
{
    using Uhr = std::chrono::steady_clock;
    double eigene = 0;
    double fremde = 0;
    for (auto _ : stand) {
        const auto anfang = Uhr::now();
        benchmark::DoNotOptimize(tue());
        const auto mitte = Uhr::now();
        benchmark::DoNotOptimize(bezug());
        const auto ende = Uhr::now();
        eigene += std::chrono::duration<double>(mitte - anfang).count();
        fremde += std::chrono::duration<double>(ende - mitte).count();
        stand.SetIterationTime(std::chrono::duration<double>(mitte - anfang).count());
    }
    stand.counters["mal_std_sort"] = eigene / fremde;
}

void sortierteListe(benchmark::State& stand)
{
    messe(stand, fuelleSortierteListe, kopiereUndSortiere);
}

void listBoxSort(benchmark::State& stand)
{
    messe(stand, fuelleUndSortiereListe, kopiereUndSortiere);
}

void shellSort(benchmark::State& stand)
{
    messe(stand, shellSortiereZahlen, sortiereZahlen);
}

void stdSortZeilen(benchmark::State& stand)
{
    messe(stand, kopiereUndSortiere, kopiereUndSortiere);
}

void formatZweistellig(benchmark::State& stand)
{
    int wert = 0;
    for (auto _ : stand) {
        benchmark::DoNotOptimize(Format(wert, "@@"));
        wert = (wert + 1) % 50;
    }
}

void formatGruppiert(benchmark::State& stand)
{
    int wert = 0;
    for (auto _ : stand)
        benchmark::DoNotOptimize(Format(wert++, "##,###,##0"));
}

BENCHMARK(stdSortZeilen)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(sortierteListe)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(listBoxSort)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(shellSort)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(formatZweistellig);
BENCHMARK(formatGruppiert);

} // namespace

int main(int argc, char** argv)
{
    if (fuelleSortierteListe() != kopiereUndSortiere() || fuelleUndSortiereListe() != kopiereUndSortiere() ||
        shellSortiereZahlen() != sortiereZahlen()) {
        std::fputs("The sorts disagree.\n", stderr);
        return EXIT_FAILURE;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}

#include "bench/Archive.h"
#include "bench/Messlauf.h"
#include "statistics/logic/Haeufigkeit.h"

#include <array>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// Counting all Saturday draws as the program does it, beside the reference with a table of 49 flags for each draw and
// beside six passes, one for each column.

namespace {

constexpr Ziehungsbereich kAlleJahre{1955, 9999};

/// For each draw a table of 49 flags, which is then added to the counts.
std::array<std::int16_t, 49> zaehleMitTafel(const ZiehungsArchiv& ziehungen, const Ziehungsbereich& bereich)
{
    std::array<std::int16_t, 49> anzahl{};
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(ziehungen.AnzahlZiehungen); ++nr) {
        if (ziehungen.jjjj[nr] < bereich.von || ziehungen.jjjj[nr] > bereich.bis)
            continue;
        std::array<std::uint8_t, 50> tafel{};
        for (const std::int32_t zahl : ziehungen.gewinnzahlen(nr))
            tafel[static_cast<std::size_t>(zahl)] = 1;
        for (std::size_t i = 0; i < anzahl.size(); ++i)
            anzahl[i] = static_cast<std::int16_t>(anzahl[i] + tafel[i + 1]);
    }
    return anzahl;
}

/// One pass for each of the six columns.
std::array<std::int16_t, 49> zaehleSpaltenweise(const ZiehungsArchiv& ziehungen, const Ziehungsbereich& bereich)
{
    std::array<std::int16_t, 49> anzahl{};
    for (const auto* spalte :
         {&ziehungen.z1, &ziehungen.z2, &ziehungen.z3, &ziehungen.z4, &ziehungen.z5, &ziehungen.z6}) {
        for (std::size_t nr = 1; nr <= static_cast<std::size_t>(ziehungen.AnzahlZiehungen); ++nr)
            if (ziehungen.jjjj[nr] >= bereich.von && ziehungen.jjjj[nr] <= bereich.bis)
                ++anzahl[static_cast<std::size_t>((*spalte)[nr] - 1)];
    }
    return anzahl;
}

void programm(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(zaehleHaeufigkeit(samstagsarchiv(), kAlleJahre, ZZModus::Ohne));
    stand.SetItemsProcessed(stand.iterations() * samstagsarchiv().AnzahlZiehungen);
}

void spaltenweise(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(zaehleSpaltenweise(samstagsarchiv(), kAlleJahre));
    stand.SetItemsProcessed(stand.iterations() * samstagsarchiv().AnzahlZiehungen);
}

void mitTafel(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(zaehleMitTafel(samstagsarchiv(), kAlleJahre));
    stand.SetItemsProcessed(stand.iterations() * samstagsarchiv().AnzahlZiehungen);
}

BENCHMARK(programm);
BENCHMARK(mitTafel);
BENCHMARK(spaltenweise);

bool stimmen()
{
    const auto soll = zaehleMitTafel(samstagsarchiv(), kAlleJahre);
    return zaehleHaeufigkeit(samstagsarchiv(), kAlleJahre, ZZModus::Ohne).anzahl == soll &&
           zaehleSpaltenweise(samstagsarchiv(), kAlleJahre) == soll;
}

} // namespace

int main(int argc, char** argv)
{
    return messe(argc, argv, stimmen);
}

#include "bench/Archive.h"
#include "bench/Messlauf.h"
#include "statistics/logic/AbstandListe.h"
#include "statistics/logic/AbstandMaximum.h"
#include "statistics/logic/ZuletztTafel.h"
#include "testhilfen/AbstandReferenz.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>

// The last draws and the absences over all Saturday draws as the program finds them, beside the plain loops. The
// argument is the mode: 1 without, 2 with, 3 only Zusatzzahl.

namespace {

ZZModus modus(std::int64_t wert)
{
    return static_cast<ZZModus>(wert);
}

/// From the first draw to the last, a later one overwriting an earlier one.
ZuletztGezogen zuletztEinfach(const ZiehungsArchiv& ziehungen, std::int32_t von, std::int32_t bis, ZZModus modus)
{
    ZuletztGezogen letzte{};
    for (std::int32_t nr = von; nr <= bis; ++nr) {
        const auto i = static_cast<std::size_t>(nr);
        if (zaehltGewinnzahlen(modus))
            for (const std::int32_t zahl : ziehungen.gewinnzahlen(i))
                letzte[static_cast<std::size_t>(zahl - 1)] = nr;
        if (zaehltZusatzzahl(modus) && ziehungen.zz[i] > 0)
            letzte[static_cast<std::size_t>(ziehungen.zz[i] - 1)] = nr;
    }
    return letzte;
}

void zuletzt(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(zuletztGezogen(samstagsarchiv(), suchbeginn(Samstagslotto),
                                                samstagsarchiv().AnzahlZiehungen, modus(stand.range(0))));
}

void zuletztPlain(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(zuletztEinfach(samstagsarchiv(), suchbeginn(Samstagslotto),
                                                samstagsarchiv().AnzahlZiehungen, modus(stand.range(0))));
}

/// All that a press of a start button computes: search, marks, texts of the cells and of both lists.
void zuletztMitListen(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand) {
        const auto auswertung =
            werteZuletztAus(samstagsarchiv(), samstagsarchiv().AnzahlZiehungen, modus(stand.range(0)));
        benchmark::DoNotOptimize(zuletztMarken(auswertung));
        benchmark::DoNotOptimize(zuletztTafel(auswertung, ZuletztAnsicht::JahrUndWoche));
    }
}

void abstand(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(werteAbstandAus(samstagsarchiv(), 49, modus(stand.range(0))));
}

/// All that a click on a number computes: search and the texts of all cells of the list.
void abstandMitZellen(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand) {
        const AbstandAuswertung auswertung = werteAbstandAus(samstagsarchiv(), 49, modus(stand.range(0)));
        for (std::size_t i = 0; i < auswertung.treffer.size(); ++i)
            benchmark::DoNotOptimize(abstandZellen(auswertung, i));
    }
}

void maximum(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(laengsterAbstand(samstagsarchiv(), modus(stand.range(0))));
}

void maximumPlain(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(laengsterAbstandEinfach(samstagsarchiv(), modus(stand.range(0))));
}

BENCHMARK(zuletzt)->DenseRange(1, 3)->Unit(benchmark::kMicrosecond);
BENCHMARK(zuletztPlain)->DenseRange(1, 3)->Unit(benchmark::kMicrosecond);
BENCHMARK(zuletztMitListen)->DenseRange(1, 3)->Unit(benchmark::kMicrosecond);
BENCHMARK(abstand)->DenseRange(1, 3)->Unit(benchmark::kMicrosecond);
BENCHMARK(abstandMitZellen)->DenseRange(1, 3)->Unit(benchmark::kMicrosecond);
BENCHMARK(maximum)->DenseRange(1, 3)->Unit(benchmark::kMicrosecond);
BENCHMARK(maximumPlain)->DenseRange(1, 3)->Unit(benchmark::kMicrosecond);

/// The program and the plain loops give the same in every mode.
bool stimmen()
{
    for (const ZZModus jeder : {ZZModus::Ohne, ZZModus::Mit, ZZModus::Nur})
        if (zuletztGezogen(samstagsarchiv(), 1, samstagsarchiv().AnzahlZiehungen, jeder) !=
                zuletztEinfach(samstagsarchiv(), 1, samstagsarchiv().AnzahlZiehungen, jeder) ||
            laengsterAbstand(samstagsarchiv(), jeder) != laengsterAbstandEinfach(samstagsarchiv(), jeder))
            return false;
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    return messe(argc, argv, stimmen);
}

#include "bench/Archive.h"
#include "bench/Messlauf.h"
#include "tips/logic/Zeitreise.h"
#include "tips/logic/Zeitreiseausgabe.h"

#include <benchmark/benchmark.h>

// The time travel over all Saturday draws beside the plain loop, and its exports.

namespace {

constexpr Kombination kTip{3, 7, 12, 23, 34, 45};
constexpr std::int32_t kSuperzahl = 4;

/// How many draws have so many hits, as one thinks it: each number of the tip against each of the draw.
std::array<std::int32_t, 7> trefferEinfach(const ZiehungsArchiv& ziehungen)
{
    std::array<std::int32_t, 7> anzahlen{};
    for (std::int32_t nr = 1; nr <= ziehungen.AnzahlZiehungen; ++nr) {
        const auto zahlen = ziehungen.gewinnzahlen(static_cast<std::size_t>(nr));
        std::size_t treffer = 0;
        for (const std::int32_t tipzahl : kTip)
            for (const std::int32_t zahl : zahlen)
                treffer += zahl == tipzahl;
        ++anzahlen[treffer];
    }
    return anzahlen;
}

Zeitreise gewinne()
{
    return evaluateGewinne(samstagsarchiv(), kTip, kSuperzahl, Samstagslotto);
}

Zeitreise alle()
{
    return evaluateAlle(samstagsarchiv(), kTip, kSuperzahl, Samstagslotto);
}

void nurGewinne(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(gewinne());
}

void alleZiehungen(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(alle());
}

/// The argument is how many numbers are searched.
void suche(benchmark::State& stand)
{
    const std::span zahlen(kTip.data(), static_cast<std::size_t>(stand.range(0)));
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(searchKombination(samstagsarchiv(), zahlen, Samstagslotto));
}

void nurTrefferPlain(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(trefferEinfach(samstagsarchiv()));
}

void csvAllerZiehungen(benchmark::State& stand)
{
    const Zeitreise zeitreise = alle();
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(writeCsv(zeitreise));
}

void seiteAllerZiehungen(benchmark::State& stand)
{
    const Zeitreise zeitreise = alle();
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(writeHtml(zeitreise));
}

BENCHMARK(nurGewinne)->Unit(benchmark::kMicrosecond);
BENCHMARK(alleZiehungen)->Unit(benchmark::kMicrosecond);
BENCHMARK(suche)->Arg(1)->Arg(6)->Unit(benchmark::kMicrosecond);
BENCHMARK(nurTrefferPlain)->Unit(benchmark::kMicrosecond);
BENCHMARK(csvAllerZiehungen)->Unit(benchmark::kMicrosecond);
BENCHMARK(seiteAllerZiehungen)->Unit(benchmark::kMicrosecond);

/// The counters are those of the plain loop.
bool stimmen()
{
    const Zeitreise zeitreise = gewinne();
    const auto einfach = trefferEinfach(samstagsarchiv());
    for (std::int32_t treffer = 0; treffer <= 6; ++treffer)
        if (zaehlerstand(zeitreise, treffer, false) + zaehlerstand(zeitreise, treffer, true) !=
            einfach[static_cast<std::size_t>(treffer)])
            return false;
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    return messe(argc, argv, stimmen);
}

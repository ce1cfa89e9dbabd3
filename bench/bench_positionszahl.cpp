#include "bench/Archive.h"
#include "bench/Messlauf.h"
#include "engines/logic/Positionsliste.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>

// Counting through all combinations as the program does it, row by row, beside the plain six loops, at the place of
// the argument. Then the closed sum, and the list of all Saturday draws.

namespace {

/// Six loops and a counter in the innermost one; `halt` is asked for each combination.
template <class Halt> Positionszahl sechsSchleifen(Halt halt)
{
    Positionszahl zaehler = 0;
    for (std::int32_t a = 1; a <= 44; ++a)
        for (std::int32_t b = a + 1; b <= 45; ++b)
            for (std::int32_t c = b + 1; c <= 46; ++c)
                for (std::int32_t d = c + 1; d <= 47; ++d)
                    for (std::int32_t e = d + 1; e <= 48; ++e)
                        for (std::int32_t f = e + 1; f <= 49; ++f) {
                            ++zaehler;
                            if (halt(zaehler, a, b, c, d, e, f))
                                return zaehler;
                        }
    return zaehler;
}

Kombination kombinationEinfach(Positionszahl position)
{
    Kombination zahlen{};
    sechsSchleifen([&](Positionszahl zaehler, auto... abcdef) {
        if (zaehler == position)
            zahlen = {abcdef...};
        return zaehler == position;
    });
    return zahlen;
}

Positionszahl positionEinfach(const Kombination& z)
{
    return sechsSchleifen([&z](Positionszahl, auto a, auto b, auto c, auto d, auto e, auto f) {
        return a == z[0] && b == z[1] && c == z[2] && d == z[3] && e == z[4] && f == z[5];
    });
}

Positionszahl position(const benchmark::State& stand)
{
    return static_cast<Positionszahl>(stand.range(0));
}

void kombinationZaehlen(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(KombinationZaehlen(position(stand)));
}

void kombinationZaehlenPlain(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(kombinationEinfach(position(stand)));
}

void positionszahlZaehlen(benchmark::State& stand)
{
    const auto zahlen = KombinationZaehlen(position(stand));
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(PositionszahlZaehlen(*zahlen));
}

void positionszahlZaehlenPlain(benchmark::State& stand)
{
    const auto zahlen = KombinationZaehlen(position(stand));
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(positionEinfach(*zahlen));
}

void positionszahlSumme(benchmark::State& stand)
{
    const auto zahlen = KombinationZaehlen(position(stand));
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(PositionszahlSumme(*zahlen));
}

void listeAllerZiehungen(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(positionsliste(samstagsarchiv(), {}));
}

void jeStelle(benchmark::internal::Benchmark* messung)
{
    messung->Arg(1)->Arg(kKombinationen6aus49 / 2)->Arg(kKombinationen6aus49);
}

BENCHMARK(kombinationZaehlen)->Apply(jeStelle)->Unit(benchmark::kMicrosecond);
BENCHMARK(kombinationZaehlenPlain)->Apply(jeStelle)->Unit(benchmark::kMicrosecond);
BENCHMARK(positionszahlZaehlen)->Apply(jeStelle)->Unit(benchmark::kMicrosecond);
BENCHMARK(positionszahlZaehlenPlain)->Apply(jeStelle)->Unit(benchmark::kMicrosecond);
BENCHMARK(positionszahlSumme)->Apply(jeStelle)->Unit(benchmark::kNanosecond);
BENCHMARK(listeAllerZiehungen)->Unit(benchmark::kMicrosecond);

/// The program and the plain loops give the same.
bool stimmen()
{
    for (Positionszahl stelle = 1; stelle <= kKombinationen6aus49; stelle += 1'999'999) {
        const Kombination zahlen = kombinationEinfach(stelle);
        if (KombinationZaehlen(stelle) != zahlen || PositionszahlZaehlen(zahlen) != positionEinfach(zahlen) ||
            PositionszahlSumme(zahlen) != stelle)
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    return messe(argc, argv, stimmen);
}

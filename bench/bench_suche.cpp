#include "bench/Archive.h"
#include "bench/Messlauf.h"
#include "shell/logic/Binomial.h"
#include "testhilfen/VollsucheReferenz.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>

// The search through all combinations over all Saturday draws as the program does it, beside the plain nested loops.
// The argument is the size. The plain loops test every so many combinations only, spread over all of them; the counter
// "ganz" tells what all of them would take, in seconds.

namespace {

constexpr std::int64_t kStichprobe = 20'000;

/// From one tested combination to the next.
constexpr std::int64_t abstand(int groesse)
{
    return 1 + Binomial(49, groesse) / kStichprobe;
}

void suche(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand) {
        Suchergebnis ergebnis;
        Vollsuche(samstagsarchiv(), static_cast<int>(stand.range(0)), ergebnis).testeAlle({});
        benchmark::DoNotOptimize(ergebnis);
    }
}

template <std::size_t K> std::vector<std::array<std::int32_t, K>> stichprobe()
{
    std::vector<std::array<std::int32_t, K>> probe;
    std::int64_t nummer = 0;
    std::array<std::int32_t, K> zahlen{};
    jedeKombination<K>(
        [&](const auto& diese) {
            if (nummer++ % abstand(K) == 0)
                probe.push_back(diese);
        },
        zahlen);
    return probe;
}

template <std::size_t K> void suchePlain(benchmark::State& stand)
{
    const auto probe = stichprobe<K>();
    for ([[maybe_unused]] auto _ : stand)
        for (const auto& zahlen : probe)
            benchmark::DoNotOptimize(haeufigkeitEinfach<K>(samstagsarchiv(), zahlen));
    stand.counters["ganz"] =
        benchmark::Counter(1.0 / static_cast<double>(abstand(K)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

BENCHMARK(suche)->DenseRange(2, 6)->Unit(benchmark::kMillisecond);
BENCHMARK(suchePlain<2>)->Unit(benchmark::kMillisecond);
BENCHMARK(suchePlain<3>)->Unit(benchmark::kMillisecond);
BENCHMARK(suchePlain<4>)->Unit(benchmark::kMillisecond);
BENCHMARK(suchePlain<5>)->Unit(benchmark::kMillisecond);
BENCHMARK(suchePlain<6>)->Unit(benchmark::kMillisecond);

/// The program and the plain loops find the same in the sizes that the plain ones get through.
bool stimmen()
{
    for (const int groesse : {2, 3}) {
        Suchergebnis ergebnis;
        Vollsuche(samstagsarchiv(), groesse, ergebnis).testeAlle({});
        if (ergebnis != sucheEinfach(samstagsarchiv(), groesse))
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    return messe(argc, argv, stimmen);
}

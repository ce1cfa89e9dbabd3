#include "archive/logic/Strukturpruefung.h"

#include <benchmark/benchmark.h>
#include <regex>
#include <sstream>

// Checking a file of the largest size, with every tenth record faulty, beside a regular expression that tests no more
// than the form of a record.

namespace {

constexpr int kSaetze = 32767;

const std::string& datei()
{
    static const std::string bytes = [] {
        std::string neu;
        for (int nr = 0; nr < kSaetze; ++nr)
            neu += nr % 10 == 0 ? "1998,13,02,08,10,12,22,55,46,3\r\n" : "1998,13,02,08,10,12,22,35,46,3\r\n";
        return neu;
    }();
    return bytes;
}

void strukturPruefen(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(pruefeStruktur({Dateistand::Gelesen, datei()}, {}).FalscheZiehungen);
    state.counters["records"] = kSaetze;
}
BENCHMARK(strukturPruefen)->Unit(benchmark::kMillisecond);

void regulaererAusdruck(benchmark::State& state)
{
    const std::regex form("[0-9]{4},[0-5][0-9](,[0-4][0-9]){7},[0-9]");
    for (auto _ : state) {
        std::istringstream strom(datei());
        std::string zeile;
        int richtige = 0;
        while (std::getline(strom, zeile))
            richtige += std::regex_match(zeile.substr(0, zeile.size() - 1), form) ? 1 : 0;
        benchmark::DoNotOptimize(richtige);
    }
}
BENCHMARK(regulaererAusdruck)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();

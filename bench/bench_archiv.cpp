#include "archive/logic/Ziehungsdatei.h"
#include "archive/logic/Ziehungskalender.h"
#include "bench/Archive.h"
#include "shell/logic/Lesedatei.h"

#include <array>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

constexpr std::array kDateien{"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"};

/// A folder with a synthetic SALOTTO.DAT, gone with it.
class Messordner {
public:
    explicit Messordner(std::int64_t saetze) : pfad_(std::filesystem::temp_directory_path() / "tombrix-bench-archiv")
    {
        std::filesystem::create_directories(pfad_);
        std::ofstream datei(pfad_ / kDateien[0], std::ios::binary);
        for (std::int64_t nr = 0; nr < saetze; ++nr)
            datei << "1998,13,02,08,10,12,22,35,46,3\r\n";
    }
    ~Messordner() { std::filesystem::remove_all(pfad_); }
    Messordner(const Messordner&) = delete;
    Messordner& operator=(const Messordner&) = delete;

    std::string text() const { return pfad_.string(); }

private:
    std::filesystem::path pfad_;
};

/// The plain way: one line after the other, every column grown by one.
std::size_t liesMitSscanf(const std::string& ordner, const char* name, std::array<std::vector<int>, 10>& spalten)
{
    std::ifstream datei(std::filesystem::path(ordner) / name);
    std::string zeile;
    std::array<int, 10> w{};
    while (std::getline(datei, zeile) && std::sscanf(zeile.c_str(), "%d,%d,%d,%d,%d,%d,%d,%d,%d,%d", &w[0], &w[1],
                                                     &w[2], &w[3], &w[4], &w[5], &w[6], &w[7], &w[8], &w[9]) == 10) {
        for (std::size_t feld = 0; feld < w.size(); ++feld)
            spalten[feld].push_back(w[feld]);
    }
    return spalten[0].size();
}

void zaehleZiehungen(benchmark::State& state, std::int64_t ziehungen)
{
    state.counters["draws"] = static_cast<double>(ziehungen);
    state.SetItemsProcessed(state.iterations() * ziehungen);
}

void echteDateienLaden(benchmark::State& state)
{
    ZiehungsArchiv archiv;
    archiv.ProgrammVerzeichnis = ziehungsordner();
    std::int64_t ziehungen = 0;
    for (auto _ : state) {
        ziehungen = 0;
        for (const std::int16_t spielart : {Samstagslotto, Mittwochslotto, MittwochslottoB}) {
            archiv.Spielart = spielart;
            LadeZiehungsdatei(archiv, {});
            ziehungen += archiv.AnzahlZiehungen;
        }
    }
    zaehleZiehungen(state, ziehungen);
}
BENCHMARK(echteDateienLaden)->Unit(benchmark::kMicrosecond);

void echteDateienZusammenLaden(benchmark::State& state)
{
    ZiehungsArchiv archiv;
    archiv.ProgrammVerzeichnis = ziehungsordner();
    for (auto _ : state)
        benchmark::DoNotOptimize(LadeAlleZiehungen(archiv, 7, {}));
    zaehleZiehungen(state, archiv.AnzahlZiehungen);
}
BENCHMARK(echteDateienZusammenLaden)->Unit(benchmark::kMicrosecond);

void echteDateienErstesLaden(benchmark::State& state)
{
    for (auto _ : state) {
        ZiehungsArchiv archiv;
        archiv.ProgrammVerzeichnis = ziehungsordner();
        benchmark::DoNotOptimize(LadeAlleZiehungen(archiv, 7, {}));
    }
}
BENCHMARK(echteDateienErstesLaden)->Unit(benchmark::kMicrosecond);

void referenzNurBytes(benchmark::State& state)
{
    for (auto _ : state)
        for (const char* name : kDateien)
            benchmark::DoNotOptimize(leseDatei(std::filesystem::path(ziehungsordner()) / name, 1U << 22U).bytes.data());
}
BENCHMARK(referenzNurBytes)->Unit(benchmark::kMicrosecond);

void referenzGetlineSscanf(benchmark::State& state)
{
    std::int64_t ziehungen = 0;
    for (auto _ : state) {
        std::array<std::vector<int>, 10> spalten;
        for (const char* name : kDateien)
            ziehungen = static_cast<std::int64_t>(liesMitSscanf(ziehungsordner(), name, spalten));
        benchmark::DoNotOptimize(spalten);
    }
    zaehleZiehungen(state, ziehungen);
}
BENCHMARK(referenzGetlineSscanf)->Unit(benchmark::kMicrosecond);

void synthetischLaden(benchmark::State& state)
{
    const Messordner ordner(state.range(0));
    ZiehungsArchiv archiv;
    archiv.ProgrammVerzeichnis = ordner.text();
    for (auto _ : state)
        LadeZiehungsdatei(archiv, {});
    zaehleZiehungen(state, archiv.AnzahlZiehungen);
}
BENCHMARK(synthetischLaden)->Arg(1000)->Arg(8000)->Arg(32767)->Unit(benchmark::kMicrosecond);

void synthetischGetlineSscanf(benchmark::State& state)
{
    const Messordner ordner(state.range(0));
    for (auto _ : state) {
        std::array<std::vector<int>, 10> spalten;
        benchmark::DoNotOptimize(liesMitSscanf(ordner.text(), kDateien[0], spalten));
    }
    zaehleZiehungen(state, state.range(0));
}
BENCHMARK(synthetischGetlineSscanf)->Arg(1000)->Arg(8000)->Arg(32767)->Unit(benchmark::kMicrosecond);

void samstagsdatenBauen(benchmark::State& state)
{
    ZiehungsArchiv archiv;
    archiv.AnzahlZiehungen = static_cast<std::int32_t>(state.range(0));
    for (auto _ : state) {
        BaueSamstagsDaten(archiv);
        benchmark::DoNotOptimize(archiv.Datum.data());
    }
    zaehleZiehungen(state, state.range(0));
}
BENCHMARK(samstagsdatenBauen)->Arg(3693)->Arg(32767)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();

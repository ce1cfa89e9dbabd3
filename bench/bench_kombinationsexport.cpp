#include "engines/logic/Kombinationsexport.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <unistd.h>
#include <vector>

// The export of all combinations of 6 aus 49 with their numbers, beside a plain copy of the same bytes on the same file
// system: read and written in blocks of 1 MiB and brought to the disk, as the export brings them there. The folder is
// the one that the environment variable TOMBRIX_EXPORT names, otherwise the working folder.

namespace {

namespace fs = std::filesystem;
using Uhrwerk = std::chrono::steady_clock;

constexpr std::size_t kMebibyte = 1'048'576;

fs::path arbeitsordner()
{
    const char* gewuenscht = std::getenv("TOMBRIX_EXPORT");
    return (gewuenscht != nullptr ? fs::path(gewuenscht) : fs::current_path()) / "bench-kombinationsexport";
}

double sekundenSeit(Uhrwerk::time_point anfang)
{
    return std::chrono::duration<double>(Uhrwerk::now() - anfang).count();
}

double median(std::vector<double> werte)
{
    std::ranges::sort(werte);
    return werte[werte.size() / 2];
}

/// False if anything could not be read or written.
bool kopiere(const fs::path& von, const fs::path& nach)
{
    const int quelle = ::open(von.c_str(), O_RDONLY);
    const int ziel = ::open(nach.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    std::vector<char> block(kMebibyte);
    bool gut = quelle >= 0 && ziel >= 0;
    ssize_t gelesen = 0;
    while (gut && (gelesen = ::read(quelle, block.data(), block.size())) > 0)
        gut = ::write(ziel, block.data(), static_cast<std::size_t>(gelesen)) == gelesen;
    gut = gut && gelesen == 0 && ::fsync(ziel) == 0;
    ::close(quelle);
    return ::close(ziel) == 0 && gut;
}

void schreibeAlle(benchmark::State& stand)
{
    Exportauftrag auftrag;
    auftrag.nummeriert = true;
    auftrag.geteilt = stand.range(0) != 0;
    const std::vector<Exportdatei> dateien = exportdateien(auftrag);
    const fs::path ordner = arbeitsordner();
    fs::remove_all(ordner);
    fs::create_directories(ordner);
    const auto leere = [&] {
        for (const fs::directory_entry& eintrag : fs::directory_iterator(ordner))
            fs::remove(eintrag);
    };

    std::vector<double> eigene;
    std::vector<double> kopien;
    for (auto _ : stand) {
        leere();
        auto anfang = Uhrwerk::now();
        const Exportergebnis ergebnis = exportiereKombinationen(auftrag, ordner);
        eigene.push_back(sekundenSeit(anfang));
        stand.SetIterationTime(eigene.back());
        anfang = Uhrwerk::now();
        bool kopiert = true;
        for (const Exportdatei& datei : dateien)
            kopiert = kopiere(ordner / datei.name, ordner / (datei.name + ".kopie")) && kopiert;
        kopien.push_back(sekundenSeit(anfang));
        if (ergebnis.ende != Exportende::Fertig || !kopiert) {
            stand.SkipWithError("The files could not be written.");
            break;
        }
    }
    fs::remove_all(ordner);
    stand.counters["kopie_s"] = median(kopien);
    stand.counters["tempo_zur_kopie"] = median(kopien) / median(eigene);
}

/// A filter that leaves few combinations over: nothing that it excludes is walked through.
void filtere(benchmark::State& stand)
{
    Exportauftrag auftrag;
    auftrag.nummeriert = true;
    for (std::int32_t zahl = 1; zahl <= stand.range(0); ++zahl)
        auftrag.bankzahlen.push_back(zahl * 9);
    const fs::path ordner = arbeitsordner();
    fs::create_directories(ordner);
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(exportiereKombinationen(auftrag, ordner).kombinationen);
    fs::remove_all(ordner);
}

BENCHMARK(schreibeAlle)
    ->ArgName("geteilt")
    ->Arg(0)
    ->Arg(1)
    ->Iterations(5)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(filtere)->ArgName("Bankzahlen")->DenseRange(1, 5)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();

#include "bench/Archive.h"
#include "bench/Messlauf.h"
#include "statistics/logic/Matrix.h"

#include <benchmark/benchmark.h>

// The counts of all numbers per week and year over all games, beside a plain loop that goes through the draws anew for
// each cell.

namespace {

Zahlentabelle wochenPlump(const ZiehungsArchiv& archiv)
{
    Zahlentabelle tabelle;
    for (int woche = 1; woche <= 53; ++woche) {
        tabelle.zeilen.push_back({woche, std::vector<Zahlenzelle>(49)});
        for (int zahl = 1; zahl <= 49; ++zahl) {
            std::int32_t& anzahl = tabelle.zeilen.back().zellen[static_cast<std::size_t>(zahl - 1)].anzahl;
            for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr) {
                if (archiv.sw[nr] != woche)
                    continue;
                for (const std::int32_t eine : archiv.gewinnzahlen(nr))
                    anzahl += eine == zahl;
                anzahl += archiv.zz[nr] == zahl;
            }
        }
    }
    return tabelle;
}

Matrix wochenmatrix(const ZiehungsArchiv& archiv)
{
    return matrix(archiv, Matrixspalten::Gewinnzahlen, Matrixzeilen::Spielwochen, ZZModus::Mit);
}

bool gleich()
{
    const Zahlentabelle gezaehlte = wochenmatrix(alleZiehungen()).tabelle;
    const Zahlentabelle plump = wochenPlump(alleZiehungen());
    for (std::size_t zeile = 0; zeile < plump.zeilen.size(); ++zeile)
        for (std::size_t i = 0; i < plump.zeilen[zeile].zellen.size(); ++i)
            if (gezaehlte.zeilen[zeile].zellen[i].anzahl != plump.zeilen[zeile].zellen[i].anzahl)
                return false;
    return true;
}

void wochen(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(wochenmatrix(alleZiehungen()));
}

void wochenPlumpeSchleife(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(wochenPlump(alleZiehungen()));
}

void jahreNachDatum(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(
            matrix(alleZiehungen(), Matrixspalten::Gewinnzahlen, Matrixzeilen::JahreNachDatum, ZZModus::Mit));
}

void superzahlenNachWochen(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(
            matrix(alleZiehungen(), Matrixspalten::Superzahlen, Matrixzeilen::Spielwochen, ZZModus::Ohne));
}

void wochenVollerDateien(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(wochenmatrix(dreiVolleDateien()));
}

void jahreNachDatumVollerDateien(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(
            matrix(dreiVolleDateien(), Matrixspalten::Gewinnzahlen, Matrixzeilen::JahreNachDatum, ZZModus::Mit));
}

BENCHMARK(wochen);
BENCHMARK(wochenPlumpeSchleife);
BENCHMARK(jahreNachDatum);
BENCHMARK(superzahlenNachWochen);
BENCHMARK(wochenVollerDateien);
BENCHMARK(jahreNachDatumVollerDateien);

} // namespace

int main(int argc, char** argv)
{
    return messe(argc, argv, gleich);
}

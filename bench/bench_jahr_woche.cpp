#include "bench/Archive.h"
#include "bench/Messlauf.h"
#include "statistics/logic/JahrUndWocheZeilen.h"
#include "statistics/logic/Jahrestabelle.h"
#include "statistics/logic/Wochenstatistik.h"

#include <array>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <map>

// The counts per year and per Spielwoche of all Saturday draws with their lists and the page, beside plain loops that
// search each draw anew for each year, week and number.

namespace {

constexpr int kZahl = 13;

std::size_t letzte()
{
    return static_cast<std::size_t>(samstagsarchiv().AnzahlZiehungen);
}

bool enthaelt(std::size_t nr, int zahl)
{
    for (const std::int32_t eine : samstagsarchiv().gewinnzahlen(nr))
        if (eine == zahl)
            return true;
    return samstagsarchiv().zz[nr] == zahl;
}

std::int32_t zaehlePlump(const ZiehungsArchiv::Spalte& schluessel, int wert, int zahl)
{
    std::int32_t anzahl = 0;
    for (std::size_t nr = 1; nr <= letzte(); ++nr)
        anzahl += schluessel[nr] == wert && enthaelt(nr, zahl) ? 1 : 0;
    return anzahl;
}

std::map<int, std::array<std::int32_t, 49>> jahrestabellePlump()
{
    std::map<int, std::array<std::int32_t, 49>> jahre;
    for (int jahr = samstagsarchiv().jjjj[1]; jahr <= samstagsarchiv().jjjj[letzte()]; ++jahr)
        for (int zahl = 1; zahl <= 49; ++zahl)
            jahre[jahr][static_cast<std::size_t>(zahl - 1)] = zaehlePlump(samstagsarchiv().jjjj, jahr, zahl);
    return jahre;
}

HaeufigkeitProWoche wochenPlump()
{
    HaeufigkeitProWoche wochen{};
    for (int woche = 1; woche <= kSpielwochen; ++woche)
        wochen[static_cast<std::size_t>(woche - 1)] = zaehlePlump(samstagsarchiv().sw, woche, kZahl);
    return wochen;
}

bool gleich()
{
    const Zahlentabelle tabelle = yearTable(samstagsarchiv(), ZZModus::Mit, false).tabelle;
    const auto plump = jahrestabellePlump();
    for (const Zahlenzeile& zeile : tabelle.zeilen) {
        for (std::size_t i = 0; i < zeile.zellen.size(); ++i)
            if (zeile.zellen[i].anzahl != plump.at(zeile.schluessel)[i])
                return false;
    }
    return countPerWeek(samstagsarchiv(), kZahl, ZZModus::Mit) == wochenPlump();
}

void jahreUndWochen(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(werteJahrUndWocheAus(samstagsarchiv(), kZahl, ZZModus::Mit));
}

void jahreUndWochenMitListen(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand) {
        const JahrUndWoche auswertung = werteJahrUndWocheAus(samstagsarchiv(), kZahl, ZZModus::Mit);
        benchmark::DoNotOptimize(jahreszeilen(auswertung.proJahr));
        benchmark::DoNotOptimize(wochenzeilen(auswertung.proWoche));
    }
}

void detailsMitListe(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(detailzeilen(trefferProJahr(samstagsarchiv(), kZahl, ZZModus::Mit)));
}

void wochenPlumpeSchleife(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(wochenPlump());
}

void spielwocheMitListen(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand) {
        const Wochenstatistik statistik = weekStatistics(samstagsarchiv(), 41, true);
        benchmark::DoNotOptimize(ziehungszeilen(statistik));
        benchmark::DoNotOptimize(zeilenNachHaeufigkeit(statistik));
        benchmark::DoNotOptimize(zeilenNachZahl(statistik));
    }
}

void jahrestabelle(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(yearTable(samstagsarchiv(), ZZModus::Mit, stand.range(0) != 0));
}

void jahrestabelleMitSeite(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(jahrestabellenSeite(yearTable(samstagsarchiv(), ZZModus::Mit, true)));
}

void jahrestabellePlumpeSchleife(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(jahrestabellePlump());
}

BENCHMARK(jahreUndWochen);
BENCHMARK(jahreUndWochenMitListen);
BENCHMARK(detailsMitListe);
BENCHMARK(wochenPlumpeSchleife);
BENCHMARK(spielwocheMitListen);
BENCHMARK(jahrestabelle)->ArgName("nachDatum")->Arg(0)->Arg(1);
BENCHMARK(jahrestabelleMitSeite);
BENCHMARK(jahrestabellePlumpeSchleife);

} // namespace

int main(int argc, char** argv)
{
    return messe(argc, argv, gleich);
}

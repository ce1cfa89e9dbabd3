#include "bench/Archive.h"
#include "bench/Messlauf.h"
#include "engines/logic/NieGezogeneDreier.h"
#include "engines/logic/WiederholungDetails.h"
#include "engines/logic/Zerlegung.h"
#include "engines/logic/Zusammengezogene.h"
#include "testhilfen/WiederholungenReferenz.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <random>

// The repetition search over the draws of all three games as the program does it, beside the plain search that sorts
// the sets as texts; over the largest archive there can be; and what follows from a search: the details of all lines,
// beside the membership test of each draw, and the triples that were never drawn. Then the chosen draws cut up, here
// all Saturday draws, with all their sets in the order of their texts, beside the plain sort of the texts; the details
// of all these sets; and what was drawn together with two numbers.

namespace {

/// Three full files, numbers by chance.
const ZiehungsArchiv& volleDateien()
{
    static const ZiehungsArchiv gefuellt = [] {
        ZiehungsArchiv neu;
        std::mt19937 zufall(1);
        std::vector<std::int32_t> topf(49);
        for (std::size_t i = 0; i < topf.size(); ++i)
            topf[i] = static_cast<std::int32_t>(i) + 1;
        for (int nr = 0; nr < 3 * kMaxZiehungenJeDatei; ++nr) {
            std::array<std::int32_t, 6> zahlen{};
            std::sample(topf.begin(), topf.end(), zahlen.begin(), 6, zufall);
            const auto spalten = neu.spalten();
            for (ZiehungsArchiv::Spalte* spalte : spalten)
                spalte->push_back(0);
            for (std::size_t i = 0; i < 6; ++i)
                spalten[2 + i]->back() = zahlen[i];
            ++neu.AnzahlZiehungen;
        }
        return neu;
    }();
    return gefuellt;
}

std::vector<std::string> ergebniszeilen(const ZiehungsArchiv& archiv, int k)
{
    std::vector<std::string> zeilen;
    for (const Wiederholung& wiederholung : WiederholungsSuche(archiv, k).mehrfache)
        zeilen.push_back(ergebniszeile(wiederholung, k, kAlleSpielarten));
    return zeilen;
}

void programm(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(WiederholungsSuche(alleZiehungen(), static_cast<int>(stand.range(0))));
}

void mitTexten(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(Referenz::suche(alleZiehungen(), static_cast<int>(stand.range(0))));
}

void suchtInVollenDateien(benchmark::State& stand)
{
    const Suchfortschritt fortschritt = [](Suchschritt, std::uint64_t) { return true; };
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(WiederholungsSuche(volleDateien(), static_cast<int>(stand.range(0)), fortschritt));
}

void details(benchmark::State& stand)
{
    const int k = static_cast<int>(stand.range(0));
    const auto zeilen = ergebniszeilen(alleZiehungen(), k);
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(wiederholungDetails(alleZiehungen(), k, kAlleSpielarten, zeilen).anzahl());
}

/// Only the test, without the rows.
std::size_t zaehleMitProbe(const std::vector<std::string>& zeilen, int k)
{
    std::size_t treffer = 0;
    for (const std::string& zeile : zeilen) {
        const auto gesucht = zahlenDerZeile(zeile, k);
        for (std::size_t nr = 1; nr <= static_cast<std::size_t>(alleZiehungen().AnzahlZiehungen); ++nr) {
            const auto zahlen = alleZiehungen().gewinnzahlen(nr);
            treffer += std::all_of(gesucht.begin(), gesucht.begin() + k, [&zahlen](std::int32_t zahl) {
                return std::ranges::find(zahlen, zahl) != zahlen.end();
            });
        }
    }
    return treffer;
}

void detailsMitProbe(benchmark::State& stand)
{
    const int k = static_cast<int>(stand.range(0));
    const auto zeilen = ergebniszeilen(alleZiehungen(), k);
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(zaehleMitProbe(zeilen, k));
}

void nieGezogene(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(nieGezogeneDreier(alleZiehungen()));
}

Ziehungsauswahl alleSamstage()
{
    return {Ziehungsauswahl(), &samstagsarchiv()};
}

void zerlegt(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(zerlege(alleSamstage(), static_cast<int>(stand.range(0))));
}

void zerlegtMitTexten(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(Referenz::suche(samstagsarchiv(), static_cast<int>(stand.range(0))));
}

void zerlegungsdetailsAllerZeilen(benchmark::State& stand)
{
    const Zerlegung zerlegung = zerlege(alleSamstage(), static_cast<int>(stand.range(0)));
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(zerlegungsdetails(zerlegung).anzahl());
}

void zusammenMitZweien(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(zaehleZusammengezogene(alleZiehungen(), {13, 49}));
}

BENCHMARK(zerlegt)->DenseRange(2, 5)->Unit(benchmark::kMillisecond);
BENCHMARK(zerlegtMitTexten)->DenseRange(2, 5)->Unit(benchmark::kMillisecond);
BENCHMARK(zerlegungsdetailsAllerZeilen)->DenseRange(2, 5)->Unit(benchmark::kMillisecond);
BENCHMARK(zusammenMitZweien)->Unit(benchmark::kMicrosecond);
BENCHMARK(programm)->DenseRange(2, 6)->Unit(benchmark::kMillisecond);
BENCHMARK(mitTexten)->DenseRange(2, 6)->Unit(benchmark::kMillisecond);
BENCHMARK(suchtInVollenDateien)->DenseRange(2, 6)->Unit(benchmark::kMillisecond);
BENCHMARK(details)->DenseRange(2, 6)->Unit(benchmark::kMillisecond);
BENCHMARK(detailsMitProbe)->DenseRange(2, 6)->Unit(benchmark::kMillisecond);
BENCHMARK(nieGezogene)->Unit(benchmark::kMillisecond);

/// True if both searches count alike and the details find as many draws as the plain test.
bool stimmt(int k)
{
    const Wiederholungen ergebnis = WiederholungsSuche(alleZiehungen(), k);
    const Referenz::Gezaehlte soll = Referenz::suche(alleZiehungen(), k);
    const auto zeilen = ergebniszeilen(alleZiehungen(), k);
    return ergebnis.AnzahlEinmal == soll.AnzahlEinmal && ergebnis.mehrfache.size() == soll.mehrfache.size() &&
           wiederholungDetails(alleZiehungen(), k, kAlleSpielarten, zeilen).anzahl() ==
               zaehleMitProbe(zeilen, k) + 3 * zeilen.size();
}

bool stimmen()
{
    for (int k = kKleinsteWiederholung; k <= kGroessteWiederholung; ++k)
        if (!stimmt(k))
            return false;
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    return messe(argc, argv, stimmen);
}

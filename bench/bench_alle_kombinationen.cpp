#include "bench/Archive.h"
#include "bench/Messlauf.h"
#include "engines/logic/KombinationAusNummer.h"
#include "engines/logic/Kombinationsseite.h"
#include "engines/logic/Trefferliste.h"
#include "testhilfen/ZaehlerReferenz.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>

// A page of 30 combinations with their hits in all real draws, beside the flag table that is looked up number by
// number.

namespace {

constexpr std::int32_t kSuperzahl = 5;
constexpr std::int32_t kErste = 7'000'000;

/// As many draws as three files may hold.
const ZiehungsArchiv& meisteZiehungen()
{
    static const ZiehungsArchiv vervielfacht = [] {
        ZiehungsArchiv neu = alleZiehungen();
        const auto spalten = neu.spalten();
        for (auto* spalte : spalten) {
            const auto anzahl = spalte->size() - 1;
            for (std::size_t nr = anzahl + 1; nr <= 3 * std::size_t{kMaxZiehungenJeDatei}; ++nr)
                spalte->push_back((*spalte)[(nr - 1) % anzahl + 1]);
        }
        neu.AnzahlZiehungen = 3 * kMaxZiehungenJeDatei;
        return neu;
    }();
    return vervielfacht;
}

std::vector<Kombinationszeile> seiteEinfach(const ZiehungsArchiv& archiv)
{
    std::vector<Kombinationszeile> seite;
    for (std::int32_t nummer = kErste; nummer < kErste + kZeilenJeSeite; ++nummer) {
        const Kombination zahlen = KombinationAusNummer(nummer);
        seite.push_back({nummer, zahlen, trefferEinfach(archiv, zahlen, kSuperzahl)});
    }
    return seite;
}

void seite(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(kombinationsseite(alleZiehungen(), kErste, kSuperzahl));
}

void seitePlain(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(seiteEinfach(alleZiehungen()));
}

/// All that a scroll computes: the page and the texts of its rows.
void seiteMitTexten(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        for (const Kombinationszeile& zeile : kombinationsseite(alleZiehungen(), kErste, kSuperzahl))
            benchmark::DoNotOptimize(kombinationszeile(zeile));
}

void seiteMeisteZiehungen(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(kombinationsseite(meisteZiehungen(), kErste, kSuperzahl));
}

void seiteMeisteZiehungenPlain(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(seiteEinfach(meisteZiehungen()));
}

/// All that a click on a row computes: the draws that win and the texts of their cells.
void treffer(benchmark::State& stand)
{
    const Kombination zahlen = KombinationAusNummer(kErste);
    for ([[maybe_unused]] auto _ : stand)
        for (const Gewinnfall& fall : gewinnfaelle(alleZiehungen(), zahlen, kSuperzahl))
            for (const Trefferspalte& spalte : kTrefferspaltenMitSuperzahl)
                benchmark::DoNotOptimize(trefferzelle(spalte.feld, fall, zahlen));
}

BENCHMARK(seite)->Unit(benchmark::kMicrosecond);
BENCHMARK(seitePlain)->Unit(benchmark::kMicrosecond);
BENCHMARK(seiteMitTexten)->Unit(benchmark::kMicrosecond);
BENCHMARK(treffer)->Unit(benchmark::kMicrosecond);
BENCHMARK(seiteMeisteZiehungen)->Unit(benchmark::kMicrosecond);
BENCHMARK(seiteMeisteZiehungenPlain)->Unit(benchmark::kMicrosecond);

bool stimmen()
{
    const std::vector<Kombinationszeile> erwartet = seiteEinfach(alleZiehungen());
    const std::vector<Kombinationszeile> seite = kombinationsseite(alleZiehungen(), kErste, kSuperzahl);
    return std::equal(seite.begin(), seite.end(), erwartet.begin(), erwartet.end(),
                      [](const auto& a, const auto& b) { return a.zahlen == b.zahlen && a.zaehler == b.zaehler; });
}

} // namespace

int main(int argc, char** argv)
{
    return messe(argc, argv, stimmen);
}

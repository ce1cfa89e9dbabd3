#include "bench/Archive.h"
#include "bench/Messlauf.h"
#include "filters/logic/Zahlennachbarn.h"
#include "filters/logic/ZahlennachbarnListe.h"
#include "filters/logic/ZahlennachbarnSeite.h"

#include <algorithm>
#include <benchmark/benchmark.h>

// The number neighbours over the draws of all three games as the program finds them, beside the plain way: a run for
// each start number over all draws, which asks for each number of the row whether the draw holds it. The argument is
// the size of the rows, or the code of a mixed pattern.

namespace {

const Nachbargruppe& gruppe(std::int64_t code)
{
    const auto hat = [code](const Nachbargruppe& eine) { return eine.code == code; };
    const auto* const reihe = std::ranges::find_if(kNachbargruppen, hat);
    return reihe != kNachbargruppen.end() ? *reihe : *std::ranges::find_if(kNachbarmuster, hat);
}

const std::vector<ZiehungsArchiv>& dateien()
{
    static const std::vector<ZiehungsArchiv> geladen = [] {
        std::vector<ZiehungsArchiv> alle;
        for (const std::int16_t spielart : {Samstagslotto, Mittwochslotto, MittwochslottoB}) {
            ZiehungsArchiv neu;
            neu.Spielart = spielart;
            neu.ProgrammVerzeichnis = ziehungsordner();
            LadeZiehungsdatei(neu, {});
            alle.push_back(std::move(neu));
        }
        return alle;
    }();
    return geladen;
}

bool enthaelt(const Kombination& zahlen, int zahl)
{
    return std::ranges::find(zahlen, zahl) != zahlen.end();
}

/// Start number and ZiehungsNr of each hit.
std::vector<std::pair<int, std::int32_t>> sucheEinfach(const ZiehungsArchiv& archiv, int k)
{
    std::vector<std::pair<int, std::int32_t>> gefundene;
    for (int lauf = 0; lauf <= kHoechsteZahl - k; ++lauf) {
        for (std::int32_t nr = 1; nr <= archiv.AnzahlZiehungen; ++nr) {
            const Kombination zahlen = archiv.gewinnzahlen(static_cast<std::size_t>(nr));
            int zahl = lauf + 1;
            while (zahl <= lauf + k && enthaelt(zahlen, zahl))
                ++zahl;
            if (zahl > lauf + k)
                gefundene.emplace_back(lauf, nr);
        }
    }
    return gefundene;
}

void suche(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        for (const ZiehungsArchiv& archiv : dateien())
            benchmark::DoNotOptimize(sucheNachbarn(archiv, gruppe(stand.range(0))));
}

void suchePlain(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        for (const ZiehungsArchiv& archiv : dateien())
            benchmark::DoNotOptimize(sucheEinfach(archiv, static_cast<int>(stand.range(0))));
}

/// All that a press of a search button computes: the search and the texts of all cells of the list.
void sucheMitZellen(benchmark::State& stand)
{
    Nachbarsuche ergebnis{.gruppe = gruppe(stand.range(0)), .zusammen = true};
    for ([[maybe_unused]] auto _ : stand)
        for (const ZiehungsArchiv& archiv : dateien())
            for (const Nachbartreffer& treffer : sucheNachbarn(archiv, ergebnis.gruppe))
                benchmark::DoNotOptimize(nachbarzellen(ergebnis, treffer));
}

void seite(benchmark::State& stand)
{
    Nachbarsuche ergebnis{.gruppe = gruppe(stand.range(0)), .zusammen = true};
    for (const ZiehungsArchiv& archiv : dateien())
        for (Nachbartreffer& treffer : sucheNachbarn(archiv, ergebnis.gruppe))
            ergebnis.treffer.push_back(std::move(treffer));
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(nachbarnSeite(ergebnis));
}

BENCHMARK(suche)->DenseRange(2, 6)->Arg(22)->Arg(222)->Arg(23)->Arg(33)->Arg(24)->Unit(benchmark::kMicrosecond);
BENCHMARK(suchePlain)->DenseRange(2, 6)->Unit(benchmark::kMicrosecond);
BENCHMARK(sucheMitZellen)->DenseRange(2, 6)->Arg(22)->Unit(benchmark::kMicrosecond);
BENCHMARK(seite)->Arg(2)->Unit(benchmark::kMicrosecond);

/// The program and the plain loop give the same hits in the same order.
bool stimmen()
{
    for (const ZiehungsArchiv& archiv : dateien())
        for (const Nachbargruppe& eine : kNachbargruppen) {
            const auto gefundene = sucheNachbarn(archiv, eine);
            const auto einfache = sucheEinfach(archiv, eine.code);
            const auto gleich = [&archiv](const Nachbartreffer& treffer,
                                          const std::pair<int, std::int32_t>& einfacher) {
                return treffer.Suchlauf == einfacher.first &&
                       treffer.zahlen == archiv.gewinnzahlen(static_cast<std::size_t>(einfacher.second));
            };
            if (!std::ranges::equal(gefundene, einfache, gleich))
                return false;
        }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    return messe(argc, argv, stimmen);
}

#include "bench/Archive.h"
#include "bench/Messlauf.h"
#include "filters/logic/Folgewiederholungen.h"
#include "filters/logic/Serienzeilen.h"
#include "filters/logic/Zahlenlinie.h"
#include "shell/logic/Zufall.h"
#include "testhilfen/SerienReferenz.h"

#include <set>

// Runs of numbers and repetitions over all draws, beside the walks through all draws for each number and each triple.
// Then the same over three files that are as long as files can be.

namespace {

constexpr Serienfrage kEineZahl{.zahlen = 1, .mindestens = 3};
constexpr Serienfrage kDreiZahlen{.zahlen = 3, .mindestens = 3};
constexpr Serienfrage kJedeZahl{.zahlen = 1, .mindestens = 1};

const GeteilteFolge& echte()
{
    static const GeteilteFolge folge = gemischteFolge(alleZiehungen());
    return folge;
}

const std::vector<Plumpziehung>& plumpe()
{
    static const std::vector<Plumpziehung> alle = [] {
        std::vector<Plumpziehung> neue;
        for (const Folgeziehung& ziehung : echte()->ziehungen)
            neue.emplace_back(ziehung.zahlen);
        return neue;
    }();
    return alle;
}

/// Three games of 32,767 draws each, one behind the other.
const ZiehungsArchiv& laengste()
{
    static const ZiehungsArchiv archiv = [] {
        ZiehungsArchiv neues;
        Zufall zufall(49);
        const ZiehungsArchiv& muster = alleZiehungen();
        for (std::int32_t nr = 1; nr <= 3 * kMaxZiehungenJeDatei; ++nr) {
            std::set<std::int32_t> zahlen;
            while (zahlen.size() < 6)
                zahlen.insert(lottozahl(zufall.Rnd()));
            auto zahl = zahlen.begin();
            for (ZiehungsArchiv::Spalte* spalte : {&neues.z1, &neues.z2, &neues.z3, &neues.z4, &neues.z5, &neues.z6})
                spalte->push_back(*zahl++);
            for (ZiehungsArchiv::Spalte* spalte : {&neues.zz, &neues.s, &neues.jjjj, &neues.sw})
                spalte->push_back(1);
            neues.DatumAlle.push_back(muster.DatumAlle[static_cast<std::size_t>(nr % muster.AnzahlZiehungen) + 1]);
        }
        neues.AnzahlZiehungen = 3 * kMaxZiehungenJeDatei;
        return neues;
    }();
    return archiv;
}

const GeteilteFolge& lange()
{
    static const GeteilteFolge folge = gemischteFolge(laengste());
    return folge;
}

bool gleich(const Seriensuche& suche, const std::vector<Plumpserie>& plump)
{
    if (suche.serien.size() != plump.size())
        return false;
    for (std::size_t i = 0; i < plump.size(); ++i) {
        Zahlenmenge zahlen = 0;
        for (const int zahl : plump[i].zahlen)
            zahlen |= Zahlenmenge{1} << zahl;
        const Serie& serie = suche.serien[i];
        if (serie.zahlen != zahlen || serie.erste != plump[i].erste || serie.laenge != plump[i].laenge)
            return false;
    }
    return true;
}

bool stimmen()
{
    return gleich(sucheSerien(echte(), kEineZahl), einzelneSerienPlump(plumpe(), 3)) &&
           gleich(sucheSerien(echte(), kDreiZahlen), dreierSerienPlump(plumpe(), 3));
}

void serien(benchmark::State& stand, const GeteilteFolge& folge, const Serienfrage& frage)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(Serienzeilen(sucheSerien(folge, frage), kSerienZusammen));
}

void einzelne(benchmark::State& stand)
{
    serien(stand, echte(), kEineZahl);
}

void einzelnePlumpeSchleifen(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(einzelneSerienPlump(plumpe(), 3));
}

void dreier(benchmark::State& stand)
{
    serien(stand, echte(), kDreiZahlen);
}

void dreierPlumpeSchleifen(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(dreierSerienPlump(plumpe(), 3));
}

void einSpielVonAnfangAn(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(
            Serienzeilen(sucheSerien(einzelneFolge(samstagsarchiv()), kJedeZahl), kSerienEinesSpiels));
}

void folgeDerTage(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(gemischteFolge(alleZiehungen()));
}

void wiederholungen(benchmark::State& stand, const GeteilteFolge& folge)
{
    for ([[maybe_unused]] auto _ : stand) {
        const Folgewiederholungen gezaehlt = zaehleWiederholungen(folge, {});
        benchmark::DoNotOptimize(uebersicht(gezaehlt));
        benchmark::DoNotOptimize(Wiederholungszeilen(gezaehlt, 1));
    }
}

void uebersichtMitEinzelheiten(benchmark::State& stand)
{
    wiederholungen(stand, echte());
}

void alleLinien(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        for (const Folgeziehung& ziehung : echte()->ziehungen)
            benchmark::DoNotOptimize(linienzellen(ziehung, 1));
}

void laengsteEinzelne(benchmark::State& stand)
{
    serien(stand, lange(), kEineZahl);
}

void laengsteJede(benchmark::State& stand)
{
    serien(stand, lange(), kJedeZahl);
}

void laengsteDreier(benchmark::State& stand)
{
    serien(stand, lange(), kDreiZahlen);
}

void laengsteWiederholungen(benchmark::State& stand)
{
    wiederholungen(stand, lange());
}

void laengsteFolgeDerTage(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(gemischteFolge(laengste()));
}

BENCHMARK(einzelne)->Unit(benchmark::kMillisecond);
BENCHMARK(einzelnePlumpeSchleifen)->Unit(benchmark::kMillisecond);
BENCHMARK(dreier)->Unit(benchmark::kMillisecond);
BENCHMARK(dreierPlumpeSchleifen)->Unit(benchmark::kMillisecond);
BENCHMARK(einSpielVonAnfangAn)->Unit(benchmark::kMillisecond);
BENCHMARK(folgeDerTage)->Unit(benchmark::kMillisecond);
BENCHMARK(uebersichtMitEinzelheiten)->Unit(benchmark::kMillisecond);
BENCHMARK(alleLinien)->Unit(benchmark::kMillisecond);
BENCHMARK(laengsteEinzelne)->Unit(benchmark::kMillisecond);
BENCHMARK(laengsteJede)->Unit(benchmark::kMillisecond);
BENCHMARK(laengsteDreier)->Unit(benchmark::kMillisecond);
BENCHMARK(laengsteWiederholungen)->Unit(benchmark::kMillisecond);
BENCHMARK(laengsteFolgeDerTage)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return messe(argc, argv, stimmen);
}

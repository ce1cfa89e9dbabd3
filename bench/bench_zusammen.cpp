#include "archive/logic/Tagesfolge.h"
#include "bench/Archive.h"
#include "bench/Messlauf.h"
#include "statistics/logic/SuperzahlZeilen.h"
#include "statistics/logic/ZusammenHaeufigkeit.h"
#include "statistics/logic/ZusammenZuletzt.h"

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <string>
#include <vector>

// The statistics over several games together, beside the plain way: a line of text for each draw, the lines sorted,
// cut and read back. The argument is 0 for the draws there are, 1 for three files as full as they may be.

namespace {

const ZiehungsArchiv& archiv(std::int64_t voll)
{
    return voll != 0 ? dreiVolleDateien() : alleZiehungen();
}

std::vector<std::string> lstSort(const ZiehungsArchiv& ziehungen)
{
    std::vector<std::string> zeilen;
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(ziehungen.AnzahlZiehungen); ++nr)
        zeilen.push_back(tageszeile(ziehungen, nr));
    std::ranges::sort(zeilen);
    return zeilen;
}

/// The field of a line for one of the numbers, Zusatzzahl included: 0..6.
int zahlAus(const std::string& zeile, std::size_t feld)
{
    constexpr std::size_t kErsteZahl = 22;
    return std::stoi(zeile.substr(kErsteZahl + 3 * feld, 2));
}

std::vector<std::int32_t> haeufigkeitEinfach(const ZiehungsArchiv& ziehungen)
{
    std::vector<std::int32_t> anzahl(50);
    for (const std::string& zeile : lstSort(ziehungen))
        for (std::size_t feld = 0; feld < 7; ++feld)
            ++anzahl[static_cast<std::size_t>(zahlAus(zeile, feld))];
    return {anzahl.begin() + 1, anzahl.end()};
}

std::array<std::size_t, 50> zuletztEinfach(const ZiehungsArchiv& ziehungen)
{
    const std::vector<std::string> zeilen = lstSort(ziehungen);
    std::array<std::size_t, 50> letzte{};
    for (std::size_t reihe = 0; reihe < zeilen.size(); ++reihe)
        for (std::size_t feld = 0; zeilen[reihe].find("Di") == std::string::npos && feld < 6; ++feld)
            letzte[static_cast<std::size_t>(zahlAus(zeilen[reihe], feld))] = reihe;
    return letzte;
}

constexpr ZusammenHaeufigkeitswahl kAlleMitZZ{.maske = 7, .letzte = {}, .mitZZ = true};

void haeufigkeit(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(frequencyRange(archiv(stand.range(0)), kAlleMitZZ));
}

void haeufigkeitPlain(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(haeufigkeitEinfach(archiv(stand.range(0))));
}

/// With both lists, as they are shown.
void zuletzt(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand) {
        const ZusammenZuletzt ergebnis = lastDrawn(archiv(stand.range(0)), 7);
        benchmark::DoNotOptimize(zeilenNachZahl(ergebnis));
        benchmark::DoNotOptimize(zeilenNachAusspielungen(ergebnis));
    }
}

void zuletztPlain(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(zuletztEinfach(archiv(stand.range(0))));
}

const std::vector<ZiehungsArchiv>& einzelne(std::int64_t voll)
{
    static const std::array<std::vector<ZiehungsArchiv>, 2> archive{
        std::vector{ladeArchiv(Samstagslotto), ladeArchiv(Mittwochslotto), ladeArchiv(MittwochslottoB)},
        std::vector{volleDatei(Samstagslotto), volleDatei(Mittwochslotto), volleDatei(MittwochslottoB)}};
    return archive[static_cast<std::size_t>(voll)];
}

Superzahlstatistik zaehleSuperzahlen(std::int64_t voll)
{
    Superzahlstatistik statistik;
    for (const ZiehungsArchiv& ziehungen : einzelne(voll))
        superzahlCounts(statistik, ziehungen);
    return statistik;
}

/// One test for each digit of each draw.
Ziffernzaehler superzahlenEinfach(std::int64_t voll)
{
    Ziffernzaehler anzahl{};
    for (const ZiehungsArchiv& ziehungen : einzelne(voll))
        for (std::int32_t nr = superzahlBeginn(ziehungen.Spielart); nr <= ziehungen.AnzahlZiehungen; ++nr)
            for (std::size_t ziffer = 0; ziffer < kSuperzahlen; ++ziffer)
                if (ziehungen.s[static_cast<std::size_t>(nr)] == static_cast<std::int32_t>(ziffer))
                    ++anzahl[ziffer];
    return anzahl;
}

/// With all four lists, as they are shown.
void superzahlen(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand) {
        const Superzahlstatistik statistik = zaehleSuperzahlen(stand.range(0));
        benchmark::DoNotOptimize(superzahlBericht(statistik));
        benchmark::DoNotOptimize(zuletztZeilen(statistik, Samstagslotto));
        benchmark::DoNotOptimize(zuletztZeilen(statistik, Mittwochslotto));
        benchmark::DoNotOptimize(zuletztZeilenGemeinsam(statistik));
    }
}

void superzahlenPlain(benchmark::State& stand)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(superzahlenEinfach(stand.range(0)));
}

BENCHMARK(haeufigkeit)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(haeufigkeitPlain)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(zuletzt)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(zuletztPlain)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(superzahlen)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(superzahlenPlain)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

bool zuletztStimmt(const ZiehungsArchiv& ziehungen)
{
    const auto reihen = zuletztEinfach(ziehungen);
    return std::ranges::all_of(lastDrawn(ziehungen, 7).eintraege, [&](const Zuletzteintrag& eintrag) {
        const auto reihe = static_cast<std::int32_t>(reihen[static_cast<std::size_t>(eintrag.zahl)]);
        return eintrag.ausspielungen == ziehungen.AnzahlZiehungen - 1 - reihe;
    });
}

bool stimmen()
{
    return std::ranges::all_of(std::array{0, 1}, [](int voll) {
        return frequencyRange(archiv(voll), kAlleMitZZ).anzahl == haeufigkeitEinfach(archiv(voll)) &&
               zuletztStimmt(archiv(voll)) && zaehleSuperzahlen(voll).anzahl() == superzahlenEinfach(voll);
    });
}

} // namespace

int main(int argc, char** argv)
{
    return messe(argc, argv, stimmen);
}

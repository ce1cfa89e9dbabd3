#include "bench/Archive.h"
#include "bench/Messlauf.h"
#include "filters/logic/Dekaden.h"
#include "filters/logic/Endziffern.h"
#include "filters/logic/Gittermuster.h"
#include "filters/logic/Zellfilter.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <string>
#include <vector>

// The draws that show a pattern, and the tables of all patterns, in one pass; beside them the plain loops that make the
// line of each draw at once and go through the draws anew for each pattern. Argument 0 is the archive of all games, 1
// three full files.

namespace {

const ZiehungsArchiv& archiv(const benchmark::State& stand)
{
    return stand.range(0) == 0 ? alleZiehungen() : dreiVolleDateien();
}

std::vector<Ziehungsfund> alle(const ZiehungsArchiv& ziehungen)
{
    return alleZiehungen(ziehungen, datumAlleVon);
}

const std::vector<Ziehungsfund>& schnappschuss(const benchmark::State& stand)
{
    static const std::array geladene{alle(alleZiehungen()), alle(dreiVolleDateien())};
    return geladene[static_cast<std::size_t>(stand.range(0))];
}

const Tippfeld7x7& ganzesFeld()
{
    static const Tippfeld7x7 feld = zellenDer(~Linienwahl{}, {});
    return feld;
}

std::vector<std::string> zeilenPlump(const ZiehungsArchiv& ziehungen)
{
    std::vector<std::string> zeilen;
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(ziehungen.AnzahlZiehungen); ++nr)
        zeilen.push_back(jahrUndWoche(ziehungen, nr) + "   " + zahlentext(ziehungen.gewinnzahlen(nr)) + "     " +
                         datumAlleVon(ziehungen, nr));
    return zeilen;
}

/// A pass for each of the ways, over the rows and over the columns.
Musterverteilung musterPlump(const ZiehungsArchiv& ziehungen)
{
    Musterverteilung verteilung;
    verteilung.AnzahlZiehungen = ziehungen.AnzahlZiehungen;
    for (std::size_t muster = 0; muster < kGittermuster; ++muster) {
        for (std::size_t nr = 1; nr <= static_cast<std::size_t>(ziehungen.AnzahlZiehungen); ++nr) {
            const Kombination zahlen = ziehungen.gewinnzahlen(nr);
            verteilung.zeilen[muster] += codeVon(zahlen, Linienart::Zeile) == musterCode(muster);
            verteilung.spalten[muster] += codeVon(zahlen, Linienart::Spalte) == musterCode(muster);
        }
    }
    return verteilung;
}

Dekadenverteilung konstellationenPlump(const std::vector<Ziehungsfund>& ziehungen)
{
    Dekadenverteilung verteilung{};
    for (std::size_t code = 1; code < kDekadencodes; ++code)
        for (const Ziehungsfund& ziehung : ziehungen)
            verteilung[code] += codeVon(dekadenzahlen(ziehung.zahlen)) == code;
    return verteilung;
}

std::array<std::int32_t, kEndzifferkonstellationen> endziffernPlump(const std::vector<Ziehungsfund>& ziehungen)
{
    std::array<std::int32_t, kEndzifferkonstellationen> anzahlen{};
    for (std::size_t nummer = 0; nummer < anzahlen.size(); ++nummer)
        for (const Ziehungsfund& ziehung : ziehungen)
            anzahlen[nummer] += konstellationVon(endziffern(ziehung.zahlen)) == konstellation(nummer);
    return anzahlen;
}

template <class Tue> void laufe(benchmark::State& stand, Tue tue)
{
    for ([[maybe_unused]] auto _ : stand)
        benchmark::DoNotOptimize(tue());
}

void zellenAlleFunde(benchmark::State& stand)
{
    laufe(stand, [&] { return FiltereNachZellen(archiv(stand), ganzesFeld(), datumAlleVon); });
}
void zellenPlumpeZeilen(benchmark::State& stand)
{
    laufe(stand, [&] { return zeilenPlump(archiv(stand)); });
}
void muster(benchmark::State& stand)
{
    laufe(stand, [&] { return BerechneMuster(archiv(stand), Linienart::Zeile, 9); });
}
void mustertafel(benchmark::State& stand)
{
    laufe(stand, [&] { return zaehleMuster(archiv(stand)); });
}
void mustertafelPlump(benchmark::State& stand)
{
    laufe(stand, [&] { return musterPlump(archiv(stand)); });
}
void dekaden(benchmark::State& stand)
{
    laufe(stand, [&] { return sucheDekaden(schnappschuss(stand), 1); });
}
void dekadentafel(benchmark::State& stand)
{
    laufe(stand, [&] { return zaehleKonstellationen(schnappschuss(stand)); });
}
void dekadentafelPlump(benchmark::State& stand)
{
    laufe(stand, [&] { return konstellationenPlump(schnappschuss(stand)); });
}
void endziffernsuche(benchmark::State& stand)
{
    laufe(stand, [&] { return sucheEndziffern(schnappschuss(stand), 1); });
}
void endzifferntafel(benchmark::State& stand)
{
    laufe(stand, [&] { return zaehleEndziffern(schnappschuss(stand)); });
}
void endzifferntafelPlump(benchmark::State& stand)
{
    laufe(stand, [&] { return endziffernPlump(schnappschuss(stand)); });
}
void alleZiehungenEinesBildschirms(benchmark::State& stand)
{
    laufe(stand, [&] { return alle(archiv(stand)); });
}

BENCHMARK(zellenAlleFunde)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(zellenPlumpeZeilen)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(muster)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(mustertafel)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(mustertafelPlump)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(dekaden)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(dekadentafel)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(dekadentafelPlump)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(endziffernsuche)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(endzifferntafel)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(endzifferntafelPlump)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(alleZiehungenEinesBildschirms)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

bool stimmen()
{
    const ZiehungsArchiv& ziehungen = alleZiehungen();
    const std::vector<Ziehungsfund> einzelne = alle(ziehungen);
    const Musterverteilung verteilung = zaehleMuster(ziehungen);
    const Musterverteilung plump = musterPlump(ziehungen);
    const std::vector<std::string> zeilen = zeilenPlump(ziehungen);
    return std::ranges::equal(FiltereNachZellen(ziehungen, ganzesFeld(), datumAlleVon).funde, zeilen, {},
                              [](const Ziehungsfund& fund) { return fundzeile(fund, 5); }) &&
           verteilung.zeilen == plump.zeilen && verteilung.spalten == plump.spalten &&
           zaehleKonstellationen(einzelne) == konstellationenPlump(einzelne) &&
           zaehleEndziffern(einzelne).ziehungen == endziffernPlump(einzelne);
}

} // namespace

int main(int argc, char** argv)
{
    return messe(argc, argv, stimmen);
}

#include "bench/Archive.h"
#include "bench/Ergebniszeilen.h"
#include "shell/app/Programmstart.h"
#include "shell/elements/Bildschirm.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Programm.h"
#include "shell/logic/Format.h"
#include "shell/logic/Zufall.h"
#include "tools/drive/Menueweg.h"

#include <QFile>
#include <QImage>
#include <QListWidget>
#include <QScrollBar>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdlib>
#include <memory>

// What a user waits for: long lists, the menu, a tool. The lists stand beside Qt's own list and the library's sort of
// the same lines, the screens beside the goal they are held to; all in the same run.

namespace {

constexpr std::size_t kMillionen = 5'000'000;

using Uhrwerk = std::chrono::steady_clock;

double sekundenSeit(Uhrwerk::time_point anfang)
{
    return std::chrono::duration<double>(Uhrwerk::now() - anfang).count();
}

/// Times `tue` alone and notes how much of `ziel` seconds it takes.
template <class Tue> void messe(benchmark::State& stand, double ziel, Tue tue)
{
    double summe = 0;
    for (auto _ : stand) {
        const auto anfang = Uhrwerk::now();
        tue();
        const double dauer = sekundenSeit(anfang);
        summe += dauer;
        stand.SetIterationTime(dauer);
    }
    stand.counters["anteil_am_ziel"] = summe / static_cast<double>(stand.iterations()) / ziel;
}

/// The same, and notes the ratio to `bezug`, which runs beside it in turn.
template <class Tue, class Bezug> void messeNeben(benchmark::State& stand, double ziel, Tue tue, Bezug bezug)
{
    double eigene = 0;
    double fremde = 0;
    for (auto _ : stand) {
        auto anfang = Uhrwerk::now();
        tue();
        const double dauer = sekundenSeit(anfang);
        anfang = Uhrwerk::now();
        bezug();
        fremde += sekundenSeit(anfang);
        eigene += dauer;
        stand.SetIterationTime(dauer);
    }
    stand.counters["anteil_am_ziel"] = eigene / static_cast<double>(stand.iterations()) / ziel;
    stand.counters["mal_bezug"] = eigene / fremde;
}

QImage male(QAbstractScrollArea& liste)
{
    QImage bild(liste.viewport()->size(), QImage::Format_RGB32);
    liste.viewport()->render(&bild);
    return bild;
}

template <class Feld> std::unique_ptr<Feld> gezeigt(std::unique_ptr<Feld> liste)
{
    liste->resize(600, 600);
    liste->show();
    QCoreApplication::processEvents();
    return liste;
}

/// Fills a list box on the screen until its first page is painted.
void fuelleListe()
{
    const auto liste = gezeigt(std::make_unique<Liste>(nullptr, ListenModell::Eigenschaften{.Sorted = true}));
    for (const std::string& zeile : ergebniszeilen())
        liste->modell().AddItem(zeile);
    QCoreApplication::processEvents();
    benchmark::DoNotOptimize(male(*liste));
}

void fuelleQListWidget()
{
    const auto liste = gezeigt(std::make_unique<QListWidget>());
    liste->setUniformItemSizes(true);
    for (const std::string& zeile : ergebniszeilen())
        liste->addItem(QString::fromStdString(zeile));
    liste->sortItems();
    QCoreApplication::processEvents();
    benchmark::DoNotOptimize(male(*liste));
}

void kopiereUndSortiere()
{
    std::vector<std::string> zeilen;
    for (const std::string& zeile : ergebniszeilen())
        zeilen.push_back(zeile);
    std::ranges::sort(zeilen);
    benchmark::DoNotOptimize(zeilen);
}

void listeNebenQListWidget(benchmark::State& stand)
{
    messeNeben(stand, 0.3, fuelleListe, fuelleQListWidget);
}

void listeNebenStdSort(benchmark::State& stand)
{
    messeNeben(stand, 0.3, fuelleListe, kopiereUndSortiere);
}

/// A sorted list that is on the screen while a search fills it, with a turn of the event loop every 16 ms.
void listeUnterDenAugen(benchmark::State& stand)
{
    messe(stand, 0.3, [] {
        const auto liste = gezeigt(std::make_unique<Liste>(nullptr, ListenModell::Eigenschaften{.Sorted = true}));
        auto zug = Uhrwerk::now();
        for (const std::string& zeile : ergebniszeilen()) {
            liste->modell().AddItem(zeile);
            if (sekundenSeit(zug) > 0.016) {
                QCoreApplication::processEvents();
                benchmark::DoNotOptimize(male(*liste));
                zug = Uhrwerk::now();
            }
        }
        benchmark::DoNotOptimize(male(*liste));
    });
}

/// One repaint of a list of millions; the argument is where it is scrolled to, in percent.
void maleMillionen(benchmark::State& stand)
{
    const auto liste = gezeigt(std::make_unique<Liste>(nullptr));
    liste->modell().aufAnfrage(kMillionen, [](std::size_t zeile) {
        return Format(static_cast<int>(zeile), "##,###,##0") + " ->   7 19 23 31 40 48";
    });
    QCoreApplication::processEvents();
    const auto ort = static_cast<int>(stand.range(0) * static_cast<std::int64_t>(kMillionen) / 100);
    int schritt = 0;
    messe(stand, 0.016, [&] {
        liste->verticalScrollBar()->setValue(ort + (schritt++ % 2 == 0 ? 1 : -1));
        benchmark::DoNotOptimize(male(*liste));
    });
}

void maleOffene(const Buehne& buehne)
{
    QCoreApplication::processEvents();
    for (Bildschirm* bildschirm : buehne.bildschirme.geladene())
        if (bildschirm->isVisible())
            benchmark::DoNotOptimize(bildschirm->grab().toImage());
}

/// From nothing to the painted menu: both loads of the archive, the screen, its first picture.
void menueAusDemNichts(benchmark::State& stand)
{
    std::unique_ptr<Buehne> buehne;
    messe(stand, 0.4, [&buehne] {
        buehne = std::make_unique<Buehne>(QString::fromStdString(ziehungsordner()));
        registriereBildschirme(buehne->bildschirme);
        starteProgramm(buehne->umgebung);
        maleOffene(*buehne);
    });
}

/// The running program with its menu in sight.
class Programmlauf {
public:
    Programmlauf()
    {
        registriereBildschirme(buehne.bildschirme);
        starteProgramm(buehne.umgebung);
        maleOffene(buehne);
        bedienung.ausMenue = [this](const QString& bildschirm) { return geheAusMenue(bedienung, buehne, bildschirm); };
    }

    Buehne buehne{QString::fromStdString(ziehungsordner())};
    Bedienung bedienung{buehne};
};

/// The button of a tool until it is painted, then its way back until the menu is.
void oeffneUndSchliesse(benchmark::State& stand)
{
    Programmlauf lauf;
    auto& [buehne, bedienung] = lauf;
    bool gelungen = true;
    messe(stand, 0.1, [&] {
        gelungen = bedienung.oeffne("frmSTAT1").gelungen() && gelungen;
        maleOffene(buehne);
        gelungen = bedienung.klicke("Befehl1").gelungen() && gelungen;
        maleOffene(buehne);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    });
    if (!gelungen || buehne.bildschirme.geladene().size() != 1)
        stand.SkipWithError("frmSTAT1 did not open and close.");
}

/// A choice on the matrix of all years and numbers until its new counts are painted.
void waehleInMatrix(benchmark::State& stand)
{
    Programmlauf lauf;
    auto& [buehne, bedienung] = lauf;
    bool gelungen = bedienung.oeffne("frmZusammenHJahr").gelungen();
    maleOffene(buehne);
    int wahl = 0;
    messe(stand, 0.03, [&] {
        gelungen = bedienung.klicke(QString("optZZ(%1)").arg(++wahl % 2)).gelungen() && gelungen;
        maleOffene(buehne);
    });
    if (!gelungen)
        stand.SkipWithError("frmZusammenHJahr did not count anew.");
}

/// All draws of two games as lines of 49 numbers, from the press to the picture.
void alleInLinien(benchmark::State& stand)
{
    Programmlauf lauf;
    bool gelungen = lauf.bedienung.oeffne("frm49").gelungen();
    messe(stand, 0.2, [&] {
        gelungen = lauf.bedienung.klicke("optAnz(1)").gelungen() && gelungen;
        maleOffene(lauf.buehne);
    });
    if (!gelungen)
        stand.SkipWithError("frm49 did not show all draws.");
}

/// A frame of these lines on a desktop of 1280 x 800 while they scroll by a page.
void rolleLinien(benchmark::State& stand)
{
    Programmlauf lauf;
    if (!lauf.bedienung.oeffne("frm49").gelungen() || !lauf.bedienung.klicke("optAnz(1)").gelungen()) {
        stand.SkipWithError("frm49 did not show all draws.");
        return;
    }
    Bildschirm& bildschirm = *lauf.buehne.bildschirme.geladen("frm49");
    bildschirm.resize(1272, 764);
    auto& liste = *bildschirm.findChild<QAbstractScrollArea*>("ListView1");
    QScrollBar& leiste = *liste.verticalScrollBar();
    leiste.setValue(0);
    messe(stand, 0.016, [&] {
        leiste.setValue(leiste.value() < leiste.maximum() ? leiste.value() + leiste.pageStep() : 0);
        benchmark::DoNotOptimize(male(liste));
    });
}

/// A choice of another tool that counts at once, from the press until its new result is painted.
void waehleUndZaehle(benchmark::State& stand, const char* bildschirm, const char* wahl)
{
    Programmlauf lauf;
    bool gelungen = lauf.bedienung.oeffne(bildschirm).gelungen();
    maleOffene(lauf.buehne);
    messe(stand, 0.03, [&] {
        gelungen = lauf.bedienung.klicke(wahl).gelungen() && gelungen;
        maleOffene(lauf.buehne);
    });
    if (!gelungen)
        stand.SkipWithError("The choice could not be pressed.");
}

/// A press of an arrow of the Superzahl until all rows are in the list and the screen is painted. The argument is the
/// screen: 0 shows the wins, 1 all draws of a game, 2 the wins of three games, whose files are read anew.
void zeitreise(benchmark::State& stand)
{
    Programmlauf lauf;
    const QString bildschirm = stand.range(0) == 2 ? "frmZusammenLottoneu" : "frmLottoneu";
    bool gelungen = lauf.bedienung.oeffne(bildschirm).gelungen() && lauf.bedienung.klicke("Command4").gelungen();
    if (stand.range(0) == 1)
        gelungen = lauf.bedienung.klicke("Option3(0)").gelungen() && gelungen;
    maleOffene(lauf.buehne);
    messe(stand, 0.03, [&] {
        gelungen = lauf.bedienung.klicke("Command2").gelungen() && gelungen;
        maleOffene(lauf.buehne);
    });
    if (!gelungen)
        stand.SkipWithError("The time travel could not be worked.");
}

BENCHMARK(listeNebenQListWidget)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(listeNebenStdSort)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(listeUnterDenAugen)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(maleMillionen)->Arg(0)->Arg(1)->Arg(50)->Arg(100)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(menueAusDemNichts)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(oeffneUndSchliesse)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(waehleUndZaehle, zellfilter, "frmZusammenZeileSpalte", "cz(0)")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(waehleUndZaehle, gittermuster, "frmZeileSpalte2", "Command22")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(waehleUndZaehle, gitteruebersicht, "frmZeileSpalte2", "cmdUebersicht")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(waehleUndZaehle, dekaden, "frmDekade", "Command1")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(waehleUndZaehle, endziffern, "frmEndziffer", "optZeile(1)")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(waehleUndZaehle, haeufigkeit, "frmZusammenHaeufigkeit", "chkZusatzzahl")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(waehleUndZaehle, zuletztMitLaden, "frmZusammenZuletzt", "chkArt(2)")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(waehleUndZaehle, superzahlenMitLaden, "frmZusammenH_SZ", "Check3")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(waehleInMatrix)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(zeitreise)->DenseRange(0, 2)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(alleInLinien)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(rolleLinien)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Programm programm(argc, argv);
    benchmark::Initialize(&argc, argv);
    ergebniszeilen(); // made before anything is timed
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}

#include "listcontrol/screens/ListView.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"
#include "shell/logic/Zufall.h"

#include <QApplication>
#include <QTreeWidget>

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <malloc.h>
#include <string>
#include <vector>

// The result list at the size of a long search: filled, sorted and painted, beside the toolkit's tree widget and beside
// plain vectors of strings. Each row of the table names its time as a multiple of that reference, taken in the same
// run.

namespace {

constexpr int kSpalten = 23; ///< every other one is a separator
constexpr int kZeilen = 100'000;
constexpr int kSehrVieleZeilen = 1'000'000;
constexpr int kSortierspalte = 6;
constexpr QSize kSchirm{1280, 800};

using Zeile = std::array<std::string, kSpalten>;
using Tabelle = std::vector<std::vector<std::string>>;

/// Rows such as "1234", "1976", "07", "14.02.1976 Sa", six numbers, the Zusatzzahl, the weeks; some are marked.
const std::vector<Zeile>& vorlagen()
{
    static const std::vector<Zeile> zeilen = [] {
        Zufall zufall(49);
        std::vector<Zeile> neu(4999);
        int nummer = 0;
        for (Zeile& zeile : neu) {
            zeile[0] = Format(++nummer, "@@@@");
            zeile[2] = std::to_string(1955 + nummer % 70);
            zeile[4] = Format(1 + nummer % 52, "00");
            zeile[6] = Format(1 + lottozahl(zufall.Rnd()) % 28, "00") + ".02." + zeile[2] + " Sa";
            for (std::size_t spalte = 8; spalte <= 20; spalte += 2) {
                const int zahl = lottozahl(zufall.Rnd());
                zeile[spalte] = Format(zahl, "00") + (zahl == 7 ? " " : "");
            }
            zeile[22] = Format(lottozahl(zufall.Rnd()), "@@@@");
        }
        return neu;
    }();
    return zeilen;
}

const Zeile& vorlage(int zeile)
{
    return vorlagen()[static_cast<std::size_t>(zeile) % vorlagen().size()];
}

const char* titel(int spalte)
{
    constexpr std::array kTitel = {"Zieh.Nr.", "Jahr", "SW", "Datum", "Z1", "Z2",
                                   "Z3",       "Z4",   "Z5", "Z6",    "ZZ", "Wochen"};
    return spalte % 2 == 0 ? kTitel[static_cast<std::size_t>(spalte / 2)] : "";
}

/// Colours as the screens set them: grey separators, striped rows, marked numbers.
class Faerber final : public ICustomDraw {
public:
    explicit Faerber(const ListView& liste) : liste_(liste) {}

    void CustomDraw(int row, int column, Farbe& backColor, Farbe& foreColor, bool& handled) override
    {
        handled = true;
        backColor = row % 2 == 0 ? Farbe{217, 252, 253} : Farbe{255, 255, 255};
        if (column % 2 == 1)
            backColor = farbeAusBGR(0xC0C0C0);
        else if (column >= 8 && column <= 20 && liste_.ItemText(row, column).size() > 2) {
            backColor = {128, 255, 255};
            foreColor = {255, 0, 0};
        }
    }

private:
    const ListView& liste_;
};

void legeSpaltenAn(ListView& liste)
{
    constexpr std::array kBreiten = {70, 45, 30, 130, 35, 35, 35, 35, 35, 35, 35, 60};
    for (int spalte = 0; spalte < kSpalten; ++spalte) {
        const std::string schluessel = "s" + std::to_string(spalte);
        if (spalte % 2 == 1)
            liste.AddTrenner(schluessel);
        else
            liste.AddColumn(schluessel, titel(spalte), TextAlign::Center,
                            kBreiten[static_cast<std::size_t>(spalte / 2)]);
    }
}

void fuelle(ListView& liste, int zeilen)
{
    liste.setRedraw(false);
    for (int nummer = 0; nummer < zeilen; ++nummer) {
        const Zeile& muster = vorlage(nummer);
        const int zeile = liste.AddItem(muster[0]);
        for (int spalte = 1; spalte < kSpalten; ++spalte)
            liste.setItemText(zeile, spalte, muster[static_cast<std::size_t>(spalte)]);
    }
    liste.setRedraw(true);
}

Tabelle tabelle(int zeilen)
{
    Tabelle neu;
    for (int nummer = 0; nummer < zeilen; ++nummer) {
        neu.emplace_back(kSpalten);
        for (std::size_t spalte = 0; spalte < kSpalten; ++spalte)
            neu.back()[spalte] = vorlage(nummer)[spalte];
    }
    return neu;
}

void fuelle(QTreeWidget& baum, int zeilen)
{
    baum.setColumnCount(kSpalten);
    baum.setUniformRowHeights(true);
    baum.setRootIsDecorated(false);
    baum.setFont(Stil::festeSchrift());
    QList<QTreeWidgetItem*> alle;
    for (int nummer = 0; nummer < zeilen; ++nummer) {
        auto* posten = new QTreeWidgetItem;
        for (int spalte = 0; spalte < kSpalten; spalte += 2) {
            const std::string& text = vorlage(nummer)[static_cast<std::size_t>(spalte)];
            posten->setText(spalte, qt(text));
            posten->setBackground(spalte, nummer % 2 == 0 ? QColor(217, 252, 253) : QColor(Qt::white));
        }
        alle.push_back(posten);
    }
    baum.addTopLevelItems(alle);
}

double megabyte()
{
    const auto stand = mallinfo2();
    return static_cast<double>(stand.uordblks + stand.hblkhd) / 1e6;
}

class Stoppuhr {
public:
    double sekunden() const { return std::chrono::duration<double>(Uhr::now() - anfang_).count(); }

private:
    using Uhr = std::chrono::steady_clock;
    Uhr::time_point anfang_{Uhr::now()};
};

/// Each of the two steps prepares itself and gives the seconds of what counts.
template <class Tue, class Bezug> void messe(benchmark::State& stand, const char* name, Tue tue, Bezug bezug)
{
    double eigene = 0;
    double fremde = 0;
    for (auto _ : stand) {
        const double dauer = tue();
        stand.SetIterationTime(dauer);
        eigene += dauer;
        fremde += bezug();
    }
    stand.counters[name] = eigene / fremde;
}

double dauerListView(int zeilen)
{
    ListView liste(nullptr);
    legeSpaltenAn(liste);
    const Stoppuhr uhr;
    fuelle(liste, zeilen);
    return uhr.sekunden();
}

double dauerTabelle()
{
    const Stoppuhr uhr;
    benchmark::DoNotOptimize(tabelle(kZeilen));
    return uhr.sekunden();
}

double dauerBaum()
{
    QTreeWidget baum;
    const Stoppuhr uhr;
    fuelle(baum, kZeilen);
    return uhr.sekunden();
}

void fuellenGegenVektoren(benchmark::State& stand)
{
    messe(
        stand, "mal_vector", [] { return dauerListView(kZeilen); }, dauerTabelle);
}

void fuellenGegenBaum(benchmark::State& stand)
{
    messe(
        stand, "mal_QTreeWidget", [] { return dauerListView(kZeilen); }, dauerBaum);
}

void fuellenMillion(benchmark::State& stand)
{
    for (auto _ : stand) {
        const double vorher = megabyte();
        ListView liste(nullptr);
        legeSpaltenAn(liste);
        const Stoppuhr uhr;
        fuelle(liste, kSehrVieleZeilen);
        stand.SetIterationTime(uhr.sekunden());
        stand.counters["MB"] = megabyte() - vorher;
    }
}

void speicherGegenVektoren(benchmark::State& stand)
{
    for (auto _ : stand) {
        const Stoppuhr uhr;
        const double leer = megabyte();
        ListView liste(nullptr);
        legeSpaltenAn(liste);
        fuelle(liste, kZeilen);
        const double mitListe = megabyte();
        const Tabelle alle = tabelle(kZeilen);
        stand.counters["mal_vector_MB"] = (mitListe - leer) / (megabyte() - mitListe);
        stand.SetIterationTime(uhr.sekunden());
    }
}

double sortiereListView()
{
    ListView liste(nullptr);
    legeSpaltenAn(liste);
    fuelle(liste, kZeilen);
    const Stoppuhr uhr;
    liste.Sort(kSortierspalte);
    return uhr.sekunden();
}

double sortiereTabelle()
{
    Tabelle alle = tabelle(kZeilen);
    const Stoppuhr uhr;
    std::ranges::sort(alle, [](const auto& links, const auto& rechts) {
        return vergleicheText(links[kSortierspalte], rechts[kSortierspalte]) < 0;
    });
    return uhr.sekunden();
}

double sortiereBaum()
{
    QTreeWidget baum;
    fuelle(baum, kZeilen);
    const Stoppuhr uhr;
    baum.sortItems(kSortierspalte, Qt::AscendingOrder);
    return uhr.sekunden();
}

void sortierenGegenVektoren(benchmark::State& stand)
{
    messe(stand, "mal_std_sort", sortiereListView, sortiereTabelle);
}

void sortierenGegenBaum(benchmark::State& stand)
{
    messe(stand, "mal_QTreeWidget", sortiereListView, sortiereBaum);
}

/// Seconds of one painting of everything in sight.
double male(QAbstractScrollArea& ansicht)
{
    const Stoppuhr uhr;
    ansicht.viewport()->repaint();
    return uhr.sekunden();
}

void zeige(QWidget& fenster)
{
    fenster.resize(kSchirm);
    fenster.show();
    QApplication::processEvents();
}

void malen(benchmark::State& stand)
{
    ListView liste(nullptr);
    Faerber faerber(liste);
    legeSpaltenAn(liste);
    liste.setColumnsAutoSize(true);
    liste.setDrawCallback(&faerber);
    fuelle(liste, kZeilen);
    zeige(liste);
    QTreeWidget baum;
    fuelle(baum, kZeilen);
    for (int spalte = 0; spalte < kSpalten; ++spalte)
        baum.setColumnWidth(spalte, liste.ColumnWidth(spalte) * 3 / 2);
    zeige(baum);
    messe(
        stand, "mal_QTreeWidget", [&] { return male(liste); }, [&] { return male(baum); });
}

BENCHMARK(fuellenGegenVektoren)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(fuellenGegenBaum)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(fuellenMillion)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(speicherGegenVektoren)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(sortierenGegenVektoren)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(sortierenGegenBaum)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(malen)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int anzahl, char** argumente)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication programm(anzahl, argumente);
    Stil::richteEin(programm);
    benchmark::Initialize(&anzahl, argumente);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}

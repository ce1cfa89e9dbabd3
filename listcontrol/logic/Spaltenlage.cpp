#include "listcontrol/logic/Spaltenlage.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace {

constexpr int kTeilergriff = 4; ///< pixels to each side of a right edge

} // namespace

void Spaltenlage::ordne(int breite, bool strecken)
{
    for (int neue = static_cast<int>(folge_.size()); neue < spalten_.Count(); ++neue)
        folge_.push_back(neue);
    plaetze_.clear();
    for (const int spalte : folge_)
        if (spalten_.Item(spalte).Visible)
            plaetze_.push_back({spalte, gesamtbreite(), spalten_.Item(spalte).Width});
    if (strecken && breite > gesamtbreite())
        verteile(breite - gesamtbreite());
}

void Spaltenlage::verteile(int rest)
{
    const auto nimmtTeil = [this](const Platz& platz) {
        const Column& spalte = spalten_.Item(platz.spalte);
        return spalte.WidthAutoSized && !spalte.istTrenner();
    };
    auto offene = static_cast<int>(std::ranges::count_if(plaetze_, nimmtTeil));
    int x = 0;
    for (Platz& platz : plaetze_) {
        platz.x = x;
        if (nimmtTeil(platz)) {
            const int anteil = rest / offene--;
            platz.breite += anteil;
            rest -= anteil;
        }
        x = platz.ende();
    }
}

void Spaltenlage::vorEntfernen(int spalte)
{
    std::erase(folge_, spalte);
    for (int& andere : folge_)
        andere -= andere > spalte ? 1 : 0;
}

const Spaltenlage::Platz* Spaltenlage::platz(int spalte) const
{
    const auto ort = std::ranges::find(plaetze_, spalte, &Platz::spalte);
    return ort == plaetze_.end() ? nullptr : &*ort;
}

int Spaltenlage::spalteBei(int x) const
{
    const auto ort =
        std::ranges::find_if(plaetze_, [x](const Platz& platz) { return platz.x <= x && x < platz.ende(); });
    return ort == plaetze_.end() ? -1 : ort->spalte;
}

int Spaltenlage::teilerBei(int x) const
{
    int nahe = -1;
    int vorige = -1;
    for (const Platz& platz : plaetze_) {
        if (!spalten_.Item(platz.spalte).istTrenner())
            vorige = platz.spalte;
        if (vorige >= 0 && std::abs(x - platz.ende()) <= kTeilergriff)
            nahe = vorige;
    }
    return nahe >= 0 && spalten_.Item(nahe).Resizable ? nahe : -1;
}

int Spaltenlage::einfuegestelle(int x) const
{
    for (const Platz& platz : plaetze_)
        if (!spalten_.Item(platz.spalte).istTrenner() && x < platz.x + platz.breite / 2)
            return platz.spalte;
    return -1;
}

int Spaltenlage::einfuegemarke(int vorSpalte) const
{
    const Platz* ort = platz(vorSpalte);
    return ort ? ort->x : gesamtbreite();
}

void Spaltenlage::verschiebe(int spalte, int vorSpalte)
{
    if (spalte == vorSpalte)
        return;
    const auto istDatenspalte = [this](int eine) { return !spalten_.Item(eine).istTrenner(); };
    std::vector<int> daten;
    std::ranges::copy_if(folge_, std::back_inserter(daten), istDatenspalte);
    std::erase(daten, spalte);
    daten.insert(std::ranges::find(daten, vorSpalte), spalte);
    auto naechste = daten.begin();
    for (int& platz : folge_)
        if (istDatenspalte(platz))
            platz = *naechste++;
}

#include "filters/logic/Verhaeltnis.h"

#include "filters/logic/Fundangabe.h"
#include "shell/logic/Format.h"
#include "shell/logic/Lottozahl.h"
#include "shell/logic/Tippfeld7x7.h"

#include <algorithm>

namespace {

constexpr int kErsteHohe = 25;

constexpr std::array<std::string_view, 7> kVerhaeltnisse{"     6:0   ", "     5:1   ", "     4:2   ", "     3:3   ",
                                                         "     2:4   ", "     1:5   ", "     0:6   "};

bool istGerade(std::int32_t zahl)
{
    return gibtEs(zahl) && zahl % 2 == 0;
}

bool istTief(std::int32_t zahl)
{
    return zahl < kErsteHohe;
}

bool istPrimzahl(std::int32_t zahl)
{
    return std::ranges::binary_search(kAllePrimzahlen, zahl);
}

bool istAmRand(std::int32_t zahl)
{
    constexpr int kLetzte = Tippfeld7x7::kJeZeile - 1;
    if (!gibtEs(zahl))
        return false;
    const int zeile = Tippfeld7x7::zeile(zahl);
    const int spalte = Tippfeld7x7::spalte(zahl);
    return zeile == 0 || zeile == kLetzte || spalte == 0 || spalte == kLetzte;
}

std::string anteil(std::int32_t ziehungen, std::int32_t alle)
{
    return Format(Format(prozentVon(static_cast<std::size_t>(ziehungen), alle), "0.000"), "@@@@@@");
}

} // namespace

const Verhaeltnisart kGeradeUngerade{istGerade,
                                     " davon    G : U         %",
                                     28,
                                     kVerhaeltnisse,
                                     {"Alle Zahlen gerade 6:0", "Fünf Zahlen gerade 5:1", "Vier Zahlen gerade 4:2",
                                      "Drei Zahlen geraded 3:3", "Zwei Zahlen gerade 2:4", "Eine Zahl gerade   1:5",
                                      "Keine Zahl gerade  0:6"},
                                     "@@@@@@"};

const Verhaeltnisart kTiefHoch{istTief,
                               " davon Tief : Hoch      %",
                               29,
                               kVerhaeltnisse,
                               {"Alle Zahlen tief  6:0", "Fünf Zahlen tief  5:1", "Vier Zahlen tief  4:2",
                                "Drei Zahlen tief  3:3", "Zwei Zahlen tief  2:4", "Eine Zahl   tief  5:1",
                                "Keine Zahl  tief  0:6"},
                               "@@@@@@"};

const Verhaeltnisart kPrimzahlen{
    istPrimzahl,
    " davon Ziehungen mit:  ",
    31,
    {"   6 PrimZ.", "   5 PrimZ.", "   4 PrimZ.", "   3 PrimZ.", "   2 PrimZ.", "   1 PrimZ.", "   0 PrimZ."},
    {"Sechs Primzahlen ", "Fünf Primzahlen", "Vier Primzahlen", "Drei Primzahlen", "Zwei Primzahlen", "Einer Primzahl",
     "Keiner Primzahl"},
    "@@@@@@@@"};

const Verhaeltnisart kRandzahlen{istAmRand,
                                 " davon Rand : Innen     %",
                                 32,
                                 kVerhaeltnisse,
                                 {"Alle Zahlen am Rand 6:0", "Fünf Zahlen am Rand 5:1", "Vier Zahlen am Rand 4:2",
                                  "Drei Zahlen am Rand 3:3", "Zwei Zahlen am Rand 2:4", "Eine Zahl am Rand   1:5",
                                  "Keine Zahl am Rand  0:6"},
                                 "@@@@@@"};

Verhaeltnissuche FiltereZiehungen(const ZiehungsArchiv& archiv, const Verhaeltnisart& art, int gesucht)
{
    Verhaeltnissuche suche;
    suche.gesucht = gesucht;
    suche.AnzahlZiehungen = archiv.AnzahlZiehungen;
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr) {
        const auto anzahl = std::ranges::count_if(archiv.gewinnzahlen(nr), art.gehoertDazu);
        ++suche.ziehungen[static_cast<std::size_t>(anzahl)];
        if (anzahl == gesucht)
            suche.funde.push_back(ziehungsfund(archiv, nr, datumAlleVon));
    }
    return suche;
}

std::vector<std::string> uebersicht(const Verhaeltnissuche& suche, const Verhaeltnisart& art)
{
    std::vector<std::string> zeilen{std::string(art.uebersichtkopf), std::string(art.striche, '-')};
    for (std::size_t i = 0; i < art.zeilenkoepfe.size(); ++i) {
        const std::int32_t ziehungen = suche.ziehungen[suche.ziehungen.size() - 1 - i];
        zeilen.push_back(std::string(art.zeilenkoepfe[i]) + Format(std::to_string(ziehungen), art.anzahlmaske) +
                         anteil(ziehungen, suche.AnzahlZiehungen) + " %");
    }
    return zeilen;
}

std::string ergebniszeile(const Verhaeltnissuche& suche, const Verhaeltnisart& art)
{
    const auto stelle = art.beschriftungen.size() - 1 - static_cast<std::size_t>(suche.gesucht);
    return std::to_string(suche.funde.size()) + "  Ziehungen [" + std::string(art.beschriftungen[stelle]) + "]";
}

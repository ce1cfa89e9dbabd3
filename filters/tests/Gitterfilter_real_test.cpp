#include "filters/logic/Gittermuster.h"
#include "filters/logic/Zellfilter.h"
#include "testhilfen/EchteDaten.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <random>
#include <set>

namespace {

/// Row of a number, from the left and the right end of each row.
int zeileVon(int zahl)
{
    for (int zeile = 0; zeile < 7; ++zeile)
        if (zahl >= 7 * zeile + 1 && zahl <= 7 * zeile + 7)
            return zeile;
    return -1;
}

int spalteVon(int zahl)
{
    for (int spalte = 0; spalte < 7; ++spalte)
        for (int eine = spalte + 1; eine <= 49; eine += 7)
            if (eine == zahl)
                return spalte;
    return -1;
}

/// "1955/41   03 12 13 16 23 41" of the draws whose six numbers are all in `zellen`.
std::vector<std::string> ganzIn(const std::vector<RohZiehung>& roh, const std::set<int>& zellen)
{
    std::vector<std::string> zeilen;
    for (const RohZiehung& ziehung : roh) {
        int treffer = 0;
        std::string zeile = ziehung.jahrUndWoche + "  ";
        for (const int zahl : ziehung.zahlen) {
            treffer += static_cast<int>(zellen.count(zahl));
            zeile += (zahl < 10 ? " 0" : " ") + std::to_string(zahl);
        }
        if (treffer == 6)
            zeilen.push_back(zeile);
    }
    return zeilen;
}

std::vector<std::string> zeilenVon(const std::vector<Ziehungsfund>& funde)
{
    std::vector<std::string> zeilen;
    std::ranges::transform(funde, std::back_inserter(zeilen), ziehungszeile);
    return zeilen;
}

std::set<int> zellenIn(unsigned zeilen, unsigned spalten)
{
    std::set<int> zellen;
    for (int zahl = 1; zahl <= 49; ++zahl)
        if ((zeilen >> zeileVon(zahl) & 1U) != 0 || (spalten >> spalteVon(zahl) & 1U) != 0)
            zellen.insert(zahl);
    return zellen;
}

Tippfeld7x7 feldMit(const std::set<int>& zellen)
{
    Tippfeld7x7 feld;
    feld.zeige(std::vector<std::int32_t>(zellen.begin(), zellen.end()));
    return feld;
}

class EchteGitterfilter : public EchteDaten {
protected:
    void pruefe(unsigned zeilen, unsigned spalten) const
    {
        const Zellsuche suche = FiltereNachZellen(archiv_, zellenDer(zeilen, spalten), datumVon);
        EXPECT_EQ(zeilenVon(suche.funde), ganzIn(roh_, zellenIn(zeilen, spalten))) << zeilen << " " << spalten;
    }
};

TEST_P(EchteGitterfilter, AlleAuswahlenVonZeilen)
{
    for (unsigned zeilen = 0; zeilen < 128; ++zeilen)
        pruefe(zeilen, 0);
}

TEST_P(EchteGitterfilter, AlleAuswahlenVonSpalten)
{
    for (unsigned spalten = 0; spalten < 128; ++spalten)
        pruefe(0, spalten);
}

TEST_P(EchteGitterfilter, ZeilenUndSpaltenZusammen)
{
    for (unsigned zeile = 0; zeile < 7; ++zeile)
        for (unsigned spalte = 0; spalte < 7; ++spalte)
            pruefe(1U << zeile, 1U << spalte);
    std::mt19937 zufall(7);
    for (int i = 0; i < 100; ++i)
        pruefe(zufall() % 128, zufall() % 128);
}

TEST_P(EchteGitterfilter, HundertZufaelligeBereiche)
{
    std::mt19937 zufall(49);
    std::vector<int> zahlen(49);
    std::iota(zahlen.begin(), zahlen.end(), 1);
    for (int i = 0; i < 100; ++i) {
        std::ranges::shuffle(zahlen, zufall);
        const std::set<int> bereich(zahlen.begin(), zahlen.begin() + 6 + i % 43);
        const Zellsuche suche = FiltereNachZellen(archiv_, feldMit(bereich), datumVon);
        EXPECT_EQ(zeilenVon(suche.funde), ganzIn(roh_, bereich)) << i;
    }
}

TEST_P(EchteGitterfilter, DieGanzeMustertafelInBeidenRichtungen)
{
    const std::vector<std::vector<int>> kMuster{
        {6},       {5, 1},       {4, 2},          {4, 1, 1},         {3, 3}, {3, 2, 1}, {3, 1, 1, 1},
        {2, 2, 2}, {2, 2, 1, 1}, {2, 1, 1, 1, 1}, {1, 1, 1, 1, 1, 1}};
    const Musterverteilung verteilung = zaehleMuster(archiv_);
    for (const bool nachZeilen : {true, false}) {
        std::map<std::vector<int>, int> soll;
        for (const RohZiehung& ziehung : roh_) {
            std::map<int, int> jeLinie;
            for (const int zahl : ziehung.zahlen)
                ++jeLinie[nachZeilen ? zeileVon(zahl) : spalteVon(zahl)];
            std::vector<int> anzahlen;
            for (const auto& [linie, anzahl] : jeLinie)
                anzahlen.push_back(anzahl);
            std::ranges::sort(anzahlen, std::greater());
            ++soll[anzahlen];
        }
        int summe = 0;
        for (std::size_t muster = 0; muster < kGittermuster; ++muster) {
            const Linienart art = nachZeilen ? Linienart::Zeile : Linienart::Spalte;
            const int ziehungen = (nachZeilen ? verteilung.zeilen : verteilung.spalten)[muster];
            EXPECT_EQ(ziehungen, soll[kMuster[muster]]) << muster;
            EXPECT_EQ(BerechneMuster(archiv_, art, muster).funde.size(), static_cast<std::size_t>(ziehungen));
            summe += ziehungen;
        }
        EXPECT_EQ(summe, archiv_.AnzahlZiehungen);
    }
}

INSTANTIATE_TEST_SUITE_P(AlleSpielarten, EchteGitterfilter,
                         testing::Values(Samstagslotto, Mittwochslotto, MittwochslottoB));

class EchteZellfilterZusammen : public EchteSpielarten {};

TEST_P(EchteZellfilterZusammen, FindenInAllenGewaehltenDateien)
{
    for (const unsigned linien : {1U, 3U, 21U, 85U, 127U}) {
        EXPECT_EQ(zeilenVon(FiltereNachZellen(archiv_, zellenDer(linien, 0), datumAlleVon).funde),
                  ganzIn(roh_, zellenIn(linien, 0)));
        EXPECT_EQ(zeilenVon(FiltereNachZellen(archiv_, zellenDer(0, linien), datumAlleVon).funde),
                  ganzIn(roh_, zellenIn(0, linien)));
        EXPECT_EQ(zeilenVon(FiltereNachZellen(archiv_, zellenDer(linien, linien), datumAlleVon).funde),
                  ganzIn(roh_, zellenIn(linien, linien)));
    }
    const Zellsuche alle = FiltereNachZellen(archiv_, zellenDer(127, 0), datumAlleVon);
    EXPECT_EQ(alle.funde.size(), roh_.size());
    EXPECT_EQ(alle.funde.back().datum.ends_with(" (B)"), (GetParam() & 4) != 0);
}

INSTANTIATE_TEST_SUITE_P(AlleAuswahlen, EchteZellfilterZusammen, testing::Range(1, 8));

} // namespace

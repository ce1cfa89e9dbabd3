#include "filters/logic/Gittermuster.h"

#include "filters/logic/Fundangabe.h"
#include "shell/logic/Format.h"
#include "shell/logic/Lottozahl.h"
#include "shell/logic/Tippfeld7x7.h"

#include <algorithm>

namespace {

struct Gittermuster {
    std::string_view zeile;
    std::string_view spalte;
    std::int32_t Muster = 0;
};

constexpr Gittermuster fuerBeide(std::string_view beschriftung, std::int32_t Muster)
{
    return {beschriftung, beschriftung, Muster};
}

constexpr std::array<Gittermuster, kGittermuster> kMuster{{
    {"6 Zahlen in einer Zeile", "6 Zahlen in einer Spalte", 6},
    {"5 Zahlen in einer Zeile", "5 Zahlen in einer Spalte", 15},
    fuerBeide("1 x 4 Zahlen, 1 x 2 Zahlen", 24),
    fuerBeide("1 x 4 Zahlen, 2 x 1 Zahl", 114),
    fuerBeide("2 x 3 Zahlen", 33),
    fuerBeide("1 x 3, 1 x 2, 1 x 1 Zahl", 123),
    fuerBeide("1 x 3 Zahlen, 3 x 1 Zahl", 1113),
    fuerBeide("3 x 2 Zahlen", 222),
    fuerBeide("2 x 2 Zahlen, 2 x 1 Zahl", 1122),
    fuerBeide("1 x 2 Zahlen, 4 x 1 Zahl", 11112),
    fuerBeide("6 x 1 Zahl", 111111),
}};

constexpr std::string_view kStriche = "---------------------------------------------------------------------";

int linie(std::int32_t zahl, Linienart art)
{
    return art == Linienart::Zeile ? Tippfeld7x7::zeile(zahl) : Tippfeld7x7::spalte(zahl);
}

/// Draws whose numbers are none of the game have a code that belongs to no way and are not counted.
void zaehle(std::array<std::int32_t, kGittermuster>& ziehungen, std::int32_t code)
{
    const auto muster = std::ranges::find(kMuster, code, &Gittermuster::Muster);
    if (muster != kMuster.end())
        ++ziehungen[static_cast<std::size_t>(muster - kMuster.begin())];
}

void haengeTafelAn(std::vector<std::string>& zeilen, std::string_view kopf, Linienart art,
                   const Musterverteilung& verteilung)
{
    zeilen.emplace_back(kStriche);
    zeilen.emplace_back(kopf);
    zeilen.emplace_back(kStriche);
    const auto& ziehungen = art == Linienart::Zeile ? verteilung.zeilen : verteilung.spalten;
    for (std::size_t muster = 0; muster < kGittermuster; ++muster) {
        const auto anzahl = static_cast<std::size_t>(ziehungen[muster]);
        zeilen.push_back(Format(beschriftung(muster, art), "!@@@@@@@@@@@@@@@@@@@@@@@@@@@") +
                         Format(std::to_string(anzahl), "@@@@@") +
                         Format(Format(prozentVon(anzahl, verteilung.AnzahlZiehungen), "##0.00"), "@@@@@@"));
    }
}

} // namespace

std::string_view beschriftung(std::size_t muster, Linienart art)
{
    return art == Linienart::Zeile ? kMuster[muster].zeile : kMuster[muster].spalte;
}

std::int32_t musterCode(std::size_t muster)
{
    return kMuster[muster].Muster;
}

std::int32_t codeVon(const Kombination& zahlen, Linienart art)
{
    std::array<std::int32_t, Tippfeld7x7::kJeZeile> jeLinie{};
    for (const std::int32_t zahl : zahlen)
        if (gibtEs(zahl))
            ++jeLinie[static_cast<std::size_t>(linie(zahl, art))];
    std::ranges::sort(jeLinie);
    std::int32_t code = 0;
    for (const std::int32_t anzahl : jeLinie)
        code = 10 * code + anzahl;
    return code;
}

Mustersuche BerechneMuster(const ZiehungsArchiv& archiv, Linienart art, std::size_t muster)
{
    Mustersuche suche{art, muster, archiv.AnzahlZiehungen, {}};
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr)
        if (codeVon(archiv.gewinnzahlen(nr), art) == musterCode(muster))
            suche.funde.push_back(ziehungsfund(archiv, nr, datumVon));
    return suche;
}

std::string ergebniszeile(const Mustersuche& suche)
{
    return fundangabe(suche.funde.size(), suche.AnzahlZiehungen, {.einzahl = "Ziehung ", .prozentmaske = "##0.00"});
}

Musterverteilung zaehleMuster(const ZiehungsArchiv& archiv)
{
    Musterverteilung verteilung;
    verteilung.AnzahlZiehungen = archiv.AnzahlZiehungen;
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr) {
        zaehle(verteilung.zeilen, codeVon(archiv.gewinnzahlen(nr), Linienart::Zeile));
        zaehle(verteilung.spalten, codeVon(archiv.gewinnzahlen(nr), Linienart::Spalte));
    }
    return verteilung;
}

std::vector<std::string> uebersicht(const Musterverteilung& verteilung)
{
    std::vector<std::string> zeilen;
    haengeTafelAn(zeilen, " Verteilung der Gewinnzahlen auf die Tippfeld-Zeilen", Linienart::Zeile, verteilung);
    zeilen.emplace_back();
    haengeTafelAn(zeilen, " Verteilung der Gewinnzahlen auf die Tippfeld-Spalten", Linienart::Spalte, verteilung);
    return zeilen;
}

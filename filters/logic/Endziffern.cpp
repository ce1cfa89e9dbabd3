#include "filters/logic/Endziffern.h"

#include "filters/logic/Fundangabe.h"
#include "shell/logic/Format.h"
#include "shell/logic/Lottozahl.h"

#include <algorithm>

namespace {

constexpr std::int32_t kBasis = 10;
constexpr std::size_t kUebersichtsbreite = 103;

struct Zeile {
    std::string_view beschriftung;
    Endzifferkonstellation konstellation;
    std::string_view moeglicheFaelle;
};

constexpr std::array<Zeile, kEndzifferkonstellationen> kZeilen{{
    {"6 verschiedene Endziffern", {.E = 6}, "                    2.887.500  20,649%"},
    {"4 verschiedene, 2 gleiche", {.E = 4, .Z = 1}, "                    6.930.000  49,557%"},
    {"3 verschiedene, 3 gleiche", {.E = 3, .D = 1}, "                      924.000   6,608%"},
    {"2 verschiedene, 2 x 2 gleiche", {.E = 2, .Z = 2}, "                    2.772.000  19,823%"},
    {"2 verschiedene, 4 gleiche", {.E = 2, .V = 1}, "                       39.600   0,283%"},
    {"1 x 3 gleiche, 1 x 2 gleiche, 1 x 1", {.E = 1, .Z = 1, .D = 1}, "                      316.800   2,265%"},
    {"1 x 5 gleiche und 1 x 1 Ziffer", {.E = 1, .F = 1}, "                          396   0,003%"},
    {"3 x 2 gleiche Ziffern", {.Z = 3}, "                      105.600   0,755%"},
    {"1 x 2 und 1 x 4 gleiche Ziffern", {.Z = 1, .V = 1}, "                        3.960   0,028%"},
    {"2 x 3 gleiche Ziffern", {.D = 2}, "                        3.960   0,028%"},
}};

/// Cells of one character between bars.
std::string zellen(std::span<const std::int32_t> anzahlen)
{
    std::string text = "|";
    for (const std::int32_t anzahl : anzahlen)
        text += (anzahl == 0 ? "-" : std::to_string(anzahl)) + "|";
    return text;
}

std::int32_t haeufigkeit(const Endziffern& ziffern, std::int32_t mal)
{
    return static_cast<std::int32_t>(std::ranges::count(ziffern, mal));
}

std::string uebersichtszeile(std::string_view beschriftung, std::string_view ziehungen, std::string_view faelle)
{
    return " " + Format(beschriftung, "!@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@") + Format(ziehungen, "@@@@@@@@") +
           std::string(faelle);
}

} // namespace

std::string_view beschriftung(std::size_t nummer)
{
    return kZeilen[nummer].beschriftung;
}

const Endzifferkonstellation& konstellation(std::size_t nummer)
{
    return kZeilen[nummer].konstellation;
}

std::string_view moeglicheFaelle(std::size_t nummer)
{
    return kZeilen[nummer].moeglicheFaelle;
}

Endziffern endziffern(const Kombination& zahlen)
{
    Endziffern ziffern{};
    for (const std::int32_t zahl : zahlen)
        if (gibtEs(zahl))
            ++ziffern[static_cast<std::size_t>(zahl % kBasis)];
    return ziffern;
}

Endzifferkonstellation konstellationVon(const Endziffern& ziffern)
{
    return {haeufigkeit(ziffern, 1), haeufigkeit(ziffern, 2), haeufigkeit(ziffern, 3), haeufigkeit(ziffern, 4),
            haeufigkeit(ziffern, 5)};
}

std::string endzifferzeile(const Ziehungsfund& ziehung)
{
    const Endziffern ziffern = endziffern(ziehung.zahlen);
    const auto [E, Z, D, V, F] = konstellationVon(ziffern);
    return ziehungszeile(ziehung) + "    " + Format(ziehung.datum, "!@@@@@@@@@@@@@@@@@") + zellen(ziffern) + "    " +
           zellen(std::array{E, Z, D, V, F});
}

Endziffernsuche sucheEndziffern(std::span<const Ziehungsfund> ziehungen, std::size_t nummer)
{
    Endziffernsuche suche{nummer, static_cast<std::int32_t>(ziehungen.size()), {}};
    std::ranges::copy_if(ziehungen, std::back_inserter(suche.funde), [&](const Ziehungsfund& ziehung) {
        return konstellationVon(endziffern(ziehung.zahlen)) == konstellation(nummer);
    });
    return suche;
}

std::string ergebniszeile(const Endziffernsuche& suche)
{
    if (suche.funde.empty())
        return "      *** Noch nicht aufgetreten ***";
    return fundangabe(suche.funde.size(), suche.AnzahlZiehungen, {.einzahl = "Ziehung ", .prozentmaske = "##0.000"});
}

Endziffernverteilung zaehleEndziffern(std::span<const Ziehungsfund> ziehungen)
{
    Endziffernverteilung verteilung;
    verteilung.AnzahlZiehungen = static_cast<std::int32_t>(ziehungen.size());
    for (const Ziehungsfund& ziehung : ziehungen) {
        const auto zeile =
            std::ranges::find(kZeilen, konstellationVon(endziffern(ziehung.zahlen)), &Zeile::konstellation);
        if (zeile != kZeilen.end())
            ++verteilung.ziehungen[static_cast<std::size_t>(zeile - kZeilen.begin())];
    }
    return verteilung;
}

std::vector<std::string> uebersicht(const Endziffernverteilung& verteilung)
{
    const std::string striche(kUebersichtsbreite, '-');
    std::vector<std::string> zeilen{
        striche,
        " Endzifferkonstellation            Ziehungen mit dieser Konstellation          überhaupt mögliche Fälle",
        striche};
    for (std::size_t nummer = 0; nummer < kEndzifferkonstellationen; ++nummer) {
        const auto anzahl = static_cast<std::size_t>(verteilung.ziehungen[nummer]);
        const std::string anteil = Format(prozentVon(anzahl, verteilung.AnzahlZiehungen), "##0.000") + "%";
        zeilen.push_back(
            uebersichtszeile(beschriftung(nummer), std::to_string(anzahl),
                             " Ziehungen " + Format(anteil, "@@@@@@@@") + std::string(moeglicheFaelle(nummer))));
    }
    zeilen.push_back(striche);
    zeilen.push_back(uebersichtszeile("", std::to_string(verteilung.AnzahlZiehungen),
                                      " Ziehungen 100,000%" +
                                          Format("13.983.816 100,000%", "@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@")));
    zeilen.push_back(striche);
    return zeilen;
}

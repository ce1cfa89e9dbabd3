#include "filters/logic/Dekaden.h"

#include "shell/logic/Format.h"
#include "shell/logic/Lottozahl.h"

#include <bit>

namespace {

constexpr std::int32_t kJeDekade = 10;

constexpr std::array<std::string_view, kDekaden> kNamen{"1-9", "10-19", "20-29", "30-39", "40-49"};

/// The report of a search begins its first decade with 0.
constexpr std::array<std::string_view, kDekaden> kBerichtsnamen{"0-9", "10-19", "20-29", "30-39", "40-49"};

/// By how many decades the codes take, from one to four; the only code of five needs none.
constexpr std::array<std::string_view, 4> kGruppen{
    "Alle 6 Gewinnzahlen in nur einer Dekade", "Die 6 Gewinnzahlen in zwei Dekaden",
    "Die 6 Gewinnzahlen in drei Dekaden", "Die 6 Gewinnzahlen in vier Dekaden"};

std::string uebersichtszeile(Dekadencode code, std::int32_t ziehungen)
{
    std::string zeile = "|";
    for (std::size_t dekade = 0; dekade < kDekaden; ++dekade)
        zeile += (code & gewicht(dekade)) != 0 ? "   x   |" : "   -   |";
    return zeile + "  :" + std::to_string(ziehungen);
}

void haengeCodesAn(std::vector<std::string>& zeilen, int dekaden, const Dekadenverteilung& verteilung)
{
    for (Dekadencode code = kDekadencodes - 1; code > 0; --code)
        if (std::popcount(code) == dekaden)
            zeilen.push_back(uebersichtszeile(code, verteilung[code]));
}

} // namespace

std::string_view dekadenname(std::size_t dekade)
{
    return kNamen[dekade];
}

Dekadencode gewicht(std::size_t dekade)
{
    return Dekadencode{1} << (kDekaden - 1 - dekade);
}

Dekadenzahlen dekadenzahlen(const Kombination& zahlen)
{
    Dekadenzahlen anzahlen{};
    for (const std::int32_t zahl : zahlen)
        if (gibtEs(zahl))
            ++anzahlen[static_cast<std::size_t>(zahl / kJeDekade)];
    return anzahlen;
}

Dekadencode codeVon(const Dekadenzahlen& anzahlen)
{
    Dekadencode code = 0;
    for (std::size_t dekade = 0; dekade < kDekaden; ++dekade)
        if (anzahlen[dekade] > 0)
            code += gewicht(dekade);
    return code;
}

std::string dekadenzeile(const Ziehungsfund& ziehung)
{
    std::string zeile = ziehungszeile(ziehung);
    for (const std::int32_t anzahl : dekadenzahlen(ziehung.zahlen))
        zeile += "  |  " + std::to_string(anzahl);
    return zeile;
}

Dekadensuche sucheDekaden(std::span<const Ziehungsfund> ziehungen, std::int32_t gesucht)
{
    Dekadensuche suche{gesucht, {}};
    for (std::size_t stelle = 0; stelle < ziehungen.size(); ++stelle) {
        const Dekadenzahlen anzahlen = dekadenzahlen(ziehungen[stelle].zahlen);
        for (std::size_t dekade = 0; dekade < kDekaden; ++dekade)
            if (anzahlen[dekade] == gesucht)
                suche.stellen[dekade].push_back(stelle);
    }
    return suche;
}

std::string bericht(const Dekadensuche& suche)
{
    std::string text = "Anzahl der Ziehungen: ";
    for (std::size_t dekade = 0; dekade < kDekaden; ++dekade)
        text += "\nZiehungen mit " + std::to_string(suche.gesucht) + " Gewinnzahlen im Bereich " +
                Format(kBerichtsnamen[dekade], "!@@@@@") + " :" +
                Format(std::to_string(suche.stellen[dekade].size()), "@@@@@@");
    return text;
}

Konstellationssuche sucheKonstellation(std::span<const Ziehungsfund> ziehungen, Dekadencode gesucht)
{
    Konstellationssuche suche{gesucht, {}};
    if (gesucht == 0)
        return suche;
    for (std::size_t stelle = 0; stelle < ziehungen.size(); ++stelle)
        if (codeVon(dekadenzahlen(ziehungen[stelle].zahlen)) == gesucht)
            suche.stellen.push_back(stelle);
    return suche;
}

std::string ergebnistext(const Konstellationssuche& suche)
{
    if (suche.gesucht == 0 || !suche.stellen.empty())
        return "Anzahl der Ziehungen: " + std::to_string(suche.stellen.size());
    if (std::has_single_bit(suche.gesucht))
        return " Die Konstellationan alle \"6 Gewinnzahlen in nur einer Dekade\" ist noch nicht aufgetreten.";
    return " Die Konstellationan ist noch nicht aufgetreten.";
}

Dekadenverteilung zaehleKonstellationen(std::span<const Ziehungsfund> ziehungen)
{
    Dekadenverteilung verteilung{};
    for (const Ziehungsfund& ziehung : ziehungen)
        ++verteilung[codeVon(dekadenzahlen(ziehung.zahlen))];
    return verteilung;
}

std::vector<std::string> uebersicht(const Dekadenverteilung& verteilung)
{
    std::vector<std::string> zeilen;
    for (std::size_t i = 0; i < kGruppen.size(); ++i) {
        zeilen.emplace_back(kGruppen[i]);
        haengeCodesAn(zeilen, static_cast<int>(i) + 1, verteilung);
        zeilen.emplace_back();
    }
    haengeCodesAn(zeilen, static_cast<int>(kDekaden), verteilung);
    return zeilen;
}

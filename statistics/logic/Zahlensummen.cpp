#include "statistics/logic/Zahlensummen.h"

#include "shell/logic/Format.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr std::size_t kSummenfeld = 7; ///< characters at the beginning of a line that hold its sum

std::string zeile(const ZiehungsArchiv& archiv, std::size_t nr, std::int64_t summe, bool mitZZ)
{
    const auto zweistellig = [](std::int32_t zahl) { return Format(std::to_string(zahl), "@@"); };
    std::string text = Format(std::to_string(summe), "@@@") + "       " + jahrUndWoche(archiv, nr) + "   ";
    std::string_view trenner;
    for (const std::int32_t zahl : archiv.gewinnzahlen(nr)) {
        text.append(trenner).append(zweistellig(zahl));
        trenner = "  ";
    }
    if (mitZZ)
        text += "    " + (archiv.zz[nr] == 0 ? " -" : zweistellig(archiv.zz[nr]));
    return text;
}

std::string summenfeld(const std::string& zeile)
{
    return zeile.substr(0, kSummenfeld);
}

std::string_view zusatz(const Zahlensummen& summen)
{
    return summen.mitZZ ? "(mit Zusatzzahl)" : "(ohne Zusatzzahl)";
}

} // namespace

Zahlensummen summiere(const ZiehungsArchiv& archiv, bool mitZZ)
{
    Zahlensummen summen;
    summen.mitZZ = mitZZ;
    summen.Ziehungen = archiv.AnzahlZiehungen;
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr) {
        std::int64_t summe = mitZZ ? archiv.zz[nr] : 0;
        for (const std::int32_t zahl : archiv.gewinnzahlen(nr))
            summe += zahl;
        summen.Gesamtsumme += summe;
        summen.zeilen.push_back(zeile(archiv, nr, summe, mitZZ));
    }
    std::ranges::sort(summen.zeilen);
    return summen;
}

HaeufigsteSumme haeufigsteSumme(const Zahlensummen& summen)
{
    HaeufigsteSumme beste;
    HaeufigsteSumme lauf;
    for (const std::string& zeile : summen.zeilen) {
        const std::int32_t summe = fuehrendeZahl(summenfeld(zeile));
        lauf = {summe, lauf.anzahl > 0 && lauf.summe == summe ? lauf.anzahl + 1 : 1};
        if (lauf.anzahl > beste.anzahl)
            beste = lauf;
    }
    return beste;
}

std::string anzahltext(const Zahlensummen& summen)
{
    return std::to_string(summen.Ziehungen) + " Ziehungen ausgewertet";
}

std::string minimumText(const Zahlensummen& summen)
{
    return "Minimum: " + (summen.zeilen.empty() ? std::string() : summenfeld(summen.zeilen.front()));
}

std::string maximumText(const Zahlensummen& summen)
{
    return "Maximum: " + (summen.zeilen.empty() ? std::string() : summenfeld(summen.zeilen.back()));
}

std::string gesamttext(const Zahlensummen& summen)
{
    return "Gesamtsumme der gezogenen Zahlen " + std::string(zusatz(summen)) + ": " +
           std::to_string(summen.Gesamtsumme);
}

std::string haeufigstetext(const Zahlensummen& summen)
{
    const HaeufigsteSumme beste = haeufigsteSumme(summen);
    return "Häufigste Summe: " + std::to_string(beste.summe) + " ->  Sie ist " + std::to_string(beste.anzahl) +
           " mal aufgetreten. " + std::string(zusatz(summen));
}

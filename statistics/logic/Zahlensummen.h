#pragma once

#include "archive/logic/ZiehungsArchiv.h"

#include <cstdint>
#include <string>
#include <vector>

/// The sum of the numbers of each draw of an archive.
struct Zahlensummen {
    bool mitZZ = false;              ///< the Zusatzzahl is part of the sums
    std::int32_t Ziehungen = 0;      ///< all of the archive
    std::int64_t Gesamtsumme = 0;    ///< of all draws
    std::vector<std::string> zeilen; ///< " 21       1955/41    1  2  3 ...", by sum, within a sum by date
};

Zahlensummen summiere(const ZiehungsArchiv& archiv, bool mitZZ);

/// The sum that comes most often, of several the smallest; without draws 0 and 0.
struct HaeufigsteSumme {
    std::int32_t summe = 0;
    std::int32_t anzahl = 0;
};

HaeufigsteSumme haeufigsteSumme(const Zahlensummen& summen);

/// "3693 Ziehungen ausgewertet".
std::string anzahltext(const Zahlensummen& summen);
/// "Minimum:  45    " and "Maximum: 273    ", the latter's number empty without draws.
std::string minimumText(const Zahlensummen& summen);
std::string maximumText(const Zahlensummen& summen);
/// "Gesamtsumme der gezogenen Zahlen (ohne Zusatzzahl): 553000".
std::string gesamttext(const Zahlensummen& summen);
/// "Häufigste Summe: 150 ->  Sie ist 61 mal aufgetreten. (ohne Zusatzzahl)".
std::string haeufigstetext(const Zahlensummen& summen);

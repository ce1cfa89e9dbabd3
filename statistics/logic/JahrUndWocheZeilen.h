#pragma once

#include "statistics/logic/JahrUndWoche.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

/// Rows of a list with their highest count, and where it stands.
struct Anzahlzeilen {
    std::vector<std::string> zeilen;
    std::int32_t maximum = 0;
    std::vector<std::size_t> hoechste; ///< all rows with the highest count, ascending
};

/// "1955        3": the count in the last seven places.
Anzahlzeilen jahreszeilen(const HaeufigkeitProJahr& haeufigkeit);

/// "   41         7": the count in the last eight places; always 53 rows.
Anzahlzeilen wochenzeilen(const HaeufigkeitProWoche& haeufigkeit);

/// For each year a row for each hit, a rule and the sum; a double rule between the years.
std::vector<std::string> detailzeilen(std::span<const Jahrestreffer> jahre);

/// The reports for the clipboard. `zeilen` are the rows as the list shows them.
std::string berichtProJahr(const JahrUndWoche& auswertung, std::span<const std::string> zeilen);
std::string berichtProWoche(const JahrUndWoche& auswertung, std::span<const std::string> zeilen);

#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/ZZModus.h"

#include <cstdint>
#include <string>

/// The longest that any number has stayed away before it came again. The gap to the first hit of a number counts from
/// before draw 1, so that it is one more than the weeks in the list of that number.
struct LaengsterAbstand {
    int zahl = 0;                ///< the number that came again; 0: no number came at all
    std::int32_t ZiehungsNr = 0; ///< the draw that it came with
    std::int32_t jjjj = 0;
    std::int32_t sw = 0;
    std::int32_t wochen = 0;

    bool operator==(const LaengsterAbstand&) const = default;
};

/// Searches all 49 numbers. Of equal absences that of the lowest number is given, and of this number the earliest.
LaengsterAbstand laengsterAbstand(const ZiehungsArchiv& archiv, ZZModus modus);

/// Sets the Zusatzzahl of the first 36 draws to 0: it began with the 37th draw on Saturday, and what the file holds
/// before that does not count. It stays so until the next load.
void loescheFrueheZusatzzahlen(ZiehungsArchiv& archiv);

/// The line of the result, and below it what was searched.
std::string laengsterAbstandText(const LaengsterAbstand& abstand, ZZModus modus);

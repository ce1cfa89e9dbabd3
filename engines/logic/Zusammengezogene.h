#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/Lottozahl.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// How often each number was drawn together with chosen ones.
struct Zusammengezogene {
    std::vector<std::int32_t> gewaehlte;                    ///< numbers 1..49
    std::array<std::int32_t, kHoechsteZahl + 1> anzahlen{}; ///< by number: draws that hold it and all chosen ones
    std::int32_t ziehungen = 0;                             ///< that were counted
};

/// Counts in one pass over the archive. Numbers of a draw outside of 1..49 count nowhere.
Zusammengezogene zaehleZusammengezogene(const ZiehungsArchiv& archiv, std::vector<std::int32_t> gewaehlte);

/// A line for each number but the chosen ones, ascending: " 7  ->  612".
std::vector<std::string> zeilenNachZahl(const Zusammengezogene& ergebnis);

/// The same with the count first, in the order of the texts: the rarest number first, equal ones by number.
std::vector<std::string> zeilenNachHaeufigkeit(const Zusammengezogene& ergebnis);

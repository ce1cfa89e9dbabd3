#pragma once

#include "archive/logic/Zahlenmenge.h"
#include "archive/logic/ZiehungsArchiv.h"

#include <vector>

/// The draws of the archive as sets of their Gewinnzahlen, oldest first.
inline std::vector<Zahlenmenge> ziehungsmengen(const ZiehungsArchiv& archiv)
{
    std::vector<Zahlenmenge> mengen;
    mengen.reserve(static_cast<std::size_t>(archiv.AnzahlZiehungen));
    for (std::int32_t nr = 1; nr <= archiv.AnzahlZiehungen; ++nr)
        mengen.push_back(zahlenmenge(archiv.gewinnzahlen(static_cast<std::size_t>(nr))));
    return mengen;
}

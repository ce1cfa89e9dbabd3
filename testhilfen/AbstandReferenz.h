#pragma once

#include "statistics/logic/AbstandMaximum.h"

#include <algorithm>

/// The search for the longest absence as one thinks it: a pass over all draws for each number. The measure of tests
/// and benchmarks.
inline LaengsterAbstand laengsterAbstandEinfach(const ZiehungsArchiv& archiv, ZZModus modus)
{
    LaengsterAbstand maximum;
    for (int zahl = 1; zahl <= 49; ++zahl) {
        std::int32_t vorher = 0;
        for (std::int32_t nr = 1; nr <= archiv.AnzahlZiehungen; ++nr) {
            const auto i = static_cast<std::size_t>(nr);
            const auto zahlen = archiv.gewinnzahlen(i);
            const bool gezogen =
                zaehltGewinnzahlen(modus) && std::find(zahlen.begin(), zahlen.end(), zahl) != zahlen.end();
            if (!gezogen && !(zaehltZusatzzahl(modus) && archiv.zz[i] == zahl))
                continue;
            if (nr - vorher > maximum.wochen)
                maximum = {zahl, nr, archiv.jjjj[i], archiv.sw[i], nr - vorher};
            vorher = nr;
        }
    }
    return maximum;
}

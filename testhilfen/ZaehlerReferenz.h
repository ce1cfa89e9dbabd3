#pragma once

#include "archive/logic/Kombination.h"
#include "archive/logic/ZiehungsArchiv.h"
#include "engines/logic/Trefferzaehler.h"

#include <array>
#include <cstddef>

/// The hits of a combination by the plain way: a table of flags, looked up for each number of each draw. The draws must
/// hold numbers of 1..49.
inline Trefferzaehler trefferEinfach(const ZiehungsArchiv& archiv, const Kombination& kombination,
                                     std::int32_t superzahl)
{
    std::array<std::int32_t, 50> flag{};
    for (const std::int32_t zahl : kombination)
        flag[static_cast<std::size_t>(zahl)] = 1;
    const auto von = [&flag](std::int32_t zahl) { return flag[static_cast<std::size_t>(zahl)]; };
    Trefferzaehler zaehler;
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr) {
        const auto summe = static_cast<std::size_t>(von(archiv.z1[nr]) + von(archiv.z2[nr]) + von(archiv.z3[nr]) +
                                                    von(archiv.z4[nr]) + von(archiv.z5[nr]) + von(archiv.z6[nr]));
        if (summe >= 2 && archiv.s[nr] == superzahl)
            ++zaehler.mitSuperzahl[summe];
        else if (summe >= 3)
            ++zaehler.ohneSuperzahl[summe];
    }
    return zaehler;
}

#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/ZZModus.h"

#include <algorithm>
#include <cstddef>

/// True if draw `nr`, 1..AnzahlZiehungen, holds the number, 1..49, among those that count.
inline bool trifft(const ZiehungsArchiv& archiv, std::size_t nr, int zahl, ZZModus modus)
{
    if (zaehltZusatzzahl(modus) && archiv.zz[nr] == zahl)
        return true;
    const auto zahlen = archiv.gewinnzahlen(nr);
    return zaehltGewinnzahlen(modus) && std::find(zahlen.begin(), zahlen.end(), zahl) != zahlen.end();
}

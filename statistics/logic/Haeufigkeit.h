#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/Auswertebereich.h"
#include "shell/logic/Lottozahl.h"
#include "shell/logic/ZZModus.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>

/// How often each number was drawn in a range of draws.
struct Haeufigkeit {
    std::array<std::int16_t, kHoechsteZahl> anzahl{}; ///< index: number - 1
    std::int32_t AusgewerteteZiehungen = 0;
    std::int32_t LetzteZiehung = 0; ///< ZiehungsNr of the last draw in the range, in the archive counted last; 0: none
    std::int32_t letztesSpieljahr = 0; ///< of the latest draw in the range, over all archives counted
    std::int32_t letzteSpielwoche = 0;

    /// Count of a number 1..49.
    std::int16_t fuer(int zahl) const { return anzahl[static_cast<std::size_t>(zahl - 1)]; }

    bool operator==(const Haeufigkeit&) const = default;
};

/// Counts the draws of `bereich`. A Zusatzzahl of 0, like any number outside 1..49, is no number and never counts.
/// An empty range gives all zeros.
Haeufigkeit zaehleHaeufigkeit(const ZiehungsArchiv& archiv, const Ziehungsbereich& bereich, ZZModus modus);

/// Adds the draws of another archive to a count; the bound of the range holds in each archive on its own.
void zaehleDazu(Haeufigkeit& summe, const ZiehungsArchiv& archiv, const Ziehungsbereich& bereich, ZZModus modus);

/// The highest and the lowest of the 49 counts. Of several numbers with the same count, the highest number is named.
struct Extremwerte {
    std::int16_t max = 0;
    std::int16_t min = 0;
    int zahlMax = kHoechsteZahl;
    int zahlMin = kHoechsteZahl;
    std::bitset<50> maxima; ///< [1..49]: all numbers with the highest count
    std::bitset<50> minima; ///< [1..49]: all numbers with the lowest count; with equal counts all 49 are in both
};

Extremwerte extremwerte(const Haeufigkeit& haeufigkeit);

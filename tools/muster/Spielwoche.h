#pragma once

#include <chrono>

struct Spielwoche {
    int jahr = 0;  ///< Spieljahr
    int woche = 0; ///< 1..53

    bool operator==(const Spielwoche&) const = default;
};

/// Spieljahr and Spielwoche under which the draw of a day is recorded.
///
/// Up to the Spieljahr 1982 the weeks of a year count its Sundays (from 1974 its Saturdays); a draw on another day
/// belongs to the Sunday that it stands for. From 1983 on, and for every Wednesday draw, the week is that of ISO 8601.
/// The two meet on 01.01.1983, which is 1982/53.
Spielwoche spielwocheVon(std::chrono::sys_days tag);

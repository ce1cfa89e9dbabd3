#pragma once

#include "archive/logic/Kombination.h"
#include "shell/logic/Zufall.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

/// A tip of six random numbers, ascending. `saat` stirs the random numbers.
Kombination zufallstipp(Zufall& zufall, double saat);

inline constexpr std::size_t kZufallstipps = 6;

/// Six tips by chance, and how often each number came in these and all made before.
struct Zufallstipps {
    std::array<std::array<int, 6>, kZufallstipps> tipps{}; ///< each in the order drawn; zeros before the first press
    std::array<std::int32_t, kHoechsteZahl> haeufigkeit{}; ///< index: number - 1
    std::int32_t ausgewertet = 0;                          ///< tips made in all

    /// Tip 0..5, ascending.
    Kombination kombination(std::size_t tip) const;
};

/// Makes six new tips. `sekunden` is the time of day that stirs the random numbers.
void makeTips(Zufallstipps& zufallstipps, Zufall& zufall, double sekunden);

/// "Tipreihe 3  ->   3  7 12 23 34 45" of tip 0..5, ascending.
std::string tipreihenzeile(const Zufallstipps& zufallstipps, std::size_t tip);

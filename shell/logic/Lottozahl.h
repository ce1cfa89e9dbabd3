#pragma once

#include <cstdint>

/// The numbers of the game are 1..kHoechsteZahl.
inline constexpr int kHoechsteZahl = 49;

constexpr bool gibtEs(std::int32_t zahl)
{
    return zahl >= 1 && zahl <= kHoechsteZahl;
}

#pragma once

#include "listcontrol/logic/Farbe.h"

/// The colours of a cell.
struct Farbpaar {
    Farbe grund;
    Farbe schrift;

    friend bool operator==(const Farbpaar&, const Farbpaar&) = default;
};

/// The colours that the result lists have in common.
namespace Listenfarben {
inline constexpr Farbe Schrift{0, 0, 0};
inline constexpr Farbe Hervorgehoben{0xFF, 0xC0, 0x80}; ///< the ground of a row that stands out
inline constexpr Farbe Trenner{0xC0, 0xC0, 0xC0};

/// The ground of all other rows; they count from 0.
constexpr Farbe zeilengrund(int zeile)
{
    return zeile % 2 == 0 ? Farbe{0xD9, 0xFC, 0xFD} : Farbe{255, 255, 255};
}
} // namespace Listenfarben

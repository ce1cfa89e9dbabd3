#pragma once

#include "archive/logic/Zahlenmenge.h"
#include "shell/logic/Lottozahl.h"

#include <array>
#include <cstdint>

/// Six numbers. A tip or a search holds them ascending in 1..49; the row of a file may hold anything.
using Kombination = std::array<std::int32_t, 6>;

/// True for six numbers of 1..49 in strictly ascending order.
constexpr bool istAufsteigend(const Kombination& zahlen)
{
    std::int32_t vorige = 0;
    for (const std::int32_t zahl : zahlen) {
        if (zahl <= vorige || zahl > kHoechsteZahl)
            return false;
        vorige = zahl;
    }
    return true;
}

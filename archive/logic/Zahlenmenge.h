#pragma once

#include "shell/logic/Lottozahl.h"

#include <bit>
#include <cstdint>
#include <span>

/// A set of numbers 1..49: bit z stands for the number z.
using Zahlenmenge = std::uint64_t;

/// What is no number 1..49 is left out, and a number counts once: a row that a file holds wrongly is a smaller set.
constexpr Zahlenmenge zahlenmenge(std::span<const std::int32_t> zahlen)
{
    Zahlenmenge menge = 0;
    for (const std::int32_t zahl : zahlen)
        if (gibtEs(zahl))
            menge |= Zahlenmenge{1} << zahl;
    return menge;
}

/// How many numbers two sets share.
constexpr int gemeinsame(Zahlenmenge a, Zahlenmenge b)
{
    return std::popcount(a & b);
}

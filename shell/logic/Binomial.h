#pragma once

#include "shell/logic/Lottozahl.h"

#include <cstdint>

/// Number of ways to take `k` of `n` things; 0 unless 0 <= k <= n. Exact for every n up to 49.
constexpr std::int64_t Binomial(int n, int k)
{
    if (k < 0 || k > n)
        return 0;
    std::int64_t anzahl = 1;
    for (int i = 1; i <= k; ++i)
        anzahl = anzahl * (n - k + i) / i;
    return anzahl;
}

/// All combinations of 6 aus 49.
inline constexpr std::int32_t kKombinationen6aus49 = 13'983'816;
static_assert(Binomial(kHoechsteZahl, 6) == kKombinationen6aus49);

#pragma once

#include "archive/logic/Zahlenmenge.h"

#include <cstdint>
#include <random>
#include <vector>

/// A set of `anzahl` different numbers 1..n by chance.
inline Zahlenmenge zufallsmenge(std::mt19937& zufall, int n, int anzahl)
{
    std::uniform_int_distribution<int> zahl(1, n);
    Zahlenmenge menge = 0;
    while (std::popcount(menge) < anzahl)
        menge |= Zahlenmenge{1} << zahl(zufall);
    return menge;
}

inline std::vector<Zahlenmenge> zufallsreihen(std::mt19937& zufall, int n, std::size_t anzahl)
{
    std::vector<Zahlenmenge> reihen;
    for (std::size_t i = 0; i < anzahl; ++i)
        reihen.push_back(zufallsmenge(zufall, n, 6));
    return reihen;
}

/// All sets of k of the numbers 1..n, in lexicographic order.
inline std::vector<Zahlenmenge> alleMengen(int n, int k, int ab = 1)
{
    if (k == 0)
        return {0};
    std::vector<Zahlenmenge> mengen;
    for (int zahl = ab; zahl <= n; ++zahl)
        for (const Zahlenmenge rest : alleMengen(n, k - 1, zahl + 1))
            mengen.push_back(Zahlenmenge{1} << zahl | rest);
    return mengen;
}

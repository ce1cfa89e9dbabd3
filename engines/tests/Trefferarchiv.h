#pragma once

#include "archive/logic/Kombination.h"
#include "archive/logic/ZiehungsArchiv.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

/// One draw of a combined archive that a test makes up.
struct Kombinierte {
    Kombination zahlen{};
    std::int32_t s = kOhneSuperzahl;
    std::string datum = "Sa, 02.02.1974";
    std::int32_t jjjj = 1974;
    std::int32_t sw = 5;
};

inline ZiehungsArchiv trefferarchiv(const std::vector<Kombinierte>& ziehungen)
{
    ZiehungsArchiv archiv;
    for (const Kombinierte& ziehung : ziehungen) {
        const auto& z = ziehung.zahlen;
        const std::array<std::int32_t, 10> satz{ziehung.jjjj, ziehung.sw, z[0], z[1], z[2],
                                                z[3],         z[4],       z[5], 0,    ziehung.s};
        const auto spalten = archiv.spalten();
        for (std::size_t i = 0; i < spalten.size(); ++i)
            spalten[i]->push_back(satz[i]);
        archiv.DatumAlle.push_back(ziehung.datum);
        ++archiv.AnzahlZiehungen;
    }
    return archiv;
}

/// `anzahl` draws of six different numbers of 1..49 each, a third of them without a Superzahl.
inline ZiehungsArchiv zufallsarchiv(int anzahl, unsigned keim)
{
    std::mt19937 zufall(keim);
    std::vector<std::int32_t> zahlen(49);
    for (std::size_t i = 0; i < zahlen.size(); ++i)
        zahlen[i] = static_cast<std::int32_t>(i) + 1;
    std::vector<Kombinierte> ziehungen(static_cast<std::size_t>(anzahl));
    for (Kombinierte& ziehung : ziehungen) {
        std::shuffle(zahlen.begin(), zahlen.end(), zufall);
        std::copy_n(zahlen.begin(), 6, ziehung.zahlen.begin());
        std::sort(ziehung.zahlen.begin(), ziehung.zahlen.end());
        ziehung.s = zufall() % 3 == 0 ? kOhneSuperzahl : static_cast<std::int32_t>(zufall() % 10);
    }
    return trefferarchiv(ziehungen);
}

#pragma once

#include "archive/logic/ZiehungsArchiv.h"

#include <array>
#include <cstdint>
#include <vector>

using Zahlenreihe = std::array<std::int32_t, 6>;

/// One draw of an archive that a test makes up.
struct TestZiehung {
    std::int32_t jjjj = 0;
    std::int32_t sw = 0;
    Zahlenreihe zahlen{};
    std::int32_t zz = 0;
};

/// An archive of these draws, ZiehungsNr 1 first.
inline ZiehungsArchiv archivAus(std::int16_t spielart, const std::vector<TestZiehung>& ziehungen)
{
    ZiehungsArchiv archiv;
    archiv.Spielart = spielart;
    for (const TestZiehung& ziehung : ziehungen) {
        const std::array<std::int32_t, 10> satz{
            ziehung.jjjj,      ziehung.sw,        ziehung.zahlen[0], ziehung.zahlen[1], ziehung.zahlen[2],
            ziehung.zahlen[3], ziehung.zahlen[4], ziehung.zahlen[5], ziehung.zz,        0};
        const auto spalten = archiv.spalten();
        for (std::size_t i = 0; i < spalten.size(); ++i)
            spalten[i]->push_back(satz[i]);
        ++archiv.AnzahlZiehungen;
    }
    return archiv;
}

/// Saturday draws of these numbers, all of one week.
inline ZiehungsArchiv archivAus(const std::vector<Zahlenreihe>& reihen)
{
    std::vector<TestZiehung> ziehungen;
    ziehungen.reserve(reihen.size());
    for (const Zahlenreihe& reihe : reihen)
        ziehungen.push_back({2000, 1, reihe});
    return archivAus(Samstagslotto, ziehungen);
}

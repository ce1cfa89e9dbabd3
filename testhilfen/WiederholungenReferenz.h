#pragma once

#include "archive/logic/ZiehungsArchiv.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// The search in its plain form: every set of numbers as a text, the texts sorted, runs of equal neighbours counted.
/// Tests and benchmarks hold the search of the program against it.
namespace Referenz {

inline void StringQuicksort(std::vector<std::string>& a, std::ptrdiff_t lo, std::ptrdiff_t hi)
{
    const auto bei = [&a](std::ptrdiff_t index) -> std::string& { return a[static_cast<std::size_t>(index)]; };
    const std::string pivot = bei((lo + hi) / 2);
    std::ptrdiff_t i = lo;
    std::ptrdiff_t j = hi;
    while (i <= j) {
        while (bei(i) < pivot && i < hi)
            ++i;
        while (pivot < bei(j) && j > lo)
            --j;
        if (i <= j)
            std::swap(bei(i++), bei(j--));
    }
    if (lo < j)
        StringQuicksort(a, lo, j);
    if (i < hi)
        StringQuicksort(a, i, hi);
}

/// All sets of `k` columns of all draws, as "3,17,22,40".
inline std::vector<std::string> suchschluessel(const ZiehungsArchiv& archiv, int k)
{
    std::vector<std::string> alle;
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr) {
        const auto zahlen = archiv.gewinnzahlen(nr);
        for (unsigned spalten = 0; spalten < 64; ++spalten) {
            if (std::popcount(spalten) != k)
                continue;
            std::string text;
            for (std::size_t i = 0; i < 6; ++i)
                if ((spalten >> i & 1U) != 0)
                    text += (text.empty() ? "" : ",") + std::to_string(zahlen[i]);
            alle.push_back(text);
        }
    }
    return alle;
}

struct Gezaehlte {
    std::int32_t AnzahlEinmal = 0;
    std::map<std::string, std::int32_t> mehrfache;
};

inline Gezaehlte suche(const ZiehungsArchiv& archiv, int k)
{
    std::vector<std::string> schluessel = suchschluessel(archiv, k);
    if (!schluessel.empty())
        StringQuicksort(schluessel, 0, std::ssize(schluessel) - 1);
    Gezaehlte ergebnis;
    for (std::size_t von = 0, bis = 0; von < schluessel.size(); von = bis) {
        while (bis < schluessel.size() && schluessel[bis] == schluessel[von])
            ++bis;
        if (bis - von == 1)
            ++ergebnis.AnzahlEinmal;
        else
            ergebnis.mehrfache[schluessel[von]] = static_cast<std::int32_t>(bis - von);
    }
    return ergebnis;
}

} // namespace Referenz

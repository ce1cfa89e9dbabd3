#pragma once

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <vector>

/// The number neighbours by plain loops over six numbers.
namespace Nachbarreferenz {

using Zahlen = std::array<int, 6>;

inline bool enthaelt(const Zahlen& zahlen, int zahl)
{
    return std::ranges::find(zahlen, zahl) != zahlen.end();
}

/// True if the draw holds `erste` and the `k` - 1 numbers behind it.
inline bool enthaeltReihe(const Zahlen& zahlen, int erste, int k)
{
    for (int zahl = erste; zahl < erste + k; ++zahl)
        if (!enthaelt(zahlen, zahl))
            return false;
    return true;
}

/// How many rows of each length a draw falls apart into, single numbers left out: "2+3" has one of two and one of
/// three.
inline std::string zerlegung(const Zahlen& zahlen)
{
    std::vector<int> laengen;
    for (int zahl = 1; zahl <= 49; ++zahl) {
        int laenge = 0;
        while (enthaelt(zahlen, zahl)) {
            ++laenge;
            ++zahl;
        }
        if (laenge > 1)
            laengen.push_back(laenge);
    }
    std::ranges::sort(laengen);
    std::string text;
    for (const int laenge : laengen)
        text += (text.empty() ? "" : "+") + std::to_string(laenge);
    return text;
}

/// The rows that the mixed patterns consist of, by their codes.
inline const std::map<int, std::string> kMuster{{22, "2+2"}, {222, "2+2+2"}, {23, "2+3"}, {33, "3+3"}, {24, "2+4"}};

} // namespace Nachbarreferenz

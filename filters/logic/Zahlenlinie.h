#pragma once

#include "filters/logic/Ziehungsfolge.h"
#include "listcontrol/logic/Listenfarben.h"

#include <string_view>

/// The columns of the table with a line of 49 numbers for each draw. Between the numbers lie separators; what is at
/// the place of a 0 before them is a column without a caption that shows the Superzahl 0.
namespace Liniespalten {

inline constexpr int kDatum = 0;
inline constexpr int kNull = 1;
inline constexpr int kDatum2 = 2 * kHoechsteZahl + 2;
inline constexpr int kTrenner62 = kDatum2 + 1;
inline constexpr int kAnz = kTrenner62 + 1;
inline constexpr int kAnzahl = kAnz + 1;

/// `zahl` is 1..49.
constexpr int spalteVon(int zahl)
{
    return 2 * zahl;
}

constexpr bool istZahl(int spalte)
{
    return spalte > kNull && spalte < kDatum2 && spalte % 2 == 0;
}

constexpr bool istTrenner(int spalte)
{
    return spalte == kTrenner62 || (spalte > kNull && spalte < kDatum2 && spalte % 2 == 1);
}

} // namespace Liniespalten

/// A cell that is not empty.
struct Linienzelle {
    int spalte = 0;
    std::string text;
};

/// The cells of a draw: its day on both sides, its numbers with two digits, its Superzahl with one. A number that is
/// drawn and the Superzahl too has two digits and a blank. `nr` is what stands in the last column.
std::vector<Linienzelle> linienzellen(const Folgeziehung& ziehung, std::size_t nr);

struct Linienfarbe {
    Farbpaar farben;
    bool bleibt = false; ///< in a chosen row too
};

/// The colours of a cell, by its row, column (both from 0) and text.
Linienfarbe linienfarbe(int zeile, int spalte, std::string_view text);

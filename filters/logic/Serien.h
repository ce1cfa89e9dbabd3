#pragma once

#include "filters/logic/Ziehungsfolge.h"

/// Numbers that all came in several draws in a row.
struct Serie {
    Zahlenmenge zahlen = 0;
    std::uint32_t erste = 0;  ///< place of its first draw
    std::uint32_t laenge = 0; ///< draws
};

/// What runs are looked for.
struct Serienfrage {
    int zahlen = 1;              ///< how many numbers together, 1..6
    std::int32_t mindestens = 1; ///< draws in a row, 1 or more
    bool mitZusatzzahl = false;  ///< a draw also holds its Zusatzzahl
};

/// A search and what it has found.
struct Seriensuche {
    Serienfrage frage;
    GeteilteFolge folge;
    std::vector<Serie> serien; ///< in the order of their numbers; those of the same numbers oldest first
};

/// Finds the longest runs: none can be extended by the draw before or behind it. Goes through the draws once.
Seriensuche sucheSerien(GeteilteFolge folge, const Serienfrage& frage);

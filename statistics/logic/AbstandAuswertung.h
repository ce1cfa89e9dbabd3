#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/ZZModus.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// A draw that holds the chosen number.
struct AbstandTreffer {
    std::int32_t ZiehungsNr = 0;
    std::int32_t jjjj = 0;
    std::int32_t sw = 0;
    std::string datum;
    std::array<std::int32_t, 6> gewinnzahlen{};
    std::int32_t zz = 0;
    std::int32_t wochen = 0; ///< draws since the hit before; for the first one the draws before it
};

/// In which draws one number came, and how long after each other.
struct AbstandAuswertung {
    static constexpr int kKeine = -1;

    int zahl = 0; ///< 1..49; 0: nothing evaluated yet
    ZZModus ZaehlModus = ZZModus::Ohne;
    std::int16_t Spielart = SpielartStart;
    std::vector<AbstandTreffer> treffer; ///< oldest first
    int laengster = kKeine; ///< index in `treffer` of the longest absence, the earliest of equal ones; an absence of 0
                            ///< is none
    std::int32_t AnzahlZiehungen = 0;
    std::string ersteZiehung = "0000/00"; ///< "jjjj/sw"
    std::string letzteZiehung = "0000/00";
    std::string letztesDatum;
};

/// Searches a number 1..49 in all draws of the archive. What follows its last hit does not appear.
AbstandAuswertung werteAbstandAus(const ZiehungsArchiv& archiv, int zahl, ZZModus modus);

#pragma once

#include "filters/logic/Ziehungsfund.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What the tools that count numbers of one kind in each draw differ in. The seven texts stand in the order of the
/// table: first those for six such numbers, last those for none.
struct Verhaeltnisart {
    bool (*gehoertDazu)(std::int32_t zahl);
    std::string_view uebersichtkopf;
    std::size_t striche; ///< below the head
    std::array<std::string_view, 7> zeilenkoepfe;
    std::array<std::string_view, 7> beschriftungen; ///< of the choice of a count
    std::string_view anzahlmaske;
};

inline constexpr std::array<std::int32_t, 15> kAllePrimzahlen{2, 3, 5, 7, 11, 13, 17, 19, 23, 29, 31, 37, 41, 43, 47};

extern const Verhaeltnisart kGeradeUngerade;
extern const Verhaeltnisart kTiefHoch; ///< tief: 1..24, hoch: 25..49
extern const Verhaeltnisart kPrimzahlen;
extern const Verhaeltnisart kRandzahlen; ///< the 24 cells at the edge of the ticket

/// One pass over an archive: the draws with a chosen count, and how many draws have each count.
struct Verhaeltnissuche {
    int gesucht = 0;                         ///< 0..6
    std::array<std::int32_t, 7> ziehungen{}; ///< index: how many of the six numbers are of the kind
    std::int32_t AnzahlZiehungen = 0;        ///< all that were looked at
    std::vector<Ziehungsfund> funde;         ///< oldest first
};

/// Looks through a combined archive, whose dates are those of `DatumAlle`. `gesucht` is 0..6.
Verhaeltnissuche FiltereZiehungen(const ZiehungsArchiv& archiv, const Verhaeltnisart& art, int gesucht);

/// Head, dashes and a line with count and share for each of the seven counts. Shares of no draws are 0.
std::vector<std::string> uebersicht(const Verhaeltnissuche& suche, const Verhaeltnisart& art);

/// "12  Ziehungen [Drei Zahlen tief  3:3]".
std::string ergebniszeile(const Verhaeltnissuche& suche, const Verhaeltnisart& art);

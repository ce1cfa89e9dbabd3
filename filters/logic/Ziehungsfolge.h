#pragma once

#include "archive/logic/Kombination.h"
#include "archive/logic/ZiehungsArchiv.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// A draw among those that a tool goes through one after the other.
struct Folgeziehung {
    std::int32_t jjjj = 0;
    std::int32_t sw = 0;
    Kombination zahlen{};
    std::int32_t zz = 0;
    std::int32_t superzahl = kOhneSuperzahl;
    std::string datum;
};

/// Draws in the order in which they followed each other, oldest first. Places count from 0.
struct Ziehungsfolge {
    std::vector<Folgeziehung> ziehungen;
    std::size_t datumsbreite = 0; ///< characters that a row keeps for the date

    /// The numbers of a draw; with its Zusatzzahl, if wanted and if it has one.
    Zahlenmenge menge(std::size_t platz, bool mitZusatzzahl) const;
};

/// What was found keeps the draws that it was found in.
using GeteilteFolge = std::shared_ptr<const Ziehungsfolge>;

/// The draws of one game, by their ZiehungsNr.
GeteilteFolge einzelneFolge(const ZiehungsArchiv& archiv);

/// The draws of a combined archive in the order of their days; those of one day stand as Samstag, Mittwoch,
/// Mittwoch (B).
GeteilteFolge gemischteFolge(const ZiehungsArchiv& archiv);

/// Appends the draws of a game to a combined archive, in the form that a combined load gives them.
void haengeAn(ZiehungsArchiv& zusammen, ZiehungsArchiv einzelnes);

/// The Superzahl of a draw; "-" where it has none.
std::string superzahltext(const Folgeziehung& ziehung);

/// The row of a draw: Spieljahr, Spielwoche, the numbers, Zusatzzahl, Superzahl, date and its place, counted from 1.
std::string folgezeile(const Ziehungsfolge& folge, std::size_t platz);

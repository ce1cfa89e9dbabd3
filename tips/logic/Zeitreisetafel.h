#pragma once

#include "listcontrol/logic/Listenfarben.h"
#include "tips/logic/Zeitreise.h"

#include <string>
#include <string_view>
#include <vector>

/// A column of data of the result list. Between two of them stands a separator, so that column i of the list is
/// column i/2 of these.
struct Zeitreisespalte {
    enum class Feld : std::uint8_t { Jahr, JahrUndWoche, Woche, Spielart, Datum, Zahl, Zusatzzahl, Superzahl, Gewinn };

    Feld feld;
    std::size_t stelle; ///< of a number in its draw, 0..5
    std::string_view titel;
    int zeichen;           ///< characters of its widest text, the caption included
    int breiteTipp;        ///< pixels while a full tip is evaluated; 0: as wide as its text
    int breiteKombination; ///< pixels while a combination is searched
};

/// The columns of data, in their order.
const std::vector<Zeitreisespalte>& zeitreisespalten(Zeitreiseform form);

/// The text of a cell. One blank in front marks a number that was asked for, and the Superzahl or Zusatzzahl that
/// makes the class.
std::string zeitreisezelle(const Zeitreise& zeitreise, const Zeitreisezeile& zeile, const Zeitreisespalte& spalte);

/// The rows that a short result is filled up to.
inline constexpr std::size_t kMindestzeilen = 10;
/// How many blank rows stand below those of the result.
std::size_t leereZeilen(const Zeitreise& zeitreise);

/// How a cell is painted: by its row, counting from 0, and by the mark in its text. A separator has no column.
Farbpaar zeitreisefarbe(int zeile, bool gewaehlt, const Zeitreisespalte* spalte, std::string_view text);

#pragma once

#include "listcontrol/logic/Listenfarben.h"
#include "statistics/logic/Zahlentabelle.h"

#include <optional>
#include <string>
#include <string_view>

enum class Matrixzeilen { Spielwochen, JahreNachDatum, JahreNachSpielwoche };
enum class Matrixspalten { Gewinnzahlen, Superzahlen };

/// The counts of all numbers 1..49, or of all Superzahlen 0..9, in each week or year over the draws of several games.
struct Matrix {
    Zahlentabelle tabelle; ///< a row for each Spielwoche 1..53, or for each year from the first to the last
    Matrixspalten spalten = Matrixspalten::Gewinnzahlen;
    Matrixzeilen zeilen = Matrixzeilen::Spielwochen;
    ZZModus ZaehlModus = ZZModus::Ohne; ///< of no meaning for the Superzahlen
};

/// Counts the draws of a combined archive. Weeks outside 1..53 and years outside 0..9999 do not count; without a draw
/// in such a year there are no rows of years.
Matrix matrix(const ZiehungsArchiv& archiv, Matrixspalten spalten, Matrixzeilen zeilen, ZZModus zzModus);

/// The caption of the columns that name the rows, "SW" or "Jahr", and the name of a row: "07" or "1955".
std::string_view zeilentitel(Matrixzeilen zeilen);
std::string zeilenname(Matrixzeilen zeilen, std::int32_t schluessel);

/// "Maximum zu einer Spielwoche gezogen:  30 mal (mit Zusatzzahl)"; empty without rows.
std::string rekordtext(const Matrix& matrix);

/// The text of a cell: a line feed stands behind a maximum of its row and in front of a minimum, and with `markiert` a
/// group separator at the end.
std::string matrixzelle(const Zahlenzelle& zelle, bool markiert);

inline constexpr Farbpaar kMatrixMaximum{.grund = {255, 0, 0}, .schrift = {255, 255, 255}};
inline constexpr Farbpaar kMatrixMinimum{.grund = {0x6D, 0x74, 0xF8}, .schrift = {255, 255, 255}};

/// The colours of a cell by its text; rows count from 0.
Farbpaar matrixfarbe(std::string_view text, int zeile, bool gewaehlt);

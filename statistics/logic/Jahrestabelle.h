#pragma once

#include "statistics/logic/Zahlentabelle.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The counts of all numbers in each year of a game.
struct Jahrestabelle {
    Zahlentabelle tabelle; ///< a row for each year
    std::int16_t Spielart = SpielartStart;
    ZZModus ZaehlModus = ZZModus::Ohne;
    bool nachDatum = false; ///< by the year of the draw's date; else by its Spieljahr
};

/// Counts from the year of the first draw to that of the last one; an empty archive gives no rows. The two ways differ
/// around New Year: the last draw of a Spieljahr may fall on a day of the next year, and the first one on a day of the
/// year before. Years outside 0..9999 are no years.
Jahrestabelle yearTable(const ZiehungsArchiv& archiv, ZZModus zzModus, bool byDate);

/// The last of the years that a table may have, from 0 on.
inline constexpr std::int32_t kLetztesJahr = 9999;

/// The year of each draw by its date text in `datum`, `Datum` or `DatumAlle` of the archive. A draw without a date
/// keeps its Spieljahr.
std::vector<std::int32_t> datumsjahre(const ZiehungsArchiv& archiv, std::span<const std::string> datum);

/// The page with the table, ISO 8859-1.
std::string jahrestabellenSeite(const Jahrestabelle& jahrestabelle);

/// "pro_jahr_samstag_ohne_ZZ.htm".
std::string jahrestabellenDatei(std::int16_t spielart, ZZModus modus);

/// The folder of these pages in the program directory.
inline constexpr std::string_view kJahrestabellenOrdner = "haeufigkeit-pro-jahr";

#pragma once

#include "archive/logic/ZiehungsArchiv.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// How draws of one day follow each other.
enum class Tagesordnung {
    NachSpielart,   ///< Samstag, Mittwoch, Mittwoch (B), and within a game by their ZiehungsNr
    NachZeilentext, ///< by `tageszeile`
};

/// The draws of a combined archive in the order of their days: the ZiehungsNr of each, oldest first. A draw without a
/// date stands before all others.
std::vector<std::int32_t> tagesfolge(const ZiehungsArchiv& archiv, Tagesordnung ordnung);

/// The day of a date text such as "Mi, 29.11.2000 (B)", in a form that sorts: "2000-11-29 Mi". Empty for a text that
/// holds no date.
std::string tagestext(const std::string& datum);

/// The year of such a date text; nothing for one that holds no date.
std::optional<std::int32_t> jahrDesTages(std::string_view datum);

/// A draw of a combined archive as one line that sorts by its day: the day, Spieljahr, Spielwoche, the six numbers,
/// Zusatzzahl, Superzahl and the date text, joined by "|". `nr` is a ZiehungsNr of the archive.
std::string tageszeile(const ZiehungsArchiv& archiv, std::size_t nr);

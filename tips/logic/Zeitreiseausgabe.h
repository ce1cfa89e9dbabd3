#pragma once

#include "tips/logic/Zeitreise.h"

#include <string>
#include <string_view>

// What a time travel leaves on the desktop. Both read nothing but the result; its rows stand in the order of the list.

/// "kombinationen-3-7-12.csv", after the numbers asked for.
std::string csvDateiname(const Zeitreise& zeitreise);
/// A line for each row: the cells up to the Superzahl, each with a comma behind it and without their marks. The blank
/// rows that fill a short list up are empty lines.
std::string writeCsv(const Zeitreise& zeitreise);

inline constexpr std::string_view kGewinnlistenDatei = "gewinnliste.htm";
/// The bytes of a page in UTF-8: the rows of a full tip, what they add up to, and the tip itself.
std::string writeHtml(const Zeitreise& zeitreise);

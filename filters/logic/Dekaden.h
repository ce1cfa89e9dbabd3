#pragma once

#include "filters/logic/Ziehungsfund.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The numbers by their tens: 1-9, 10-19, 20-29, 30-39, 40-49. Decades are counted from 0.
inline constexpr std::size_t kDekaden = 5;

/// How many of six numbers lie in each decade.
using Dekadenzahlen = std::array<std::int32_t, kDekaden>;

/// A set of decades as a sum of weights, 16 for the first one down to 1 for the last one: 0..31.
using Dekadencode = std::size_t;
inline constexpr std::size_t kDekadencodes = 32; ///< with 0, the empty set

/// "1-9", "10-19" and so on.
std::string_view dekadenname(std::size_t dekade);
Dekadencode gewicht(std::size_t dekade);

/// A number that is none of 1..49 lies in no decade.
Dekadenzahlen dekadenzahlen(const Kombination& zahlen);
/// The decades that hold at least one number.
Dekadencode codeVon(const Dekadenzahlen& anzahlen);

/// The head above the lines of `dekadenzeile`.
inline constexpr std::string_view kDekadenkopf = "JJJJ/SW   Z1 Z2 Z3 Z4 Z5 Z6    0-9  10-19 20-29 30-39 40-49";
/// A draw and how many of its numbers lie in each decade.
std::string dekadenzeile(const Ziehungsfund& ziehung);

/// For each decade the draws with so many numbers in it, as places in the draws that were searched, ascending.
struct Dekadensuche {
    std::int32_t gesucht = 0; ///< 0..6
    std::array<std::vector<std::size_t>, kDekaden> stellen;
};

Dekadensuche sucheDekaden(std::span<const Ziehungsfund> ziehungen, std::int32_t gesucht);

/// The counts of all five lists, a line each below their head.
std::string bericht(const Dekadensuche& suche);

/// The draws whose numbers lie in these decades, each of which holds one at least.
struct Konstellationssuche {
    Dekadencode gesucht = 0;
    std::vector<std::size_t> stellen; ///< in the draws that were searched, ascending
};

/// The empty set finds nothing.
Konstellationssuche sucheKonstellation(std::span<const Ziehungsfund> ziehungen, Dekadencode gesucht);

/// How many draws were found, or that there are none so far.
std::string ergebnistext(const Konstellationssuche& suche);

/// How many draws there are of each code.
using Dekadenverteilung = std::array<std::int32_t, kDekadencodes>;
Dekadenverteilung zaehleKonstellationen(std::span<const Ziehungsfund> ziehungen);

inline constexpr std::string_view kUebersichtskopf = "|  1-9  | 10-19 | 20-29 | 30-39 | 40-49 |Ziehungen|";
/// A line for each of the 31 codes, in groups by how many decades they take.
std::vector<std::string> uebersicht(const Dekadenverteilung& verteilung);

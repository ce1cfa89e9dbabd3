#pragma once

#include "filters/logic/Ziehungsfund.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// How many of six numbers end in each digit, index 0..9.
using Endziffern = std::array<std::int32_t, 10>;

/// How many digits six numbers end in once, twice, three, four and five times.
struct Endzifferkonstellation {
    std::int32_t E = 0;
    std::int32_t Z = 0;
    std::int32_t D = 0;
    std::int32_t V = 0;
    std::int32_t F = 0;

    bool operator==(const Endzifferkonstellation&) const = default;
};

/// The ten that six different numbers can show.
inline constexpr std::size_t kEndzifferkonstellationen = 10;

/// Caption, digits and possible cases of one of them, `nummer` 0..9.
std::string_view beschriftung(std::size_t nummer);
const Endzifferkonstellation& konstellation(std::size_t nummer);
/// How many of all 13.983.816 combinations show it and their share, right-aligned in a field of 38 characters.
std::string_view moeglicheFaelle(std::size_t nummer);

/// A number that is none of 1..49 has no last digit.
Endziffern endziffern(const Kombination& zahlen);
Endzifferkonstellation konstellationVon(const Endziffern& ziffern);

/// The head above the lines of `endzifferzeile`.
inline constexpr std::string_view kEndzifferkopf =
    "JJJJ/SW   Z1 Z2 Z3 Z4 Z5 Z6    Datum            |0|1|2|3|4|5|6|7|8|9|    |E|Z|D|V|F|";
/// A draw, its last digits and their constellation; "-" for zero.
std::string endzifferzeile(const Ziehungsfund& ziehung);

/// The draws of one constellation.
struct Endziffernsuche {
    std::size_t nummer = 0; ///< of the constellation
    std::int32_t AnzahlZiehungen = 0;
    std::vector<Ziehungsfund> funde; ///< oldest first
};

/// `nummer` is 0..9.
Endziffernsuche sucheEndziffern(std::span<const Ziehungsfund> ziehungen, std::size_t nummer);

/// The head of the list: "12 Ziehungen (0,325%) von 3693 Ziehungen ", or that there is none so far.
std::string ergebniszeile(const Endziffernsuche& suche);

/// How many draws there are of each constellation.
struct Endziffernverteilung {
    std::int32_t AnzahlZiehungen = 0;
    std::array<std::int32_t, kEndzifferkonstellationen> ziehungen{};
};

Endziffernverteilung zaehleEndziffern(std::span<const Ziehungsfund> ziehungen);

/// The table: head, a line for each constellation and the sums, between dashes.
std::vector<std::string> uebersicht(const Endziffernverteilung& verteilung);

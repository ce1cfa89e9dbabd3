#pragma once

#include "archive/logic/Kombination.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/// Most tips of one slip.
inline constexpr std::size_t kTippsJeSchein = 12;

/// A tip as the fields of a slip hold it: whatever was typed.
struct Tippreihe {
    std::array<std::string, 6> zahlen;
    std::string superzahl;

    bool istLeer() const; ///< all six number fields are; the Superzahl does not matter
    bool operator==(const Tippreihe&) const = default;
};

enum class Reihenstand : std::uint8_t { Leer, Gueltig, Fehler };

/// `Fehler` if a field is empty, holds no number or one outside 1..49, or if the numbers do not rise strictly. A row
/// whose six fields are all empty is `Leer` and no error.
Reihenstand checkRow(const Tippreihe& reihe);

/// The digit 0..9 of the Superzahl field; nothing for any other text.
std::optional<std::int32_t> superzahlVon(const Tippreihe& reihe);

/// The numbers of a valid row; nothing for any other.
std::optional<Kombination> kombinationVon(const Tippreihe& reihe);

/// The row with `zahl` in a field 0..5, its numbers in ascending order from the first field on: equal ones become one,
/// and what is no number of the game is gone.
Tippreihe mitZahl(Tippreihe reihe, std::size_t feld, std::int32_t zahl);

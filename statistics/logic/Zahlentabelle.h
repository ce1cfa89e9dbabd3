#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/Lottozahl.h"
#include "shell/logic/ZZModus.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// What a count is among the 49 of its row. A count that is both is a maximum.
enum class Zellmarke : std::uint8_t { Keine, Minimum, Maximum };

struct Zahlenzelle {
    std::int32_t anzahl = 0;
    Zellmarke marke = Zellmarke::Keine;

    bool operator==(const Zahlenzelle&) const = default;
};

/// The counts of all numbers in one year or one week.
struct Zahlenzeile {
    std::int32_t schluessel = 0;                     ///< the year or the week
    std::array<Zahlenzelle, kHoechsteZahl> zellen{}; ///< index: number - 1
};

/// The highest count of a table.
struct Tabellenrekord {
    std::int32_t anzahl = 0;
    int zahl = 0; ///< 1..49
    std::int32_t schluessel = 0;

    bool operator==(const Tabellenrekord&) const = default;
};

struct Zahlentabelle {
    std::vector<Zahlenzeile> zeilen;
    std::optional<Tabellenrekord> rekord; ///< of equals the first row and the lowest number; none without rows
};

/// Counts every number for each key from `von` to `bis`, both included; nothing if `bis` is below `von`. `schluessel`
/// gives the key of each draw by its ZiehungsNr and is as long as a column of the archive; a draw with another key does
/// not count, nor does a Zusatzzahl of 0. The caller bounds the range: there is a row for each key.
Zahlentabelle zaehleTabelle(const ZiehungsArchiv& archiv, ZZModus modus, std::span<const std::int32_t> schluessel,
                            std::int32_t von, std::int32_t bis);

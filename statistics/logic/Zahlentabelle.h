#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/Lottozahl.h"
#include "shell/logic/ZZModus.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// What a count is among those of its row. A count that is both is a maximum.
enum class Zellmarke : std::uint8_t { Keine, Minimum, Maximum };

struct Zahlenzelle {
    std::int32_t anzahl = 0;
    Zellmarke marke = Zellmarke::Keine;

    bool operator==(const Zahlenzelle&) const = default;
};

/// The counts of all numbers in one year or one week.
struct Zahlenzeile {
    std::int32_t schluessel = 0;     ///< the year or the week
    std::vector<Zahlenzelle> zellen; ///< index: number - lowest number of the table
};

/// The highest count of a table.
struct Tabellenrekord {
    std::int32_t anzahl = 0;
    int zahl = 0;
    std::int32_t schluessel = 0;

    bool operator==(const Tabellenrekord&) const = default;
};

struct Zahlentabelle {
    std::vector<Zahlenzeile> zeilen;
    std::optional<Tabellenrekord> rekord; ///< of equals the first row and the lowest number; none without rows
};

/// What a table counts: the columns of the archive that hold the numbers of its draws, and the numbers from `kleinste`
/// to `groesste` in them. Any other value, such as a Zusatzzahl of 0, counts nowhere. The columns stay the archive's.
struct Zaehlspalten {
    std::vector<const ZiehungsArchiv::Spalte*> spalten;
    std::int32_t AnzahlZiehungen = 0;
    std::int32_t kleinste = 1;
    std::int32_t groesste = kHoechsteZahl;
};

/// The numbers 1..49.
Zaehlspalten gewinnzahlspalten(const ZiehungsArchiv& archiv, ZZModus modus);

/// The Superzahl 0..9 of a combined archive, where a draw without one holds another value.
Zaehlspalten superzahlspalte(const ZiehungsArchiv& archiv);

/// Counts every number for each key from `von` to `bis`, both included; nothing if `bis` is below `von`. `schluessel`
/// gives the key of each draw by its ZiehungsNr and is as long as a column of the archive; a draw with another key does
/// not count. The caller bounds the range: there is a row for each key.
Zahlentabelle zaehleTabelle(const Zaehlspalten& gezaehlt, std::span<const std::int32_t> schluessel, std::int32_t von,
                            std::int32_t bis);

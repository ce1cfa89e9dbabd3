#pragma once

#include "archive/logic/ZiehungsArchiv.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

inline constexpr std::size_t kSuperzahlen = 10; ///< the digits 0..9

using Ziffernzaehler = std::array<std::int32_t, kSuperzahlen>;

/// Where a digit came last in one game.
struct LetzteSuperzahl {
    std::int32_t ZiehungsNr = 0;
    std::int32_t wochen = 0; ///< draws since then; 0 in the newest one
    std::string datum;       ///< date text of the draw

    bool operator==(const LetzteSuperzahl&) const = default;
};

/// The Superzahlen of one game.
struct Superzahlquelle {
    std::int16_t spielart = Samstagslotto; ///< 1..3
    std::int32_t ziehungen = 0;            ///< all that were looked at
    std::int32_t mitSuperzahl = 0;         ///< of them, those since the Superzahl was introduced
    Ziffernzaehler anzahl{};
    std::array<std::optional<LetzteSuperzahl>, kSuperzahlen> zuletzt; ///< nothing for a digit that never came
};

/// When a digit came last on Saturday or Wednesday.
struct GemeinsameSuperzahl {
    int ziffer = 0;
    std::int32_t wochen = 0; ///< the fewer ones of the two games
    std::string datum;       ///< of the later one

    bool operator==(const GemeinsameSuperzahl&) const = default;
};

/// The Superzahlen of all chosen games.
struct Superzahlstatistik {
    bool nurAb2000 = false;               ///< of game A of Wednesday only the draws from 06.12.2000 on
    std::vector<Superzahlquelle> quellen; ///< in the order of their games

    std::int32_t ziehungen() const;
    std::int32_t mitSuperzahl() const;
    /// The counts of all games, by digit.
    Ziffernzaehler anzahl() const;
    /// The part of a game; null if that was not counted.
    const Superzahlquelle* quelle(std::int16_t spielart) const;
};

/// Adds the game that the archive holds, `archiv.Spielart` (1..3). A draw counts from the introduction of the
/// Superzahl on; a value that is no digit counts for none.
void superzahlCounts(Superzahlstatistik& statistik, const ZiehungsArchiv& archiv);

/// The digits of the recent draws of Saturday and Wednesday, the one that came last first. Recent are the draws of
/// Saturday above ZiehungsNr 3000 and those of Wednesday above 1400: no digit stays away for so long.
std::vector<GemeinsameSuperzahl> gemeinsameSuperzahlen(const Superzahlstatistik& statistik);

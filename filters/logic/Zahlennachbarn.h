#pragma once

#include "archive/logic/Kombination.h"
#include "archive/logic/ZiehungsArchiv.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What a search looks for: so many numbers in a row, whatever else the draw holds, or a mixed pattern, whose rows are
/// all that the draw has of neighbours.
struct Nachbargruppe {
    int code = 0;             ///< 2..6 numbers in a row; of a mixed pattern the sizes of its rows as digits
    std::uint32_t masken = 0; ///< a mixed pattern: bit m is set for each `Nachbarmaske` m it may have
    std::string_view gruppentext = {};
    std::string_view name = {};        ///< of a mixed pattern
    std::string_view ohneTreffer = {}; ///< what a list without a hit says; empty: nothing
    std::string_view seitenkopf = {};
    std::string_view seitendatei = {};

    constexpr bool istMuster() const { return masken != 0; }
    /// A run for each number that a row can start with; a mixed pattern needs but one.
    constexpr int laeufe() const { return istMuster() ? 1 : kHoechsteZahl + 1 - code; }
};

inline constexpr int kKleinsteNachbargruppe = 2;

/// Two to six in a row.
extern const std::array<Nachbargruppe, 5> kNachbargruppen;
/// 22, 222, 23, 33 and 24.
extern const std::array<Nachbargruppe, 5> kNachbarmuster;

/// A draw that holds what was searched for. A draw with several rows of that size is a hit for each of them.
struct Nachbartreffer {
    std::int16_t Spielart = SpielartStart;
    std::int32_t jjjj = 0;
    std::int32_t sw = 0;
    std::string datum;
    Kombination zahlen{};
    Zahlenmenge gruppe = 0;        ///< those of its numbers that are neighbours
    std::int32_t Suchlauf = 0;     ///< the run that has found it, from 0: the row starts with the number after it
    std::optional<std::int32_t> s; ///< nothing before the first Superzahl of the game

    bool operator==(const Nachbartreffer&) const = default;
};

/// A file that was searched, as it was then.
struct Nachbardatei {
    std::int16_t Spielart = SpielartStart;
    std::int32_t AnzahlZiehungen = 0;
    std::string letzteZiehung; ///< "2026/29"
    std::size_t treffer = 0;
};

/// A search over one file after the other, with all that is shown and exported of it.
struct Nachbarsuche {
    Nachbargruppe gruppe;
    bool zusammen = false; ///< over the files of several games; else over the game that was active
    bool vollstaendig = true;
    std::vector<Nachbardatei> dateien = {};
    std::vector<Nachbartreffer> treffer = {};
};

/// Bit i is set if number i + 1 of the six is followed by its neighbour, i = 0..4. What is no number 1..49 has none.
std::uint32_t Nachbarmaske(const Kombination& zahlen);

/// The hits in one archive, by their runs, and within a run oldest first.
std::vector<Nachbartreffer> sucheNachbarn(const ZiehungsArchiv& archiv, const Nachbargruppe& gruppe);

/// The file of an archive, without a hit yet.
Nachbardatei nachbardatei(const ZiehungsArchiv& archiv);

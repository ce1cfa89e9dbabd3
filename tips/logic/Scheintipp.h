#pragma once

#include "archive/logic/Kombination.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// A tip of a saved slip, taken by its separators: it may be of a slip that another program or a hand has written.
struct Scheintipp {
    static constexpr std::int32_t kOhneSuperzahl = -1;

    std::int32_t nummer = 0; ///< of its line in the file, from 1
    Kombination zahlen{};    ///< as they stand there, in any order; 0 where there is none
    std::int32_t superzahl = kOhneSuperzahl;
    std::string jjjjsw{}; ///< the first six characters of the line

    bool operator==(const Scheintipp&) const = default;
};

/// The tip of a line such as "202418. 3. 7.12.23.34.45:5". A Superzahl that is no digit counts as none. Nothing if the
/// line holds no number of the game.
std::optional<Scheintipp> scheintippAus(std::string_view zeile, std::int32_t nummer);

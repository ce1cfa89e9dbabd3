#pragma once

#include "tips/rules/Gewinnklassen.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace gewinntexte {
using Texte = std::array<std::string_view, kGewinnklassen + 1>; ///< by class; the first is that of no class

inline constexpr Texte kNeu{"",          "Sechser+SZ", "Sechser",   "Fünfer+SZ", "Fünfer",
                            "Vierer+SZ", "Vierer",     "Dreier+SZ", "Dreier",    "Zweier+SZ"};
inline constexpr Texte kAlt{"",          "Sechser+SZ", "Sechser",   "Fünfer+ZZ", "Fünfer",
                            "Vierer+ZZ", "Vierer",     "Dreier+ZZ", "Dreier",    ""};
inline constexpr Texte kTippschein{"",        "6-er+SZ", "6-er",    "5-er+SZ", "5-er",
                                   "4-er+SZ", "4-er",    "3-er+SZ", "3-er",    "2-er+SZ"};
inline constexpr Texte kBericht{"",          " (6er+SZ)", " (6er)",    " (5er+SZ)", " (5er)",
                                " (4er+SZ)", " (4er)",    " (3er+SZ)", " (3er)",    " (2er+SZ)"};
} // namespace gewinntexte

/// A class of `GewinnklassenplanNeu` in the list of the time travel: "Fünfer+SZ"; empty without a class.
constexpr std::string_view gewinntextNeu(Gewinnklasse klasse)
{
    return gewinntexte::kNeu[static_cast<std::size_t>(klasse)];
}

/// A class of `GewinnklassenplanAlt` there: "Fünfer+ZZ"; empty without a class.
constexpr std::string_view gewinntextAlt(Gewinnklasse klasse)
{
    return gewinntexte::kAlt[static_cast<std::size_t>(klasse)];
}

/// A class of `GewinnklassenplanNeu` beside a row of the tip slip: "5-er+SZ"; without a class the bare Trefferzahl.
inline std::string gewinntextTippschein(Gewinnklasse klasse, std::int32_t trefferzahl)
{
    if (klasse == Gewinnklasse::Keine)
        return std::to_string(trefferzahl);
    return std::string(gewinntexte::kTippschein[static_cast<std::size_t>(klasse)]);
}

/// A class of `GewinnklassenplanNeu` at the end of a line of a slip report: " (5er+SZ)"; empty without a class.
constexpr std::string_view gewinntextBericht(Gewinnklasse klasse)
{
    return gewinntexte::kBericht[static_cast<std::size_t>(klasse)];
}

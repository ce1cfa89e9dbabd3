#pragma once

#include <cstdint>
#include <string_view>

/// "Samstagslotto" (0 and 1), "Mittwochslotto " with its blank (2), "Mittwochslotto (B)" (3); empty outside 0..3.
constexpr std::string_view spielartName(std::int16_t spielart)
{
    switch (spielart) {
    case 0:
    case 1:
        return "Samstagslotto";
    case 2:
        return "Mittwochslotto ";
    case 3:
        return "Mittwochslotto (B)";
    default:
        return {};
    }
}

/// The same in upper case, as the game label of a screen shows it.
constexpr std::string_view spielartGross(std::int16_t spielart)
{
    switch (spielart) {
    case 0:
    case 1:
        return "SAMSTAGSLOTTO";
    case 2:
        return "MITTWOCHSLOTTO ";
    case 3:
        return "MITTWOCHSLOTTO (B)";
    default:
        return {};
    }
}

/// Both Wednesday games counted as one.
inline constexpr std::string_view kMittwochABName = "Mittwochslotto (A+B)";
inline constexpr std::string_view kMittwochABGross = "MITTWOCHSLOTTO (A+B)";

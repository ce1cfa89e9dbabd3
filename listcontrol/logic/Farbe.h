#pragma once

#include <cstdint>

/// A colour of red, green and blue, 0..255 each.
struct Farbe {
    std::uint8_t rot{0};
    std::uint8_t gruen{0};
    std::uint8_t blau{0};

    friend bool operator==(const Farbe&, const Farbe&) = default;
};

/// The colour of a number 0xBBGGRR, such as 255 (red) or 65535 (yellow); higher bits do not count.
constexpr Farbe farbeAusBGR(std::uint32_t wert)
{
    return {static_cast<std::uint8_t>(wert & 0xFFU), static_cast<std::uint8_t>((wert >> 8U) & 0xFFU),
            static_cast<std::uint8_t>((wert >> 16U) & 0xFFU)};
}

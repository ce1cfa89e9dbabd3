#pragma once

#include "archive/logic/Zahlenmenge.h"
#include "shell/logic/Lottozahl.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

// The plain ways to count the hits of one combination. They are what the `Trefferkern` is held against, in tests and in
// measurements.

/// [h] rows that share exactly h numbers with a combination, h 0..6.
using Trefferzahlen = std::array<std::uint32_t, 7>;

/// By a table of 49 flags, with six look-ups for each row. The numbers of the rows are 1..49.
inline Trefferzahlen trefferMitFlaggen(std::span<const std::int32_t> kombination,
                                       std::span<const std::array<std::int32_t, 6>> reihen)
{
    std::array<std::int32_t, kHoechsteZahl + 1> TrefferFlag{};
    for (const std::int32_t zahl : kombination)
        TrefferFlag[static_cast<std::size_t>(zahl)] = 1;
    Trefferzahlen treffer{};
    for (const auto& reihe : reihen) {
        std::int32_t summe = 0;
        for (const std::int32_t zahl : reihe)
            summe += TrefferFlag[static_cast<std::size_t>(zahl)];
        ++treffer[static_cast<std::size_t>(summe)];
    }
    return treffer;
}

/// By the numbers that two sets share. The rows have at most six numbers.
inline Trefferzahlen trefferMitMengen(Zahlenmenge kombination, std::span<const Zahlenmenge> reihen)
{
    Trefferzahlen treffer{};
    for (const Zahlenmenge reihe : reihen)
        ++treffer[static_cast<std::size_t>(gemeinsame(kombination, reihe))];
    return treffer;
}

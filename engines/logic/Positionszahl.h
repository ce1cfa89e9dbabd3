#pragma once

#include "archive/logic/Kombination.h"
#include "shell/logic/Binomial.h"

#include <cstdint>
#include <optional>

/// The place of a combination in the lexicographic list of all combinations of 6 aus 49: 1 for 1 2 3 4 5 6,
/// `kKombinationen6aus49` for 44 45 46 47 48 49.
using Positionszahl = std::int32_t;

constexpr bool istPositionszahl(std::int64_t zahl)
{
    return zahl >= 1 && zahl <= kKombinationen6aus49;
}

/// The Positionszahl as the closed sum over the combinations that stand before. Numbers of 1..49 that do not ascend
/// give what the sum gives for them, which is no place and may be negative. 0 if a number lies outside 1..49.
Positionszahl PositionszahlSumme(const Kombination& zahlen);

/// The Positionszahl by counting through all combinations; nothing unless six numbers of 1..49 ascend.
std::optional<Positionszahl> PositionszahlZaehlen(const Kombination& zahlen);

/// The combination that a count through all of them reaches at this place; nothing outside 1..13983816.
std::optional<Kombination> KombinationZaehlen(Positionszahl position);

#pragma once

#include "engines/logic/Positionszahl.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

/// A step of the calculator, down or up. It is done while the value is above the limit, or below it.
struct Positionsschritt {
    std::int32_t weite = 0;
    Positionszahl grenze = 0;
};

/// In the order of their buttons. The wide steps up stop one short of the last combination.
inline constexpr std::array<Positionsschritt, 8> kPositionsschritte{{
    {-1, 1},
    {+1, kKombinationen6aus49},
    {-10, 10},
    {+10, kKombinationen6aus49 - 10},
    {-100, 100},
    {+100, kKombinationen6aus49 - 100},
    {-1000, 1000},
    {+1000, kKombinationen6aus49 - 1000},
}};

/// The value after the step; nothing at the limit and beyond.
constexpr std::optional<std::int64_t> nachSchritt(std::int64_t wert, const Positionsschritt& schritt)
{
    const bool erlaubt = schritt.weite < 0 ? wert > schritt.grenze : wert < schritt.grenze;
    return erlaubt ? std::optional{wert + schritt.weite} : std::nullopt;
}

/// "Die Kombination:   5 10 20 30 40 49 -> steht an Position: 6.324.251"
std::string positionsergebnis(const Kombination& zahlen, Positionszahl position);

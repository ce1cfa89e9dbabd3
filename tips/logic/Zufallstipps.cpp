#include "tips/logic/Zufallstipps.h"

#include "shell/logic/Format.h"

#include <algorithm>

Kombination Zufallstipps::kombination(std::size_t tip) const
{
    Kombination zahlen{};
    std::ranges::copy(tipps[tip], zahlen.begin());
    std::ranges::sort(zahlen);
    return zahlen;
}

void makeTips(Zufallstipps& zufallstipps, Zufall& zufall, double sekunden)
{
    for (std::array<int, 6>& tip : zufallstipps.tipps) {
        ++zufallstipps.ausgewertet;
        zufall.Randomize(sekunden * zufallstipps.ausgewertet);
        tip = sechsZahlen(zufall);
        for (const int zahl : tip)
            ++zufallstipps.haeufigkeit[static_cast<std::size_t>(zahl - 1)];
    }
}

std::string tipreihenzeile(const Zufallstipps& zufallstipps, std::size_t tip)
{
    std::string zeile = "Tipreihe " + std::to_string(tip + 1) + "  -> ";
    for (const std::int32_t zahl : zufallstipps.kombination(tip))
        zeile += Format(std::to_string(zahl), "@@@");
    return zeile;
}

#include "tips/logic/Zufallstipps.h"

#include "shell/logic/Format.h"

#include <algorithm>

namespace {

Kombination geordnet(const std::array<int, 6>& gezogen)
{
    Kombination zahlen{};
    std::ranges::copy(gezogen, zahlen.begin());
    std::ranges::sort(zahlen);
    return zahlen;
}

} // namespace

Kombination zufallstipp(Zufall& zufall, double saat)
{
    zufall.Randomize(saat);
    return geordnet(sechsZahlen(zufall));
}

Kombination Zufallstipps::kombination(std::size_t tip) const
{
    return geordnet(tipps[tip]);
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

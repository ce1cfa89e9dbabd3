#pragma once

#include "engines/logic/Vollsuche.h"

#include <algorithm>
#include <array>

/// How many draws hold the combination, found draw by draw. The columns of a draw ascend, so one that begins above the
/// combination or ends below it is skipped.
template <std::size_t K>
std::uint32_t haeufigkeitEinfach(const ZiehungsArchiv& archiv, const std::array<std::int32_t, K>& zahlen)
{
    std::uint32_t haeufigkeit = 0;
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr) {
        if (zahlen[K - 1] > archiv.z6[nr] || archiv.z1[nr] > zahlen[0])
            continue;
        const auto in = [&archiv, nr](std::int32_t zahl) {
            return zahl == archiv.z1[nr] || zahl == archiv.z2[nr] || zahl == archiv.z3[nr] || zahl == archiv.z4[nr] ||
                   zahl == archiv.z5[nr] || zahl == archiv.z6[nr];
        };
        haeufigkeit += std::ranges::all_of(zahlen, in) ? 1U : 0U;
    }
    return haeufigkeit;
}

/// K nested loops, each up to the last value that leaves room for the inner ones.
template <std::size_t K, class Tue, std::size_t Tiefe = 0>
void jedeKombination(const Tue& tue, std::array<std::int32_t, K>& zahlen)
{
    if constexpr (Tiefe == K) {
        tue(zahlen);
    } else {
        const std::int32_t von = Tiefe == 0 ? 1 : zahlen[Tiefe == 0 ? 0 : Tiefe - 1] + 1;
        const auto bis = static_cast<std::int32_t>(49 - (K - 1 - Tiefe));
        for (zahlen[Tiefe] = von; zahlen[Tiefe] <= bis; ++zahlen[Tiefe])
            jedeKombination<K, Tue, Tiefe + 1>(tue, zahlen);
    }
}

/// The plain search that `Vollsuche` is held against.
template <std::size_t K> Suchergebnis sucheEinfach(const ZiehungsArchiv& archiv)
{
    Suchergebnis ergebnis = beginneSuche(K);
    std::array<std::int32_t, K> zahlen{};
    jedeKombination<K>([&](const auto& diese) { trageEin(ergebnis, diese, haeufigkeitEinfach<K>(archiv, diese)); },
                       zahlen);
    return ergebnis;
}

inline Suchergebnis sucheEinfach(const ZiehungsArchiv& archiv, int groesse)
{
    switch (groesse) {
    case 2:
        return sucheEinfach<2>(archiv);
    case 3:
        return sucheEinfach<3>(archiv);
    case 4:
        return sucheEinfach<4>(archiv);
    case 5:
        return sucheEinfach<5>(archiv);
    default:
        return sucheEinfach<6>(archiv);
    }
}

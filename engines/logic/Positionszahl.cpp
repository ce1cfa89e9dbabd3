#include "engines/logic/Positionszahl.h"

#include "shell/logic/Lottozahl.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

/// By number 1..49: how many ways there are to choose `stellen` numbers above it.
template <int stellen>
constexpr auto kDahinter = [] {
    std::array<std::int32_t, kHoechsteZahl + 1> wege{};
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
        wege[static_cast<std::size_t>(zahl)] = static_cast<std::int32_t>(Binomial(kHoechsteZahl - zahl, stellen));
    return wege;
}();

/// What the numbers between `davor` and `bis` that were passed over add up to, with `stellen` numbers behind each.
template <int stellen> Positionszahl uebergangene(std::int32_t davor, std::int32_t bis)
{
    Positionszahl summe = 0;
    for (std::int32_t zahl = davor + 1; zahl < bis; ++zahl)
        summe += kDahinter<stellen>[static_cast<std::size_t>(zahl)];
    return summe;
}

/// The combinations that share their first five numbers stand one behind the other; these are theirs.
struct Reihe {
    std::int32_t a, b, c, d, e;
    Positionszahl davor; ///< combinations before the first of the row

    Positionszahl laenge() const { return kHoechsteZahl - e; }
};

/// Counts through all combinations in lexicographic order, row by row, until `halt(reihe)` is true.
template <class Halt> void zaehleDurch(Halt halt)
{
    Reihe reihe{};
    for (reihe.a = 1; reihe.a <= 44; ++reihe.a)
        for (reihe.b = reihe.a + 1; reihe.b <= 45; ++reihe.b)
            for (reihe.c = reihe.b + 1; reihe.c <= 46; ++reihe.c)
                for (reihe.d = reihe.c + 1; reihe.d <= 47; ++reihe.d)
                    for (reihe.e = reihe.d + 1; reihe.e <= 48; ++reihe.e) {
                        if (halt(reihe))
                            return;
                        reihe.davor += reihe.laenge();
                    }
}

} // namespace

Positionszahl PositionszahlSumme(const Kombination& zahlen)
{
    if (std::any_of(zahlen.begin(), zahlen.end(), [](std::int32_t zahl) { return !gibtEs(zahl); }))
        return 0;
    const auto [z1, z2, z3, z4, z5, z6] = zahlen;
    Positionszahl p =
        uebergangene<5>(0, z1) + uebergangene<4>(z1, z2) + uebergangene<3>(z2, z3) + uebergangene<2>(z3, z4);
    // The last two steps are closed, so that they count backwards where the numbers do.
    if (z5 != z4 + 1)
        p += (kHoechsteZahl - 1 - z4) * (kHoechsteZahl - z4) / 2 - (kHoechsteZahl - z5) * (kHoechsteZahl + 1 - z5) / 2;
    if (z6 != z5 + 1)
        p += z6 - (z5 + 1);
    return p + 1;
}

std::optional<Positionszahl> PositionszahlZaehlen(const Kombination& zahlen)
{
    if (!istAufsteigend(zahlen))
        return {};
    Positionszahl position = 0;
    zaehleDurch([&](const Reihe& reihe) {
        const bool hier = reihe.e == zahlen[4] && reihe.d == zahlen[3] && reihe.c == zahlen[2] &&
                          reihe.b == zahlen[1] && reihe.a == zahlen[0];
        if (hier)
            position = reihe.davor + (zahlen[5] - reihe.e);
        return hier;
    });
    return position;
}

std::optional<Kombination> KombinationZaehlen(Positionszahl position)
{
    if (!istPositionszahl(position))
        return {};
    Kombination zahlen{};
    zaehleDurch([&](const Reihe& reihe) {
        const Positionszahl rest = position - reihe.davor;
        const bool hier = rest <= reihe.laenge();
        if (hier)
            zahlen = {reihe.a, reihe.b, reihe.c, reihe.d, reihe.e, reihe.e + rest};
        return hier;
    });
    return zahlen;
}

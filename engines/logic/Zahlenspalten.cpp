#include "engines/logic/Zahlenspalten.h"

#include "engines/logic/Trefferliste.h"

#include <algorithm>
#include <bit>

namespace {

using Wort = Ziehungsbits::Wort;

/// A sum of up to 7 in each of the 64 places.
struct Summe {
    Wort einer, zweier, vierer;

    std::size_t an(int stelle) const
    {
        return (einer >> stelle & 1U) + 2 * (zweier >> stelle & 1U) + 4 * (vierer >> stelle & 1U);
    }
};

struct Volladdierer {
    Volladdierer(Wort a, Wort b, Wort c) : summe(a ^ b ^ c), uebertrag((a & b) | (c & (a ^ b))) {}

    Wort summe, uebertrag;
};

Summe summe(Wort a, Wort b, Wort c, Wort d, Wort e, Wort f)
{
    const Volladdierer vorn(a, b, c);
    const Volladdierer hinten(d, e, f);
    const Volladdierer zweier(vorn.uebertrag, hinten.uebertrag, vorn.summe & hinten.summe);
    return {vorn.summe ^ hinten.summe, zweier.summe, zweier.uebertrag};
}

} // namespace

Zahlenspalten::Zahlenspalten(const ZiehungsArchiv& archiv, std::int32_t superzahl)
    : bits_(archiv),
      mitSuperzahl_(bits_.woerter())
{
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr)
        if (istSuperzahl(archiv.s[nr], superzahl))
            Ziehungsbits::setze(mitSuperzahl_.data(), nr);
}

Trefferzaehler Zahlenspalten::zaehle(const Kombination& kombination) const
{
    std::array<const Wort*, 6> spalten{};
    std::ranges::transform(kombination, spalten.begin(), [this](std::int32_t zahl) { return bits_.spalte(zahl); });
    Trefferzaehler zaehler;
    for (std::size_t wort = 0; wort < bits_.woerter(); ++wort) {
        const Summe treffer = summe(spalten[0][wort], spalten[1][wort], spalten[2][wort], spalten[3][wort],
                                    spalten[4][wort], spalten[5][wort]);
        const Wort superzahl = mitSuperzahl_[wort];
        // Three and more win, and two with the Superzahl.
        Wort gewinne = treffer.vierer | (treffer.zweier & (treffer.einer | superzahl));
        for (; gewinne != 0; gewinne &= gewinne - 1) {
            const int stelle = std::countr_zero(gewinne);
            const bool mit = superzahl >> stelle & 1U;
            ++(mit ? zaehler.mitSuperzahl : zaehler.ohneSuperzahl)[treffer.an(stelle)];
        }
    }
    return zaehler;
}

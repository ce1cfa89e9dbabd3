#include "engines/logic/Zahlenspalten.h"

#include "archive/logic/Zahlenmenge.h"
#include "engines/logic/Trefferliste.h"

#include <bit>

namespace {

using Wort = std::uint64_t;

constexpr std::size_t kBits = 64;

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
    : woerter_(static_cast<std::size_t>(archiv.AnzahlZiehungen) / kBits + 1),
      bits_((kHoechsteZahl + 1) * woerter_),
      mitSuperzahl_(woerter_)
{
    const auto letzte = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    for (std::size_t nr = 1; nr <= letzte; ++nr) {
        const std::size_t wort = nr / kBits;
        const Wort bit = Wort{1} << nr % kBits;
        for (const std::int32_t zahl : archiv.gewinnzahlen(nr))
            if (zahl >= 1 && zahl <= kHoechsteZahl)
                bits_[static_cast<std::size_t>(zahl) * woerter_ + wort] |= bit;
        if (istSuperzahl(archiv.s[nr], superzahl))
            mitSuperzahl_[wort] |= bit;
    }
}

Trefferzaehler Zahlenspalten::zaehle(const Kombination& kombination) const
{
    const auto [a, b, c, d, e, f] = kombination;
    const std::array spalten{spalte(a), spalte(b), spalte(c), spalte(d), spalte(e), spalte(f)};
    Trefferzaehler zaehler;
    for (std::size_t wort = 0; wort < woerter_; ++wort) {
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

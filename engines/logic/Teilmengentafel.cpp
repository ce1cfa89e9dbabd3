#include "engines/logic/Teilmengentafel.h"

#include "shell/logic/Binomial.h"

#include <bit>
#include <iterator>
#include <numeric>

namespace {

constexpr std::size_t kGanz = 6;

/// The numbers of a row, ascending.
struct Zerlegt {
    explicit Zerlegt(Zahlenmenge menge)
    {
        for (; menge != 0 && anzahl < kGanz; menge &= menge - 1)
            zahl[anzahl++] = static_cast<std::size_t>(std::countr_zero(menge));
    }

    std::array<std::size_t, kGanz> zahl{};
    std::size_t anzahl = 0;
};

Zahlenmenge bis(int n)
{
    return ((Zahlenmenge{2} << n) - 1) & ~Zahlenmenge{1};
}

} // namespace

template <class Zaehler> Teilmengentafel<Zaehler>::Teilmengentafel(int n, std::span<const Zahlenmenge> reihen) : n_(n)
{
    for (int vomEnde = 1; vomEnde <= 6; ++vomEnde)
        for (int zahl = 0; zahl <= n; ++zahl)
            gewichte_[static_cast<std::size_t>(vomEnde)][static_cast<std::size_t>(zahl)] =
                static_cast<std::int32_t>(Binomial(n - zahl, vomEnde));
    for (std::size_t k = kKleinste; k <= kGroesste; ++k) {
        const auto groesse = static_cast<std::size_t>(Binomial(n, static_cast<int>(k)));
        tafeln_[k].resize(groesse + kUeberhang);
        ende_[k] = tafeln_[k].data() + groesse;
    }
    ganze_.reserve(reihen.size());
    for (const Zahlenmenge reihe : reihen) {
        const Zerlegt zahlen(reihe & bis(n));
        if (zahlen.anzahl == kGanz)
            ganze_.push_back({reihe & bis(n), nummer(zahlen.zahl), 1});
        else
            wachse<0, 0>(zahlen.zahl, zahlen.anzahl, 1, 1);
    }
    ordneGanze();
    zaehleGanze();
}

/// In their order, neighbours meet the same parts of the tables, except where their last five numbers stand: that part
/// of the table is called for some rows ahead.
template <class Zaehler> void Teilmengentafel<Zaehler>::zaehleGanze()
{
    constexpr std::size_t kVoraus = 8;
    for (std::size_t i = 0; i < ganze_.size(); ++i) {
        if (i + kVoraus < ganze_.size()) {
            const GanzeReihe& spaeter = ganze_[i + kVoraus];
            const std::int64_t ort = Binomial(n_, 6) - spaeter.nummer - gewicht(6, std::countr_zero(spaeter.menge));
            __builtin_prefetch(ende_[5] - ort, 1);
        }
        wachse<0, 0>(Zerlegt(ganze_[i].menge).zahl, kGanz, 1, static_cast<Zaehler>(ganze_[i].anzahl));
    }
}

template <class Zaehler> std::span<const Zaehler> Teilmengentafel<Zaehler>::tabelle(int k) const
{
    return {tafeln_[static_cast<std::size_t>(k)].data(), ende_[static_cast<std::size_t>(k)]};
}

/// Sets grow from their last number to their first, so that each costs one addition: the number that is `kVomEnde` from
/// the end joins the set or does not. Places are counted back from the end of a table, where the last set is 1. Unrolls
/// to one step a set.
template <class Zaehler>
template <std::size_t kVomEnde, std::size_t kGroesse>
[[gnu::always_inline]] inline void Teilmengentafel<Zaehler>::wachse(const Zahlen& zahl, std::size_t anzahl,
                                                                    std::int32_t ort, Zaehler mal)
{
    if constexpr (kVomEnde < kGanz && kGroesse < kGroesste) {
        if (kVomEnde >= anzahl)
            return;
        const std::int32_t ortMit = ort + gewichte_[kGroesse + 1][zahl[anzahl - 1 - kVomEnde]];
        if constexpr (kGroesse + 1 >= kKleinste) {
            Zaehler& eintrag = *(ende_[kGroesse + 1] - ortMit);
            eintrag = static_cast<Zaehler>(eintrag + mal);
        }
        wachse<kVomEnde + 1, kGroesse + 1>(zahl, anzahl, ortMit, mal);
        wachse<kVomEnde + 1, kGroesse>(zahl, anzahl, ort, mal);
    }
}

template <class Zaehler> std::uint32_t Teilmengentafel<Zaehler>::nummer(const Zahlen& zahl) const
{
    std::int64_t nummer = Binomial(n_, 6) - 1;
    for (std::size_t i = 0; i < kGanz; ++i)
        nummer -= gewichte_[kGanz - i][zahl[i]];
    return static_cast<std::uint32_t>(nummer);
}

/// Puts them in order, the lower half of the bits of their number first, and merges equal ones.
template <class Zaehler> void Teilmengentafel<Zaehler>::ordneGanze()
{
    std::vector<GanzeReihe> geordnet(ganze_.size());
    for (const int bits : {0, 12}) {
        const auto fach = [bits](const GanzeReihe& reihe) { return reihe.nummer >> bits & 0xFFFU; };
        std::array<std::uint32_t, 0x1000> ab{};
        for (const GanzeReihe& reihe : ganze_)
            ++ab[fach(reihe)];
        std::exclusive_scan(ab.begin(), ab.end(), ab.begin(), 0U);
        for (const GanzeReihe& reihe : ganze_)
            geordnet[ab[fach(reihe)]++] = reihe;
        ganze_.swap(geordnet);
    }
    auto ziel = ganze_.begin();
    for (const GanzeReihe& reihe : ganze_)
        if (ziel != ganze_.begin() && std::prev(ziel)->nummer == reihe.nummer)
            ++std::prev(ziel)->anzahl;
        else
            *ziel++ = reihe;
    ganze_.erase(ziel, ganze_.end());
}

template class Teilmengentafel<std::uint16_t>;
template class Teilmengentafel<std::uint32_t>;

#pragma once

#include "archive/logic/Zahlenmenge.h"
#include "shell/logic/Lottozahl.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// A set of six numbers that stands among the rows.
struct GanzeReihe {
    Zahlenmenge menge = 0;
    std::uint32_t nummer = 0; ///< its place among all sets of six of the numbers 1..n in lexicographic order, from 0
    std::uint32_t anzahl = 0; ///< how many rows are this set
};

/// Counts, for every set of 2 to 5 of the numbers 1..n, the rows that contain it, and lists the whole rows of six.
///
/// The counts of one size stand in a single table in lexicographic order of their sets: {1,2} is the first of the pairs
/// and {n-1,n} the last. The place of a set is a sum with one term for each of its numbers, see `gewicht`; so the sets
/// that differ in their last number alone, or in their last two, lie side by side.
///
/// The counts of pairs have to fit `Zaehler`; they are the largest.
template <class Zaehler> class Teilmengentafel {
public:
    static constexpr int kKleinste = 2;
    static constexpr int kGroesste = 5;
    /// Entries that may be read behind the last one of a table.
    static constexpr std::size_t kUeberhang = 32;

    /// `reihen` are sets of at most six numbers; numbers above `n` are left out. `n` is 0..49.
    Teilmengentafel(int n, std::span<const Zahlenmenge> reihen);

    // The tables are looked into by address.
    Teilmengentafel(const Teilmengentafel&) = delete;
    Teilmengentafel(Teilmengentafel&&) noexcept = default;

    int n() const { return n_; }

    /// The table of the sets of `k` numbers, `k` 2..5: Binomial(n, k) entries, set after set in lexicographic order.
    std::span<const Zaehler> tabelle(int k) const;

    /// The different whole rows of six numbers, in lexicographic order.
    std::span<const GanzeReihe> ganze() const { return ganze_; }

    /// What a number takes from the place of its set, `vomEnde` 1 for the last number of the set, 2 for the one before.
    /// The set stands at Binomial(n, k) - 1 less the weights of its numbers, counted from 0.
    std::int32_t gewicht(int vomEnde, int zahl) const
    {
        return gewichte_[static_cast<std::size_t>(vomEnde)][static_cast<std::size_t>(zahl)];
    }

private:
    using Zahlen = std::array<std::size_t, 6>; ///< of a row, ascending

    template <std::size_t kVomEnde, std::size_t kGroesse>
    void wachse(const Zahlen& zahl, std::size_t anzahl, std::int32_t ort, Zaehler mal);
    std::uint32_t nummer(const Zahlen& zahl) const;
    void ordneGanze();
    void zaehleGanze();

    int n_;
    std::array<std::array<std::int32_t, kHoechsteZahl + 1>, 7> gewichte_{}; ///< [1..6][1..n]
    std::array<std::vector<Zaehler>, kGroesste + 1> tafeln_;                ///< [2..5], each with its overhang
    std::array<Zaehler*, kGroesste + 1> ende_{};                            ///< [2..5] behind the last entry
    std::vector<GanzeReihe> ganze_;
};

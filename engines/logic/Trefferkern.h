#pragma once

#include "engines/logic/Teilmengentafel.h"

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
#include <variant>

// Given rows of six numbers: how many of them share exactly h numbers with a combination, for every combination of k of
// the numbers 1..n? Comparing each combination with each row takes minutes to hours. Here the cost hardly depends on
// the number of rows, because the rows are looked at only once, to count the small sets of numbers they contain.
//
// Let T_j be the sum, over all sets of j numbers of the combination, of how many rows contain the set. A row that
// shares m numbers with the combination is in it C(m, j) times. So T_j = sum over m of C(m, j) * N_m, where N_m is the
// number of rows that share exactly m; and that turns round to
//
//     N_h = sum over j >= h of (-1)^(j-h) * C(j, h) * T_j.
//
// T_j of neighbouring combinations have most of their terms in common. The walk chooses all numbers but the last two
// one by one and carries two things along: the part of T_j that these numbers make among themselves, and, for each
// number that may still follow, the part that it would add. What is left for the last two numbers e and f are the sets
// that hold both of them and some of the chosen ones, and in a `Teilmengentafel` those of one choice lie side by side,
// for all e and f. So the innermost step adds a handful of table rows as vectors.
//
// The sums wrap around, and need not be exact: the results are, as long as they fit.

/// All combinations that share their first k - 2 numbers, in lexicographic order.
template <class Zaehler> struct Trefferblock {
    std::array<int, 4> anfang{};             ///< the first k - 2 numbers, ascending
    std::uint32_t nummer = 0;                ///< place of the block's first combination among all combinations, from 0
    std::size_t anzahl = 0;                  ///< combinations in the block
    std::array<const Zaehler*, 7> treffer{}; ///< [h][i]: rows that share exactly h numbers with combination i
};

class Trefferkern {
public:
    /// The instruction sets there is a way for. `Bester` is the best that this machine has.
    enum class Befehlssatz { Einfach, Avx2, Bester };

    /// `reihen` are sets of at most six numbers; numbers above `n` (2..49) are left out.
    Trefferkern(int n, std::span<const Zahlenmenge> reihen, Befehlssatz befehlssatz = Befehlssatz::Bester);

    /// Hands every block of the combinations of `k` of the numbers 1..n (k 2..6) to `besucher`, which takes a
    /// `const Trefferblock<Zaehler>&` of either width. In it stand treffer[h] for h from `ab` (2 or 3) to k; the memory
    /// is used again for the next block. The visitor returns false to stop; then the walk returns false too.
    template <class Besucher> bool durchlaufe(int k, int ab, Besucher&& besucher) const
    {
        return laufe(k, ab, std::ref(besucher), std::ref(besucher));
    }

    /// True if counts are kept in 16 bits: then they fit, whatever the combination.
    bool schmal() const { return std::holds_alternative<Teilmengentafel<std::uint16_t>>(tafel_); }
    /// Bytes that the tables take.
    std::size_t tafelgroesse() const;

    static bool hat(Befehlssatz befehlssatz);
    static std::string_view name(Befehlssatz befehlssatz);

private:
    using Schmal = std::function<bool(const Trefferblock<std::uint16_t>&)>;
    using Breit = std::function<bool(const Trefferblock<std::uint32_t>&)>;

    bool laufe(int k, int ab, const Schmal& schmal, const Breit& breit) const;

    std::variant<Teilmengentafel<std::uint16_t>, Teilmengentafel<std::uint32_t>> tafel_;
    Befehlssatz befehlssatz_;
};

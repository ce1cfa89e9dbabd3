#pragma once

#include "shell/logic/Binomial.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

// The innermost step of the `Trefferkern`: all combinations that share their first K - 2 numbers.

/// Entries that the step reads and writes behind the last one of an array.
inline constexpr int kVektorUeberhang = 32;

/// What the step needs. For the combination i of the block, which ends in e and f, T_j is
///
///     fest[j] + je[j][e] + je[j][f] + sum over zeile in zeilen[j] of zeile[i],
///
/// where the table rows are those of the choices of j - 2 of the first numbers.
template <class Zaehler, int K> struct Blockauftrag {
    static constexpr std::size_t kGroesste = std::min(K, 5); ///< size of the largest sets that stand in a table
    static constexpr std::size_t zeilenzahl(std::size_t j)
    {
        return static_cast<std::size_t>(Binomial(K - 2, static_cast<int>(j) - 2));
    }

    int n = 0;
    int ab = 0;                                            ///< the smallest e
    std::array<Zaehler, 6> fest{};                         ///< [j]
    std::array<const Zaehler*, 6> je{};                    ///< [j][number]
    std::array<std::array<const Zaehler*, 6>, 6> zeilen{}; ///< [j]
    std::array<Zaehler*, 7> treffer{};                     ///< [h][i]: here go the counts
};

/// (-1)^(j-h) * C(j, h), the factor of T_j in N_h.
constexpr int umkehrfaktor(std::size_t j, std::size_t h)
{
    const auto wege = static_cast<int>(Binomial(static_cast<int>(j), static_cast<int>(h)));
    return (j - h) % 2 == 0 ? wege : -wege;
}

/// The vectors of the step, written without a word of any instruction set: the compiler makes of them what the calling
/// function is allowed.
template <class Zaehler> struct Vektoren {
    typedef Zaehler Vektor __attribute__((vector_size(32)));
    static constexpr int kBreite = 32 / sizeof(Zaehler);
    static_assert(kBreite <= kVektorUeberhang);

    /// summe += the entries from `quelle` on.
    [[gnu::always_inline]] static void addiere(Vektor& summe, const Zaehler* quelle)
    {
        Vektor summand;
        std::memcpy(&summand, quelle, sizeof(Vektor));
        summe += summand;
    }
};

template <class Zaehler, int K, std::size_t Ab>
[[gnu::always_inline]] inline void rechneBlock(const Blockauftrag<Zaehler, K>& auftrag)
{
    using Vektor = typename Vektoren<Zaehler>::Vektor;
    constexpr std::size_t kGroesste = Blockauftrag<Zaehler, K>::kGroesste;

    std::ptrdiff_t i = 0;
    for (int e = auftrag.ab; e < auftrag.n; i += auftrag.n - e, ++e) {
        for (int f = e + 1; f <= auftrag.n; f += Vektoren<Zaehler>::kBreite) {
            const std::ptrdiff_t stelle = i + f - e - 1;
            Vektor t[kGroesste + 1]{};
#pragma GCC unroll 8
            for (std::size_t j = Ab; j <= kGroesste; ++j) {
                t[j] = Vektor{} + static_cast<Zaehler>(auftrag.fest[j] + auftrag.je[j][e]);
                Vektoren<Zaehler>::addiere(t[j], auftrag.je[j] + f);
#pragma GCC unroll 8
                for (std::size_t r = 0; r < 6; ++r)
                    if (r < auftrag.zeilenzahl(j))
                        Vektoren<Zaehler>::addiere(t[j], auftrag.zeilen[j][r] + stelle);
            }
#pragma GCC unroll 8
            for (std::size_t h = Ab; h <= kGroesste; ++h) {
                Vektor anzahl = t[h];
#pragma GCC unroll 8
                for (std::size_t j = h + 1; j <= kGroesste; ++j)
                    anzahl += t[j] * static_cast<Zaehler>(umkehrfaktor(j, h));
                std::memcpy(auftrag.treffer[h] + stelle, &anzahl, sizeof(Vektor));
            }
        }
    }
}

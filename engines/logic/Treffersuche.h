#pragma once

#include "archive/logic/Zahlenmenge.h"
#include "engines/logic/Trefferrang.h"
#include "shell/logic/Fortschritt.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/// How many hits a combination needs for its list; chosen by hand for each set of games, so that the lists stay short.
struct Trefferschwellen {
    std::uint32_t SchwelleLoser = 0; ///< fewer threes than this
    std::uint32_t SchwelleDrei = 0;  ///< threes, at least
    std::uint32_t SchwelleVier = 0;
    std::uint32_t SchwelleFuenf = 0;

    bool operator==(const Trefferschwellen&) const = default;
};

/// For the games of `maske` (1 Samstag, 2 Mittwoch, 4 Mittwoch (B)); all 0 for none.
Trefferschwellen trefferschwellen(int maske);

/// The lists, in the order in which they stand on the screen.
enum class Rangliste : std::size_t { Drei, Vier, Fuenf, Sechs, Loser };
inline constexpr std::size_t kRanglisten = 5;

struct Treffersuche {
    Trefferschwellen schwellen;
    bool NurExakt = true;
    std::array<Trefferrang, kRanglisten> listen;
    std::uint64_t AnzahlKombis = 0;     ///< combinations generated
    std::uint64_t AnzahlZiehungen = 0;  ///< rows that each was compared with
    std::uint32_t AnzahlOhneGewinn = 0; ///< combinations without a six, five and four
    bool gestoppt = false;

    const Trefferrang& liste(Rangliste liste) const { return listen[static_cast<std::size_t>(liste)]; }
};

/// Compares all 13,983,816 combinations with the rows and keeps those that pass a threshold, ranked. With `nurExakt`
/// the lists of threes, fours and fives take no combination that has more right somewhere. `fortschritt` gets the count
/// of combinations done; a stopped search keeps what it has found.
Treffersuche sucheTreffer(std::span<const Zahlenmenge> reihen, const Trefferschwellen& schwellen, bool nurExakt,
                          const Fortschritt& fortschritt = {});

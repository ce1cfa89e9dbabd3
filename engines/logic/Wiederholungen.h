#pragma once

#include "archive/logic/ZiehungsArchiv.h"

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

/// How many numbers the sets of a search may have.
inline constexpr int kKleinsteWiederholung = 2;
inline constexpr int kGroessteWiederholung = 6;

/// A set of numbers and in how many draws it stands.
struct Wiederholung {
    std::array<std::int32_t, 6> zahlen{}; ///< as the columns hold them; the first `Wiederholungslaenge` count
    std::int32_t anzahl = 0;              ///< 2 or more, in a count of all sets 1 or more

    bool operator==(const Wiederholung&) const = default;
};

/// What a search has found. The default is that of no search.
struct Wiederholungen {
    int Wiederholungslaenge = 0; ///< numbers a set, 2..6; 0 before a search
    std::int32_t AnzahlEinmal = 0;
    std::int32_t AnzahlMehrfach = 0;
    std::vector<Wiederholung> mehrfache; ///< in ascending order of their numbers
    bool vollstaendig = false;           ///< false if the search was stopped: then it holds what was counted so far
};

/// The two steps of a search: the draws are cut up, then the sets are sorted and counted.
enum class Suchschritt { Zerlegen, Vergleichen };

/// Takes how many draws have been cut up, or how many of the sets have been counted (0 while they are sorted). It is
/// called first of all, before each step with 0, and at least every 16 ms; false stops the search. May be empty.
using Suchfortschritt = std::function<bool(Suchschritt schritt, std::uint64_t erledigt)>;

/// Counts all sets of `k` Gewinnzahlen, 2..6, over all draws; for any other `k` there are none. A set is the numbers of
/// `k` columns from the left to the right: rows of a file that are not ascending give other sets than ascending ones.
Wiederholungen WiederholungsSuche(const ZiehungsArchiv& archiv, int k, const Suchfortschritt& fortschritt = {});

/// All sets of `k` numbers, those that stand in one draw alone too, in ascending order of their numbers.
struct Mengenzaehlung {
    std::vector<Wiederholung> mengen;
    bool vollstaendig = false; ///< false if the count was stopped
};

/// Counts the sets as `WiederholungsSuche` does and keeps all of them.
Mengenzaehlung zaehleMengen(const ZiehungsArchiv& archiv, int k, const Suchfortschritt& fortschritt = {});

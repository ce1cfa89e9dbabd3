#pragma once

#include "shell/logic/Lottozahl.h"

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// The ticket grid: 49 cells, indexed by the number 1..49 they show, each marked or not. The mark is the only state.
/// A number outside 1..49 is never marked, and a click on it changes nothing.
class Tippfeld7x7 {
public:
    static constexpr int kJeZeile = 7;
    static constexpr int kFreieEingabe = 6; ///< most marks of a free entry

    /// Row 0..6 of a number 1..49: the first row holds 1 to 7.
    static constexpr int zeile(int zahl) { return (zahl - 1) / kJeZeile; }
    /// Column 0..6 of a number 1..49.
    static constexpr int spalte(int zahl) { return (zahl - 1) % kJeZeile; }

    bool markiert(int zahl) const { return gibtEs(zahl) && marken_[stelle(zahl)]; }
    int anzahl() const { return static_cast<int>(marken_.count()); }
    /// The marked numbers, ascending.
    std::vector<int> gewaehlte() const;

    /// Free entry of up to six: a marked cell is unmarked, an unmarked one marked while fewer than six are.
    void klickFreieEingabe(int zahl);
    /// One of 49: marks the cell and unmarks all others.
    void klickEineZahl(int zahl);
    /// Choice of any number of cells: a marked cell is unmarked, an unmarked one marked.
    void klickAuswahl(int zahl);
    /// Marks these numbers and no others.
    void zeige(std::span<const std::int32_t> zahlen);
    void loesche() { marken_.reset(); }

    bool operator==(const Tippfeld7x7&) const = default;

private:
    static constexpr std::size_t stelle(int zahl) { return static_cast<std::size_t>(zahl); }

    std::bitset<kHoechsteZahl + 1> marken_; ///< [1..49]
};

#pragma once

#include "archive/logic/Zahlenmenge.h"
#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/Lottozahl.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// The draws turned on their side: for each number the draws that hold it, a bit a draw, so that one step looks at 64
/// of them. A number that a draw holds twice counts once; numbers outside of 1..49 have no column.
class Ziehungsbits {
public:
    using Wort = std::uint64_t;
    static constexpr std::size_t kBits = 64;

    explicit Ziehungsbits(const ZiehungsArchiv& archiv)
        : woerter_(static_cast<std::size_t>(archiv.AnzahlZiehungen) / kBits + 1),
          bits_((kHoechsteZahl + 1) * woerter_)
    {
        for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr) {
            setze(&bits_[0], nr);
            for (const std::int32_t zahl : archiv.gewinnzahlen(nr))
                if (hatSpalte(zahl))
                    setze(&bits_[anfang(zahl)], nr);
        }
    }

    static bool hatSpalte(std::int32_t zahl) { return gibtEs(zahl); }
    /// Marks the draw `nr`, which counts from 1, in a column.
    static void setze(Wort* spalte, std::size_t nr) { spalte[nr / kBits] |= Wort{1} << nr % kBits; }

    /// Words of one column.
    std::size_t woerter() const { return woerter_; }
    /// The draws that hold `zahl`, 1..49; with 0 all draws there are.
    const Wort* spalte(std::int32_t zahl) const { return &bits_[anfang(zahl)]; }

private:
    std::size_t anfang(std::int32_t zahl) const { return static_cast<std::size_t>(zahl) * woerter_; }

    std::size_t woerter_;
    std::vector<Wort> bits_; ///< column after column
};

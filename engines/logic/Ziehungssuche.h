#pragma once

#include "engines/logic/Ziehungsbits.h"

#include <algorithm>
#include <bit>
#include <span>

/// Finds the draws of an archive that hold several numbers; the archive stays while it is used.
class Ziehungssuche {
public:
    explicit Ziehungssuche(const ZiehungsArchiv& archiv) : archiv_(archiv), bits_(archiv) {}

    /// Calls `tue` with each draw that holds all these numbers, oldest first.
    template <class Tue> void mitAllen(std::span<const std::int32_t> zahlen, Tue tue) const
    {
        for (std::size_t wort = 0; wort < bits_.woerter(); ++wort) {
            for (Ziehungsbits::Wort rest = gemeinsame(zahlen, wort); rest != 0; rest &= rest - 1) {
                const std::size_t nr = wort * Ziehungsbits::kBits + static_cast<std::size_t>(std::countr_zero(rest));
                if (haeltAlleAnderen(nr, zahlen))
                    tue(nr);
            }
        }
    }

private:
    Ziehungsbits::Wort gemeinsame(std::span<const std::int32_t> zahlen, std::size_t wort) const
    {
        Ziehungsbits::Wort alle = bits_.spalte(0)[wort];
        for (const std::int32_t zahl : zahlen)
            alle &= bits_.spalte(Ziehungsbits::hatSpalte(zahl) ? zahl : 0)[wort];
        return alle;
    }

    /// What has no column is looked for in the draw.
    bool haeltAlleAnderen(std::size_t nr, std::span<const std::int32_t> zahlen) const
    {
        return std::ranges::all_of(zahlen, [&](std::int32_t zahl) {
            return Ziehungsbits::hatSpalte(zahl) || std::ranges::count(archiv_.gewinnzahlen(nr), zahl) > 0;
        });
    }

    const ZiehungsArchiv& archiv_;
    Ziehungsbits bits_;
};

#pragma once

#include "engines/logic/Exportauftrag.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

/// Goes through the combinations of an order in lexicographic order. At each place it tries only numbers that still
/// leave room for what must follow, so that every step leads to a combination and none is thrown away.
template <class Reihe> class Exportgang {
public:
    /// Combinations that share all numbers but the last come as one row: `reihe(davor, von, bis)` gets the shared
    /// numbers and the last ones, von..bis. False ends the walk.
    Exportgang(const Exportauftrag& auftrag, Reihe reihe)
        : stellen_(static_cast<std::size_t>(auftrag.k)),
          bereich_(auftrag.bereich.value_or(Zahlenbereich{})),
          bankzahlen_(auftrag.bankzahlen),
          reihe_(std::move(reihe))
    {
        std::ranges::sort(bankzahlen_);
    }

    /// False if a row has ended it.
    bool gehe() { return bankzahlen_.size() > stellen_ || ab(0, bereich_.von, 0); }

private:
    /// Fills the places from `stelle` on with `kleinste` and greater numbers; the Bankzahlen before the index `bank`
    /// are placed.
    bool ab(std::size_t stelle, std::int32_t kleinste, std::size_t bank)
    {
        const std::size_t offen = stellen_ - stelle;
        std::int32_t letzte = bereich_.bis - static_cast<std::int32_t>(offen) + 1;
        const bool bankOffen = bank < bankzahlen_.size();
        if (bankOffen) {
            letzte = std::min(letzte, bankzahlen_[bank]);
            if (bankzahlen_.size() - bank == offen)
                kleinste = bankzahlen_[bank];
        }
        if (offen == 1)
            return reihe_(std::span<const std::int32_t>(zahlen_.data(), stelle), kleinste, letzte);
        for (std::int32_t zahl = kleinste; zahl <= letzte; ++zahl) {
            zahlen_[stelle] = zahl;
            if (!ab(stelle + 1, zahl + 1, bankOffen && zahl == bankzahlen_[bank] ? bank + 1 : bank))
                return false;
        }
        return true;
    }

    std::size_t stellen_;
    Zahlenbereich bereich_;
    std::vector<std::int32_t> bankzahlen_;
    Reihe reihe_;
    std::array<std::int32_t, kGroessterExport> zahlen_{};
};

#pragma once

#include "archive/logic/Kombination.h"
#include "archive/logic/ZiehungsArchiv.h"
#include "engines/logic/Trefferzaehler.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// The draws turned on their side: for each number the draws that hold it, a bit a draw. Adding up the six columns of
/// a combination bit by bit gives the hits of 64 draws at a time.
class Zahlenspalten {
public:
    /// A number that a draw holds twice counts once; numbers outside of 1..49 never count, and a Superzahl of "none"
    /// is never the chosen one.
    Zahlenspalten(const ZiehungsArchiv& archiv, std::int32_t superzahl);

    /// The hits of six numbers of 1..49.
    Trefferzaehler zaehle(const Kombination& kombination) const;

private:
    using Wort = std::uint64_t;

    const Wort* spalte(std::int32_t zahl) const { return bits_.data() + static_cast<std::size_t>(zahl) * woerter_; }

    std::size_t woerter_;            ///< of one column
    std::vector<Wort> bits_;         ///< column after column, from the number 0 on, which no draw holds
    std::vector<Wort> mitSuperzahl_; ///< the draws with the chosen Superzahl
};

#pragma once

#include "archive/logic/Kombination.h"
#include "engines/logic/Trefferzaehler.h"
#include "engines/logic/Ziehungsbits.h"

#include <cstdint>
#include <vector>

/// The hits of a combination in all draws: adding up its six columns bit by bit gives those of 64 draws at a time.
class Zahlenspalten {
public:
    /// A number that a draw holds twice counts once; numbers outside of 1..49 never count, and a Superzahl of "none"
    /// is never the chosen one.
    Zahlenspalten(const ZiehungsArchiv& archiv, std::int32_t superzahl);

    /// The hits of six numbers of 1..49.
    Trefferzaehler zaehle(const Kombination& kombination) const;

private:
    Ziehungsbits bits_;
    std::vector<Ziehungsbits::Wort> mitSuperzahl_; ///< the draws with the chosen Superzahl
};

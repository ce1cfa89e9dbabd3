#include "engines/logic/KombinationAusNummer.h"

#include "archive/logic/Zahlenmenge.h"
#include "shell/logic/Binomial.h"
#include "shell/logic/Lottozahl.h"

#include <algorithm>

namespace {

constexpr int kStellen = 6;

using Tafel = std::array<std::array<std::int32_t, kStellen>, kHoechsteZahl>;

/// [n][k]: how many combinations go on with k of the n numbers that are left.
constexpr Tafel kFortsetzungen = [] {
    Tafel tafel{};
    for (int n = 0; n < kHoechsteZahl; ++n)
        for (int k = 0; k < kStellen; ++k)
            tafel[static_cast<std::size_t>(n)][static_cast<std::size_t>(k)] = static_cast<std::int32_t>(Binomial(n, k));
    return tafel;
}();

} // namespace

Kombination KombinationAusNummer(std::int32_t nummer)
{
    std::int32_t rest = std::clamp(nummer, 1, kKombinationen6aus49);
    Kombination zahlen{};
    std::int32_t zahl = 0;
    for (std::size_t stelle = 0; stelle + 1 < kStellen; ++stelle) {
        const auto fortsetzungen = [&](std::int32_t anfang) {
            return kFortsetzungen[static_cast<std::size_t>(kHoechsteZahl - anfang)][kStellen - 1 - stelle];
        };
        for (++zahl; fortsetzungen(zahl) < rest; ++zahl)
            rest -= fortsetzungen(zahl);
        zahlen[stelle] = zahl;
    }
    zahlen.back() = zahl + rest;
    return zahlen;
}

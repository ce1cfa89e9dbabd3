#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <numeric>

/// How often one combination would have won, by the count of right numbers, [2..6]; the rest of the fields stays 0.
/// Two right numbers win with the Superzahl alone.
struct Trefferzaehler {
    std::array<std::int32_t, 7> mitSuperzahl{};
    std::array<std::int32_t, 7> ohneSuperzahl{};

    std::int32_t Gewinnfaelle() const
    {
        return std::accumulate(ohneSuperzahl.begin(), ohneSuperzahl.end(),
                               std::accumulate(mitSuperzahl.begin(), mitSuperzahl.end(), 0));
    }

    bool operator==(const Trefferzaehler&) const = default;
};

/// Least count of right numbers that wins.
constexpr int kleinsterGewinn(bool mitSuperzahl)
{
    return mitSuperzahl ? 2 : 3;
}

#include "shell/logic/Zufall.h"

#include "shell/logic/Lottozahl.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <random>

namespace {

/// A counter that runs through all 64-bit states, with a strong mixing of its bits as output.
constexpr std::uint64_t kSchritt = 0x9E3779B97F4A7C15U;

std::uint64_t mische(std::uint64_t wert)
{
    wert = (wert ^ (wert >> 30U)) * 0xBF58476D1CE4E5B9U;
    wert = (wert ^ (wert >> 27U)) * 0x94D049BB133111EBU;
    return wert ^ (wert >> 31U);
}

} // namespace

Zufall::Zufall()
{
    std::random_device quelle;
    zustand_ = (std::uint64_t{quelle()} << 32U) | quelle();
}

Zufall::Zufall(std::uint64_t seed) : zustand_(seed), gestellt_(true) {}

std::uint64_t Zufall::naechste()
{
    zustand_ += kSchritt;
    return mische(zustand_);
}

double Zufall::Rnd()
{
    constexpr unsigned kMantisse = 53;
    return std::ldexp(static_cast<double>(naechste() >> (64U - kMantisse)), -static_cast<int>(kMantisse));
}

void Zufall::Randomize(double seed)
{
    const std::uint64_t zusatz = gestellt_ ? 0 : mische(std::bit_cast<std::uint64_t>(seed));
    zustand_ = naechste() ^ zusatz;
}

void Zufall::stelle(std::uint64_t seed)
{
    zustand_ = seed;
    gestellt_ = true;
}

int lottozahl(double rnd)
{
    return static_cast<int>(kHoechsteZahl * rnd + 1);
}

std::array<int, 6> sechsZahlen(Zufall& zufall)
{
    std::array<bool, kHoechsteZahl> vergeben{};
    std::array<int, 6> zahlen{};
    std::ranges::generate(zahlen, [&] {
        int zahl = lottozahl(zufall.Rnd());
        while (vergeben[static_cast<std::size_t>(zahl - 1)])
            zahl = lottozahl(zufall.Rnd());
        vergeben[static_cast<std::size_t>(zahl - 1)] = true;
        return zahl;
    });
    return zahlen;
}

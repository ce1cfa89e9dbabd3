#pragma once

#include <array>
#include <cstdint>

/// The program's source of random numbers. Not for secrets.
class Zufall {
public:
    /// Begins differently at every start of the program.
    Zufall();

    /// A sequence that can be repeated: see `stelle`.
    explicit Zufall(std::uint64_t seed);

    /// The next number, uniform in [0, 1).
    double Rnd();

    /// Stirs `seed` (by custom the seconds since midnight) into the state. The state before goes in too, so that two
    /// calls within one second do not begin the same sequence.
    void Randomize(double seed);

    /// From here on the sequence depends on `seed` alone: later calls of `Randomize` still begin a new sequence, but
    /// no longer look at the time of day.
    void stelle(std::uint64_t seed);

private:
    std::uint64_t naechste();

    std::uint64_t zustand_;
    bool gestellt_{false};
};

/// The number 1..49 that a random number in [0, 1) stands for: Int(49 * rnd + 1).
int lottozahl(double rnd);

/// Six different numbers 1..49 in the order drawn.
std::array<int, 6> sechsZahlen(Zufall& zufall);

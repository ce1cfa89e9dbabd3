#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

/// Takes the count done so far; false stops the run. May be empty, then nobody listens and nothing stops.
using Fortschritt = std::function<bool(std::uint64_t erledigt)>;

/// Stands in the inner loop of a long run and passes its count on to a `Fortschritt` often enough for a screen that
/// turns its event loop every 16 ms, and no more often. A step costs a decrement; the clock is read every so many
/// steps only, and how many follows from the pace of the loop.
class Takt {
public:
    using Zeit = std::chrono::steady_clock::time_point;
    using Zeitquelle = std::function<Zeit()>;

    /// Below 16 ms, so that the steps between two looks at the clock still fit in.
    static constexpr std::chrono::milliseconds kAbstand{12};

    explicit Takt(
        Fortschritt fortschritt, Zeitquelle zeit = [] { return std::chrono::steady_clock::now(); });

    /// One step done, `erledigt` in all. False once the run is to stop.
    bool schritt(std::uint64_t erledigt)
    {
        if (--bisBlick_ > 0)
            return laeuft_;
        return blick(erledigt);
    }

    /// Reports at once, whatever the time: for the first and the last count of a run.
    bool melde(std::uint64_t erledigt);

    bool laeuft() const { return laeuft_; }

private:
    bool blick(std::uint64_t erledigt);

    Fortschritt fortschritt_;
    Zeitquelle zeit_;
    Zeit gemeldet_;
    Zeit geblickt_;
    std::int64_t schritte_{1}; ///< from one look at the clock to the next
    std::int64_t bisBlick_{1};
    bool laeuft_{true};
};

#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// A point of local time, in milliseconds.
using Zeitpunkt = std::chrono::local_time<std::chrono::milliseconds>;

/// The clock that the program asks. Local time, without regard to shifts between summer and winter.
class Uhr {
public:
    Uhr() = default;
    Uhr(const Uhr&) = delete;
    Uhr& operator=(const Uhr&) = delete;
    virtual ~Uhr() = default;

    virtual Zeitpunkt jetzt() const = 0;

    /// Seconds since midnight, with fractions, 0 to below 86400.
    double Timer() const;

    std::chrono::year_month_day heute() const;
};

/// The machine's own clock.
class SystemUhr final : public Uhr {
public:
    Zeitpunkt jetzt() const override;
};

/// A clock that can be set: for tests and for runs that are driven from outside.
class GestellteUhr final : public Uhr {
public:
    enum class Lauf {
        Laeuft, ///< goes on from the set time at the machine's pace
        Steht   ///< keeps the set time until it is set or moved
    };

    explicit GestellteUhr(Zeitpunkt zeit, Lauf lauf = Lauf::Laeuft);

    /// Begins at the machine's time and runs on.
    GestellteUhr();

    Zeitpunkt jetzt() const override;

    void stelle(Zeitpunkt zeit);

    /// Takes a text as `liesIsoZeit` does. False, and the clock goes on as before, if it is none.
    bool stelle(std::string_view iso);

    void rueckeVor(std::chrono::milliseconds dauer);

private:
    Zeitpunkt zeit_;
    std::chrono::steady_clock::time_point gestellt_;
    Lauf lauf_;
};

/// Reads "2026-11-21T19:30:00"; seconds with or without a fraction, or the whole time of day, may be missing, and a
/// blank may stand for the "T". Nothing for a text of another form or a day that does not exist.
std::optional<Zeitpunkt> liesIsoZeit(std::string_view text);

/// A duration as "hh:mm:ss", with more digits from 100 hours on; empty for a negative one.
std::string uhrtext(std::int64_t sekunden);

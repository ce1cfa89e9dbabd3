#pragma once

#include "shell/logic/Format.h"

#include <chrono>
#include <cstdint>
#include <string>

/// The stop watch of the long searches: holds two readings of the monotonic clock until they are overwritten.
class clsTimer {
public:
    /// The monotonic clock always exists.
    bool HasCounter() const { return true; }

    std::int32_t TicksPerSecond() const { return static_cast<std::int32_t>(kFrequenz); }

    void ResetTimer() { start_ = zaehler(); }
    void StopTimer() { stop_ = zaehler(); }

    /// Milliseconds from the start reading to the stop reading.
    double Elapsed() const { return static_cast<double>(stop_ - start_) / static_cast<double>(kFrequenz) * 1000.0; }

    std::string strElapsed() const { return "Execution took " + Format(Elapsed(), "###,##0.000") + " ms"; }

private:
    using Zaehler = std::chrono::steady_clock;
    static constexpr std::int64_t kFrequenz = Zaehler::period::den / Zaehler::period::num;
    static_assert(kFrequenz <= INT32_MAX);

    static std::int64_t zaehler() { return Zaehler::now().time_since_epoch().count(); }

    std::int64_t start_{0};
    std::int64_t stop_{0};
};

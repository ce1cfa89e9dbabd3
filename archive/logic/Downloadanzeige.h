#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

/// Where the parts of a duration go; null: that part is left out.
struct Dauerteile {
    std::int64_t* stunden = nullptr;
    std::int64_t* minuten = nullptr;       ///< 0..59
    std::int64_t* sekunden = nullptr;      ///< 0..59
    std::int64_t* millisekunden = nullptr; ///< 0..999
};

/// Splits the absolute value of a duration. A part that is left out goes to the next larger one: from 500 ms or 30 of
/// a unit on, that one is one more.
void SplitMilliseconds(std::int64_t ms, const Dauerteile& teile);

/// "12 m 5 s", "5 s", "0,250 s". From one minute on the hours are lost: "1 h 0 m 5 s", but "5 m 5 s" for 1:05:05.
std::string FormatDuration(std::int64_t h, std::int64_t m, std::int64_t s, std::int64_t ms);

/// The figures of a transfer at one moment.
struct Downloadfiguren {
    std::int32_t size = 0;
    std::int32_t receivedBytes = 0;
    std::int32_t downloadtime = 0; ///< milliseconds
    double speed = 0;              ///< bytes per second
    std::int32_t errorNumber = 0;
    std::string errorDescription;
};

/// What a screen shows of them.
struct Downloadanzeige {
    /// Size, received, elapsed, rest, total, speed.
    std::array<std::string, 6> werte;
    std::string anteil; ///< "12,5 %"
    int prozent = 0;    ///< whole percents
};

/// The line about the state of a transfer: its error, or how much has come. Nothing while the size is not known.
std::optional<std::string> downloadStatus(const Downloadfiguren& figuren);

/// Nothing after an error and while the size is not known: what is shown stays then.
std::optional<Downloadanzeige> downloadanzeige(const Downloadfiguren& figuren);

/// Width of the filled part of a progress bar that is `breite` pixels wide. A `max` of 0 counts as 100, a negative
/// `percent` as 0, one above 100 as its remainder by the whole part of `max`. 0: the bar is empty.
int fortschrittsbreite(double percent, double max, int breite);

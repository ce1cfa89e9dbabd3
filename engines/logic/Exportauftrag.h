#pragma once

#include "shell/logic/Lottozahl.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

inline constexpr int kKleinsterExport = 2;
inline constexpr int kGroessterExport = 6;

inline constexpr std::array<char, 4> kExporttrenner{' ', ',', ';', '\t'};
inline constexpr std::array<std::string_view, 2> kExportendungen{"txt", "csv"};

/// Lines of a part, where the combinations go to several files.
inline constexpr std::uint64_t kZeilenJeTeil = 200'000;

/// Numbers from `von` to `bis`, both included.
struct Zahlenbereich {
    std::int32_t von = 1;
    std::int32_t bis = kHoechsteZahl;

    bool operator==(const Zahlenbereich&) const = default;
};

/// Which combinations of `k` numbers 1..49 are to be written, and how.
struct Exportauftrag {
    int k = kGroessterExport;               ///< 2..6
    std::vector<std::int32_t> bankzahlen{}; ///< each combination holds all of them; in the order of their choice
    std::optional<Zahlenbereich> bereich{}; ///< each combination lies in it
    char trenner = kExporttrenner[0];       ///< between the numbers
    std::string_view endung = kExportendungen[0];
    bool nummeriert = false;
    bool geteilt = false; ///< several files, where there are that many lines and the numbers are five or six

    bool gefiltert() const { return !bankzahlen.empty() || bereich; }
};

/// A file that the combinations go to.
struct Exportdatei {
    std::string name{};
    std::uint64_t zeilen = 0; ///< combinations
    std::uint64_t bytes = 0;  ///< with head and legend
};

/// What forbids to write it, as a message box says it: doubled Bankzahlen, a range that is turned over or too short.
std::optional<std::string> auftragsfehler(const Exportauftrag& auftrag);

/// How many combinations it has; of an order without a fault.
std::uint64_t anzahlKombinationen(const Exportauftrag& auftrag);

/// The files in the order in which they are written.
std::vector<Exportdatei> exportdateien(const Exportauftrag& auftrag);

/// Places of a line that its running numbers take up: `laufend` for the place among the combinations of the files,
/// `kombination` for that among all combinations of 6 aus 49. 0: the line does not have that number.
struct Nummernbreiten {
    std::size_t laufend = 0;
    std::size_t kombination = 0;
};
Nummernbreiten nummernbreiten(const Exportauftrag& auftrag);

/// The line above the combinations, with its end; empty unless they are numbered.
std::string exportkopf(const Exportauftrag& auftrag);
/// The lines below those of a filter, at the end of the last file; empty without a filter.
std::string exportlegende(const Exportauftrag& auftrag);

#pragma once

#include "shell/logic/Lottozahl.h"
#include "tips/logic/Scheinvergleich.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// How often each number was tipped.
struct Tipphaeufigkeit {
    std::array<std::int32_t, kHoechsteZahl + 1> anzahl{}; ///< [1..49]
    Scheingang gang{};
};

/// Counts the numbers in the columns of all lines of these slips; `fortschritt` gets the count of slips done.
Tipphaeufigkeit countTippedNumbers(const std::filesystem::path& ordner, const std::vector<std::string>& namen,
                                   const Fortschritt& fortschritt = {});

/// A row for each number, ascending: " 7   mal die  12".
std::vector<std::string> haeufigkeitNachZahl(const Tipphaeufigkeit& haeufigkeit);
/// A row for each number, "  12 Zahl   7 -> 12  mal". As text they ascend by frequency.
std::vector<std::string> haeufigkeitNachAnzahl(const Tipphaeufigkeit& haeufigkeit);

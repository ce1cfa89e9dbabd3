#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What the program was called with.
struct Aufruf {
    std::string ordner;
    std::optional<std::chrono::sys_days> stand; ///< nothing: today
};

/// A day in the form "2026-07-24"; nothing for any other text and for a day that does not exist.
std::optional<std::chrono::sys_days> liesStand(std::string_view text);

/// `--stand YYYY-MM-DD` (optional, in any place) and one folder; nothing if the arguments are something else.
std::optional<Aufruf> liesAufruf(const std::vector<std::string_view>& argumente);

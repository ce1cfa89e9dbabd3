#pragma once

#include <chrono>
#include <cstdint>
#include <string>

/// Number of draws that a sample has whose state is the day `stand`: all up to the Sunday before the week of `stand`,
/// at most 32767. `spielart` is 1..3.
std::int32_t musterAnzahl(std::int16_t spielart, std::chrono::sys_days stand);

/// A sample Ziehungsdatei: draws by chance, with the days, Spielwochen, Zusatz- and Superzahlen that the game really
/// had. The same arguments always give the same bytes, and a later day only appends lines. `spielart` is 1..3.
std::string musterDatei(std::int16_t spielart, std::chrono::sys_days stand);

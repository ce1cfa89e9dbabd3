#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

struct Umgebung;

/// What stands in each of the three files: "-" without draws, else such as "3693  [2026/29]".
using Spielartenstand = std::array<std::string, 3>;

/// Loads the files of `maske` (1 Samstag, 2 Mittwoch, 4 Mittwoch (B)) one after the other. A missing one is named in a
/// box and gives nothing; the archive then counts no draws, as the columns hold but a part of what was asked for.
std::optional<Spielartenstand> ladeSpielarten(Umgebung& umgebung, int maske);

/// Loads the Ziehungsdatei of `spielart` into the archive; a box names a missing file until it is there.
/// False if the program ends before that.
bool ladeSpielart(Umgebung& umgebung, std::int16_t spielart);

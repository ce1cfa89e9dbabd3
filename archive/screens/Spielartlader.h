#pragma once

#include <cstdint>
#include <string>

struct Umgebung;

/// Loads the files of `maske` (1 Samstag, 2 Mittwoch, 4 Mittwoch (B)) one after the other; a missing one is told in a
/// box. Gives what stands in each, see `LadeAlleZiehungen`.
std::string ladeSpielarten(Umgebung& umgebung, int maske);

/// Loads the Ziehungsdatei of `spielart` into the archive; a missing file is told in a box until it is there.
/// False if the program ends before that.
bool ladeSpielart(Umgebung& umgebung, std::int16_t spielart);

#pragma once

#include "archive/logic/ZiehungsArchiv.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

/// Shows the box that tells of a missing file. False: the program is ending, give up.
using MeldeFehlendeDatei = std::function<bool(const std::string& text)>;

/// `path` with the platform's separator at its end. The empty path is the current directory.
std::string programmVerzeichnis(std::string path);

/// Fills the archive from the file in `ProgrammVerzeichnis` that `Spielart` names, and rebuilds `Datum`.
///
/// A missing file is reported again and again until it is there or `melde` gives up; an empty `melde` gives up at once.
/// Any other failure is silent: `AnzahlZiehungen` is 0, `Datum` stays, and behind a broken record the columns hold
/// what was read before it. A Spielart outside 0..3 and a file with more than `kMaxZiehungenJeDatei` records are such
/// failures. An empty file is an empty archive.
void LadeZiehungsdatei(ZiehungsArchiv& archiv, const MeldeFehlendeDatei& melde);

/// The number of draws of a file, whatever its name, as the load would give it: 0 if it is missing or cannot be read
/// whole.
std::int32_t zaehleZiehungen(const std::filesystem::path& datei);

/// Fills the columns and `DatumAlle` with the chosen files one after the other. `maske` is a set of bits: 1
/// `SALOTTO.DAT`, 2 `MALOTTO.DAT`, 4 `MBLOTTO.DAT`. In `s`, 11 marks the draws before the Superzahl.
///
/// Returns three fields joined by ":", one for each file: "-" without draws, else such as "3693  [2026/29]". A missing
/// file is reported once and "False" is returned; the columns then hold what was read so far. A file that cannot be
/// read counts as one without draws, a broken one ends before the broken record. With no file chosen, the columns stay
/// as they are and `AnzahlZiehungen` is their upper bound. `DatumAlle` is never shorter than the columns.
std::string LadeAlleZiehungen(ZiehungsArchiv& archiv, int maske, const MeldeFehlendeDatei& melde);

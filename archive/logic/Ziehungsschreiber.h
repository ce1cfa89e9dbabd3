#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/Dateien.h"

#include <filesystem>
#include <string>
#include <string_view>

/// The record of a draw as a Ziehungsdatei holds it, 30 characters without line end: "1998,13,02,08,10,12,22,35,46,3".
/// `nr` is 0..size of the columns - 1.
std::string datensatz(const ZiehungsArchiv& archiv, std::size_t nr);

/// Appends a line to a text file, with CR LF before it if the file lacks a final line end, and brings it to the disk.
/// A write protection is lifted; a missing file is made. On an error the file has its old length.
DateiErgebnis haengeZeileAn(const std::filesystem::path& datei, std::string_view zeile);

/// Keeps a copy of a file beside it, under its name with ".alt" behind it. An older copy is replaced only by a file
/// that can be read whole and has draws. A missing file is no error; an empty one has nothing to keep.
DateiErgebnis bewahreAlteFassung(const std::filesystem::path& datei);

/// Writes all draws of the archive over its Ziehungsdatei, record by record with CR LF. The last content is kept beside
/// it; at no moment is there neither the one nor the other.
DateiErgebnis schreibeZiehungsdatei(const std::filesystem::path& datei, const ZiehungsArchiv& archiv);

#pragma once

#include "shell/logic/Dateien.h"

#include <cstdint>
#include <filesystem>
#include <string_view>

/// Puts `bytes` in the place of all that a file holds from offset `ab` on, and brings them to the disk. A write
/// protection is lifted; a missing file is made. On an error the file is as it was. A program that is killed here
/// leaves what stands before `ab`, and behind it nothing or all of `bytes`.
DateiErgebnis ersetzeDateiende(const std::filesystem::path& datei, std::uintmax_t ab, std::string_view bytes);

/// Appends a line to a text file in this way, with a line end before it if the file lacks one.
DateiErgebnis haengeZeileAn(const std::filesystem::path& datei, std::string_view zeile);

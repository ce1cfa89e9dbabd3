#pragma once

#include "shell/logic/Meldung.h"

#include <filesystem>
#include <optional>
#include <string_view>

/// Makes the folder of exported pages. True if it is there afterwards; one that was there before is taken as it is.
bool macheSeitenordner(const std::filesystem::path& ordner);

/// Writes a page into a folder, which is made if it is missing. An older page stays until the new one is whole, and
/// its write protection does not hold it. Gives what to say if that fails; the older page is then untouched.
std::optional<Meldung> legeSeiteAb(const std::filesystem::path& ordner, std::string_view name, std::string_view bytes);

/// What to say when the folder cannot be made.
Meldung ordnerfehler();
/// What to say when a page cannot be written.
Meldung schreibfehler();

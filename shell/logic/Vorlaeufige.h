#pragma once

#include <filesystem>
#include <optional>
#include <string>

/// The name of something that is not finished: ".neu-<process>-<number>". It tells whose it is.
std::string vorlaeufigerName(int nummer);

/// Makes an empty folder for files that are not finished. Nothing if `ordner` cannot be written.
std::optional<std::filesystem::path> legeVorlaeufigenOrdnerAn(const std::filesystem::path& ordner);

/// Removes the unfinished files and folders of processes that are gone.
void raeumeVorlaeufigeAuf(const std::filesystem::path& ordner);

#pragma once

#include "shell/logic/Dateien.h"

#include <filesystem>
#include <optional>

/// Makes an empty folder for files that are not finished. Its name tells whose it is: ".neu-<process>-<number>".
/// Nothing if the folder cannot be written.
std::optional<std::filesystem::path> legeVorlaeufigenOrdnerAn(const std::filesystem::path& ordner);

/// Removes the unfinished files and folders (".neu-<process>-...") of processes that are gone.
void raeumeVorlaeufigeAuf(const std::filesystem::path& ordner);

/// Copies a file over another one in one step; the target is as before if that fails.
DateiErgebnis kopiereDatei(const std::filesystem::path& von, const std::filesystem::path& nach);

/// True if both files can be read and hold the same bytes.
bool gleicherInhalt(const std::filesystem::path& a, const std::filesystem::path& b);

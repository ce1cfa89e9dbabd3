#pragma once

#include <chrono>
#include <optional>
#include <string>

/// Writes the three sample Ziehungsdateien of the day `stand` into a folder (UTF-8), which is made if it is missing.
///
/// Returns the reason if it fails, a German sentence; each file stands whole or not at all. A file that is already
/// there, in whatever case its name is written, is never overwritten, and none is written then: it could hold real
/// draws.
std::optional<std::string> schreibeMusterDateien(const std::string& ordner, std::chrono::sys_days stand);

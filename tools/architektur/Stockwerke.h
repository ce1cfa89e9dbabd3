#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// Walks the includes of a source tree. `stockwerke` are its floors from the ground up, each a folder such as
/// "shell/logic" that may include from itself and from those before it. Gives a line for everything that is wrong:
///
/// - a file that includes from a floor above its own ("arrow upwards"), or from what is no floor,
/// - a file beside the floors that includes from the tests of another subsystem,
/// - files that include each other in a circle.
///
/// The lines stand in the order of the file names. A floor that has no folder yet has no findings.
std::vector<std::string> pruefeStockwerke(const std::filesystem::path& wurzel,
                                          const std::vector<std::string>& stockwerke);

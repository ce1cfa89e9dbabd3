#pragma once

#include "tips/logic/Tippreihe.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

struct Umgebung;

/// Asks the user for the Spielwoche and saves the valid rows as its slip. `gibtEs` tells whether a slip of that name
/// lies there. Gives the name of the slip; nothing if the user gives up or, behind a box, if it cannot be written.
std::optional<std::string> sichereTipps(Umgebung& umgebung, const std::vector<Tippreihe>& reihen,
                                        const std::function<bool(const std::string& name)>& gibtEs);

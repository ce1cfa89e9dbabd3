#pragma once

#include "shell/logic/Texte.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

/// True if a screen of that name is among the loaded ones; case does not count.
inline bool FormGeladen(const std::vector<std::string>& geladene, std::string_view name)
{
    return std::ranges::any_of(geladene, [&](const std::string& form) { return gleichOhneGrossKlein(form, name); });
}

#pragma once

#include <cstdlib>
#include <filesystem>

/// The folder of the real draws: the environment variable TOMBRIX_DATEN names it, otherwise it is looked for beside the
/// tree. Seen from the root of the tree; there may be none.
inline const std::filesystem::path kEchteDaten = [] {
    const char* gewuenscht = std::getenv("TOMBRIX_DATEN");
    return std::filesystem::path(gewuenscht != nullptr ? gewuenscht : "../shared/daten");
}();

inline bool gibtEchteDaten()
{
    return std::filesystem::exists(kEchteDaten / "SALOTTO.DAT");
}

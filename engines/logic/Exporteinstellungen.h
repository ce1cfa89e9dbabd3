#pragma once

#include "engines/logic/Exportauftrag.h"

#include <filesystem>
#include <string>

/// What the export screen keeps from one run of the program to the next. The default is the preset.
struct Exporteinstellungen {
    std::string ordner{};    ///< full path in UTF-8; empty: none was chosen
    std::size_t trenner = 0; ///< index into `kExporttrenner`
    std::size_t endung = 0;  ///< index into `kExportendungen`
    bool geteilt = false;
    bool nummeriert = false;
    Zahlenbereich bereich{};

    bool operator==(const Exporteinstellungen&) const = default;
};

/// Each setting by itself: the preset stands for one that is missing or makes no sense.
Exporteinstellungen liesExporteinstellungen(const std::filesystem::path& ini);

/// False, and the file is as before, if it cannot be written.
bool schreibeExporteinstellungen(const std::filesystem::path& ini, const Exporteinstellungen& einstellungen);

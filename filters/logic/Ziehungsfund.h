#pragma once

#include "archive/logic/Kombination.h"
#include "archive/logic/ZiehungsArchiv.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// A draw that a filter has found, as it stood in the archive: what its line and the ticket beside it are made of.
struct Ziehungsfund {
    std::int32_t jjjj = 0;
    std::int32_t sw = 0;
    Kombination zahlen{};
    std::string datum;

    bool operator==(const Ziehungsfund&) const = default;
};

/// Where the date texts of an archive stand: `datumVon`, or `datumAlleVon` after a combined load.
using Datumsspalte = const std::string& (*)(const ZiehungsArchiv& archiv, std::size_t nr);

/// `nr` is a ZiehungsNr of the archive.
Ziehungsfund ziehungsfund(const ZiehungsArchiv& archiv, std::size_t nr, Datumsspalte datum);

/// All draws, oldest first: element 0 is ZiehungsNr 1.
std::vector<Ziehungsfund> alleZiehungen(const ZiehungsArchiv& archiv, Datumsspalte datum);

/// "2024/31   03 12 24 33 41 49".
std::string ziehungszeile(const Ziehungsfund& fund);

/// The same, then `luecke` blanks and the date.
std::string fundzeile(const Ziehungsfund& fund, std::size_t luecke);

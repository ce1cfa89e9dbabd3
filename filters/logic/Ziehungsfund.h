#pragma once

#include "archive/logic/Kombination.h"
#include "archive/logic/ZiehungsArchiv.h"

#include <cstddef>
#include <string>
#include <string_view>

/// A draw that a filter has found: the line of its list and the numbers that the ticket shows beside it.
struct Ziehungsfund {
    std::string zeile;
    Kombination zahlen{};
};

/// The line "2024/31   03 12 24 33 41 49" of a draw, then `luecke` blanks and `datum`. `nr` is a ZiehungsNr of the
/// archive.
Ziehungsfund ziehungsfund(const ZiehungsArchiv& archiv, std::size_t nr, std::size_t luecke, std::string_view datum);

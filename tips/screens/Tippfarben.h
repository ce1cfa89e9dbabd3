#pragma once

#include "shell/elements/Farben.h"

/// The grounds of the fields of a draw, which the fields of a tip take where they hit.
namespace Tippfarben {
inline const QColor Zahl = Farben::Markiert;
inline const QColor Superzahl{255, 255, 0};
} // namespace Tippfarben

#pragma once

#include "tips/logic/Spielscheindruck.h"

#include <QSizeF>

#include <vector>

class QPainter;

/// Paints the slip and its crosses. The painter's coordinates are to be millimetres, times `kJeMillimeter`: the same
/// code serves the printer and the picture on the screen.
namespace Spielscheinmaler {

inline constexpr double kJeMillimeter = 100;
/// The slip, in millimetres.
inline constexpr QSizeF kSchein{187, 82};

void maleKreuze(QPainter& maler, const std::vector<Scheinort>& orte);
/// The fields with their numbers, and the boxes: the empty form.
void maleSchein(QPainter& maler);

} // namespace Spielscheinmaler

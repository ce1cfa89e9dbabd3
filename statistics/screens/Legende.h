#pragma once

#include "shell/elements/Farben.h"

class QLabel;

/// Makes the label a small field in the colours of a mark, which it explains.
void alsLegende(QLabel* feld, const QColor& grund, const QColor& schrift = Farben::Text);

#pragma once

class QColor;
class QLabel;

/// Makes the label a small field in the colour of a mark, which it explains.
void alsLegende(QLabel* feld, const QColor& grund);

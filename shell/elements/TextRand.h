#pragma once

class QTextEdit;

/// Sets the margins of a multi-line text field, in pixels from its inner edge. The text keeps one more pixel on the
/// left and at the top, and two on the right and at the bottom.
void TextRand(QTextEdit* feld, int links, int oben, int rechts, int unten);

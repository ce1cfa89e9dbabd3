#pragma once

#include <QFont>

class QApplication;
class QLineEdit;
class QWidget;

/// One look for all screens: Fusion, one palette, one scale of distances, German texts of Qt's own.
namespace Stil {
inline constexpr int kAbstand = 8; ///< between the parts of a screen
inline constexpr int kRand = 12;   ///< around a screen
inline constexpr int kEng = 4;     ///< between a label and its field
inline constexpr int kFokus = 2;   ///< width of the frame around what has the focus

void richteEin(QApplication& programm);

/// "Courier New" or a metric-compatible fixed pitch font, for lists and reports.
QFont festeSchrift();
} // namespace Stil

/// Larger and bold: the game, the result line.
void alsUeberschrift(QWidget* feld);
/// A field that shows something and takes nothing: flat, on the ground of the screen, without a tab stop. Its text can
/// still be chosen with the mouse and copied.
void alsAnzeige(QLineEdit* feld);

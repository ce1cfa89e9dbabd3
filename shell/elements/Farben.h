#pragma once

#include <QColor>

class QPalette;
class QPushButton;
class QWidget;

/// The colours that mean something in the program. Everything else is the palette's.
namespace Farben {
inline const QColor Markiert{0, 255, 255};   ///< cyan: a marked cell, a lowest count
inline const QColor MarkiertText{255, 0, 0}; ///< red on cyan
inline const QColor Hoechstwert{255, 0, 0};  ///< red: a highest count
inline const QColor Text{0, 0, 0};
inline const QColor Fuss{0, 22, 0}; ///< the dark bar at the foot of every screen
inline const QColor FussText{198, 232, 198};
inline const QColor Gelaufen{178, 220, 192}; ///< the start button that has made what the screen shows
inline const QColor Rollbahn{222, 227, 222}; ///< of a scroll bar
inline const QColor Griff{134, 150, 138};    ///< its handle
inline const QColor GriffUnterMaus{104, 124, 110};

/// The one light palette of the program, so that fixed colours are readable on dark desktops too.
QPalette palette();
} // namespace Farben

/// Gives a widget its own background and text colour.
void faerbe(QWidget* feld, const QColor& grund, const QColor& schrift);

/// Marks a button by its ground, or takes the mark away.
void hebeHervor(QPushButton* knopf, bool hervorgehoben);

/// Marks a cell (cyan, red, bold) or takes the mark away (the palette's base, black).
void markiere(QWidget* feld, bool markiert);

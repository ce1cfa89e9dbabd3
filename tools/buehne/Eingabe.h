#pragma once

#include <QPoint>
#include <QString>

class QWidget;

/// Single mouse and key events, sent to a widget as the window system would.
namespace Eingabe {

void druecke(QWidget* feld, QPoint ort, Qt::KeyboardModifiers tasten = {});
void lasseLos(QWidget* feld, QPoint ort, Qt::KeyboardModifiers tasten = {});
void klicke(QWidget* feld, QPoint ort, Qt::KeyboardModifiers tasten = {});
void doppelklicke(QWidget* feld, QPoint ort);
void ueberfahre(QWidget* feld, QPoint ort);

/// A place of the widget that no child covers, as near to its middle as there is one; otherwise its middle.
QPoint freieStelle(const QWidget* feld);

/// Presses keys: names such as "Down" or "Ctrl+A" separated by blanks, or else the characters of the text.
void tippe(QWidget* feld, const QString& tasten);

} // namespace Eingabe

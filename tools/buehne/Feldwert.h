#pragma once

#include <QString>

class QAction;
class QObject;
class QWidget;

/// What a user reads in a control: its text, caption (with its &) or value.
QString liesFeld(const QObject* feld);

/// Enters a text as a user would. The reason why it cannot be done; empty if it was done.
QString setzeFeld(QWidget* feld, const QString& text);

/// "visible=true enabled=true checked=false bold=false back=#ffffff fore=#000000", as seen.
QString zustandVon(const QWidget* feld);
/// The same of an entry of a popup menu; `zuSehen` is true while the menu is open.
QString zustandVon(const QAction* eintrag, bool zuSehen);

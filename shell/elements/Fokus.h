#pragma once

class QWidget;

/// Sets the tab order of a screen to its reading order: as its layout is written, from the top to the bottom and from
/// the left to the right.
/// The focus is on `zuerst`, or, if that is null, on the first control that can have it.
void ordneFokus(QWidget& bildschirm, QWidget* zuerst);

#pragma once

#include "archive/logic/ZiehungsArchiv.h"

#include <QWidget>

#include <array>

class QLineEdit;

/// The ten fields of one draw, each under its short name: Text1 year, Text2 week, Text3 to Text8 the six numbers,
/// Text9 Zusatzzahl, Text10 Superzahl. For show: the mouse can mark and copy, the Tab key passes them by.
class Ziehungsfelder final : public QWidget {
public:
    explicit Ziehungsfelder(QWidget* eltern);

    /// `nr` is 1..AnzahlZiehungen.
    void zeige(const ZiehungsArchiv& archiv, std::size_t nr);
    void leere();

private:
    std::array<QLineEdit*, 10> texte_;
};

#pragma once

#include "tips/logic/Tippvergleich.h"

#include <QWidget>

#include <array>
#include <functional>

class QLineEdit;
class QScrollBar;

/// The draw that a slip is compared with: six numbers and the Superzahl, `Text13(0)` to `Text13(6)`, which the user may
/// type over, and the scroll bar `HBildlauf1` with the draws of the archive.
class Vergleichsziehungsfelder final : public QWidget {
public:
    Vergleichsziehungsfelder(const ZiehungsArchiv& archiv, QWidget* eltern);

    /// Shows the last draw, and nothing of an empty archive.
    void zeigeLetzte();
    /// "Letzte Ziehung: Sa, 18.07.2026    2026/29" of the chosen draw, "Ziehung: " of any but the last.
    QString beschriftung() const;
    /// What stands in the fields; nothing if that is no draw.
    std::optional<Vergleichsziehung> ziehung() const;

    /// The user has chosen another draw.
    std::function<void()> beiWahl;

private:
    void setze(const Ziehungstexte& texte);

    const ZiehungsArchiv& archiv_;
    std::array<QLineEdit*, 7> Text13;
    QScrollBar* HBildlauf1;
};

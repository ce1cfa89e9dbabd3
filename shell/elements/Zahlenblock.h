#pragma once

#include "shell/logic/Lottozahl.h"

#include <QWidget>

#include <array>

class QLabel;

/// The 49 numbers, seven to a row, each with a value below it that can be marked by a colour: counts, last draws. The
/// font grows with the block.
class Zahlenblock final : public QWidget {
public:
    /// The value of number n is named `werte(n)`, the number above it `zahlen(n)`.
    Zahlenblock(const QString& zahlen, const QString& werte, QWidget* eltern);

    /// `zahl` is 1..49.
    void setzeWert(int zahl, const QString& wert);
    QString wert(int zahl) const;
    /// Back to the window colour.
    void loescheFarben();
    void faerbeWert(int zahl, const QColor& grund);

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    QLabel* feld(int zahl) const { return werte_[static_cast<std::size_t>(zahl - 1)]; }

    std::array<QLabel*, kHoechsteZahl> zahlen_;
    std::array<QLabel*, kHoechsteZahl> werte_;
    double schriftgroesse_ = 0; ///< of the cells, in points
};

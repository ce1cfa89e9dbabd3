#pragma once

#include "shell/logic/Lottozahl.h"
#include "statistics/logic/Balkengraphik.h"

#include <QFrame>

#include <array>
#include <functional>

class QLabel;

/// The frame of the bar chart: 49 bars named Bild2(1)..Bild2(49), the scale along the left with its lines, and under
/// the bars two rows of numbers, the odd and the even ones.
class Balkenfeld final : public QFrame {
public:
    explicit Balkenfeld(QWidget* eltern);

    void zeige(const Balkengraphik& graphik, const Extremwerte& extreme);
    /// The number 1..49 whose bar is `feld`; 0 for any other widget.
    int zahlVon(const QWidget* feld) const;

    QSize sizeHint() const override { return {940, 480}; }
    QSize minimumSizeHint() const override { return {760, 320}; }

protected:
    void resizeEvent(QResizeEvent* ereignis) override;
    void paintEvent(QPaintEvent* ereignis) override;

private:
    QRect flaeche() const;
    int pixel(int twips) const;
    QRect platz(int stelle, int obenTwips) const;
    void ordne();

    Balkengraphik graphik_;
    std::array<QFrame*, kHoechsteZahl> Bild2;
    std::array<QLabel*, 5> skala_;
};

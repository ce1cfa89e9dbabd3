#include "archive/screens/Fortschrittsfeld.h"

#include <QPainter>

Fortschrittsfeld::Fortschrittsfeld(QWidget* eltern) : QFrame(eltern)
{
    setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
    setMinimumSize(200, fontMetrics().height() + 8);
}

void Fortschrittsfeld::fuelle(int breite, const QColor& farbe)
{
    breite_ = breite;
    farbe_ = farbe;
    update();
}

void Fortschrittsfeld::paintEvent(QPaintEvent* ereignis)
{
    QPainter maler(this);
    const QRect innen = contentsRect();
    maler.fillRect(innen, palette().color(QPalette::Base));
    maler.fillRect(QRect(innen.topLeft(), QSize(breite_, innen.height())), farbe_);
    QFrame::paintEvent(ereignis);
}

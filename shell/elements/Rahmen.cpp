#include "shell/elements/Rahmen.h"

#include "shell/elements/Stil.h"

#include <QLayout>
#include <QPainter>

namespace {
constexpr int kRundung = 5;
}

Rahmen::Rahmen(const QString& titel, QWidget* eltern) : QGroupBox(titel, eltern) {}

QFont Rahmen::titelschrift() const
{
    QFont schrift = font();
    schrift.setBold(true);
    return schrift;
}

void Rahmen::setzeInhalt(QLayout* inhalt)
{
    const int fuerTitel = title().isEmpty() ? 0 : QFontMetrics(titelschrift()).height() + Stil::kEng;
    inhalt->setContentsMargins(Stil::kAbstand, Stil::kAbstand + fuerTitel, Stil::kAbstand, Stil::kAbstand);
    setContentsMargins(0, 0, 0, 0);
    setLayout(inhalt);
}

QSize Rahmen::minimumSizeHint() const
{
    const int titelbreite = QFontMetrics(titelschrift()).horizontalAdvance(title()) + 2 * Stil::kAbstand;
    return QWidget::minimumSizeHint().expandedTo(QSize(titelbreite, 0));
}

void Rahmen::paintEvent(QPaintEvent*)
{
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(palette().color(QPalette::Mid));
    maler.setBrush(palette().color(QPalette::Window).lighter(103));
    maler.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRundung, kRundung);
    maler.setFont(titelschrift());
    maler.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Link));
    maler.drawText(rect().adjusted(Stil::kAbstand, Stil::kAbstand - 2, -Stil::kAbstand, 0),
                   Qt::AlignLeft | Qt::AlignTop, title());
}

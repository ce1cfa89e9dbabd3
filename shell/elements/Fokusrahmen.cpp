#include "shell/elements/Fokusrahmen.h"

#include "shell/elements/Stil.h"

#include <QPainter>

void maleFokus(QPainter& maler, const QRect& rechteck, const QColor& farbe)
{
    constexpr qreal kRundung = 2;
    constexpr qreal kHalbe = Stil::kFokus / 2.0;
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(QPen(farbe, Stil::kFokus));
    maler.setBrush(Qt::NoBrush);
    maler.drawRoundedRect(QRectF(rechteck).adjusted(kHalbe, kHalbe, -kHalbe, -kHalbe), kRundung, kRundung);
    maler.restore();
}

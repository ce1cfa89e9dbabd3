#include "shell/elements/Pfeilknopf.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

QStyle::PrimitiveElement pfeil(const QString& zeichen)
{
    if (zeichen == "3")
        return QStyle::PE_IndicatorArrowLeft;
    if (zeichen == "4")
        return QStyle::PE_IndicatorArrowRight;
    return zeichen == "5" ? QStyle::PE_IndicatorArrowUp : QStyle::PE_IndicatorArrowDown;
}

} // namespace

Pfeilknopf::Pfeilknopf(const QString& name, const QString& zeichen, const QString& hinweis, QWidget* eltern)
    : QPushButton(zeichen, eltern)
{
    setObjectName(name);
    setToolTip(hinweis);
    setAccessibleName(hinweis);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize Pfeilknopf::sizeHint() const
{
    const int hoehe = QPushButton::sizeHint().height();
    return {hoehe + hoehe / 2, hoehe};
}

void Pfeilknopf::paintEvent(QPaintEvent*)
{
    QStylePainter maler(this);
    QStyleOptionButton aussehen;
    initStyleOption(&aussehen);
    aussehen.text.clear();
    maler.drawControl(QStyle::CE_PushButton, aussehen);
    const int seite = aussehen.fontMetrics.height();
    aussehen.rect = QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, {seite, seite}, rect());
    maler.drawPrimitive(pfeil(text()), aussehen);
}

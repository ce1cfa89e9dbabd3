#include "shell/elements/Boxbild.h"

#include <QIconEngine>
#include <QPainter>

#include <map>

namespace {

struct Zeichen {
    QColor grund;
    QString zeichen;
};

/// A sign on a coloured disc.
class Scheibe final : public QIconEngine {
public:
    explicit Scheibe(const Zeichen& zeichen) : zeichen_(zeichen) {}

    void paint(QPainter* maler, const QRect& rechteck, QIcon::Mode, QIcon::State) override
    {
        maler->setRenderHint(QPainter::Antialiasing);
        maler->setPen(Qt::NoPen);
        maler->setBrush(zeichen_.grund);
        maler->drawEllipse(QRectF(rechteck).adjusted(1, 1, -1, -1));
        QFont schrift = maler->font();
        schrift.setBold(true);
        schrift.setPixelSize(std::max(1, rechteck.height() * 2 / 3));
        maler->setFont(schrift);
        maler->setPen(Qt::white);
        maler->drawText(rechteck, Qt::AlignCenter, zeichen_.zeichen);
    }

    QPixmap pixmap(const QSize& groesse, QIcon::Mode modus, QIcon::State stand) override
    {
        QPixmap bild(groesse);
        bild.fill(Qt::transparent);
        QPainter maler(&bild);
        paint(&maler, bild.rect(), modus, stand);
        return bild;
    }

    QIconEngine* clone() const override { return new Scheibe(*this); }

private:
    Zeichen zeichen_;
};

} // namespace

QIcon boxbild(QStyle::StandardPixmap art)
{
    static const std::map<QStyle::StandardPixmap, Zeichen> kZeichen = {
        {QStyle::SP_MessageBoxInformation, {QColor(34, 110, 70), "i"}},
        {QStyle::SP_MessageBoxQuestion, {QColor(34, 110, 70), "?"}},
        {QStyle::SP_MessageBoxWarning, {QColor(190, 110, 0), "!"}},
        {QStyle::SP_MessageBoxCritical, {QColor(180, 30, 30), "!"}},
    };
    const auto zeichen = kZeichen.find(art);
    return zeichen == kZeichen.end() ? QIcon() : QIcon(new Scheibe(zeichen->second));
}

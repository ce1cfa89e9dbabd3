#include "tips/screens/Kugelreihe.h"

#include "shell/elements/Bloecke.h"
#include "shell/elements/Farben.h"

#include <QLabel>
#include <QPainter>
#include <QRadialGradient>

namespace {

constexpr int kDurchmesser = 44;
constexpr double kSchrift = 1.5; ///< against that of the screen
const QColor kHell{255, 250, 205};
const QColor kGelb{240, 196, 40};

class Kugel final : public QWidget {
public:
    Kugel(const QString& name, const QLabel* zahl, QWidget* eltern) : QWidget(eltern), zahl_(*zahl)
    {
        setObjectName(name);
        setFixedSize(kDurchmesser, kDurchmesser);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter maler(this);
        maler.setRenderHint(QPainter::Antialiasing);
        const QRectF rund = QRectF(rect()).adjusted(1, 1, -1, -1);
        maler.setPen(palette().color(QPalette::Mid));
        if (!zahl_.text().isEmpty()) {
            QRadialGradient licht(rund.center(), rund.width() / 2, rund.topLeft() + QPointF(18, 16));
            licht.setColorAt(0, kHell);
            licht.setColorAt(1, kGelb);
            maler.setBrush(licht);
        }
        maler.drawEllipse(rund);
    }

private:
    const QLabel& zahl_;
};

} // namespace

Kugelreihe::Kugelreihe(QWidget* eltern) : QWidget(eltern)
{
    QFont schrift = font();
    schrift.setPointSizeF(schrift.pointSizeF() * kSchrift);
    schrift.setBold(true);
    Bloecke kugeln;
    for (std::size_t i = 0; i < kKugeln; ++i) {
        Bezeichnung1[i] = new QLabel(this);
        Bezeichnung1[i]->setObjectName(QString("Bezeichnung1(%1)").arg(i));
        Bezeichnung1[i]->setFont(schrift);
        Bezeichnung1[i]->setAlignment(Qt::AlignCenter);
        auto* kugel = new Kugel(QString("Bild1(%1)").arg(i), Bezeichnung1[i], this);
        QLayout* mitte = zeile({Bezeichnung1[i]});
        kugel->setLayout(mitte);
        kugeln.emplace_back(kugel);
    }
    setLayout(zeile(kugeln));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Kugelreihe::zeige(std::size_t kugel, int zahl)
{
    Bezeichnung1[kugel]->setText(QString::number(zahl));
    Bezeichnung1[kugel]->parentWidget()->update();
}

void Kugelreihe::leere()
{
    for (QLabel* zahl : Bezeichnung1) {
        zahl->clear();
        zahl->parentWidget()->update();
    }
}

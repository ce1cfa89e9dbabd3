#include "tips/screens/Spielscheinbild.h"

#include "tips/screens/Spielscheinmaler.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr double kRand = 3;       ///< millimetres around the slip
constexpr double kUeblich = 5;    ///< pixels to the millimetre
constexpr double kKleinste = 3.4; ///< at which the numbers can still be read

QSize groesse(double jeMillimeter)
{
    const QSizeF mitRand = Spielscheinmaler::kSchein + QSizeF(2 * kRand, 2 * kRand);
    return (mitRand * jeMillimeter).toSize();
}

} // namespace

Spielscheinbild::Spielscheinbild(const QString& name, QWidget* eltern) : QWidget(eltern)
{
    setObjectName(name);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Spielscheinbild::zeige(std::vector<Scheinort> kreuze)
{
    kreuze_ = std::move(kreuze);
    update();
}

void Spielscheinbild::rueckeSchein(const Scheinversatz& versatz)
{
    versatz_ = versatz;
    update();
}

QSize Spielscheinbild::sizeHint() const
{
    return groesse(kUeblich);
}

QSize Spielscheinbild::minimumSizeHint() const
{
    return groesse(kKleinste);
}

void Spielscheinbild::paintEvent(QPaintEvent*)
{
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    const QSizeF mitRand = Spielscheinmaler::kSchein + QSizeF(2 * kRand, 2 * kRand);
    const double jeMillimeter = std::min(width() / mitRand.width(), height() / mitRand.height());
    maler.scale(jeMillimeter / Spielscheinmaler::kJeMillimeter, jeMillimeter / Spielscheinmaler::kJeMillimeter);
    maler.translate(QPointF(kRand, kRand) * Spielscheinmaler::kJeMillimeter);
    maler.save();
    maler.translate(QPointF(versatz_.waagerecht, versatz_.senkrecht) * Spielscheinmaler::kJeMillimeter / 10);
    Spielscheinmaler::maleSchein(maler);
    maler.restore();
    Spielscheinmaler::maleKreuze(maler, kreuze_);
}

#include "statistics/screens/Balkenfeld.h"

#include "shell/elements/Farben.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Lottozahl.h"

#include <QLabel>
#include <QPainter>

namespace {
const QColor kBalken{46, 139, 87};
const QColor kLinie{200, 206, 200};
constexpr int kSkalenbreite = 64;
constexpr int kRand = 8;
} // namespace

Balkenfeld::Balkenfeld(QWidget* eltern) : QFrame(eltern)
{
    setObjectName("Bild1");
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    for (int i = 0; i < kHoechsteZahl; ++i) {
        auto* balken = new QFrame(this);
        balken->setObjectName(QString("Bild2(%1)").arg(i + 1));
        Bild2[static_cast<std::size_t>(i)] = balken;
    }
    for (std::size_t i = 0; i < skala_.size(); ++i) {
        skala_[i] = new QLabel(this);
        skala_[i]->setObjectName(QString("lblSkala(%1)").arg(i));
        skala_[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
}

void Balkenfeld::zeige(const Balkengraphik& graphik, const Extremwerte& extreme)
{
    graphik_ = graphik;
    for (std::size_t i = 0; i < Bild2.size(); ++i) {
        const bool hoechster = extreme.maxima[i + 1];
        const bool niedrigster = extreme.minima[i + 1];
        faerbe(Bild2[i], niedrigster ? Farben::Markiert : hoechster ? Farben::Hoechstwert : kBalken, Farben::Text);
    }
    for (std::size_t i = 0; i < skala_.size(); ++i)
        skala_[i]->setText(qt(graphik_.skala[i]));
    ordne();
}

int Balkenfeld::zahlVon(const QWidget* feld) const
{
    for (std::size_t i = 0; i < Bild2.size(); ++i)
        if (Bild2[i] == feld)
            return static_cast<int>(i) + 1;
    return 0;
}

QRect Balkenfeld::flaeche() const
{
    const int zahlenreihen = 2 * fontMetrics().lineSpacing();
    return contentsRect().adjusted(kSkalenbreite, kRand, -kRand, -zahlenreihen - kRand);
}

int Balkenfeld::pixel(int twips) const
{
    const QRect platz = flaeche();
    return platz.top() + twips * platz.height() / Balkengraphik::kGrundlinie;
}

QRect Balkenfeld::platz(int stelle, int obenTwips) const
{
    const QRect platz = flaeche();
    const int links = platz.left() + stelle * platz.width() / kHoechsteZahl;
    const int rechts = platz.left() + (stelle + 1) * platz.width() / kHoechsteZahl;
    return {QPoint(links + 2, pixel(obenTwips)), QPoint(rechts - 2, platz.bottom())};
}

void Balkenfeld::ordne()
{
    for (int i = 0; i < kHoechsteZahl; ++i) {
        const auto stelle = static_cast<std::size_t>(i);
        Bild2[stelle]->setGeometry(platz(i, graphik_.oben[stelle]));
    }
    const int hoehe = fontMetrics().height();
    for (std::size_t i = 0; i < skala_.size(); ++i) {
        const int mitte = pixel(graphik_.linien[i]);
        skala_[i]->setGeometry(contentsRect().left(), mitte - hoehe / 2, kSkalenbreite - kRand, hoehe);
    }
    update();
}

void Balkenfeld::resizeEvent(QResizeEvent*)
{
    ordne();
}

void Balkenfeld::paintEvent(QPaintEvent* ereignis)
{
    QFrame::paintEvent(ereignis);
    QPainter maler(this);
    const QRect platzFuerBalken = flaeche();
    maler.setPen(kLinie);
    for (const int linie : graphik_.linien)
        maler.drawLine(platzFuerBalken.left(), pixel(linie), platzFuerBalken.right(), pixel(linie));
    maler.setPen(palette().color(QPalette::Text));
    const int zeile = fontMetrics().lineSpacing();
    for (int i = 0; i < kHoechsteZahl; ++i) {
        const QRect balken = platz(i, 0).adjusted(-8, 0, 8, 0);
        const int oben = platzFuerBalken.bottom() + 4 + (i % 2) * zeile;
        maler.drawText(QRect(balken.left(), oben, balken.width(), zeile), Qt::AlignCenter, QString::number(i + 1));
    }
}

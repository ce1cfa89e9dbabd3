#include "statistics/screens/Balkenfeld.h"

#include "shell/elements/Farben.h"
#include "shell/elements/Utf8.h"

#include <QLabel>
#include <QPainter>

#include <algorithm>
#include <iterator>

namespace {

const QColor kBalken{46, 139, 87};
const QColor kLinie{200, 206, 200};

const QColor& farbe(Balkenmarke marke)
{
    switch (marke) {
    case Balkenmarke::Hoechster:
        return Farben::Hoechstwert;
    case Balkenmarke::Niedrigster:
        return Farben::Markiert;
    case Balkenmarke::Keine:
        break;
    }
    return kBalken;
}

} // namespace

Balkenfeld::Balkenfeld(QWidget* eltern, const Balkenfeldbau& bau) : QFrame(eltern), bau_(bau)
{
    setObjectName(bau.rahmen);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    for (int i = 0; i < bau.anzahl; ++i) {
        auto* balken = new QFrame(this);
        balken->setObjectName(QString("%1(%2)").arg(bau.balken).arg(bau.erste + i));
        balken->hide();
        balken_.push_back(balken);
    }
    for (std::size_t i = 0; i < skala_.size(); ++i) {
        skala_[i] = new QLabel(this);
        skala_[i]->setObjectName(QString("lblSkala(%1)").arg(i));
    }
}

void Balkenfeld::zeige(const Balkengraphik& graphik)
{
    graphik_ = graphik;
    for (QFrame* balken : balken_)
        balken->hide();
    for (const Balken& balken : graphik_.balken) {
        faerbe(feld(balken.wert.zahl), farbe(balken.marke), Farben::Text);
        feld(balken.wert.zahl)->show();
    }
    for (std::size_t i = 0; i < skala_.size(); ++i)
        skala_[i]->setText(qt(graphik_.skala[i]));
    ordne();
}

std::optional<int> Balkenfeld::zahlVon(const QWidget* feld) const
{
    const auto stelle = std::ranges::find(balken_, feld);
    if (stelle == balken_.end())
        return std::nullopt;
    return bau_.erste + static_cast<int>(std::distance(balken_.begin(), stelle));
}

QSize Balkenfeld::minimumSizeHint() const
{
    return Balkenlage::mindestgroesse(bau_.richtung, bau_.anzahl, fontMetrics());
}

QSize Balkenfeld::sizeHint() const
{
    const QSize kleinste = minimumSizeHint();
    return bau_.richtung == Balkenrichtung::Aufwaerts ? QSize(kleinste.width() * 5 / 4, kleinste.height() * 2)
                                                      : QSize(kleinste.width() * 3 / 2, kleinste.height());
}

Balkenlage Balkenfeld::lage() const
{
    return {bau_.richtung, contentsRect(), static_cast<int>(graphik_.balken.size()), fontMetrics()};
}

QFrame* Balkenfeld::feld(int zahl) const
{
    return balken_[static_cast<std::size_t>(zahl - bau_.erste)];
}

void Balkenfeld::ordne()
{
    const Balkenlage lage = this->lage();
    for (int stelle = 0; const Balken& balken : graphik_.balken)
        feld(balken.wert.zahl)->setGeometry(lage.balken(stelle++, balken.oben));
    for (std::size_t i = 0; i < skala_.size(); ++i) {
        const Textplatz platz = lage.skalentext(graphik_.linien[i]);
        skala_[i]->setGeometry(platz.rechteck);
        skala_[i]->setAlignment(platz.ausrichtung);
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
    const Balkenlage lage = this->lage();
    QPainter maler(this);
    maler.setPen(kLinie);
    for (const int linie : graphik_.linien)
        maler.drawLine(lage.linie(linie));
    maler.setPen(palette().color(QPalette::Text));
    const auto schreibe = [&maler](const Textplatz& platz, int zahl) {
        maler.drawText(platz.rechteck, static_cast<int>(platz.ausrichtung), QString::number(zahl));
    };
    for (int stelle = 0; const Balken& balken : graphik_.balken) {
        schreibe(lage.zahl(stelle), balken.wert.zahl);
        if (bau_.mitAnzahl)
            schreibe(lage.anzahl(stelle, balken.oben), balken.wert.anzahl);
        ++stelle;
    }
}

#include "listcontrol/screens/Listenkopf.h"

#include "listcontrol/screens/Zellmaler.h"
#include "shell/elements/Utf8.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionHeader>
#include <QTimer>
#include <QToolTip>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

constexpr int kLuft = 5; ///< above and below a caption
constexpr QMargins kRand{4, 0, 4, 0};
constexpr int kSchmalste = 4; ///< what a drag leaves of a column
constexpr int kTakt = 40;     ///< milliseconds between two steps of scrolling
constexpr int kSchritt = 40;  ///< the longest step

} // namespace

Listenkopf::Listenkopf(ColumnCollection& spalten, Spaltenlage& lage, QWidget* eltern)
    : QWidget(eltern),
      spalten_(spalten),
      lage_(lage),
      tmrMove(new QTimer(this))
{
    setMouseTracking(true);
    setFont(QApplication::font());
    tmrMove->setObjectName("tmrMove");
    tmrMove->setInterval(kTakt);
    QObject::connect(tmrMove, &QTimer::timeout, this, [this] { rolleMit(); });
}

int Listenkopf::sollhoehe() const
{
    return fontMetrics().height() + 2 * kLuft;
}

int Listenkopf::breiteFuer(const Column& spalte) const
{
    return fontMetrics().horizontalAdvance(Zellmaler::anzeige(spalte.Caption, TextAlign::Center));
}

void Listenkopf::setzeVersatz(int versatz)
{
    versatz_ = versatz;
    update();
}

void Listenkopf::setzeSortierspalte(int spalte)
{
    if (std::exchange(sortierspalte_, spalte) != spalte)
        update();
}

int Listenkopf::xVon(const QMouseEvent& ereignis) const
{
    return ereignis.position().toPoint().x() + versatz_;
}

void Listenkopf::mousePressEvent(QMouseEvent* ereignis)
{
    if (ereignis->button() != Qt::LeftButton || zug_ != Zug::Keiner)
        return;
    anfangsX_ = xVon(*ereignis);
    if (const int geteilte = lage_.teilerBei(anfangsX_); geteilte >= 0) {
        zug_ = Zug::Breite;
        spalte_ = geteilte;
        anfangsbreite_ = lage_.platz(geteilte)->breite;
        return;
    }
    const int getroffene = lage_.spalteBei(anfangsX_);
    if (getroffene >= 0 && !spalten_.Item(getroffene).istTrenner() && (anklickbar || umordnen)) {
        zug_ = Zug::Druck;
        spalte_ = getroffene;
        druecke(spalte_, true);
    }
}

void Listenkopf::mouseMoveEvent(QMouseEvent* ereignis)
{
    const int x = xVon(*ereignis);
    if (zug_ == Zug::Keiner)
        setCursor(lage_.teilerBei(x) >= 0 ? Qt::SplitHCursor : Qt::ArrowCursor);
    else
        ziehe(x);
}

void Listenkopf::ziehe(int x)
{
    const bool weit = std::abs(x - anfangsX_) >= QApplication::startDragDistance();
    if (zug_ == Zug::Druck && umordnen && weit) {
        zug_ = Zug::Platz;
        tmrMove->start();
    }
    if (zug_ == Zug::Breite && beiBreite)
        beiBreite(spalte_, std::max(kSchmalste, anfangsbreite_ + x - anfangsX_));
    else if (zug_ == Zug::Druck)
        druecke(spalte_, lage_.spalteBei(x) == spalte_);
    zielX_ = x;
    update();
}

void Listenkopf::rolleMit()
{
    const int imKopf = zielX_ - versatz_;
    const int darueber = std::min(0, imKopf) + std::max(0, imKopf - width());
    if (darueber == 0 || !beiSchub)
        return;
    const int vorher = versatz_;
    beiSchub(std::clamp(darueber, -kSchritt, kSchritt));
    zielX_ += versatz_ - vorher;
    update();
}

void Listenkopf::brichAb()
{
    zug_ = Zug::Keiner;
    spalte_ = -1;
    tmrMove->stop();
    update();
}

void Listenkopf::mouseReleaseEvent(QMouseEvent* ereignis)
{
    if (ereignis->button() == Qt::LeftButton)
        beende(xVon(*ereignis));
}

void Listenkopf::beende(int x)
{
    const Zug zug = std::exchange(zug_, Zug::Keiner);
    const int spalte = std::exchange(spalte_, -1);
    tmrMove->stop();
    if (zug == Zug::Druck || zug == Zug::Platz) {
        const bool geklickt = zug == Zug::Druck && spalten_.Item(spalte).Pushed;
        druecke(spalte, false);
        if (geklickt && anklickbar && beiKlick)
            beiKlick(spalte);
    }
    if (zug == Zug::Platz) {
        lage_.verschiebe(spalte, lage_.einfuegestelle(x));
        if (beiUmordnung)
            beiUmordnung();
    }
    update();
}

void Listenkopf::mouseDoubleClickEvent(QMouseEvent* ereignis)
{
    const int geteilte = lage_.teilerBei(xVon(*ereignis));
    if (ereignis->button() == Qt::LeftButton && geteilte >= 0 && beiAnpassen)
        beiAnpassen(geteilte);
    else
        mousePressEvent(ereignis);
}

void Listenkopf::druecke(int spalte, bool gedrueckt)
{
    spalten_.Item(spalte).Pushed = gedrueckt;
    update();
}

bool Listenkopf::event(QEvent* ereignis)
{
    if (ereignis->type() != QEvent::ToolTip)
        return QWidget::event(ereignis);
    const auto* hilfe = static_cast<QHelpEvent*>(ereignis);
    QToolTip::showText(hilfe->globalPos(), hinweisBei(hilfe->pos()), this);
    return true;
}

QString Listenkopf::hinweisBei(QPoint ort) const
{
    const int spalte = lage_.spalteBei(ort.x() + versatz_);
    if (spalte < 0)
        return {};
    const QString titel = Zellmaler::anzeige(spalten_.Item(spalte).Caption, TextAlign::Center);
    return Zellmaler(font()).passt(titel, lage_.platz(spalte)->breite) ? QString() : titel;
}

void Listenkopf::paintEvent(QPaintEvent*)
{
    QPainter maler(this);
    const Zellmaler text(font());
    maler.setFont(font());
    // A header cell reaches over the separators behind it.
    int ende = lage_.gesamtbreite();
    maleZelle(maler, {ende - versatz_, 0, width() - ende + versatz_, height()}, false);
    for (auto platz = lage_.plaetze().rbegin(); platz != lage_.plaetze().rend(); ++platz) {
        const Column& spalte = spalten_.Item(platz->spalte);
        if (spalte.istTrenner() && platz->x > 0)
            continue;
        const QRect rechteck(platz->x - versatz_, 0, std::exchange(ende, platz->x) - platz->x, height());
        if (!rechteck.intersects(rect()))
            continue;
        maleZelle(maler, rechteck, spalte.Pushed);
        maler.setPen(palette().color(QPalette::ButtonText));
        text.male(maler, rechteck, kRand, spalte.TextAlign, Zellmaler::anzeige(spalte.Caption, TextAlign::Center));
        if (platz->spalte == sortierspalte_ && spalte.LastSortOrder)
            malePfeil(maler, rechteck, *spalte.LastSortOrder);
    }
    if (zug_ == Zug::Platz) {
        const int marke = lage_.einfuegemarke(lage_.einfuegestelle(zielX_)) - versatz_;
        maler.fillRect(marke - 1, 0, 2, height(), palette().color(QPalette::Highlight));
    }
}

void Listenkopf::maleZelle(QPainter& maler, const QRect& rechteck, bool gedrueckt) const
{
    if (rechteck.isEmpty())
        return;
    QStyleOptionHeader abschnitt;
    abschnitt.initFrom(this);
    abschnitt.rect = rechteck;
    abschnitt.orientation = Qt::Horizontal;
    abschnitt.state |= QStyle::State_Horizontal | (gedrueckt ? QStyle::State_Sunken : QStyle::State_Raised);
    style()->drawControl(QStyle::CE_HeaderSection, &abschnitt, &maler, this);
    if (gedrueckt) // the style itself shows no difference
        maler.fillRect(rechteck, QColor(0, 0, 0, 24));
}

void Listenkopf::malePfeil(QPainter& maler, const QRect& rechteck, Sortierrichtung richtung) const
{
    const bool aufsteigend = richtung == Sortierrichtung::Aufsteigend;
    const qreal mitte = QRectF(rechteck).center().x();
    const qreal spitze = aufsteigend ? 0.5 : 4.5;
    const qreal basis = aufsteigend ? 4.5 : 0.5;
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(Qt::NoPen);
    maler.setBrush(palette().color(QPalette::ButtonText));
    maler.drawPolygon(QPolygonF({{mitte, spitze}, {mitte + 4.5, basis}, {mitte - 4.5, basis}}));
    maler.restore();
}

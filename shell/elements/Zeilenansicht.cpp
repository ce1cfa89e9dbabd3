#include "shell/elements/Zeilenansicht.h"

#include "shell/elements/Listenhandgriffe.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <array>
#include <utility>

Zeilenansicht::Zeilenansicht(QWidget* eltern) : QAbstractScrollArea(eltern), handgriffe_(new Listenhandgriffe(*this))
{
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Base);
    viewport()->setAutoFillBackground(true);
}

std::vector<Zellfarben> Zeilenansicht::zellfarben(int zeile) const
{
    const bool gewaehlt = istGewaehlt(zeile);
    return {{palette().color(gewaehlt ? QPalette::Highlight : QPalette::Base),
             palette().color(gewaehlt ? QPalette::HighlightedText : QPalette::Text)}};
}

std::vector<int> Zeilenansicht::gewaehlteZeilen() const
{
    std::vector<int> gewaehlte;
    for (int zeile = 0; zeile < zeilenzahl(); ++zeile)
        if (istGewaehlt(zeile))
            gewaehlte.push_back(zeile);
    return gewaehlte;
}

int Zeilenansicht::obersteZeile() const
{
    return verticalScrollBar()->value();
}

int Zeilenansicht::zeilenJeSeite() const
{
    return std::max(1, viewport()->height() / zeilenhoehe());
}

QRect Zeilenansicht::zeilenrechteck(int zeile) const
{
    const int breite = std::max(zeilenbreite(), viewport()->width());
    return {-horizontalScrollBar()->value(), (zeile - obersteZeile()) * zeilenhoehe(), breite, zeilenhoehe()};
}

int Zeilenansicht::zeileBei(int y) const
{
    const int zeile = obersteZeile() + y / zeilenhoehe();
    return y >= 0 && zeile < zeilenzahl() ? zeile : -1;
}

void Zeilenansicht::zeigeZeile(int zeile)
{
    gleicheAb();
    if (zeile < obersteZeile())
        verticalScrollBar()->setValue(zeile);
    else if (zeile >= obersteZeile() + zeilenJeSeite())
        verticalScrollBar()->setValue(zeile - zeilenJeSeite() + 1);
}

void Zeilenansicht::gleicheAb()
{
    if (ruht())
        return;
    verticalScrollBar()->setRange(0, std::max(0, zeilenzahl() - zeilenJeSeite()));
    verticalScrollBar()->setPageStep(zeilenJeSeite());
    horizontalScrollBar()->setRange(0, std::max(0, zeilenbreite() - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(fontMetrics().averageCharWidth());
}

void Zeilenansicht::erneuere()
{
    if (!std::exchange(erneuertSich_, true))
        QApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
}

void Zeilenansicht::erneuereZeilen()
{
    ++zeilenstand_;
    erneuere();
}

bool Zeilenansicht::event(QEvent* ereignis)
{
    const bool getan = QAbstractScrollArea::event(ereignis);
    if (ereignis->type() == QEvent::LayoutRequest || ereignis->type() == QEvent::FontChange) {
        const bool verlangt = std::exchange(erneuertSich_, false);
        gleicheAb();
        if (verlangt || ereignis->type() == QEvent::FontChange) // a scroll bar that comes or goes asks for layout too
            viewport()->update();
    }
    return getan;
}

void Zeilenansicht::paintEvent(QPaintEvent* ereignis)
{
    QPainter maler(viewport());
    maler.setFont(font());
    const int erste = obersteZeile() + ereignis->rect().top() / zeilenhoehe();
    const int letzte = std::min(zeilenzahl() - 1, obersteZeile() + ereignis->rect().bottom() / zeilenhoehe());
    for (int zeile = erste; zeile <= letzte; ++zeile)
        maleZeile(maler, zeile, zeilenrechteck(zeile));
    if (zeilenbreite() - viewport()->width() > horizontalScrollBar()->maximum())
        erneuere();
}

void Zeilenansicht::resizeEvent(QResizeEvent* ereignis)
{
    QAbstractScrollArea::resizeEvent(ereignis);
    gleicheAb();
}

void Zeilenansicht::geheZu(int zeile, Qt::KeyboardModifiers tasten)
{
    zeigeZeile(zeile);
    waehle(zeile, tasten);
}

void Zeilenansicht::mousePressEvent(QMouseEvent* ereignis)
{
    if (ereignis->button() != Qt::LeftButton)
        return;
    if (beiDruecken)
        beiDruecken();
    const int zeile = zeileBei(ereignis->position().toPoint().y());
    if (zeile >= 0)
        waehle(zeile, ereignis->modifiers());
}

void Zeilenansicht::mouseReleaseEvent(QMouseEvent* ereignis)
{
    if (ereignis->button() == Qt::LeftButton && beiLoslassen)
        beiLoslassen();
}

void Zeilenansicht::mouseMoveEvent(QMouseEvent* ereignis)
{
    const int zeile = zeileBei(ereignis->position().toPoint().y());
    if (ereignis->buttons() == Qt::LeftButton && ereignis->modifiers() == Qt::NoModifier && zeile >= 0 &&
        zeile != fokuszeile())
        geheZu(zeile, Qt::NoModifier);
}

void Zeilenansicht::mouseDoubleClickEvent(QMouseEvent* ereignis)
{
    const int zeile = zeileBei(ereignis->position().toPoint().y());
    if (ereignis->button() == Qt::LeftButton && zeile >= 0 && beiDoppelklick)
        beiDoppelklick(zeile);
}

int Zeilenansicht::zielzeile(int taste) const
{
    const int von = std::max(0, fokuszeile());
    switch (taste) {
    case Qt::Key_Up:
        return von - 1;
    case Qt::Key_Down:
        return fokuszeile() < 0 ? 0 : von + 1;
    case Qt::Key_PageUp:
        return von - zeilenJeSeite();
    case Qt::Key_PageDown:
        return von + zeilenJeSeite();
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return zeilenzahl() - 1;
    default:
        return -1;
    }
}

void Zeilenansicht::keyPressEvent(QKeyEvent* ereignis)
{
    static constexpr std::array kWege = {Qt::Key_Up,       Qt::Key_Down, Qt::Key_PageUp,
                                         Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
    const int taste = ereignis->key();
    if (handgriffe_->nimm(*ereignis))
        return;
    if (std::find(kWege.begin(), kWege.end(), taste) != kWege.end()) {
        if (zeilenzahl() > 0)
            geheZu(std::clamp(zielzeile(taste), 0, zeilenzahl() - 1), ereignis->modifiers() & ~Qt::KeypadModifier);
    } else if (taste == Qt::Key_Space && fokuszeile() >= 0) {
        schalte(fokuszeile());
    } else if ((taste == Qt::Key_Return || taste == Qt::Key_Enter) && fokuszeile() >= 0 && beiDoppelklick) {
        beiDoppelklick(fokuszeile());
    } else {
        QAbstractScrollArea::keyPressEvent(ereignis);
    }
}

void Zeilenansicht::contextMenuEvent(QContextMenuEvent* ereignis)
{
    if (ereignis->reason() == QContextMenuEvent::Mouse)
        handgriffe_->zeigeMenueBei(ereignis->pos());
    else
        handgriffe_->zeigeMenue();
}

void Zeilenansicht::focusInEvent(QFocusEvent* ereignis)
{
    QAbstractScrollArea::focusInEvent(ereignis);
    viewport()->update();
}

void Zeilenansicht::focusOutEvent(QFocusEvent* ereignis)
{
    QAbstractScrollArea::focusOutEvent(ereignis);
    viewport()->update();
}

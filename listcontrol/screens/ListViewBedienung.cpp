#include "listcontrol/screens/ListView.h"

#include <QDropEvent>
#include <QKeyEvent>

void ListView::klickeSpalte(int spalte)
{
    const bool aufsteigend = spalten_.Item(spalte).LastSortOrder == Sortierrichtung::Aufsteigend;
    Sort(spalte, aufsteigend ? Sortierrichtung::Absteigend : Sortierrichtung::Aufsteigend);
    if (beiSpaltenklick)
        beiSpaltenklick(spalte);
}

void ListView::waehle(int zeile, Qt::KeyboardModifiers tasten)
{
    auswahl_.waehle(zeile, tasten.testFlag(Qt::ControlModifier), tasten.testFlag(Qt::ShiftModifier));
    viewport()->update();
    if (beiAuswahl)
        beiAuswahl();
}

void ListView::schalte(int zeile)
{
    if (kaestchenSichtbar_)
        setItemChecked(zeile, !ItemChecked(zeile));
}

bool ListView::schalteKaestchenBei(QPoint ort)
{
    const int zeile = zeileBei(ort.y());
    const Spaltenlage::Platz* platz = lage_.platz(0);
    if (!kaestchenSichtbar_ || !platz || zeile < 0 || !kaestchen(zelle(zeile, *platz)).contains(ort))
        return false;
    schalte(zeile);
    return true;
}

void ListView::mousePressEvent(QMouseEvent* ereignis)
{
    imKaestchen_ = ereignis->button() == Qt::LeftButton && schalteKaestchenBei(ereignis->position().toPoint());
    if (!imKaestchen_)
        Zeilenansicht::mousePressEvent(ereignis);
}

void ListView::mouseMoveEvent(QMouseEvent* ereignis)
{
    if (!imKaestchen_)
        Zeilenansicht::mouseMoveEvent(ereignis);
}

void ListView::mouseDoubleClickEvent(QMouseEvent* ereignis)
{
    imKaestchen_ = ereignis->button() == Qt::LeftButton && schalteKaestchenBei(ereignis->position().toPoint());
    if (!imKaestchen_)
        Zeilenansicht::mouseDoubleClickEvent(ereignis);
}

void ListView::keyPressEvent(QKeyEvent* ereignis)
{
    if (beiTaste)
        beiTaste(ereignis->key());
    Zeilenansicht::keyPressEvent(ereignis);
}

bool ListView::waehleAlle()
{
    if (!MultiSelect())
        return false;
    SelectAll();
    if (beiAuswahl)
        beiAuswahl();
    return true;
}

void ListView::dragEnterEvent(QDragEnterEvent* ereignis)
{
    ereignis->acceptProposedAction();
}

void ListView::dragMoveEvent(QDragMoveEvent* ereignis)
{
    ereignis->acceptProposedAction();
}

void ListView::dropEvent(QDropEvent* ereignis)
{
    ereignis->acceptProposedAction();
    if (beiAblegen)
        beiAblegen(*ereignis->mimeData(), zeileBei(ereignis->position().toPoint().y()));
}

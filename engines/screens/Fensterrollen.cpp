#include "engines/screens/Fensterrollen.h"

#include "shell/elements/Liste.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollBar>

Fensterrollen::Fensterrollen(Liste& liste, QScrollBar& leiste, int zeilen)
    : QObject(&liste),
      liste_(liste),
      leiste_(leiste),
      zeilen_(zeilen)
{
    liste.installEventFilter(this);
    liste.viewport()->installEventFilter(this);
}

bool Fensterrollen::eventFilter(QObject* feld, QEvent* ereignis)
{
    // The type comes first: the last events arrive while the list is being taken down.
    if (ereignis->type() == QEvent::Wheel && feld == liste_.viewport())
        return QCoreApplication::sendEvent(&leiste_, ereignis);
    if (ereignis->type() == QEvent::KeyPress && feld == &liste_)
        return drueckt(static_cast<QKeyEvent*>(ereignis)->key());
    return false;
}

/// True if the key leaves the window.
bool Fensterrollen::drueckt(int taste)
{
    const int zeile = static_cast<int>(liste_.modell().ListIndex());
    const int wert = leiste_.value();
    switch (taste) {
    case Qt::Key_PageUp:
        rolleZu(wert - zeilen_, zeile);
        return true;
    case Qt::Key_PageDown:
        rolleZu(wert + zeilen_, zeile);
        return true;
    case Qt::Key_Home:
        rolleZu(leiste_.minimum(), 0);
        return true;
    case Qt::Key_End:
        rolleZu(leiste_.maximum(), zeilen_ - 1);
        return true;
    case Qt::Key_Up:
        if (zeile == 0)
            rolleZu(wert - 1, zeile);
        return zeile == 0;
    case Qt::Key_Down:
        if (zeile == zeilen_ - 1)
            rolleZu(wert + 1, zeile);
        return zeile == zeilen_ - 1;
    default:
        return false;
    }
}

void Fensterrollen::rolleZu(int wert, int zeile)
{
    leiste_.setValue(wert);
    if (liste_.modell().SetListIndex(zeile) && zeile >= 0 && liste_.beiAuswahl)
        liste_.beiAuswahl();
}

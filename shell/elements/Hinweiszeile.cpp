#include "shell/elements/Hinweiszeile.h"

#include "shell/elements/Bildschirm.h"

#include <QMouseEvent>

Hinweiszeile::Hinweiszeile(QObject* programm) : QObject(programm)
{
    programm->installEventFilter(this);
}

bool Hinweiszeile::eventFilter(QObject* ziel, QEvent* ereignis)
{
    if (ereignis->type() == QEvent::MouseMove && ziel->isWidgetType()) {
        auto* feld = static_cast<QWidget*>(ziel);
        // A control that has no use for the movement hands it on to its parents: they are not under the mouse.
        const bool weitergereicht = feld->childAt(static_cast<QMouseEvent*>(ereignis)->position().toPoint());
        if (weitergereicht)
            return false;
        if (auto* bildschirm = dynamic_cast<Bildschirm*>(feld->window()))
            bildschirm->mausUeber(feld);
    }
    return false;
}

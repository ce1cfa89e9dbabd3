#include "shell/elements/Hinweiszeile.h"

#include "shell/elements/Bildschirm.h"

#include <QEvent>

Hinweiszeile::Hinweiszeile(QObject* programm) : QObject(programm)
{
    programm->installEventFilter(this);
}

bool Hinweiszeile::eventFilter(QObject* ziel, QEvent* ereignis)
{
    if (ereignis->type() == QEvent::MouseMove && ziel->isWidgetType()) {
        auto* feld = static_cast<QWidget*>(ziel);
        if (auto* bildschirm = dynamic_cast<Bildschirm*>(feld->window()))
            bildschirm->mausUeber(feld);
    }
    return false;
}

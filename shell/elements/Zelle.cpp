#include "shell/elements/Zelle.h"

#include "shell/elements/Farben.h"

#include <QMouseEvent>

Zelle::Zelle(const QString& name, const QString& text, QWidget* eltern) : QLabel(text, eltern)
{
    setObjectName(name);
    setAlignment(Qt::AlignCenter);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setBackgroundRole(QPalette::Base);
    markiere(this, false);
}

void Zelle::mousePressEvent(QMouseEvent* ereignis)
{
    if (ereignis->button() == Qt::LeftButton && beiKlick)
        beiKlick();
    else
        QLabel::mousePressEvent(ereignis);
}

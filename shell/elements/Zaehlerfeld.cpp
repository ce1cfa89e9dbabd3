#include "shell/elements/Zaehlerfeld.h"

#include "shell/elements/Stil.h"

#include <QLineEdit>

QLineEdit* alsZaehler(QLineEdit* feld)
{
    alsAnzeige(feld);
    feld->setAlignment(Qt::AlignRight);
    feld->setFixedWidth(feld->fontMetrics().horizontalAdvance("0000000000"));
    return feld;
}

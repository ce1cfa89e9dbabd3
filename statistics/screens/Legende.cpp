#include "statistics/screens/Legende.h"

#include "shell/elements/Stil.h"

#include <QLabel>

void alsLegende(QLabel* feld, const QColor& grund, const QColor& schrift)
{
    faerbe(feld, grund, schrift);
    feld->setAlignment(Qt::AlignCenter);
    feld->setContentsMargins(Stil::kAbstand, 0, Stil::kAbstand, 0);
}

#include "statistics/screens/Legende.h"

#include "shell/elements/Farben.h"
#include "shell/elements/Stil.h"

#include <QLabel>

void alsLegende(QLabel* feld, const QColor& grund)
{
    const bool dunkel = qGray(grund.rgb()) < 100;
    faerbe(feld, grund, dunkel ? QColor(Qt::white) : Farben::Text);
    feld->setAlignment(Qt::AlignCenter);
    feld->setContentsMargins(Stil::kAbstand, 0, Stil::kAbstand, 0);
}

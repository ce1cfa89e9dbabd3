#include "shell/elements/PdfSeiten.h"

#include <QPainter>
#include <QPdfWriter>

bool schreibePdf(QIODevice& ziel, const QString& titel, const Drucker::Maler& male)
{
    QPdfWriter schreiber(&ziel);
    schreiber.setTitle(titel);
    QPainter maler;
    if (!maler.begin(&schreiber))
        return false;
    male(maler, schreiber);
    return maler.end();
}

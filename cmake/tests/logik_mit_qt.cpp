#include "archive/logic/ZiehungsArchiv.h"

#include <QString>

int ziehungen(const ZiehungsArchiv& archiv);
int ziehungen(const ZiehungsArchiv& archiv)
{
    return archiv.AnzahlZiehungen;
}

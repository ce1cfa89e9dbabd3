#include "archive/logic/ZiehungsArchiv.h"

int ziehungen(const ZiehungsArchiv& archiv);
int ziehungen(const ZiehungsArchiv& archiv)
{
    return archiv.AnzahlZiehungen;
}

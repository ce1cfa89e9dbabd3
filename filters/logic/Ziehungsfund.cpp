#include "filters/logic/Ziehungsfund.h"

#include "shell/logic/Zahlen.h"

Ziehungsfund ziehungsfund(const ZiehungsArchiv& archiv, std::size_t nr, std::size_t luecke, std::string_view datum)
{
    const Kombination zahlen = archiv.gewinnzahlen(nr);
    std::string zeile = jahrUndWoche(archiv, nr) + "   " + zahlentext(zahlen) + std::string(luecke, ' ');
    zeile += datum;
    return {std::move(zeile), zahlen};
}

#include "filters/logic/Ziehungsfund.h"

#include "shell/logic/Format.h"
#include "shell/logic/Zahlen.h"

Ziehungsfund ziehungsfund(const ZiehungsArchiv& archiv, std::size_t nr, Datumsspalte datum)
{
    return {archiv.jjjj[nr], archiv.sw[nr], archiv.gewinnzahlen(nr), datum(archiv, nr)};
}

std::vector<Ziehungsfund> alleZiehungen(const ZiehungsArchiv& archiv, Datumsspalte datum)
{
    std::vector<Ziehungsfund> ziehungen;
    ziehungen.reserve(static_cast<std::size_t>(archiv.AnzahlZiehungen));
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr)
        ziehungen.push_back(ziehungsfund(archiv, nr, datum));
    return ziehungen;
}

std::string ziehungszeile(const Ziehungsfund& fund)
{
    return Format(fund.jjjj, "0000") + "/" + Format(fund.sw, "00") + "   " + zahlentext(fund.zahlen);
}

std::string fundzeile(const Ziehungsfund& fund, std::size_t luecke)
{
    return ziehungszeile(fund) + std::string(luecke, ' ') + fund.datum;
}

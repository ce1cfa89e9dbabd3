#include "archive/logic/ZiehungsArchiv.h"

#include "shell/logic/Format.h"

std::string_view ziehungsdateiName(std::int16_t spielart)
{
    switch (spielart) {
    case SpielartStart:
    case Samstagslotto:
        return "SALOTTO.DAT";
    case Mittwochslotto:
        return "MALOTTO.DAT";
    case MittwochslottoB:
        return "MBLOTTO.DAT";
    default:
        return "";
    }
}

std::string_view erstesSpieljahr(std::int16_t spielart)
{
    return istSamstag(spielart) ? "1955" : "1986";
}

std::string jahrUndWoche(const ZiehungsArchiv& archiv, std::size_t nr)
{
    const std::size_t zeile = nr < archiv.jjjj.size() ? nr : 0;
    return Format(archiv.jjjj[zeile], "0000") + "/" + Format(archiv.sw[zeile], "00");
}

const std::string& datumVon(const ZiehungsArchiv& archiv, std::size_t nr)
{
    return archiv.Datum[nr < archiv.Datum.size() ? nr : 0];
}

const std::string& datumAlleVon(const ZiehungsArchiv& archiv, std::size_t nr)
{
    return archiv.DatumAlle[nr < archiv.DatumAlle.size() ? nr : 0];
}

std::string gespeicherteZiehungen(const ZiehungsArchiv& archiv)
{
    if (archiv.AnzahlZiehungen <= 0)
        return "";
    const auto letzte = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    return "Gespeicherte Ziehungen: " + jahrUndWoche(archiv, 1) + " bis: " + jahrUndWoche(archiv, letzte) +
           "    Anzahl der Ziehungen: " + std::to_string(archiv.AnzahlZiehungen);
}

#include "archive/logic/Neueingabe.h"

#include "shell/logic/Format.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>

namespace {

constexpr std::int32_t kLetzteSpielwoche = 53;
constexpr std::int32_t kGroesstesJahr = 9999;

/// "2024,31,03,12,24,33,41,49".
std::string anfang(const NeueZiehung& ziehung)
{
    std::string satz = Format(ziehung.jjjj, "0000") + "," + Format(ziehung.sw, "00");
    for (const std::int32_t zahl : ziehung.zahlen)
        satz += "," + Format(zahl, "00");
    return satz;
}

std::string_view kuerzel(std::int16_t spielart)
{
    if (istSamstag(spielart))
        return "Sa";
    return spielart == Mittwochslotto ? "Mi" : "M(B)";
}

} // namespace

std::int32_t letztesSpieljahr(const ZiehungsArchiv& archiv)
{
    return std::clamp(archiv.jjjj[static_cast<std::size_t>(archiv.AnzahlZiehungen)], 0, kGroesstesJahr);
}

Vorschlag naechsteZiehung(const ZiehungsArchiv& archiv)
{
    const auto letzte = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    if (archiv.sw[letzte] >= kLetzteSpielwoche)
        return {letztesSpieljahr(archiv) + 1, 1};
    return {letztesSpieljahr(archiv), archiv.sw[letzte] + 1};
}

std::string neuerDatensatz(const NeueZiehung& ziehung)
{
    return anfang(ziehung) + ",00," + Format(ziehung.superzahl, "0");
}

std::string anzeigeform(const NeueZiehung& ziehung)
{
    return anfang(ziehung) + "  SZ:" + Format(ziehung.superzahl, "0");
}

std::string sicherungszeile(const NeueZiehung& ziehung, std::int16_t spielart, const std::string& datum)
{
    return neuerDatensatz(ziehung) + "," + std::string(kuerzel(spielart)) + "," + datum;
}

std::string zusatzzahlText(const ZiehungsArchiv& archiv, std::size_t nr)
{
    return archiv.zz[nr] == 0 ? "-" : Format(archiv.zz[nr], "@@");
}

std::string superzahlText(const ZiehungsArchiv& archiv, std::size_t nr)
{
    return static_cast<std::int32_t>(nr) < superzahlBeginn(archiv.Spielart) ? "-" : Format(archiv.s[nr], "@");
}

std::string listenzeile(const ZiehungsArchiv& archiv, std::size_t nr)
{
    const std::string zusatzzahl = archiv.zz[nr] == 0 ? " -" : std::to_string(archiv.zz[nr]);
    return Format(nr, "0000") + "    " + archiv.Datum[nr] + " " + jahrUndWoche(archiv, nr) + "  " +
           zahlentext(archiv.gewinnzahlen(nr)) + "   " + zusatzzahl + "   " + superzahlText(archiv, nr);
}

#include "tips/rules/Gewinnklassen.h"

#include "archive/logic/Zahlenmenge.h"

#include <algorithm>

namespace {

bool gibtEs(const ZiehungsArchiv& archiv, std::int32_t ziehungsNr)
{
    return ziehungsNr >= 1 && ziehungsNr <= archiv.AnzahlZiehungen &&
           static_cast<std::size_t>(ziehungsNr) < archiv.z1.size();
}

bool enthaelt(Zahlenmenge menge, std::int32_t zahl)
{
    return zahl >= 1 && zahl <= kHoechsteZahl && (menge >> zahl & 1) != 0;
}

} // namespace

std::array<bool, 6> getroffeneZahlen(const ZiehungsArchiv& archiv, const Kombination& tip, std::int32_t ziehungsNr)
{
    std::array<bool, 6> getroffen{};
    if (!gibtEs(archiv, ziehungsNr))
        return getroffen;
    const Zahlenmenge gezogen = zahlenmenge(archiv.gewinnzahlen(static_cast<std::size_t>(ziehungsNr)));
    std::transform(tip.begin(), tip.end(), getroffen.begin(),
                   [gezogen](std::int32_t zahl) { return enthaelt(gezogen, zahl); });
    return getroffen;
}

std::int32_t countTreffer(const ZiehungsArchiv& archiv, const Kombination& tip, std::int32_t ziehungsNr)
{
    const auto getroffen = getroffeneZahlen(archiv, tip, ziehungsNr);
    return static_cast<std::int32_t>(std::count(getroffen.begin(), getroffen.end(), true));
}

bool superzahlTrifft(const ZiehungsArchiv& archiv, std::int32_t ziehungsNr, std::int32_t tipSZ, std::int16_t spielart)
{
    return gibtEs(archiv, ziehungsNr) && ziehungsNr >= superzahlBeginn(spielart) && tipSZ >= 0 && tipSZ <= 9 &&
           archiv.s[static_cast<std::size_t>(ziehungsNr)] == tipSZ;
}

bool zusatzzahlTrifft(const ZiehungsArchiv& archiv, std::int32_t ziehungsNr, const Kombination& tip)
{
    return gibtEs(archiv, ziehungsNr) && enthaelt(zahlenmenge(tip), archiv.zz[static_cast<std::size_t>(ziehungsNr)]);
}

Gewinnklasse classifyNeu(const ZiehungsArchiv& archiv, std::int32_t trefferzahl, std::int32_t ziehungsNr,
                         std::int32_t tipSZ, std::int16_t spielart)
{
    if (!gibtEs(archiv, ziehungsNr))
        return Gewinnklasse::Keine;
    return GewinnklassenplanNeu.klasse(trefferzahl, superzahlTrifft(archiv, ziehungsNr, tipSZ, spielart));
}

Gewinnklasse classifyAlt(const ZiehungsArchiv& archiv, std::int32_t trefferzahl, std::int32_t ziehungsNr,
                         const Kombination& tip, std::int32_t tipSZ, std::int16_t spielart)
{
    if (!gibtEs(archiv, ziehungsNr))
        return Gewinnklasse::Keine;
    const Gewinnklassenplan& plan = spielart == MittwochslottoB ? GewinnklassenplanAltMittwochB : GewinnklassenplanAlt;
    const bool trifft = plan.stufe(trefferzahl).merkmal == Gewinnstufe::Merkmal::Superzahl
                            ? superzahlTrifft(archiv, ziehungsNr, tipSZ, spielart)
                            : zusatzzahlTrifft(archiv, ziehungsNr, tip);
    return plan.klasse(trefferzahl, trifft);
}

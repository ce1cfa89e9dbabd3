#include "tips/rules/Trefferbilanz.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace {

/// The hits alone, without a class.
Tippbewertung zaehleTreffer(const ZiehungsArchiv& archiv, std::int32_t ziehungsNr, const Kombination& tip)
{
    Tippbewertung bewertung;
    bewertung.getroffen = getroffeneZahlen(archiv, tip, ziehungsNr);
    bewertung.Trefferzahl =
        static_cast<std::int32_t>(std::count(bewertung.getroffen.begin(), bewertung.getroffen.end(), true));
    return bewertung;
}

template <class Feld> void addiere(Feld& summe, const Feld& andere)
{
    std::transform(summe.begin(), summe.end(), andere.begin(), summe.begin(), std::plus<>{});
}

} // namespace

Tippbewertung bewerteNeu(const ZiehungsArchiv& archiv, std::int32_t ziehungsNr, const Kombination& tip,
                         std::int32_t tipSZ, std::int16_t spielart)
{
    Tippbewertung bewertung = zaehleTreffer(archiv, ziehungsNr, tip);
    bewertung.klasse = classifyNeu(archiv, bewertung.Trefferzahl, ziehungsNr, tipSZ, spielart);
    return bewertung;
}

Tippbewertung bewerteAlt(const ZiehungsArchiv& archiv, std::int32_t ziehungsNr, const Kombination& tip,
                         std::int32_t tipSZ, std::int16_t spielart)
{
    Tippbewertung bewertung = zaehleTreffer(archiv, ziehungsNr, tip);
    bewertung.klasse = classifyAlt(archiv, bewertung.Trefferzahl, ziehungsNr, tip, tipSZ, spielart);
    return bewertung;
}

void Trefferbilanz::zaehle(const Tippbewertung& bewertung)
{
    for (std::size_t i = 0; i < haeufigkeit.size(); ++i)
        haeufigkeit[i] += bewertung.getroffen[i];
    Null += bewertung.Trefferzahl == 0;
    Einer += bewertung.Trefferzahl == 1;
    zweierRoh += bewertung.Trefferzahl == 2;
    if (bewertung.istGewinn())
        ++klassen[static_cast<std::size_t>(bewertung.klasse)];
}

Trefferbilanz& Trefferbilanz::operator+=(const Trefferbilanz& andere)
{
    addiere(haeufigkeit, andere.haeufigkeit);
    addiere(klassen, andere.klassen);
    Null += andere.Null;
    Einer += andere.Einer;
    zweierRoh += andere.zweierRoh;
    return *this;
}

std::int32_t Trefferbilanz::gewinne() const
{
    return std::accumulate(klassen.begin(), klassen.end(), 0);
}

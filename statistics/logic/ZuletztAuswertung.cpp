#include "statistics/logic/ZuletztAuswertung.h"

#include "shell/logic/Lottozahl.h"
#include "shell/logic/Texte.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>

namespace {

LetztesAuftreten auftretenIn(const ZiehungsArchiv& archiv, std::int32_t nr)
{
    const auto i = static_cast<std::size_t>(nr);
    return {nr, archiv.Spielart, jahrUndWoche(archiv, i), datumVon(archiv, i)};
}

bool istGanzzahl(std::string_view text)
{
    std::string_view ziffern = trim(text);
    if (ziffern.starts_with('-') || ziffern.starts_with('+'))
        ziffern.remove_prefix(1);
    return !ziffern.empty() && ziffern.find_first_not_of("0123456789") == std::string_view::npos;
}

std::bitset<50> mitDerWoche(const ZuletztAuswertung& auswertung, const std::string& jahrUndWoche)
{
    std::bitset<50> zahlen;
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
        zahlen[static_cast<std::size_t>(zahl)] = auswertung.fuer(zahl).jahrUndWoche == jahrUndWoche;
    return zahlen;
}

} // namespace

Ziehungsgrenze liesGrenze(std::string_view text, std::int32_t anzahlZiehungen)
{
    const std::int32_t nr = istGanzzahl(text) ? fuehrendeZahl(text) : 0;
    return {std::min(nr, anzahlZiehungen), nr > anzahlZiehungen};
}

ZuletztAuswertung werteZuletztAus(const ZiehungsArchiv& archiv, std::int32_t grenze, ZZModus modus)
{
    ZuletztAuswertung auswertung;
    auswertung.Spielart = archiv.Spielart;
    auswertung.ZaehlModus = modus;
    auswertung.Suchbeginn = grenze < archiv.AnzahlZiehungen ? 1 : suchbeginn(archiv.Spielart);
    auswertung.Grenze = grenze;
    auswertung.stand = jahrUndWoche(archiv, static_cast<std::size_t>(std::max(grenze, 0)));
    const ZuletztGezogen letzte = zuletztGezogen(archiv, auswertung.Suchbeginn, grenze, modus);
    std::transform(letzte.begin(), letzte.end(), auswertung.auftreten.begin(),
                   [&archiv](std::int32_t nr) { return auftretenIn(archiv, nr); });
    return auswertung;
}

void ergaenzeMittwoch(ZuletztAuswertung& auswertung, const ZiehungsArchiv& archiv)
{
    auswertung.mittwochAB = true;
    const ZuletztGezogen letzte = zuletztGezogen(archiv, auswertung.Suchbeginn, auswertung.Grenze, ZZModus::Ohne);
    for (std::size_t i = 0; i < letzte.size(); ++i)
        if (letzte[i] > auswertung.auftreten[i].ZiehungsNr)
            auswertung.auftreten[i] = auftretenIn(archiv, letzte[i]);
}

ZuletztMarken zuletztMarken(const ZuletztAuswertung& auswertung)
{
    const auto [aeltestes, neuestes] =
        std::minmax_element(auswertung.auftreten.begin(), auswertung.auftreten.end(),
                            [](const auto& a, const auto& b) { return a.ZiehungsNr < b.ZiehungsNr; });
    return {mitDerWoche(auswertung, neuestes->jahrUndWoche), mitDerWoche(auswertung, aeltestes->jahrUndWoche)};
}

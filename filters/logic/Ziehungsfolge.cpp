#include "filters/logic/Ziehungsfolge.h"

#include "archive/logic/Tagesfolge.h"
#include "shell/logic/Format.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr std::string_view kDatum = "So, 09.10.1955";
constexpr std::string_view kDatumMitSpiel = "Mi, 29.11.2000 (B)";

Folgeziehung ziehung(const ZiehungsArchiv& archiv, std::size_t nr, std::int32_t superzahl, const std::string& datum)
{
    return {.jjjj = archiv.jjjj[nr],
            .sw = archiv.sw[nr],
            .zahlen = archiv.gewinnzahlen(nr),
            .zz = archiv.zz[nr],
            .superzahl = superzahl,
            .datum = datum};
}

/// The Superzahl of a draw of one game in the form of a combined load.
std::int32_t superzahlVon(const ZiehungsArchiv& archiv, std::size_t nr)
{
    return static_cast<std::int32_t>(nr) < superzahlBeginn(archiv.Spielart) ? kOhneSuperzahl : archiv.s[nr];
}

} // namespace

Zahlenmenge Ziehungsfolge::menge(std::size_t platz, bool mitZusatzzahl) const
{
    const Folgeziehung& eine = ziehungen[platz];
    const Zahlenmenge menge = zahlenmenge(eine.zahlen);
    return mitZusatzzahl ? menge | zahlenmenge({&eine.zz, 1}) : menge;
}

GeteilteFolge einzelneFolge(const ZiehungsArchiv& archiv)
{
    Ziehungsfolge folge{.ziehungen = {}, .datumsbreite = kDatum.size()};
    const auto anzahl = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    folge.ziehungen.reserve(anzahl);
    for (std::size_t nr = 1; nr <= anzahl; ++nr)
        folge.ziehungen.push_back(ziehung(archiv, nr, superzahlVon(archiv, nr), datumVon(archiv, nr)));
    return std::make_shared<const Ziehungsfolge>(std::move(folge));
}

GeteilteFolge gemischteFolge(const ZiehungsArchiv& archiv)
{
    Ziehungsfolge folge{.ziehungen = {}, .datumsbreite = kDatumMitSpiel.size()};
    folge.ziehungen.reserve(static_cast<std::size_t>(archiv.AnzahlZiehungen));
    for (const std::int32_t platz : tagesfolge(archiv, Tagesordnung::NachSpielart)) {
        const auto nr = static_cast<std::size_t>(platz);
        folge.ziehungen.push_back(ziehung(archiv, nr, archiv.s[nr], datumAlleVon(archiv, nr)));
    }
    return std::make_shared<const Ziehungsfolge>(std::move(folge));
}

void haengeAn(ZiehungsArchiv& zusammen, ZiehungsArchiv einzelnes)
{
    const auto neue = static_cast<std::size_t>(einzelnes.AnzahlZiehungen);
    for (std::size_t nr = 1; nr <= neue; ++nr) {
        einzelnes.s[nr] = superzahlVon(einzelnes, nr);
        zusammen.DatumAlle.push_back(datumVon(einzelnes, nr));
    }
    const auto ziele = zusammen.spalten();
    const auto quellen = einzelnes.spalten();
    for (std::size_t i = 0; i < ziele.size(); ++i)
        ziele[i]->insert(ziele[i]->end(), quellen[i]->begin() + 1,
                         quellen[i]->begin() + 1 + static_cast<std::ptrdiff_t>(neue));
    zusammen.AnzahlZiehungen += einzelnes.AnzahlZiehungen;
}

std::string superzahltext(const Folgeziehung& ziehung)
{
    return ziehung.superzahl == kOhneSuperzahl ? "-" : std::to_string(ziehung.superzahl);
}

std::string folgezeile(const Ziehungsfolge& folge, std::size_t platz)
{
    const Folgeziehung& eine = folge.ziehungen[platz];
    std::string zeile = " " + Format(eine.jjjj, "0000") + "  " + Format(eine.sw, "00") + "  " +
                        zahlentext(eine.zahlen) + "  " + Format(eine.zz, "00") + "   " +
                        Format(superzahltext(eine), "@@") + "   " + eine.datum;
    zeile.append(folge.datumsbreite - std::min(folge.datumsbreite, eine.datum.size()), ' ');
    return zeile + "   Nr. " + Format(std::to_string(platz + 1), "@@@@@");
}

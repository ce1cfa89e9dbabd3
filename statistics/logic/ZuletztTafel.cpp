#include "statistics/logic/ZuletztTafel.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/logic/Format.h"
#include "shell/logic/Lottozahl.h"

#include <algorithm>

namespace {

constexpr std::size_t kEinzugKopf = 25;

std::string zelle(const ZuletztAuswertung& auswertung, ZuletztAnsicht ansicht, int zahl)
{
    return ansicht == ZuletztAnsicht::Wochen ? Format(auswertung.wochen(zahl), "####0")
                                             : auswertung.fuer(zahl).jahrUndWoche;
}

std::string zeileNachZahl(const std::string& zelle, const std::string& datum, int zahl)
{
    return Format(zahl, "@@") + "   " + Format(zelle, "@@@@") + "  " + datum;
}

std::string zeileNachAuftreten(const std::string& zelle, const std::string& datum, ZuletztAnsicht ansicht, int zahl)
{
    if (ansicht == ZuletztAnsicht::Wochen)
        return Format(zelle, "@@@@") + "   " + datum + "  " + Format(zahl, "@@");
    return zelle + "  " + datum + "   " + Format(zahl, "@@");
}

/// The game as the heading of the print names it; that of both Wednesday games stands one place further right.
std::string druckname(const ZuletztAuswertung& auswertung)
{
    return auswertung.mittwochAB ? " *** " + std::string(kMittwochABName) + " ***"
                                 : "*** " + std::string(spielartName(auswertung.Spielart)) + " ***";
}

std::string druckzeile(const std::string& zelle, ZuletztAnsicht ansicht, int zahl)
{
    return "   Zahl " + Format(zahl, "00") +
           (ansicht == ZuletztAnsicht::Wochen ? " zuletzt gezogen vor (Wochen): "
                                              : " zuletzt gezogen in Spielwoche: ") +
           zelle;
}

} // namespace

ZuletztTafel zuletztTafel(const ZuletztAuswertung& auswertung, ZuletztAnsicht ansicht)
{
    ZuletztTafel tafel;
    tafel.listenkoepfe = zuletztListenkoepfe(ansicht);
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl) {
        const std::string text = zelle(auswertung, ansicht, zahl);
        const std::string& datum = auswertung.fuer(zahl).datum;
        tafel.zellen[static_cast<std::size_t>(zahl - 1)] = text;
        tafel.listen[0].push_back(zeileNachZahl(text, datum, zahl));
        tafel.listen[1].push_back(zeileNachAuftreten(text, datum, ansicht, zahl));
    }
    return tafel;
}

std::array<std::string, 2> zuletztListenkoepfe(ZuletztAnsicht ansicht)
{
    if (ansicht == ZuletztAnsicht::Wochen)
        return {" Z      Wo     Datum", "   W   Datum            Z"};
    return {" Z    JJJJ/SW   Datum", "JJJJ/SW    Datum           Z"};
}

std::string spielLabel(const ZuletztAuswertung& auswertung)
{
    return std::string(auswertung.mittwochAB ? kMittwochABName : spielartGross(auswertung.Spielart));
}

std::string ziehungsauswahl(const ZiehungsArchiv& archiv, std::int32_t nr)
{
    return jahrUndWoche(archiv, static_cast<std::size_t>(nr)) + " ZNr: " + Format(nr, "0000");
}

std::string gespeicherteZiehungenVonBis(const ZiehungsArchiv& archiv)
{
    if (archiv.AnzahlZiehungen < 1)
        return {};
    return "Gespeicherte Ziehungen von: " + jahrUndWoche(archiv, 1) +
           " bis: " + jahrUndWoche(archiv, static_cast<std::size_t>(archiv.AnzahlZiehungen)) + ", " +
           std::to_string(archiv.AnzahlZiehungen) + " Ziehungen";
}

Druckauftrag druckauftrag(const ZuletztAuswertung& auswertung, ZuletztAnsicht ansicht)
{
    const std::string spiel = std::string(kEinzugKopf, ' ') + druckname(auswertung);
    Druckauftrag auftrag;
    auftrag.kopf = {spiel, "-Wann zuletzt gezogen ?, (" + zzKurztext(auswertung.ZaehlModus) +
                               ") Stand: " + auswertung.stand + ", " + std::to_string(std::max(auswertung.Grenze, 0)) +
                               " Ziehungen -"};
    auftrag.folgekopf = {spiel, "  -- Wann zuletzt gezogen ? -- "};
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
        auftrag.zeilen.push_back(druckzeile(zelle(auswertung, ansicht, zahl), ansicht, zahl));
    return auftrag;
}

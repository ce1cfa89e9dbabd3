#include "statistics/logic/HaeufigkeitAuswertung.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/logic/Format.h"
#include "shell/logic/Lottozahl.h"

#include <string_view>

namespace {

constexpr std::size_t kEinzugKopf = 25;
constexpr std::size_t kLeerzeile = 26;

std::string spielName(const HaeufigkeitAuswertung& auswertung)
{
    return std::string(auswertung.mittwochAB ? kMittwochABName : spielartName(auswertung.spielart));
}

std::string zeileNachJahren(const HaeufigkeitAuswertung& auswertung)
{
    const Bereichsangabe& angabe = auswertung.angabe;
    return "Auswertung von " + angabe.von + " bis " + angabe.bis + " ; " +
           std::to_string(auswertung.haeufigkeit.AusgewerteteZiehungen) +
           (auswertung.mittwochAB ? " Ziehungen " : " Ziehungen; ") + zzText(auswertung.ZaehlModus);
}

std::string zeileBisZiehung(const HaeufigkeitAuswertung& auswertung)
{
    return "Auswertung von Ziehung 1 bis Ziehung " + auswertung.angabe.bisZiehung +
           (auswertung.mittwochAB ? " ," : " , ") + zzText(auswertung.ZaehlModus);
}

/// Week of the first draw of the game in its first year, else the first week.
std::string_view ersteSpielwoche(const HaeufigkeitAuswertung& auswertung)
{
    if (auswertung.angabe.von != erstesSpieljahr(auswertung.spielart))
        return "01";
    return istSamstag(auswertung.spielart) ? "41" : "23";
}

std::string ueberschrift(const HaeufigkeitAuswertung& auswertung)
{
    const Bereichsangabe& angabe = auswertung.angabe;
    const std::string anfang = "  -- Häufigkeit (" + zzKurztext(auswertung.ZaehlModus) + ")";
    if (angabe.form == Bereichsform::BisZiehung)
        return anfang + ", nach " + angabe.bisZiehung + " Ziehungen --";
    return anfang + " " + angabe.von + "/" + std::string(ersteSpielwoche(auswertung)) + " - " + angabe.bis + "/" +
           Format(auswertung.haeufigkeit.letzteSpielwoche, "00") + ", " +
           std::to_string(auswertung.haeufigkeit.AusgewerteteZiehungen) + " Ziehungen --";
}

std::string druckzeile(int zahl, std::int16_t anzahl)
{
    return "   Zahl " + Format(zahl, "00") + " wurde " + Format(std::to_string(anzahl), "@@@@@") + " mal gezogen";
}

std::string extremText(std::string_view anfang, int zahl, std::int16_t anzahl)
{
    return std::string(anfang) + ": Zahl -> " + std::to_string(zahl) + " (" + std::to_string(anzahl) + " mal gezogen)";
}

bool erreichtLetzteZiehung(const HaeufigkeitAuswertung& auswertung, const ZiehungsArchiv& archiv)
{
    if (archiv.AnzahlZiehungen < 1)
        return false;
    if (auswertung.angabe.form == Bereichsform::BisZiehung)
        return auswertung.bereich.letzteZiehung == archiv.AnzahlZiehungen;
    return auswertung.bereich.bis == archiv.jjjj[static_cast<std::size_t>(archiv.AnzahlZiehungen)];
}

void merkeLetzteZiehung(HaeufigkeitAuswertung& auswertung, const ZiehungsArchiv& archiv)
{
    auswertung.erreichtLetzteZiehung = erreichtLetzteZiehung(auswertung, archiv);
    auswertung.zuletztVor = zuletztVor(archiv, auswertung.ZaehlModus);
}

/// How the mode stands behind the count when the weeks are left out: one blank without Zusatzzahl, else two.
std::string ohneWochen(ZZModus modus)
{
    return (modus == ZZModus::Ohne ? ", (" : ",  (") + zzKurztext(modus) + ")";
}

std::string mitWochen(std::int32_t wochen, ZZModus modus)
{
    return ", zuletzt gezogen vor: " + std::to_string(wochen) + " Wochen (" + zzKurztext(modus) + ")";
}

} // namespace

HaeufigkeitAuswertung werteAus(const ZiehungsArchiv& archiv, const Ziehungsbereich& bereich,
                               const Bereichsangabe& angabe, ZZModus modus)
{
    HaeufigkeitAuswertung auswertung{.haeufigkeit = zaehleHaeufigkeit(archiv, bereich, modus),
                                     .spielart = archiv.Spielart,
                                     .ZaehlModus = modus,
                                     .bereich = bereich,
                                     .angabe = angabe};
    merkeLetzteZiehung(auswertung, archiv);
    return auswertung;
}

void ergaenzeMittwoch(HaeufigkeitAuswertung& auswertung, const ZiehungsArchiv& archiv)
{
    auswertung.mittwochAB = true;
    zaehleDazu(auswertung.haeufigkeit, archiv, auswertung.bereich, ZZModus::Ohne);
    if (archiv.Spielart == Mittwochslotto)
        merkeLetzteZiehung(auswertung, archiv);
}

std::string spielLabel(const HaeufigkeitAuswertung& auswertung)
{
    return std::string(auswertung.mittwochAB ? kMittwochABGross : spielartGross(auswertung.spielart));
}

std::string ergebniszeile(const HaeufigkeitAuswertung& auswertung)
{
    const bool nachJahren = auswertung.angabe.form == Bereichsform::Jahre;
    return spielName(auswertung) + ": " + (nachJahren ? zeileNachJahren(auswertung) : zeileBisZiehung(auswertung));
}

std::string maximumText(const Extremwerte& extreme)
{
    return extremText("Max", extreme.zahlMax, extreme.max);
}

std::string minimumText(const Extremwerte& extreme)
{
    return extremText("Min", extreme.zahlMin, extreme.min);
}

std::string balkenText(const HaeufigkeitAuswertung& auswertung, int zahl)
{
    const ZZModus modus = auswertung.ZaehlModus;
    const std::int32_t wochen = auswertung.zuletztVor[static_cast<std::size_t>(zahl - 1)];
    return "Zahl " + std::to_string(zahl) + " -> " + std::to_string(auswertung.haeufigkeit.fuer(zahl)) +
           " mal gezogen" + (auswertung.erreichtLetzteZiehung ? mitWochen(wochen, modus) : ohneWochen(modus));
}

Druckauftrag druckauftrag(const HaeufigkeitAuswertung& auswertung)
{
    Druckauftrag auftrag;
    auftrag.kopf = {std::string(kEinzugKopf, ' ') + "*** " + spielName(auswertung) + " ***", ueberschrift(auswertung),
                    std::string(kLeerzeile, ' ')};
    auftrag.folgekopf = auftrag.kopf;
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
        auftrag.zeilen.push_back(druckzeile(zahl, auswertung.haeufigkeit.fuer(zahl)));
    return auftrag;
}

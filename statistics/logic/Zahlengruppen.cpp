#include "statistics/logic/Zahlengruppen.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/logic/Format.h"
#include "shell/logic/Lottozahl.h"
#include "shell/logic/Tippfeld7x7.h"

#include <string_view>

namespace {

constexpr std::size_t kEinzugKopf = 25;

/// Behind "Septiden:" of the print. The second one is wrong on paper only; it has been so always.
constexpr std::array<std::string_view, 7> kSeptiden{"(01-07)", "(08-15)", "(15-21)", "(22-28)",
                                                    "(29-35)", "(36-42)", "(43-49)"};

void zaehleZahl(Zahlengruppen& gruppen, std::int32_t zahl)
{
    if (!gibtEs(zahl))
        return;
    const std::array zehnergruppen{&gruppen.Einer, &gruppen.Zehner, &gruppen.Zwanziger, &gruppen.Dreissiger,
                                   &gruppen.Vierziger};
    ++(zahl % 2 == 0 ? gruppen.Gerade : gruppen.Ungerade);
    ++*zehnergruppen[static_cast<std::size_t>(zahl / 10)];
    ++gruppen.Septiden[static_cast<std::size_t>(Tippfeld7x7::zeile(zahl))];
}

void zaehleZiehung(Zahlengruppen& gruppen, const ZiehungsArchiv& archiv, std::size_t nr)
{
    ++gruppen.Ausgewertet;
    if (zaehltGewinnzahlen(gruppen.ZaehlModus))
        for (const std::int32_t zahl : archiv.gewinnzahlen(nr))
            zaehleZahl(gruppen, zahl);
    if (!zaehltZusatzzahl(gruppen.ZaehlModus))
        return;
    if (gibtEs(archiv.zz[nr]))
        zaehleZahl(gruppen, archiv.zz[nr]);
    else
        ++gruppen.OhneZusatzzahl;
}

std::int32_t zahlenJeZiehung(ZZModus modus)
{
    return (zaehltGewinnzahlen(modus) ? 6 : 0) + (zaehltZusatzzahl(modus) ? 1 : 0);
}

} // namespace

std::int32_t Zahlengruppen::gesamtzahl() const
{
    return Ausgewertet * zahlenJeZiehung(ZaehlModus) - OhneZusatzzahl;
}

Zahlengruppen zaehleGruppen(const ZiehungsArchiv& archiv, std::int32_t von, std::int32_t bis, ZZModus modus)
{
    Zahlengruppen gruppen;
    gruppen.spielart = archiv.Spielart;
    gruppen.ZaehlModus = modus;
    gruppen.von = von;
    gruppen.bis = bis;
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr)
        if (archiv.jjjj[nr] >= von && archiv.jjjj[nr] <= bis)
            zaehleZiehung(gruppen, archiv, nr);
    return gruppen;
}

Druckauftrag druckauftrag(const Zahlengruppen& gruppen)
{
    Druckauftrag auftrag;
    auftrag.kopf = {std::string(kEinzugKopf, ' ') + std::string(spielartName(gruppen.spielart)),
                    "** Wieviele gerade/ungerade Zahlen - Zehnergruppen **  " + zzKurztext(gruppen.ZaehlModus) + " ",
                    "                 von " + Format(gruppen.von, "0000") + " bis " + Format(gruppen.bis, "0000")};
    auftrag.folgekopf = auftrag.kopf;
    const auto zeile = [&auftrag](std::string_view beschriftung, std::int32_t anzahl) {
        auftrag.zeilen.push_back(std::string(beschriftung) + std::to_string(anzahl));
    };
    zeile("Gesamtzahl der gezogenen Gewinnzahlen: ", gruppen.gesamtzahl());
    zeile("Davon gerade Gewinnzahlen            : ", gruppen.Gerade);
    zeile("Davon ungerade Gewinnzahlen          : ", gruppen.Ungerade);
    zeile("Anzahl der ausgewerteten Ziehungen   : ", gruppen.Ausgewertet);
    zeile("Davon in Einergruppe     (01-09)     : ", gruppen.Einer);
    zeile("Davon in Zehnergruppe    (10-19)     : ", gruppen.Zehner);
    zeile("Davon in Zwanzigergruppe (20-29)     : ", gruppen.Zwanziger);
    zeile("Davon in Dreißigergruppe (30-39)     : ", gruppen.Dreissiger);
    zeile("Davon in Vierzigergruppe (40-49)     : ", gruppen.Vierziger);
    auftrag.zeilen.emplace_back("Septiden:");
    for (std::size_t i = 0; i < kSeptiden.size(); ++i)
        zeile(std::string(kEinzugKopf, ' ') + std::string(kSeptiden[i]) + "     : ", gruppen.Septiden[i]);
    return auftrag;
}

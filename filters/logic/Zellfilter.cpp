#include "filters/logic/Zellfilter.h"

#include "filters/logic/Fundangabe.h"
#include "shell/logic/Lottozahl.h"

#include <algorithm>

Tippfeld7x7 zellenDer(const Linienwahl& zeilen, const Linienwahl& spalten)
{
    std::vector<std::int32_t> zahlen;
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
        if (zeilen[static_cast<std::size_t>(Tippfeld7x7::zeile(zahl))] ||
            spalten[static_cast<std::size_t>(Tippfeld7x7::spalte(zahl))])
            zahlen.push_back(zahl);
    Tippfeld7x7 feld;
    feld.zeige(zahlen);
    return feld;
}

Zellsuche FiltereNachZellen(const ZiehungsArchiv& archiv, const Tippfeld7x7& zellen, Datumsspalte datum)
{
    Zellsuche suche{zellen, archiv.AnzahlZiehungen, {}};
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr)
        if (std::ranges::all_of(archiv.gewinnzahlen(nr), [&](std::int32_t zahl) { return zellen.markiert(zahl); }))
            suche.funde.push_back(ziehungsfund(archiv, nr, datum));
    return suche;
}

std::string ergebniszeile(const Zellsuche& suche)
{
    const std::string_view maske = suche.ZellFlag.anzahl() == 0 ? "0" : "0.00";
    return fundangabe(suche.funde.size(), suche.AnzahlZiehungen, {.einzahl = "Ziehung", .prozentmaske = maske});
}

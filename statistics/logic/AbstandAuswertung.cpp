#include "statistics/logic/AbstandAuswertung.h"

#include "statistics/logic/Zahltreffer.h"

AbstandAuswertung werteAbstandAus(const ZiehungsArchiv& archiv, int zahl, ZZModus modus)
{
    AbstandAuswertung auswertung;
    auswertung.zahl = zahl;
    auswertung.ZaehlModus = modus;
    auswertung.Spielart = archiv.Spielart;
    auswertung.AnzahlZiehungen = archiv.AnzahlZiehungen;
    const auto letzte = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    auswertung.ersteZiehung = jahrUndWoche(archiv, 1);
    auswertung.letzteZiehung = jahrUndWoche(archiv, letzte);
    auswertung.letztesDatum = datumVon(archiv, letzte);

    std::size_t vorher = 1; // the first hit counts from draw 1
    std::int32_t maximum = 0;
    for (std::size_t nr = 1; nr <= letzte; ++nr) {
        if (!trifft(archiv, nr, zahl, modus))
            continue;
        const auto wochen = static_cast<std::int32_t>(nr - vorher);
        if (wochen > maximum) {
            maximum = wochen;
            auswertung.laengster = static_cast<int>(auswertung.treffer.size());
        }
        auswertung.treffer.push_back({static_cast<std::int32_t>(nr), archiv.jjjj[nr], archiv.sw[nr],
                                      datumVon(archiv, nr), archiv.gewinnzahlen(nr), archiv.zz[nr], wochen});
        vorher = nr;
    }
    return auswertung;
}

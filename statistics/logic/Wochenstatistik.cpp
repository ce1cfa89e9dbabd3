#include "statistics/logic/Wochenstatistik.h"

#include "shell/logic/Format.h"
#include "shell/logic/Lottozahl.h"
#include "shell/logic/Zahlen.h"
#include "statistics/logic/Spielwochen.h"

#include <algorithm>
#include <numeric>

namespace {

void zaehle(Wochenstatistik& statistik, std::int32_t zahl)
{
    if (gibtEs(zahl))
        ++statistik.anzahl[static_cast<std::size_t>(zahl - 1)];
}

std::string zusatzzahlText(const Wochenziehung& ziehung, bool mitZZ)
{
    if (!mitZZ)
        return "  ";
    return ziehung.zz > 0 ? Format(ziehung.zz, "00") : "- ";
}

std::string zeileNachHaeufigkeit(const Wochenstatistik& statistik, int zahl)
{
    return Format(statistik.anzahl[static_cast<std::size_t>(zahl - 1)], "@@@") + " mal die " + Format(zahl, "@@");
}

} // namespace

Wochenstatistik weekStatistics(const ZiehungsArchiv& archiv, std::int32_t sw, bool mitZZ)
{
    Wochenstatistik statistik{.sw = sw, .mitZZ = mitZZ, .ziehungen = {}};
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr) {
        if (archiv.sw[nr] != sw)
            continue;
        statistik.ziehungen.push_back({static_cast<std::int32_t>(nr), archiv.jjjj[nr], archiv.gewinnzahlen(nr),
                                       archiv.zz[nr], datumVon(archiv, nr)});
    }
    for (const Wochenziehung& ziehung : statistik.ziehungen) {
        for (const std::int32_t zahl : ziehung.gewinnzahlen)
            zaehle(statistik, zahl);
        if (mitZZ)
            zaehle(statistik, ziehung.zz);
    }
    return statistik;
}

std::int32_t naechsteSpielwoche(const ZiehungsArchiv& archiv)
{
    const std::int32_t letzte = archiv.sw[static_cast<std::size_t>(archiv.AnzahlZiehungen)];
    return letzte >= 0 && letzte < kSpielwochen ? letzte + 1 : 1;
}

std::vector<std::string> ziehungszeilen(const Wochenstatistik& statistik)
{
    std::vector<std::string> zeilen;
    zeilen.reserve(statistik.ziehungen.size());
    const std::string woche = "/" + Format(statistik.sw, "00") + "  ";
    for (const Wochenziehung& ziehung : statistik.ziehungen)
        zeilen.push_back(Format(ziehung.jjjj, "0000") + woche + zahlentext(ziehung.gewinnzahlen) + "  " +
                         zusatzzahlText(ziehung, statistik.mitZZ) + "  " + ziehung.datum);
    return zeilen;
}

std::vector<int> zahlenNachHaeufigkeit(const Wochenstatistik& statistik)
{
    std::vector<int> zahlen(statistik.anzahl.size());
    std::iota(zahlen.begin(), zahlen.end(), 1);
    std::ranges::sort(zahlen, {}, [&statistik](int zahl) { return zeileNachHaeufigkeit(statistik, zahl); });
    return zahlen;
}

std::vector<std::string> zeilenNachHaeufigkeit(const Wochenstatistik& statistik)
{
    std::vector<std::string> zeilen;
    zeilen.reserve(statistik.anzahl.size());
    for (const int zahl : zahlenNachHaeufigkeit(statistik))
        zeilen.push_back(zeileNachHaeufigkeit(statistik, zahl));
    return zeilen;
}

std::vector<std::string> zeilenNachZahl(const Wochenstatistik& statistik)
{
    std::vector<std::string> zeilen;
    zeilen.reserve(statistik.anzahl.size());
    for (std::size_t i = 0; i < statistik.anzahl.size(); ++i)
        zeilen.push_back(Format(i + 1, "@@") + " Zahl " + " -> " + Format(statistik.anzahl[i], "@@@") + " mal");
    return zeilen;
}

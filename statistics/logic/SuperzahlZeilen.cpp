#include "statistics/logic/SuperzahlZeilen.h"

#include "shell/logic/Format.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr std::size_t kBerichtbreite = 111;

/// How the report speaks of a game.
struct Quellentexte {
    std::string_view summe;
    std::string_view spalte;
};

constexpr Quellentexte texte(std::int16_t spielart)
{
    switch (spielart) {
    case Mittwochslotto:
        return {" Mittwochsziehungen, davon   ", "Mittwoch:"};
    case MittwochslottoB:
        return {" Mittwochsz.(B)    , davon   ", "Mittwoch (B):"};
    default:
        return {" Samstagsziehungen , davon   ", "Samstag:"};
    }
}

std::string anzahltext(std::int32_t anzahl)
{
    return Format(std::to_string(anzahl), "@@@@@");
}

std::string quellenzeile(const Superzahlquelle& quelle, bool nurAb2000)
{
    std::string zeile = anzahltext(quelle.ziehungen) + std::string(texte(quelle.spielart).summe) +
                        anzahltext(quelle.mitSuperzahl) + " Ziehungen mit Superzahl";
    if (quelle.spielart == Mittwochslotto)
        zeile += nurAb2000 ? "   (Ziehungen ab 06.12.2000)" : "   (alle)";
    return zeile;
}

std::string_view extremtext(std::int32_t anzahl, const Ziffernzaehler& alle)
{
    const auto [min, max] = std::ranges::minmax(alle);
    if (min == max)
        return {};
    if (anzahl == max)
        return " (Maximum)";
    return anzahl == min ? " (Minimum)" : std::string_view();
}

std::string ziffernzeile(const Superzahlstatistik& statistik, const Ziffernzaehler& summe, std::size_t ziffer)
{
    std::string zeile = "Superzahl: " + std::to_string(ziffer) + " ->  " + anzahltext(summe[ziffer]) + " mal gezogen" +
                        Format(extremtext(summe[ziffer], summe), "!@@@@@@@@@@");
    for (const Superzahlquelle& quelle : statistik.quellen)
        zeile += "    " + std::string(texte(quelle.spielart).spalte) + anzahltext(quelle.anzahl[ziffer]);
    zeile.erase(zeile.find_last_not_of(' ') + 1);
    return zeile;
}

std::string zuletztZeile(int ziffer, std::int32_t wochen, const std::string& datum)
{
    return std::to_string(ziffer) + " vor " + Format(std::to_string(wochen), "@@") +
           (wochen == 1 ? " Woche, " : " Wochen,") + " " + datum;
}

} // namespace

std::vector<std::string> superzahlBericht(const Superzahlstatistik& statistik)
{
    if (statistik.quellen.empty())
        return {};
    const std::string doppelstrich(kBerichtbreite, '=');
    const std::string strich(kBerichtbreite, '-');
    const Ziffernzaehler summe = statistik.anzahl();
    std::vector<std::string> zeilen{doppelstrich};
    for (const Superzahlquelle& quelle : statistik.quellen)
        zeilen.push_back(quellenzeile(quelle, statistik.nurAb2000));
    zeilen.push_back(strich);
    zeilen.push_back(anzahltext(statistik.ziehungen()) + " Ziehungen gesamt  , davon  " +
                     anzahltext(statistik.mitSuperzahl()) + " Ziehungen mit Superzahl ausgewertet");
    zeilen.push_back(doppelstrich);
    for (std::size_t ziffer = 0; ziffer < kSuperzahlen; ++ziffer)
        zeilen.push_back(ziffernzeile(statistik, summe, ziffer));
    zeilen.push_back(doppelstrich);
    return zeilen;
}

std::vector<std::string> zuletztZeilen(const Superzahlstatistik& statistik, std::int16_t spielart)
{
    std::vector<std::string> zeilen;
    const Superzahlquelle* quelle = statistik.quelle(spielart);
    for (std::size_t ziffer = 0; quelle && ziffer < kSuperzahlen; ++ziffer)
        if (const auto& letzte = quelle->zuletzt[ziffer])
            zeilen.push_back(zuletztZeile(static_cast<int>(ziffer), letzte->wochen, letzte->datum));
    return zeilen;
}

std::vector<std::string> zuletztZeilenGemeinsam(const Superzahlstatistik& statistik)
{
    std::vector<std::string> zeilen;
    for (const GemeinsameSuperzahl& zeile : gemeinsameSuperzahlen(statistik))
        zeilen.push_back(zuletztZeile(zeile.ziffer, zeile.wochen, zeile.datum));
    return zeilen;
}

#include "tips/logic/Tippvorschlag.h"

#include "archive/logic/Zahlenmenge.h"
#include "shell/logic/Format.h"

#include <algorithm>
#include <bit>

namespace {

constexpr int kZahlenJeTipp = 6;

Statistikliste sortiert(std::vector<Statistikzeile> zeilen)
{
    std::ranges::sort(zeilen, {}, &Statistikzeile::text);
    return {std::move(zeilen), true};
}

bool enthaelt(Zahlenmenge menge, int zahl)
{
    return (menge >> zahl & 1) != 0;
}

Zahlenmenge einzelne(int zahl)
{
    return Zahlenmenge{1} << zahl;
}

Zahlenmenge naechsteFreie(const Statistikliste& liste, std::size_t rang, Zahlenmenge vergeben)
{
    while (enthaelt(vergeben, liste.zahl(rang)))
        ++rang;
    return einzelne(liste.zahl(rang));
}

Kombination aufsteigend(Zahlenmenge menge)
{
    Kombination tip{};
    for (std::int32_t& zahl : tip) {
        zahl = std::countr_zero(menge);
        menge &= menge - 1;
    }
    return tip;
}

} // namespace

int Statistikliste::zahl(std::size_t rang) const
{
    return zeilen[besteZuletzt ? zeilen.size() - rang : rang - 1].zahl;
}

Statistikliste fillWochenListe(const Wochenstatistik& statistik)
{
    std::vector<int> zahlen = zahlenNachHaeufigkeit(statistik);
    std::ranges::reverse(zahlen);
    Statistikliste liste;
    for (const int zahl : zahlen) {
        const std::int32_t anzahl = statistik.anzahl[static_cast<std::size_t>(zahl - 1)];
        liste.zeilen.push_back(
            {Format(std::to_string(anzahl), "@@") + " *" + Format(std::to_string(zahl), "@@@"), zahl});
    }
    return liste;
}

Statistikliste fillHaeufigkeitListe(const Haeufigkeit& haeufigkeit)
{
    std::vector<Statistikzeile> zeilen;
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
        zeilen.push_back({Format(haeufigkeit.fuer(zahl), "000") + " " + Format(zahl, "00"), zahl});
    return sortiert(std::move(zeilen));
}

Statistikliste fillAbwesenheitListe(const ZuletztAuswertung& zuletzt)
{
    std::vector<Statistikzeile> zeilen;
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
        zeilen.push_back({Format(zuletzt.wochen(zahl), "000") + " " + Format(zahl, "00"), zahl});
    return sortiert(std::move(zeilen));
}

Kombination generateTip(const Tippwunsch& wunsch, std::size_t rang, Zufall& zufall, double sekunden)
{
    zufall.Randomize(sekunden);
    Zahlenmenge tip = 0;
    for (const std::optional<int>& bank : {wunsch.bank1, wunsch.bank2})
        tip |= bank ? einzelne(*bank) : 0;
    for (const Statistikliste& liste : wunsch.statistiken)
        tip |= naechsteFreie(liste, rang, tip);
    while (std::popcount(tip) < kZahlenJeTipp)
        tip |= einzelne(lottozahl(zufall.Rnd()));
    return aufsteigend(tip);
}

std::string tippzeile(std::size_t nummer, const Kombination& tip)
{
    std::string zeile = " Tip " + Format(std::to_string(nummer), "@@@") + ":" + " ";
    for (const std::int32_t zahl : tip)
        zeile += Format(std::to_string(zahl), "@@@");
    return zeile;
}

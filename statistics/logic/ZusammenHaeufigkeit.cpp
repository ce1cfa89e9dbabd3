#include "statistics/logic/ZusammenHaeufigkeit.h"

#include "archive/logic/Tagesfolge.h"
#include "shell/logic/Lottozahl.h"
#include "statistics/logic/Mittwochsbeginn.h"

#include <algorithm>
#include <array>
#include <functional>

namespace {

constexpr int kMittwoch = 2;

/// The old game "7 aus 38" of Wednesday, 28.04.1982 to 28.05.1986: how often each of its numbers was drawn.
constexpr std::int32_t kZiehungen7aus38 = 214;
constexpr std::array<std::int32_t, 38> kAnzahl7aus38OhneZZ{41, 39, 42, 41, 44, 57, 41, 41, 33, 44, 34, 45, 38,
                                                           30, 42, 54, 44, 38, 39, 38, 39, 39, 27, 42, 44, 44,
                                                           35, 34, 36, 41, 35, 45, 40, 23, 39, 44, 34, 32};
constexpr std::array<std::int32_t, 38> kAnzahl7aus38MitZZ{45, 43, 53, 46, 50, 63, 51, 46, 38, 51, 39, 54, 42,
                                                          32, 46, 60, 49, 44, 43, 43, 45, 46, 33, 48, 49, 48,
                                                          37, 39, 41, 47, 44, 54, 44, 25, 46, 52, 40, 36};

/// True for the draws of Wednesday that had a game B beside them. They lie behind those of Saturday.
bool hatZiehungBDaneben(std::int32_t nr, const ZusammenHaeufigkeitswahl& wahl)
{
    const std::int32_t mittwochsNr = nr - wahl.samstagsziehungen;
    return mittwochsNr > 0 && mittwochsNr < kEinzigeMittwochsziehungBeginn;
}

/// The draws to be counted, oldest first.
std::vector<std::int32_t> gewaehlteZiehungen(const ZiehungsArchiv& archiv, const ZusammenHaeufigkeitswahl& wahl)
{
    if (wahl.maske == 0)
        return {};
    std::vector<std::int32_t> lstSort = tagesfolge(archiv, Tagesordnung::NachZeilentext);
    if (wahl.nurAb2000 && (wahl.maske & kMittwoch) != 0)
        std::erase_if(lstSort, [&wahl](std::int32_t nr) { return hatZiehungBDaneben(nr, wahl); });
    const auto anzahl = static_cast<std::int32_t>(lstSort.size());
    lstSort.erase(lstSort.begin(), lstSort.end() - std::clamp(wahl.letzte.value_or(anzahl), 0, anzahl));
    return lstSort;
}

void zaehleZiehung(std::vector<std::int32_t>& anzahl, const ZiehungsArchiv& archiv, std::size_t nr, bool mitZZ)
{
    const auto zaehle = [&anzahl](std::int32_t zahl) {
        if (gibtEs(zahl))
            ++anzahl[static_cast<std::size_t>(zahl - 1)];
    };
    for (const std::int32_t zahl : archiv.gewinnzahlen(nr))
        zaehle(zahl);
    if (mitZZ)
        zaehle(archiv.zz[nr]);
}

void zaehle7aus38(ZusammenHaeufigkeit& haeufigkeit)
{
    const auto& tafel = haeufigkeit.wahl.mitZZ ? kAnzahl7aus38MitZZ : kAnzahl7aus38OhneZZ;
    if (haeufigkeit.ziehungen == 0)
        haeufigkeit.anzahl.assign(tafel.size(), 0);
    std::ranges::transform(tafel, haeufigkeit.anzahl, haeufigkeit.anzahl.begin(), std::plus{});
    haeufigkeit.ziehungen += kZiehungen7aus38;
}

} // namespace

ZusammenHaeufigkeit frequencyRange(const ZiehungsArchiv& archiv, const ZusammenHaeufigkeitswahl& wahl)
{
    ZusammenHaeufigkeit haeufigkeit;
    haeufigkeit.wahl = wahl;
    haeufigkeit.anzahl.assign(kHoechsteZahl, 0);
    const std::vector<std::int32_t> ziehungen = gewaehlteZiehungen(archiv, wahl);
    for (const std::int32_t nr : ziehungen)
        zaehleZiehung(haeufigkeit.anzahl, archiv, static_cast<std::size_t>(nr), wahl.mitZZ);
    haeufigkeit.ziehungen = static_cast<std::int32_t>(ziehungen.size());
    if (!ziehungen.empty()) {
        haeufigkeit.von = datumAlleVon(archiv, static_cast<std::size_t>(ziehungen.front()));
        haeufigkeit.bis = datumAlleVon(archiv, static_cast<std::size_t>(ziehungen.back()));
    }
    if (wahl.mit7aus38)
        zaehle7aus38(haeufigkeit);
    return haeufigkeit;
}

std::string ueberschrift(const ZusammenHaeufigkeit& haeufigkeit)
{
    if (haeufigkeit.ziehungen == 0)
        return {};
    const bool mit7aus38 = haeufigkeit.wahl.mit7aus38;
    if (mit7aus38 && haeufigkeit.bis.empty())
        return "Auswertung von: Mi, 28.04.1982 bis 28.05.1986 (7aus38)";
    return "Auswertung von: " + (mit7aus38 ? "Mi, 28.04.1982 (7aus38)" : haeufigkeit.von) + " bis " + haeufigkeit.bis;
}

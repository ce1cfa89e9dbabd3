#include "filters/logic/Folgewiederholungen.h"

#include "shell/logic/Format.h"
#include "shell/logic/Zahlen.h"

#include <bit>
#include <numeric>
#include <string_view>

namespace {

constexpr std::size_t kStriche = 68;
constexpr std::size_t kKopfzeilen = 3;
constexpr std::size_t kFallzeilen = 4;
constexpr std::size_t kFusszeilen = 2;

constexpr std::array<std::string_view, 7> kAnzahlen{
    "", " Einer Zahl ", " Zwei Zahlen ", " Drei Zahlen ", " Vier Zahlen ", " Fuenf Zahlen ", " Sechs Zahlen "};
constexpr std::string_view kNichts = "----------------- noch nicht aufgetreten -------------------------------------  ";

std::string anzahltext(std::int32_t anzahl)
{
    return Format(std::to_string(anzahl), "@@@@@") + " mal";
}

std::string zahlenVon(Zahlenmenge menge)
{
    std::vector<std::int32_t> zahlen;
    for (; menge != 0; menge &= menge - 1)
        zahlen.push_back(std::countr_zero(menge));
    return zahlentext(zahlen);
}

} // namespace

Folgewiederholungen zaehleWiederholungen(GeteilteFolge folge, std::string spielarten)
{
    Folgewiederholungen wiederholungen;
    wiederholungen.gemeinsame.resize(folge->ziehungen.size());
    Zahlenmenge vorige = 0;
    for (std::size_t platz = 0; platz < folge->ziehungen.size(); ++platz) {
        const Zahlenmenge diese = folge->menge(platz, false);
        if (platz > 0) {
            const int gemeinsam = gemeinsame(vorige, diese);
            wiederholungen.gemeinsame[platz] = static_cast<std::uint8_t>(gemeinsam);
            ++wiederholungen.anzahl[static_cast<std::size_t>(gemeinsam)];
        }
        vorige = diese;
    }
    wiederholungen.spielarten = std::move(spielarten);
    wiederholungen.folge = std::move(folge);
    return wiederholungen;
}

std::vector<std::string> uebersicht(const Folgewiederholungen& wiederholungen)
{
    const auto& anzahl = wiederholungen.anzahl;
    std::vector<std::string> zeilen{" Übersicht - Wiederholung von:"};
    for (std::size_t zahlen = 6; zahlen >= 1; --zahlen)
        zeilen.push_back("    " + std::to_string(zahlen) + (zahlen == 1 ? " Zahl   " : " Zahlen ") +
                         "in der Folgeziehung:" + anzahltext(anzahl[zahlen]));
    for (std::size_t zahlen = 6; zahlen >= 1; --zahlen)
        zeilen.push_back(
            std::to_string(zahlen) + (zahlen == 6 ? "           " : " oder mehr ") + "Zahlen in der Folgeziehung:" +
            anzahltext(std::accumulate(anzahl.begin() + static_cast<std::ptrdiff_t>(zahlen), anzahl.end(), 0)));
    return zeilen;
}

Wiederholungszeilen::Wiederholungszeilen(const Folgewiederholungen& wiederholungen, int zahlen)
    : folge_(wiederholungen.folge),
      zahlen_(zahlen)
{
    for (std::size_t platz = 0; platz < wiederholungen.gemeinsame.size(); ++platz)
        if (wiederholungen.gemeinsame[platz] == zahlen)
            spaetere_.push_back(static_cast<std::uint32_t>(platz));
}

std::size_t Wiederholungszeilen::anzahl() const
{
    return spaetere_.empty() ? kKopfzeilen + 1 : kKopfzeilen + kFallzeilen * spaetere_.size() + kFusszeilen;
}

std::string Wiederholungszeilen::zeile(std::size_t nr) const
{
    if (nr < kKopfzeilen)
        return nr == 1 ? "Wiederholung von" + std::string(kAnzahlen[static_cast<std::size_t>(zahlen_)]) +
                             "in der Folgeziehung"
                       : std::string(kStriche, '-');
    if (spaetere_.empty())
        return std::string(kNichts);
    const std::size_t fall = (nr - kKopfzeilen) / kFallzeilen;
    if (fall < spaetere_.size())
        return fallzeile(spaetere_[fall], (nr - kKopfzeilen) % kFallzeilen);
    return nr + 1 < anzahl() ? " " + std::to_string(spaetere_.size()) + " mal aufgetreten" : std::string(kStriche, '=');
}

std::string Wiederholungszeilen::fallzeile(std::size_t platz, std::size_t imFall) const
{
    switch (imFall) {
    case 0:
        return folgezeile(*folge_, platz - 1);
    case 1:
        return folgezeile(*folge_, platz);
    case 2:
        return (zahlen_ == 1 ? " Wiederholung der Zahl: " : " Wiederholung der Zahlen: ") +
               zahlenVon(folge_->menge(platz - 1, false) & folge_->menge(platz, false));
    default:
        return {};
    }
}

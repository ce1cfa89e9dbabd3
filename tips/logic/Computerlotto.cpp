#include "tips/logic/Computerlotto.h"

#include "shell/logic/Format.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>

namespace {

constexpr std::int32_t kWochenImJahr = 52;
constexpr double kWochenImMonat = 4.3333333;
constexpr std::int32_t kKleinsterGewinn = 3;

void merke(std::vector<Computerziehung>& liste, const Computerziehung& ziehung)
{
    if (liste.size() < kComputerlisteVoll)
        liste.push_back(ziehung);
}

} // namespace

std::array<int, 6> zieheComputerzahlen(Computerlotto& lotto, Zufall& zufall, double sekunden)
{
    ++lotto.runden;
    zufall.Randomize(sekunden * lotto.runden);
    const std::array<int, 6> zahlen = sechsZahlen(zufall);
    Computerziehung ziehung{lotto.runden, zahlenmenge(zahlen), 0};
    for (std::size_t j = 0; j < lotto.tip.size(); ++j) {
        const auto getroffen = static_cast<std::int32_t>(ziehung.zahlen >> lotto.tip[j] & 1);
        lotto.haeufigkeit[j] += getroffen;
        ziehung.treffer += getroffen;
    }
    if (ziehung.treffer > 0)
        ++lotto.treffer[static_cast<std::size_t>(ziehung.treffer)];
    merke(lotto.ziehungen, ziehung);
    if (ziehung.treffer >= kKleinsterGewinn)
        merke(lotto.gewinne, ziehung);
    return zahlen;
}

void simulateDraws(Computerlotto& lotto, std::int32_t anzahl, Zufall& zufall, const Uhr& uhr,
                   const Fortschritt& fortschritt)
{
    double sekunden = uhr.Timer();
    Takt takt([&](std::uint64_t erledigt) {
        sekunden = uhr.Timer();
        return !fortschritt || fortschritt(erledigt);
    });
    for (std::int32_t i = 1; i <= anzahl; ++i) {
        zieheComputerzahlen(lotto, zufall, sekunden);
        if (!takt.schritt(static_cast<std::uint64_t>(i)))
            return;
    }
}

std::optional<std::int32_t> ziehungsanzahl(std::string_view text)
{
    std::string ziffern(text);
    std::erase(ziffern, '.');
    const std::optional<std::int32_t> anzahl = ganzzahl(ziffern);
    return anzahl && *anzahl > 0 ? anzahl : std::nullopt;
}

std::string ziehungszeile(const Computerziehung& ziehung)
{
    std::string zeile = Format(ziehung.nr, "00000") + "  ";
    for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
        if ((ziehung.zahlen >> zahl & 1) != 0)
            zeile += Format(zahl, "00") + " ";
    return zeile;
}

std::string gewinnzeile(const Computerziehung& ziehung)
{
    return ziehungszeile(ziehung) + " (" + std::to_string(ziehung.treffer) + "-er)";
}

Zeitspanne zeitspanne(std::int32_t ziehungen)
{
    Zeitspanne spanne;
    spanne.Jahre = ziehungen / kWochenImJahr;
    const std::int32_t rest = ziehungen - kWochenImJahr * spanne.Jahre;
    spanne.Monate = static_cast<std::int32_t>(rest / kWochenImMonat);
    spanne.Wochen = static_cast<std::int32_t>(std::max(0.0, rest - kWochenImMonat * spanne.Monate));
    return spanne;
}

#include "archive/logic/Tagesfolge.h"

#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"

#include <algorithm>
#include <numeric>
#include <string_view>

namespace {

constexpr std::string_view kMuster = "So, 09.10.1955";
constexpr std::size_t kWochentag = 2;
constexpr std::size_t kTag = 4;
constexpr std::size_t kMonat = 7;
constexpr std::size_t kJahr = 10;

bool istDatum(std::string_view text)
{
    if (text.size() < kMuster.size())
        return false;
    for (std::size_t i = kTag; i < kMuster.size(); ++i)
        if (istZiffer(kMuster[i]) ? !istZiffer(text[i]) : text[i] != kMuster[i])
            return false;
    return true;
}

/// A number that grows with the day; 0 without a date.
std::int32_t tageszahl(std::string_view datum)
{
    if (!istDatum(datum))
        return 0;
    std::int32_t zahl = 0;
    for (const std::string_view teil : {datum.substr(kJahr, 4), datum.substr(kMonat, 2), datum.substr(kTag, 2)})
        for (const char ziffer : teil)
            zahl = zahl * 10 + (ziffer - '0');
    return zahl;
}

} // namespace

std::string tagestext(const std::string& datum)
{
    if (!istDatum(datum))
        return {};
    return datum.substr(kJahr, 4) + "-" + datum.substr(kMonat, 2) + "-" + datum.substr(kTag, 2) + " " +
           datum.substr(0, kWochentag);
}

std::string tageszeile(const ZiehungsArchiv& archiv, std::size_t nr)
{
    std::string zeile =
        tagestext(datumAlleVon(archiv, nr)) + "|" + std::to_string(archiv.jjjj[nr]) + "|" + Format(archiv.sw[nr], "00");
    for (const std::int32_t zahl : archiv.gewinnzahlen(nr))
        zeile += "|" + Format(zahl, "00");
    return zeile + "|" + Format(archiv.zz[nr], "00") + "|" + std::to_string(archiv.s[nr]) + "|" +
           datumAlleVon(archiv, nr);
}

std::vector<std::int32_t> tagesfolge(const ZiehungsArchiv& archiv, Tagesordnung ordnung)
{
    const auto anzahl = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    std::vector<std::int32_t> tage(anzahl + 1);
    for (std::size_t nr = 1; nr <= anzahl; ++nr)
        tage[nr] = tageszahl(datumAlleVon(archiv, nr));

    std::vector<std::int32_t> folge(anzahl);
    std::iota(folge.begin(), folge.end(), 1);
    std::ranges::stable_sort(folge, [&](std::int32_t a, std::int32_t b) {
        const std::int32_t tagA = tage[static_cast<std::size_t>(a)];
        const std::int32_t tagB = tage[static_cast<std::size_t>(b)];
        if (tagA != tagB || ordnung == Tagesordnung::NachSpielart)
            return tagA < tagB;
        return tageszeile(archiv, static_cast<std::size_t>(a)) < tageszeile(archiv, static_cast<std::size_t>(b));
    });
    return folge;
}

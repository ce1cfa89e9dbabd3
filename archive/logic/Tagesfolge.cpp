#include "archive/logic/Tagesfolge.h"

#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>
#include <array>

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

/// Spieljahr, Spielwoche, numbers and Zusatzzahl: the fields of a line behind the day.
std::array<std::int32_t, 9> zahlenfelder(const ZiehungsArchiv& archiv, std::size_t nr)
{
    return {archiv.jjjj[nr], archiv.sw[nr], archiv.z1[nr], archiv.z2[nr], archiv.z3[nr],
            archiv.z4[nr],   archiv.z5[nr], archiv.z6[nr], archiv.zz[nr]};
}

/// True if the value is as wide in its line as it is in a whole file; then its text is in the order of the numbers.
bool hatUeblicheBreite(std::size_t feld, std::int32_t wert)
{
    return feld == 0 ? wert >= 1000 && wert <= 9999 : wert >= 0 && wert <= 99;
}

/// The order of the lines of two draws of one day. Making the lines is slow, and hardly ever needed.
bool zeileStehtVor(const ZiehungsArchiv& archiv, std::size_t a, std::size_t b)
{
    const auto felderA = zahlenfelder(archiv, a);
    const auto felderB = zahlenfelder(archiv, b);
    for (std::size_t feld = 0; feld < felderA.size(); ++feld) {
        if (!hatUeblicheBreite(feld, felderA[feld]) || !hatUeblicheBreite(feld, felderB[feld]))
            break;
        if (felderA[feld] != felderB[feld])
            return felderA[feld] < felderB[feld];
    }
    return tageszeile(archiv, a) < tageszeile(archiv, b);
}

/// A draw and its day as one number, which sorts faster than two.
using Tagesschluessel = std::uint64_t;

Tagesschluessel schluessel(std::int32_t tag, std::size_t nr)
{
    return static_cast<Tagesschluessel>(tag) << 32U | nr;
}
std::size_t tagVon(Tagesschluessel schluessel)
{
    return schluessel >> 32U;
}
std::size_t ziehungVon(Tagesschluessel schluessel)
{
    return schluessel & 0xFFFFFFFFU;
}

/// Brings the draws of each day in the order of their lines.
void ordneTageNachZeilentext(std::vector<Tagesschluessel>& folge, const ZiehungsArchiv& archiv)
{
    for (auto von = folge.begin(); von != folge.end();) {
        const auto bis = std::find_if(von, folge.end(), [tag = tagVon(*von)](auto s) { return tagVon(s) != tag; });
        if (bis - von > 1)
            std::sort(von, bis, [&](auto a, auto b) { return zeileStehtVor(archiv, ziehungVon(a), ziehungVon(b)); });
        von = bis;
    }
}

} // namespace

std::string tagestext(const std::string& datum)
{
    if (!istDatum(datum))
        return {};
    return datum.substr(kJahr, 4) + "-" + datum.substr(kMonat, 2) + "-" + datum.substr(kTag, 2) + " " +
           datum.substr(0, kWochentag);
}

std::optional<std::int32_t> jahrDesTages(std::string_view datum)
{
    return istDatum(datum) ? ganzzahl(datum.substr(kJahr, 4)) : std::nullopt;
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
    std::vector<Tagesschluessel> geordnet(static_cast<std::size_t>(archiv.AnzahlZiehungen));
    for (std::size_t i = 0; i < geordnet.size(); ++i)
        geordnet[i] = schluessel(tageszahl(datumAlleVon(archiv, i + 1)), i + 1);
    std::ranges::sort(geordnet);
    if (ordnung == Tagesordnung::NachZeilentext)
        ordneTageNachZeilentext(geordnet, archiv);

    std::vector<std::int32_t> folge(geordnet.size());
    std::ranges::transform(geordnet, folge.begin(), [](auto s) { return static_cast<std::int32_t>(ziehungVon(s)); });
    return folge;
}

#include "shell/logic/Zeilenanfang.h"

#include "shell/logic/Texte.h"

#include <algorithm>
#include <string>

namespace {

constexpr int kFelder = 3;
constexpr std::string_view kLuecken = " \t";
constexpr std::string_view kZiffern = "0123456789";

/// The next field that begins with a digit, taken off `rest`; empty behind the last one.
std::string_view naechstesFeld(std::string_view& rest)
{
    while (!rest.empty()) {
        rest.remove_prefix(std::min(rest.find_first_not_of(kLuecken), rest.size()));
        const std::string_view feld = rest.substr(0, rest.find_first_of(kLuecken));
        rest.remove_prefix(feld.size());
        if (!feld.empty() && istZiffer(feld.front()))
            return feld;
    }
    return {};
}

/// The digits that a field begins with, over the points between groups of three: 82684 of "82.684", 9 of "9.10.1955".
std::string ziffern(std::string_view feld)
{
    constexpr std::size_t kGruppe = 3;
    std::string zahl;
    while (!feld.empty()) {
        const std::size_t laenge = std::min(feld.find_first_not_of(kZiffern), feld.size());
        if (!zahl.empty() && laenge != kGruppe)
            break;
        zahl += feld.substr(0, laenge);
        if (feld.size() == laenge || feld[laenge] != '.')
            break;
        feld.remove_prefix(laenge + 1);
    }
    return zahl;
}

/// A number without leading zeros: equal texts are equal values.
std::string_view wert(std::string_view zahl)
{
    return zahl.substr(std::min(zahl.find_first_not_of('0'), zahl.size()));
}

} // namespace

Passung passung(std::string_view zeile, std::string_view getippt)
{
    const bool istZahl = getippt.find_first_not_of(kZiffern) == std::string_view::npos;
    Passung beste = Passung::Keine;
    for (int i = 0; i < kFelder; ++i) {
        const std::string_view feld = naechstesFeld(zeile);
        if (feld.empty())
            break;
        const std::string zahl = ziffern(feld);
        if (istZahl && wert(zahl) == wert(getippt))
            beste = std::min(beste, i == 0 ? Passung::ErstesFeld : Passung::Feld);
        else if (feld.starts_with(getippt) || zahl.starts_with(getippt))
            beste = std::min(beste, i == 0 ? Passung::AnfangErstesFeld : Passung::AnfangEinesFeldes);
    }
    return beste;
}

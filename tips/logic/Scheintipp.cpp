#include "tips/logic/Scheintipp.h"

#include "shell/logic/Texte.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>

namespace {

std::int32_t ziffer(std::string_view text)
{
    const bool eine = text.size() == 1 && istZiffer(text.front());
    return eine ? text.front() - '0' : Scheintipp::kOhneSuperzahl;
}

} // namespace

std::optional<Scheintipp> scheintippAus(std::string_view zeile, std::int32_t nummer)
{
    const std::vector<std::string> haelften = teile(trim(zeile), ":");
    if (haelften.empty())
        return std::nullopt;
    const std::vector<std::string> felder = teile(haelften[0], ".");
    Scheintipp tipp{.nummer = nummer, .jjjjsw = std::string(Mid(trim(zeile), 1, 6))};
    for (std::size_t i = 0; i < tipp.zahlen.size() && i + 1 < felder.size(); ++i)
        tipp.zahlen[i] = ganzzahl(felder[i + 1]).value_or(0);
    if (haelften.size() > 1)
        tipp.superzahl = ziffer(trim(haelften[1]));
    return std::ranges::any_of(tipp.zahlen, gibtEs) ? std::optional(tipp) : std::nullopt;
}

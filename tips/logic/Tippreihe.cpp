#include "tips/logic/Tippreihe.h"

#include "shell/logic/Zahlen.h"

#include <algorithm>
#include <set>
#include <utility>

bool Tippreihe::istLeer() const
{
    return std::ranges::all_of(zahlen, &std::string::empty);
}

Reihenstand checkRow(const Tippreihe& reihe)
{
    if (reihe.istLeer())
        return Reihenstand::Leer;
    return kombinationVon(reihe) ? Reihenstand::Gueltig : Reihenstand::Fehler;
}

std::optional<std::int32_t> superzahlVon(const Tippreihe& reihe)
{
    const std::optional<std::int32_t> zahl = ganzzahl(reihe.superzahl);
    return zahl && *zahl >= 0 && *zahl <= 9 ? zahl : std::nullopt;
}

std::optional<Kombination> kombinationVon(const Tippreihe& reihe)
{
    Kombination zahlen{};
    for (std::size_t i = 0; i < zahlen.size(); ++i)
        zahlen[i] = ganzzahl(reihe.zahlen[i]).value_or(0);
    return istAufsteigend(zahlen) ? std::optional(zahlen) : std::nullopt;
}

Tippreihe mitZahl(Tippreihe reihe, std::size_t feld, std::int32_t zahl)
{
    reihe.zahlen[feld] = std::to_string(zahl);
    std::set<std::int32_t> zahlen;
    for (std::string& text : reihe.zahlen)
        if (const std::int32_t eine = ganzzahl(std::exchange(text, {})).value_or(0); gibtEs(eine))
            zahlen.insert(eine);
    std::ranges::transform(zahlen, reihe.zahlen.begin(), [](std::int32_t eine) { return std::to_string(eine); });
    return reihe;
}

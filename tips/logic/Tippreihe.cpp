#include "tips/logic/Tippreihe.h"

#include "shell/logic/Zahlen.h"

#include <algorithm>

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

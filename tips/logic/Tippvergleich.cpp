#include "tips/logic/Tippvergleich.h"

#include "shell/logic/Format.h"
#include "shell/logic/Zahlen.h"
#include "tips/rules/Gewinnklassen.h"
#include "tips/rules/Gewinntexte.h"

#include <algorithm>

namespace {

constexpr std::ptrdiff_t kTrefferFuerSuperzahl = 2; ///< from so many hits on the Superzahl matters

bool enthaelt(const Kombination& zahlen, const std::string& text)
{
    const std::optional<std::int32_t> zahl = ganzzahl(text);
    return zahl && std::ranges::find(zahlen, *zahl) != zahlen.end();
}

Reihenvergleich vergleiche(const Tippreihe& reihe, const Kombination& gewinnzahlen, std::int32_t superzahl)
{
    Reihenvergleich vergleich{checkRow(reihe)};
    for (std::size_t i = 0; i < reihe.zahlen.size(); ++i)
        vergleich.getroffen[i] = enthaelt(gewinnzahlen, reihe.zahlen[i]);
    const auto treffer = std::ranges::count(vergleich.getroffen, true);
    vergleich.superzahlGetroffen = treffer >= kTrefferFuerSuperzahl && superzahlVon(reihe) == superzahl;
    if (vergleich.stand == Reihenstand::Gueltig) {
        const auto anzahl = static_cast<std::int32_t>(treffer);
        const Gewinnklasse klasse = GewinnklassenplanNeu.klasse(anzahl, vergleich.superzahlGetroffen);
        vergleich.gewinn = gewinntextTippschein(klasse, anzahl);
    }
    return vergleich;
}

} // namespace

Ziehungstexte ziehungstexte(const ZiehungsArchiv& archiv, std::size_t nr)
{
    Ziehungstexte texte;
    std::ranges::transform(archiv.gewinnzahlen(nr), texte.begin(), [](std::int32_t zahl) { return Format(zahl, "0"); });
    texte.back() = Format(archiv.s[nr], "0");
    return texte;
}

std::optional<Vergleichsziehung> vergleichsziehung(const Ziehungstexte& felder)
{
    Tippreihe reihe;
    std::copy_n(felder.begin(), reihe.zahlen.size(), reihe.zahlen.begin());
    reihe.superzahl = felder.back();
    const auto zahlen = kombinationVon(reihe);
    const auto superzahl = superzahlVon(reihe);
    return zahlen && superzahl ? std::optional(Vergleichsziehung{*zahlen, *superzahl}) : std::nullopt;
}

std::vector<Reihenvergleich> compareSlip(const std::vector<Tippreihe>& reihen, const Kombination& gewinnzahlen,
                                         std::int32_t superzahl)
{
    std::vector<Reihenvergleich> vergleiche;
    vergleiche.reserve(reihen.size());
    for (const Tippreihe& reihe : reihen)
        vergleiche.push_back(::vergleiche(reihe, gewinnzahlen, superzahl));
    return vergleiche;
}

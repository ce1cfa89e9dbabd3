#include "engines/logic/Kombinationseingabe.h"

#include "archive/logic/Zahlenmenge.h"
#include "engines/logic/Positionszahl.h"
#include "shell/logic/Binomial.h"
#include "shell/logic/Texte.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>

std::string ohnePunkte(std::string_view text)
{
    std::string ohne(text);
    std::erase(ohne, '.');
    return ohne;
}

std::optional<std::int32_t> liesKombinationsnummer(std::string_view eingabe)
{
    const std::int32_t nummer = fuehrendeZahl(ohnePunkte(eingabe));
    return nummer >= 1 && nummer <= kKombinationen6aus49 ? std::optional(nummer) : std::nullopt;
}

Zahlensuche sucheZahlen(std::string_view eingabe)
{
    std::string text(eingabe);
    LeerzeichenKuerzen(text);
    std::ranges::replace(text, ' ', ',');
    const std::vector<std::string> teile = ::teile(text, ",");
    Kombination zahlen{};
    if (teile.size() != zahlen.size())
        return {{}, {kMeldungAnzahl}};
    std::ranges::transform(teile, zahlen.begin(), fuehrendeZahl);
    std::ranges::sort(zahlen);
    Zahlensuche suche;
    for (const std::int32_t zahl : zahlen)
        if (zahl < 1 || zahl > kHoechsteZahl)
            suche.meldungen.emplace_back(kMeldungZahl);
    if (suche.meldungen.empty())
        suche.nummer = PositionszahlSumme(zahlen);
    return suche;
}

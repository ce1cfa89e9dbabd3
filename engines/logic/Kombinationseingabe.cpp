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
    Zahlensuche suche;
    for (std::size_t i = 0; i < zahlen.size(); ++i) {
        const double zahl = fuehrendeDezimalzahl(teile[i]);
        if (zahl >= 1 && zahl <= kHoechsteZahl)
            zahlen[i] = static_cast<std::int32_t>(zahl);
        else
            suche.meldungen.emplace_back(kMeldungZahl);
    }
    std::ranges::sort(zahlen);
    if (suche.meldungen.empty())
        suche.nummer = PositionszahlSumme(zahlen);
    return suche;
}

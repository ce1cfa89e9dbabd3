#include "engines/logic/Trefferliste.h"

#include "archive/logic/Zahlenmenge.h"
#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>
#include <initializer_list>

namespace {

using enum Trefferfeld;

constexpr std::size_t kUnmarkierteZahl = 2;
constexpr std::size_t kUnmarkierteSuperzahl = 1;

constexpr Farbe kTrenner = farbeAusBGR(0xC0C0C0);
constexpr Farbe kRichtig = farbeAusBGR(0xFFFF80);
constexpr Farbe kRichtigSchrift = farbeAusBGR(255);
constexpr Farbe kSuperzahlRichtig = farbeAusBGR(65535);

constexpr bool istZahl(Trefferfeld feld)
{
    return feld >= Zahl1 && feld <= Zahl6;
}

/// From the left to the right: year and week, the six numbers, and what each list adds behind a separator.
template <std::size_t kAnzahl>
constexpr std::array<Trefferspalte, kAnzahl> spalten(const Trefferspalte& erste,
                                                     std::initializer_list<Trefferspalte> letzte)
{
    std::array<Trefferspalte, kAnzahl> alle{{
        erste,
        {"trenner1"},
        {"zahl1", "Z1", Zahl1, 2},
        {"trenner2"},
        {"zahl2", "Z2", Zahl2, 2},
        {"trenner3"},
        {"zahl3", "Z3", Zahl3, 2},
        {"trenner4"},
        {"zahl4", "Z4", Zahl4, 2},
        {"trenner5"},
        {"zahl5", "Z5", Zahl5, 2},
        {"trenner6"},
        {"zahl6", "Z6", Zahl6, 2},
        {"trenner7"},
    }};
    std::ranges::copy(letzte, alle.end() - static_cast<std::ptrdiff_t>(letzte.size()));
    return alle;
}

std::string zahlzelle(std::int32_t zahl, const Kombination& kombination)
{
    const bool richtig = std::find(kombination.begin(), kombination.end(), zahl) != kombination.end();
    return Format(zahl, "00") + (richtig ? " " : "");
}

} // namespace

constinit const std::array<Trefferspalte, 19> kTrefferspaltenMitSuperzahl =
    spalten<19>({"", "Jahr/SW", JahrUndWoche, 7}, {Trefferspalte{"SZ", "SZ", Superzahl, 2},
                                                   {"trenner8"},
                                                   {"Gew.", "Gew.", Gewinn, 4},
                                                   {"trenner9"},
                                                   {"S/M", "S/M", Ziehungstag, 5}});

constinit const std::array<Trefferspalte, 17> kTrefferspalten =
    spalten<17>({"Jahr/SW", "Jahr/SW", JahrUndWoche, 7},
                {Trefferspalte{"Gewinn", "Gewinn", Gewinn, 6}, {"trenner8"}, {"Spielart", "Sa/Mi", Ziehungstag, 5}});

std::vector<Gewinnfall> gewinnfaelle(const ZiehungsArchiv& archiv, const Kombination& kombination,
                                     std::optional<std::int32_t> superzahl)
{
    const Zahlenmenge gesucht = zahlenmenge(kombination);
    std::vector<Gewinnfall> faelle;
    const auto letzte = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    for (std::size_t nr = 1; nr <= letzte; ++nr) {
        const Kombination zahlen = archiv.gewinnzahlen(nr);
        const int treffer = gemeinsame(zahlenmenge(zahlen), gesucht);
        const bool mitSuperzahl = superzahl && istSuperzahl(archiv.s[nr], *superzahl);
        if (treffer < kleinsterGewinn(mitSuperzahl))
            continue;
        faelle.push_back({archiv.jjjj[nr], archiv.sw[nr], zahlen, archiv.s[nr], ziehungstag(datumAlleVon(archiv, nr)),
                          treffer, mitSuperzahl});
    }
    return faelle;
}

Trefferzaehler zaehle(std::span<const Gewinnfall> faelle)
{
    Trefferzaehler zaehler;
    for (const Gewinnfall& fall : faelle)
        ++(fall.mitSuperzahl ? zaehler.mitSuperzahl : zaehler.ohneSuperzahl)[static_cast<std::size_t>(fall.treffer)];
    return zaehler;
}

std::string trefferzelle(Trefferfeld feld, const Gewinnfall& fall, const Kombination& kombination)
{
    if (istZahl(feld))
        return zahlzelle(fall.zahlen[static_cast<std::size_t>(feld) - static_cast<std::size_t>(Zahl1)], kombination);
    switch (feld) {
    case JahrUndWoche:
        return std::to_string(fall.jjjj) + "/" + Format(fall.sw, "00");
    case Superzahl:
        return std::to_string(fall.s) + (fall.mitSuperzahl ? " " : "");
    case Gewinn:
        return std::to_string(fall.treffer) + (fall.mitSuperzahl ? "-SZ" : "-er");
    case Ziehungstag:
        return fall.tag;
    default:
        return {};
    }
}

std::string ziehungstag(std::string_view datumAlle)
{
    const std::string_view tag = Mid(datumAlle, 1, 2);
    return std::string(tag == "So" || tag == "Mo" ? "Sa" : tag) +
           (datumAlle.find('B') != std::string_view::npos ? "(B)" : "");
}

std::optional<Trefferfarbe> trefferfarbe(Trefferfeld feld, std::string_view text)
{
    if (feld == Trenner)
        return Trefferfarbe{kTrenner, {}};
    if (istZahl(feld) && text.size() > kUnmarkierteZahl)
        return Trefferfarbe{kRichtig, kRichtigSchrift};
    if (feld == Superzahl && text.size() > kUnmarkierteSuperzahl)
        return Trefferfarbe{kSuperzahlRichtig, {}};
    return std::nullopt;
}

std::optional<Kombination> liesKombination(std::string_view text)
{
    const std::vector<std::string> teile = ::teile(trim(text), " ");
    Kombination zahlen{};
    if (teile.size() != zahlen.size())
        return std::nullopt;
    for (std::size_t i = 0; i < zahlen.size(); ++i)
        zahlen[i] = fuehrendeZahl(teile[i]);
    return istAufsteigend(zahlen) ? std::optional(zahlen) : std::nullopt;
}

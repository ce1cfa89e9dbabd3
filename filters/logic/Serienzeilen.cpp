#include "filters/logic/Serienzeilen.h"

#include <algorithm>
#include <bit>

namespace {

constexpr std::size_t kKopfzeilen = 2;
constexpr std::size_t kEinzug = 22;
constexpr std::size_t kStriche = 68;
constexpr std::string_view kHinterKopf = " --------------------------------  ";

/// "3" or "3, 12, 49".
std::string zahlenVon(Zahlenmenge menge)
{
    std::string text;
    for (; menge != 0; menge &= menge - 1)
        text += (text.empty() ? "" : ", ") + std::to_string(std::countr_zero(menge));
    return text;
}

} // namespace

const Serientexte kSerienEinesSpiels{
    "---------------------------- Gewinnzahlzahl ",
    " mal in Folge gezogen (ohne die ZZ) ",
    " mal in Folge gezogen (mit ZZ) ",
    "---------------------- noch nicht aufgetreten -------------------------------------  ",
};

const Serientexte kSerienZusammen{
    "--------------- Gewinnzahlzahl ",
    " mal in Folge gezogen ",
    " mal in Folge gezogen (mit ZZ) ",
    "----------------- noch nicht aufgetreten -------------------------------------  ",
};

Serienzeilen::Serienzeilen(Seriensuche suche, const Serientexte& texte) : suche_(std::move(suche)), texte_(texte)
{
    anfaenge_.reserve(suche_.serien.size() + 1);
    anfaenge_.push_back(0);
    for (const Serie& serie : suche_.serien)
        anfaenge_.push_back(anfaenge_.back() + kKopfzeilen + serie.laenge);
}

std::string Serienzeilen::zeile(std::size_t nr) const
{
    if (suche_.serien.empty())
        return std::string(texte_.nichts);
    const auto naechster = std::ranges::upper_bound(anfaenge_, nr);
    if (naechster == anfaenge_.end())
        return std::string(kStriche, '-');
    const auto stelle = static_cast<std::size_t>(naechster - anfaenge_.begin()) - 1;
    const Serie& serie = suche_.serien[stelle];
    const std::size_t imBlock = nr - anfaenge_[stelle];
    if (imBlock == 0)
        return std::string(texte_.kopf) + zahlenVon(serie.zahlen) + std::string(kHinterKopf);
    if (imBlock == 1)
        return std::string(kEinzug, ' ') + std::to_string(serie.laenge) +
               std::string(suche_.frage.mitZusatzzahl ? texte_.mitZZ : texte_.ohneZZ);
    return folgezeile(*suche_.folge, serie.erste + imBlock - kKopfzeilen);
}

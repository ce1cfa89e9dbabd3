#include "engines/logic/Vollsuche.h"

#include "archive/logic/Ziehungsmengen.h"
#include "engines/logic/VollsucheTexte.h"
#include "shell/logic/Binomial.h"
#include "shell/logic/Lottozahl.h"
#include "shell/logic/Zahlen.h"

#include <bit>

namespace {

constexpr int kDreier = 3;
constexpr int kSechser = 6;

/// The draws as sets. A row whose columns do not ascend counts with the numbers from its first to its last column.
std::vector<Zahlenmenge> reihen(const ZiehungsArchiv& archiv)
{
    std::vector<Zahlenmenge> mengen = ziehungsmengen(archiv);
    for (std::size_t i = 0; i < mengen.size(); ++i)
        for (std::int32_t zahl = 1; zahl <= kHoechsteZahl; ++zahl)
            if (zahl < archiv.z1[i + 1] || zahl > archiv.z6[i + 1])
                mengen[i] &= ~(Zahlenmenge{1} << zahl);
    return mengen;
}

} // namespace

Suchergebnis beginneSuche(int groesse)
{
    Suchergebnis ergebnis;
    ergebnis.groesse = groesse;
    ergebnis.SuchlaeufeGesamt = static_cast<std::int32_t>(Binomial(kHoechsteZahl, groesse));
    return ergebnis;
}

void trageEin(Suchergebnis& ergebnis, std::span<const std::int32_t> zahlen, std::uint32_t haeufigkeit)
{
    ++ergebnis.Suchlaeufe;
    if (haeufigkeit > 1) {
        ergebnis.wiederholungen.push_back(wiederholungszeile(zahlen, haeufigkeit));
    } else if (haeufigkeit == 1) {
        ++ergebnis.EinmalGezogen;
    } else {
        ++ergebnis.NieGezogen;
        if (ergebnis.groesse == kDreier)
            ergebnis.nieGezogene.push_back(zahlentext(zahlen));
    }
}

Vollsuche::Vollsuche(const ZiehungsArchiv& archiv, int groesse, Suchergebnis& ergebnis)
    : ergebnis_(ergebnis),
      tafel_(kHoechsteZahl, reihen(archiv))
{
    ergebnis_ = beginneSuche(groesse);
}

std::span<const std::int32_t> Vollsuche::kombination() const
{
    return std::span(zahlen_).first(static_cast<std::size_t>(ergebnis_.groesse));
}

void Vollsuche::teste()
{
    trageEin(ergebnis_, kombination(), haeufigkeit());
    if (!fertig())
        geheWeiter();
}

void Vollsuche::testeAlle(const Fortschritt& fortschritt)
{
    const auto erledigt = [this] { return static_cast<std::uint64_t>(ergebnis_.Suchlaeufe); };
    Takt takt(fortschritt);
    takt.melde(erledigt());
    while (!fertig() && takt.schritt(erledigt())) {
        if (ergebnis_.groesse == kSechser)
            ueberspringeNieGezogene();
        if (!fertig())
            teste();
    }
}

/// How many draws hold the combination. All combinations are asked for in turn, so the place in the table is the count
/// of the tests before.
std::uint32_t Vollsuche::haeufigkeit()
{
    const auto stelle = static_cast<std::uint32_t>(ergebnis_.Suchlaeufe);
    if (ergebnis_.groesse < kSechser)
        return tafel_.tabelle(ergebnis_.groesse)[stelle];
    const auto ganze = tafel_.ganze();
    if (naechsteGanze_ == ganze.size() || ganze[naechsteGanze_].nummer != stelle)
        return 0;
    return ganze[naechsteGanze_++].anzahl;
}

/// The next combination in ascending order: the last number that can grow grows, those behind it follow closely.
void Vollsuche::geheWeiter()
{
    const auto groesse = static_cast<std::size_t>(ergebnis_.groesse);
    std::size_t stelle = groesse - 1;
    while (zahlen_[stelle] == kHoechsteZahl - static_cast<std::int32_t>(groesse - 1 - stelle))
        --stelle;
    ++zahlen_[stelle];
    for (std::size_t dahinter = stelle + 1; dahinter < groesse; ++dahinter)
        zahlen_[dahinter] = zahlen_[dahinter - 1] + 1;
}

/// Of fourteen million sixes only some thousands are in the draws: the next test is for the next one of these.
void Vollsuche::ueberspringeNieGezogene()
{
    const auto ganze = tafel_.ganze();
    const bool gibtEs = naechsteGanze_ < ganze.size();
    const std::int32_t ziel =
        gibtEs ? static_cast<std::int32_t>(ganze[naechsteGanze_].nummer) : ergebnis_.SuchlaeufeGesamt;
    ergebnis_.NieGezogen += ziel - ergebnis_.Suchlaeufe;
    ergebnis_.Suchlaeufe = ziel;
    if (!gibtEs)
        return;
    Zahlenmenge rest = ganze[naechsteGanze_].menge;
    for (std::int32_t& zahl : zahlen_) {
        zahl = std::countr_zero(rest);
        rest &= rest - 1;
    }
}

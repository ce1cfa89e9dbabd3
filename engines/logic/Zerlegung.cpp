#include "engines/logic/Zerlegung.h"

#include "engines/logic/Ziehungssuche.h"
#include "listcontrol/logic/concat.h"
#include "shell/logic/Format.h"
#include "shell/logic/Texte.h"
#include "shell/logic/Zahlen.h"

#include <algorithm>
#include <array>
#include <map>
#include <ranges>
#include <set>
#include <string_view>

namespace {

using Spalte = ZiehungsArchiv::Spalte;

constexpr std::array<Spalte ZiehungsArchiv::*, 6> kZahlenspalten{&ZiehungsArchiv::z1, &ZiehungsArchiv::z2,
                                                                 &ZiehungsArchiv::z3, &ZiehungsArchiv::z4,
                                                                 &ZiehungsArchiv::z5, &ZiehungsArchiv::z6};
constexpr std::array<Spalte ZiehungsArchiv::*, 4> kUebrigeSpalten{&ZiehungsArchiv::zz, &ZiehungsArchiv::s,
                                                                  &ZiehungsArchiv::jjjj, &ZiehungsArchiv::sw};

constexpr std::size_t kStriche = 28;

/// The numbers of the draws in the order of their texts: 1, 10, 11 ... 19, 2, 20 ...
///
/// Keys whose numbers are compared one by one in this order are in the order of their texts: the comma behind a number
/// stands before every digit, as does the end of the text.
std::vector<std::int32_t> textfolge(const ZiehungsArchiv& archiv)
{
    std::set<std::int32_t> verschiedene;
    for (const auto spalte : kZahlenspalten)
        verschiedene.insert((archiv.*spalte).begin() + 1, (archiv.*spalte).end());
    std::vector<std::int32_t> folge(verschiedene.begin(), verschiedene.end());
    std::ranges::sort(folge, {}, [](std::int32_t zahl) { return std::to_string(zahl); });
    return folge;
}

/// The draws with the place in `folge` for each number.
ZiehungsArchiv mitRaengen(const ZiehungsArchiv& archiv, const std::vector<std::int32_t>& folge)
{
    std::map<std::int32_t, std::int32_t> rang;
    for (std::size_t i = 0; i < folge.size(); ++i)
        rang[folge[i]] = static_cast<std::int32_t>(i);
    ZiehungsArchiv raenge;
    raenge.AnzahlZiehungen = archiv.AnzahlZiehungen;
    for (const auto spalte : kZahlenspalten)
        for (const std::int32_t zahl : (archiv.*spalte) | std::views::drop(1))
            (raenge.*spalte).push_back(rang[zahl]);
    return raenge;
}

std::span<const std::int32_t> zahlenVon(const Wiederholung& menge, int k)
{
    return std::span(menge.zahlen).first(static_cast<std::size_t>(k));
}

std::string schluessel(const Wiederholung& menge, int k)
{
    std::string text;
    for (const std::int32_t zahl : zahlenVon(menge, k))
        text.append(text.empty() ? "" : ",").append(std::to_string(zahl));
    return text;
}

void haengeZeileAn(concat& text, std::string_view zeile)
{
    text.Append(zeile);
    text.Append(kZeilenende);
}

void berichteZiehungen(concat& text, const ZiehungsArchiv& ziehungen)
{
    haengeZeileAn(text, "Die ausgewählten " + std::to_string(ziehungen.AnzahlZiehungen) + " Ziehungen:");
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(ziehungen.AnzahlZiehungen); ++nr)
        haengeZeileAn(text, detailzeile(ziehungen, nr, kEineSpielart));
}

void berichteMengen(concat& text, const Zerlegung& zerlegung, int k)
{
    haengeZeileAn(text, "Die enthaltenen " + std::to_string(zerlegung.mengen.size()) + " " +
                            std::string(wiederholungsname(k).kombinationen) + ":");
    for (const Wiederholung& menge : zerlegung.mengen)
        haengeZeileAn(text, zerlegungszeile(menge, k));
}

} // namespace

Ziehungsauswahl waehleAus(const ZiehungsArchiv& archiv, std::span<const std::size_t> nummern)
{
    auto auswahl = std::make_shared<ZiehungsArchiv>();
    auswahl->Spielart = archiv.Spielart;
    auswahl->AnzahlZiehungen = static_cast<std::int32_t>(nummern.size());
    const auto uebernimm = [&](const auto& spalten) {
        for (const auto spalte : spalten)
            for (const std::size_t nr : nummern)
                ((*auswahl).*spalte).push_back((archiv.*spalte)[nr]);
    };
    uebernimm(kZahlenspalten);
    uebernimm(kUebrigeSpalten);
    for (const std::size_t nr : nummern)
        auswahl->Datum.push_back(datumVon(archiv, nr));
    return auswahl;
}

bool gleicheZiehungen(const ZiehungsArchiv& a, const ZiehungsArchiv& b)
{
    const auto gleich = [&](const auto& spalten) {
        return std::ranges::all_of(spalten, [&](const auto spalte) { return a.*spalte == b.*spalte; });
    };
    return a.Spielart == b.Spielart && gleich(kZahlenspalten) && gleich(kUebrigeSpalten) && a.Datum == b.Datum;
}

Zerlegung zerlege(Ziehungsauswahl ziehungen, int k, const Fortschritt& fortschritt)
{
    const std::vector<std::int32_t> folge = textfolge(*ziehungen);
    Suchfortschritt melde;
    if (fortschritt)
        melde = [&fortschritt](Suchschritt, std::uint64_t erledigt) { return fortschritt(erledigt); };
    Mengenzaehlung gezaehlte = zaehleMengen(mitRaengen(*ziehungen, folge), k, melde);
    for (Wiederholung& menge : gezaehlte.mengen)
        for (std::int32_t& zahl : std::span(menge.zahlen).first(static_cast<std::size_t>(k)))
            zahl = folge[static_cast<std::size_t>(zahl)];
    return {k, std::move(ziehungen), std::move(gezaehlte.mengen), gezaehlte.vollstaendig};
}

std::string zerlegungszeile(const Wiederholung& menge, int k)
{
    return Format(menge.anzahl, "@@") + " mal -> " + schluessel(menge, k);
}

std::vector<std::size_t> ziehungenMit(const Zerlegung& zerlegung, const Wiederholung& menge)
{
    std::vector<std::size_t> nummern;
    Ziehungssuche(*zerlegung.ziehungen).mitAllen(zahlenVon(menge, zerlegung.k), [&nummern](std::size_t nr) {
        nummern.push_back(nr);
    });
    return nummern;
}

std::string ziehungszeile(const ZiehungsArchiv& archiv, std::size_t nr)
{
    return jahrUndWoche(archiv, nr) + "   " + zahlentext(archiv.gewinnzahlen(nr));
}

std::string tipreihe(const ZiehungsArchiv& archiv, std::size_t nr)
{
    return "Tipreihe 6  -> " + zahlentext(archiv.gewinnzahlen(nr));
}

Detailzeilen zerlegungsdetails(const Zerlegung& zerlegung, const Fortschritt& fortschritt)
{
    Detailzeilen zeilen;
    if (!zerlegung.ziehungen)
        return zeilen;
    const ZiehungsArchiv& archiv = *zerlegung.ziehungen;
    const std::uint32_t striche = zeilen.merke(std::string(kStriche, '-'));
    for (std::size_t nr = 1; nr <= static_cast<std::size_t>(archiv.AnzahlZiehungen); ++nr)
        zeilen.merke(ziehungszeile(archiv, nr)); // which gets the number nr, behind the dash line
    const Ziehungssuche suche(archiv);
    Takt takt(fortschritt);
    std::uint64_t erledigt = 0;
    for (const Wiederholung& menge : zerlegung.mengen) {
        if (!(erledigt == 0 ? takt.melde(0) : takt.schritt(erledigt)))
            break;
        ++erledigt;
        zeilen.haengeAn(zeilen.merke("Kombination: " + schluessel(menge, zerlegung.k)));
        suche.mitAllen(zahlenVon(menge, zerlegung.k),
                       [&zeilen](std::size_t nr) { zeilen.haengeAn(static_cast<std::uint32_t>(nr)); });
        zeilen.haengeAn(striche);
    }
    return zeilen;
}

std::string zerlegungsbericht(std::span<const Zerlegung> zerlegungen, const Ziehungsauswahl& auswahl)
{
    Ziehungsauswahl ziehungen = auswahl;
    const auto erste = std::ranges::find_if(zerlegungen, [](const Zerlegung& zerlegung) { return zerlegung.k != 0; });
    if (erste != zerlegungen.end())
        ziehungen = erste->ziehungen;
    if (ziehungen->AnzahlZiehungen == 0)
        return {};
    concat text;
    berichteZiehungen(text, *ziehungen);
    for (std::size_t i = 0; i < zerlegungen.size(); ++i) {
        const Zerlegung& zerlegung = zerlegungen[i];
        if (zerlegung.k != 0 && !gleicheZiehungen(*zerlegung.ziehungen, *ziehungen)) {
            ziehungen = zerlegung.ziehungen;
            berichteZiehungen(text, *ziehungen);
        }
        berichteMengen(text, zerlegung, kKleinsteWiederholung + static_cast<int>(i));
    }
    return text.Value();
}

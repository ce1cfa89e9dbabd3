#include "tips/logic/Spielscheindruck.h"

#include "shell/logic/Format.h"
#include "shell/logic/Tippfeld7x7.h"
#include "shell/logic/Zahlen.h"

#include <array>

namespace {

constexpr Scheinort kErstesFeld{4.8F, 18.7F};
constexpr float kFeldabstand = 25.2F;
constexpr float kFeldkorrektur = 0.1F; ///< by which each step to the right is shorter
constexpr float kZweiteReihe = 26.5F;
constexpr Scheinort kKreuzInZelle{0.8F, 0.5F};

constexpr Scheinort kSamstag{66.0F, 137.9F};
constexpr Scheinort kMittwoch{66.0F, 159.3F};
/// The boxes "Ja" and "Nein".
using JaNein = std::array<Scheinort, 2>;
constexpr JaNein kSpiel77{{{73.6F, 62.5F}, {73.6F, 73.2F}}};
constexpr JaNein kSuper6{{{73.6F, 94.7F}, {73.6F, 105.5F}}};
constexpr JaNein kGluecksspirale{{{73.6F, 127.1F}, {73.6F, 137.8F}}};
/// By `Laufzeit`. The place of the fifth week was never measured: its cross stands at the left edge.
constexpr float kLaufzeitHoehe = 66.0F;
constexpr std::array<float, kLaufzeiten> kLaufzeit{33.8F, 40.9F, 48.1F, 55.2F, 0.0F, -1, 105.6F};
constexpr std::array<std::string_view, kLaufzeiten> kLaufzeittexte{"1 Woche",  "2 Wochen",  "3 Wochen",  "4 Wochen",
                                                                   "5 Wochen", "13 Wochen", "Dauerspiel"};

constexpr std::size_t kErsteZiffer = 11; ///< of a list line, from 0
constexpr std::size_t kJeZahl = 3;

Scheinort verschoben(const Scheinort& ort, const Scheinversatz& versatz)
{
    return {ort.senkrecht + static_cast<float>(versatz.senkrecht) / 10,
            ort.waagerecht + static_cast<float>(versatz.waagerecht) / 10};
}

Scheinort kreuz(const Scheinfeld& feld, int zahl)
{
    const auto zeile = static_cast<float>(Tippfeld7x7::zeile(zahl));
    const auto spalte = static_cast<float>(Tippfeld7x7::spalte(zahl));
    return {feld.ecke.senkrecht + kKreuzInZelle.senkrecht + Scheinfeld::kZellenhoehe * zeile,
            feld.ecke.waagerecht + kKreuzInZelle.waagerecht + Scheinfeld::kZellenbreite * spalte};
}

const Scheinort& antwort(const JaNein& kaestchen, bool ja)
{
    return kaestchen[ja ? 0 : 1];
}

std::vector<Scheinort> gewaehlteKaestchen(const Scheinwahl& wahl)
{
    std::vector<Scheinort> orte;
    if (wahl.samstag)
        orte.push_back(kSamstag);
    if (wahl.mittwoch)
        orte.push_back(kMittwoch);
    orte.push_back(antwort(kSpiel77, wahl.spiel77));
    orte.push_back(antwort(kSuper6, wahl.super6));
    if (wahl.laufzeit != Laufzeit::DreizehnAlt)
        orte.push_back({kLaufzeitHoehe, kLaufzeit[static_cast<std::size_t>(wahl.laufzeit)]});
    orte.push_back(antwort(kGluecksspirale, wahl.gluecksspirale));
    return orte;
}

std::string jaNein(bool ja)
{
    return ja ? "Ja" : "Nein";
}

std::string spielart(const Scheinwahl& wahl)
{
    if (wahl.samstag && wahl.mittwoch)
        return "Samstags- und Mittwochslotto";
    return wahl.samstag ? "Samstagslotto" : "Mittwochslotto";
}

} // namespace

Scheinfeld scheinfeld(std::size_t tip)
{
    const std::size_t feldspalte = tip / 2;
    const auto spalte = static_cast<float>(feldspalte);
    const float unten = tip % 2 == 0 ? 0 : kZweiteReihe;
    return {{kErstesFeld.senkrecht + unten, kErstesFeld.waagerecht + spalte * kFeldabstand - spalte * kFeldkorrektur}};
}

const std::vector<Scheinkaestchen>& scheinkaestchen()
{
    static const std::vector<Scheinkaestchen> kaestchen{
        {{kLaufzeitHoehe, kLaufzeit[0]}, "Laufzeit", "1"},
        {{kLaufzeitHoehe, kLaufzeit[1]}, "Laufzeit", "2"},
        {{kLaufzeitHoehe, kLaufzeit[2]}, "Laufzeit", "3"},
        {{kLaufzeitHoehe, kLaufzeit[3]}, "Laufzeit", "4"},
        {{kLaufzeitHoehe, kLaufzeit[6]}, "Dauerspiel", "Ja"},
        {kSamstag, "Ziehung", "Sa"},
        {kMittwoch, "Ziehung", "Mi"},
        {kSpiel77[0], "Spiel 77", "Ja"},
        {kSpiel77[1], "Spiel 77", "Nein"},
        {kSuper6[0], "Super 6", "Ja"},
        {kSuper6[1], "Super 6", "Nein"},
        {kGluecksspirale[0], "Glücksspirale", "Ja"},
        {kGluecksspirale[1], "Glücksspirale", "Nein"},
    };
    return kaestchen;
}

std::vector<Scheinort> layoutSlip(const std::vector<Kombination>& tips, const Scheinwahl& wahl,
                                  const Scheinversatz& versatz)
{
    std::vector<Scheinort> orte;
    for (std::size_t tip = 0; tip < tips.size(); ++tip)
        for (const std::int32_t zahl : tips[tip])
            if (gibtEs(zahl))
                orte.push_back(verschoben(kreuz(scheinfeld(tip), zahl), versatz));
    for (const Scheinort& ort : gewaehlteKaestchen(wahl))
        orte.push_back(verschoben(ort, versatz));
    return orte;
}

Kombination kombinationAusZeile(std::string_view zeile)
{
    Kombination tip{};
    for (std::size_t i = 0; i < tip.size(); ++i) {
        const std::size_t stelle = kErsteZiffer + kJeZahl * i;
        const std::int32_t zahl = stelle < zeile.size() ? ganzzahl(zeile.substr(stelle, 2)).value_or(0) : 0;
        tip[i] = gibtEs(zahl) ? zahl : 0;
    }
    return tip;
}

std::string quicktippzeile(std::size_t nummer, const Kombination& tip)
{
    std::string zeile = " Tipp" + Format(std::to_string(nummer), "@@@") + ": ";
    for (const std::int32_t zahl : tip)
        zeile += Format(std::to_string(zahl), "@@@");
    return zeile;
}

std::string druckfrage(const Scheinwahl& wahl, std::size_t tipps, std::string_view drucker)
{
    return "Soll der Tippschein in dieser Form gedruckt werden? \n"
           "Ja= Drucken, Nein=Angaben ändern\n\n"
           "Spielart: " +
           spielart(wahl) + "\nAnzahl der Tipps: " + std::to_string(tipps) + "\nSpiel77: " + jaNein(wahl.spiel77) +
           "\nSuper6: " + jaNein(wahl.super6) + "\nGlueckspirale: " + jaNein(wahl.gluecksspirale) +
           "\nLaufzeit: " + std::string(kLaufzeittexte[static_cast<std::size_t>(wahl.laufzeit)]) +
           "\nAuf Drucker: " + std::string(drucker);
}

#include "tips/logic/Zeitreisetafel.h"

#include "archive/logic/Ziehungskalender.h"
#include "shell/logic/Format.h"

namespace {

using Feld = Zeitreisespalte::Feld;

constexpr Farbe kTreffer{0x80, 0xFF, 0xFF};
constexpr Farbe kZusatztreffer{0xFF, 0xFF, 0x00};
constexpr Farbe kRot{0xFF, 0x00, 0x00};

std::vector<Zeitreisespalte> spalten(std::vector<Zeitreisespalte> vorne, std::array<int, 2> zahlenbreite,
                                     const std::vector<Zeitreisespalte>& hinten)
{
    static constexpr std::array<std::string_view, 6> kTitel{"Z1", "Z2", "Z3", "Z4", "Z5", "Z6"};
    vorne.push_back({Feld::Datum, 0, "Datum", 14, 105, 108});
    for (std::size_t i = 0; i < kTitel.size(); ++i)
        vorne.push_back({Feld::Zahl, i, kTitel[i], 3, zahlenbreite[0], zahlenbreite[1]});
    vorne.insert(vorne.end(), hinten.begin(), hinten.end());
    return vorne;
}

std::string_view kurzname(std::int16_t spielart)
{
    if (istSamstag(spielart))
        return "Sa";
    return spielart == Mittwochslotto ? "Mi" : "Mi(B)";
}

std::string markiert(bool marke, std::string text)
{
    return marke ? ' ' + std::move(text) : text;
}

} // namespace

const std::vector<Zeitreisespalte>& zeitreisespalten(Zeitreiseform form)
{
    static const std::vector<Zeitreisespalte> hinten{{Feld::Superzahl, 0, "SZ", 2, 30, 46},
                                                     {Feld::Gewinn, 0, "Gewinn", 10, 85, 1}};
    static const std::vector<Zeitreisespalte> jahrUndWoche{{Feld::Jahr, 0, "Jahr", 5, 0, 0},
                                                           {Feld::Woche, 0, "SW", 3, 0, 0}};
    static const auto eine = spalten(jahrUndWoche, {35, 46}, hinten);
    static const auto zusammen =
        spalten({{Feld::JahrUndWoche, 0, "Jahr/SW", 7, 0, 0}, {Feld::Spielart, 0, "Zieh.", 5, 0, 0}}, {35, 46}, hinten);
    static const auto alte = spalten(jahrUndWoche, {30, 40},
                                     {{Feld::Zusatzzahl, 0, "ZZ", 3, 30, 35},
                                      {Feld::Superzahl, 0, "SZ", 2, 25, 35},
                                      {Feld::Gewinn, 0, "Gewinn", 10, 75, 1}});
    switch (form) {
    case Zeitreiseform::Zusammen:
        return zusammen;
    case Zeitreiseform::AlterPlan:
        return alte;
    default:
        return eine;
    }
}

std::string zeitreisezelle(const Zeitreise& zeitreise, const Zeitreisezeile& zeile, const Zeitreisespalte& spalte)
{
    const std::string_view gewinn = gewinntext(zeitreise.form, zeile.klasse);
    switch (spalte.feld) {
    case Feld::Jahr:
        return Format(zeile.jjjj, "0000");
    case Feld::Woche:
        return Format(zeile.sw, "00");
    case Feld::JahrUndWoche:
        return Format(zeile.jjjj, "0000") + "/" + Format(zeile.sw, "00");
    case Feld::Spielart:
        return std::string(kurzname(zeile.Spielart));
    case Feld::Datum:
        return datumText(ziehungstag(zeile));
    case Feld::Zahl:
        return markiert(zeile.getroffen[spalte.stelle], Format(zeile.zahlen[spalte.stelle], "00"));
    case Feld::Zusatzzahl:
        return zeile.zz > 0 ? markiert(gewinn.ends_with("+ZZ"), Format(zeile.zz, "00")) : "-";
    case Feld::Superzahl:
        return zeile.s != kOhneSuperzahl ? markiert(gewinn.ends_with("+SZ"), std::to_string(zeile.s)) : "-";
    case Feld::Gewinn:
        return std::string(gewinn);
    }
    return {};
}

std::size_t leereZeilen(const Zeitreise& zeitreise)
{
    const bool fuelltAuf = zeitreise.art == Zeitreiseart::Suche && !zeitreise.zahlen.empty();
    return fuelltAuf && zeitreise.zeilen.size() < kMindestzeilen ? kMindestzeilen - zeitreise.zeilen.size() : 0;
}

Farbpaar zeitreisefarbe(int zeile, bool gewaehlt, const Zeitreisespalte* spalte, std::string_view text)
{
    if (!spalte)
        return {Listenfarben::Trenner, Listenfarben::Schrift};
    if (text.starts_with(' ') && spalte->feld == Feld::Zahl)
        return {kTreffer, kRot};
    if (text.starts_with(' '))
        return {kZusatztreffer, Listenfarben::Schrift};
    return {gewaehlt ? Listenfarben::Hervorgehoben : Listenfarben::zeilengrund(zeile), Listenfarben::Schrift};
}

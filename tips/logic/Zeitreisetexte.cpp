#include "tips/logic/Zeitreisetexte.h"

#include "archive/logic/Spielarttexte.h"
#include "shell/logic/Texte.h"

namespace {

std::string_view erstesJahr(bool seit1955)
{
    return erstesSpieljahr(seit1955 ? Samstagslotto : Mittwochslotto);
}

std::string kombinationskopf(const Zeitreise& zeitreise)
{
    const std::string anfang = "Ziehungen mit der gesuchten Kombination " + zahlenMitBlank(zeitreise);
    if (zeitreise.zeilen.empty())
        return anfang + ": 0 (noch nicht gezogen)";
    return anfang + ":   " + std::to_string(zeitreise.zeilen.size()) + " mal";
}

} // namespace

std::string zahlenMitBlank(const Zeitreise& zeitreise)
{
    std::string text;
    for (const std::int32_t zahl : zeitreise.zahlen)
        text.append(text.empty() ? "" : " ").append(std::to_string(zahl));
    return text;
}

std::string listentitel(const Zeitreise& zeitreise)
{
    const std::string anzahl = std::to_string(zeitreise.zeilen.size());
    switch (zeitreise.art) {
    case Zeitreiseart::Suche:
        return kombinationskopf(zeitreise);
    case Zeitreiseart::Alle:
        return "Alle " + anzahl + " Ziehungen" + (zeitreise.zahlen.empty() ? "" : " mit ihren Treffern");
    default:
        return "Ziehungen mit Gewinnen: " + anzahl;
    }
}

std::string zeitreisetitel(Zeitreiseform form, bool kombination, bool seit1955)
{
    const std::string jahr(erstesJahr(seit1955));
    switch (form) {
    case Zeitreiseform::Zusammen:
        return kombination ? "Lottozeitreise - Wie oft wurde eine Kombination gezogen?"
                           : "Lottozeitreise, die Treffer einer ausgewählten Tippkombination";
    case Zeitreiseform::AlterPlan:
        return "Vergleich mit allen Ziehungen seit " + jahr + " (altes Gewinnschema mit Zusatzzahl)";
    default:
        return (kombination ? "Suche nach einer Kombination in allen Ziehungen seit 1. Ausspielung "
                            : "Vergleich eines Tipps mit allen Ziehungen seit 1. Ausspielung ") +
               jahr;
    }
}

std::string zeitreisetitel(const Zeitreise& zeitreise)
{
    const bool kombination = zeitreise.art == Zeitreiseart::Suche;
    if (zeitreise.form != Zeitreiseform::Zusammen || kombination || zeitreise.ziehungen == 0)
        return zeitreisetitel(zeitreise.form, kombination, zeitreise.seit1955());
    return "Lottozeitreise - Die Treffer der ausgewählten Tippkombination von " + zeitreise.von + " bis " +
           zeitreise.bis;
}

std::string haeufigkeitstitel(Zeitreiseform form, bool seit1955)
{
    const std::string jahr(erstesJahr(seit1955));
    if (form == Zeitreiseform::AlterPlan)
        return "Ausgabe: Häufigkeit der Zahlen seit " + jahr + " (ohne Zusatzzahl)";
    return (seit1955 ? "Ausgabe: Häufigkeit der Zahlen seit " : "Ausgabe: Häufigkeit der ausgewählten Zahlen seit ") +
           jahr;
}

std::string ziehungszeile(const ZiehungsArchiv& archiv)
{
    return std::to_string(archiv.AnzahlZiehungen) + " Ziehungen, von: " + jahrUndWoche(archiv, 1) +
           " bis: " + jahrUndWoche(archiv, static_cast<std::size_t>(archiv.AnzahlZiehungen));
}

std::string ziehungszeile(const Zeitreise& zeitreise)
{
    return "Ausgewertete Ziehungen: " + std::to_string(zeitreise.ziehungen);
}

std::string spielartenGross(const std::vector<std::int16_t>& spielarten)
{
    if (spielarten.size() == 1)
        return std::string(spielartGross(spielarten.front()));
    std::string text;
    for (const std::int16_t spielart : spielarten)
        text.append(text.empty() ? "" : " + ").append(trim(spielartGross(spielart)));
    return text;
}

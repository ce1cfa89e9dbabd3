#include "engines/logic/TreffersucheTexte.h"

#include "shell/logic/Binomial.h"
#include "shell/logic/ClipReport.h"
#include "shell/logic/Format.h"

namespace {

/// About what the report takes: a row and its line end, and all that stands around the rows.
std::size_t groesse(const Trefferbericht& angaben)
{
    constexpr std::size_t kZeile = 43;
    constexpr std::size_t kRest = 2048;
    std::size_t bytes = kRest;
    for (const Trefferbericht::Abschnitt& liste : angaben.listen)
        bytes += liste.zeilen * kZeile;
    return bytes;
}

std::string mitSchwelle(std::string_view titel, std::string_view vergleich, std::uint32_t schwelle)
{
    return std::string(titel) + " (" + std::string(vergleich) + std::to_string(schwelle) + "):";
}

} // namespace

std::string_view ranglistentitel(Rangliste liste)
{
    switch (liste) {
    case Rangliste::Drei:
        return " Kombinationen, die die meisten Dreier erbracht hätten:";
    case Rangliste::Vier:
        return "Kombinationen, die die meisten Vierer erbracht hätten:";
    case Rangliste::Fuenf:
        return "Kombinationen, die die meisten Fünfer erbracht hätten:";
    case Rangliste::Sechs:
        return "Die erfogreichsten Sechserkombinationen:";
    case Rangliste::Loser:
        return "Die schlechtesten Kombinationen:";
    }
    return {};
}

std::string ranglistentitel(Rangliste liste, const Trefferschwellen& schwellen)
{
    switch (liste) {
    case Rangliste::Drei:
        return mitSchwelle("Kombinationen, die die meisten Dreier erbracht hätten", ">=", schwellen.SchwelleDrei);
    case Rangliste::Vier:
        return mitSchwelle("Kombinationen, die die meisten Vierer erbracht hätten", ">=", schwellen.SchwelleVier);
    case Rangliste::Fuenf:
        return mitSchwelle("Kombinationen, die die meisten Fuenfer erbracht hätten", ">=", schwellen.SchwelleFuenf);
    case Rangliste::Sechs:
        return std::string(ranglistentitel(liste));
    case Rangliste::Loser:
        return mitSchwelle("Die schlechtesten Kombinationen, keine 6-,5-,4-er, 3-er", "<", schwellen.SchwelleLoser);
    }
    return {};
}

std::string kombinationenText(std::uint64_t erledigt)
{
    return Format(erledigt, "##,###,###") + " von " + Format(kKombinationen6aus49, "##,###,###");
}

std::string vergleicheText(std::uint64_t erledigt, std::uint64_t ziehungen)
{
    return Format(erledigt * ziehungen, "###,###,###,###");
}

std::string anzahltext(const Treffersuche& suche, Rangliste liste)
{
    std::string zeilen = std::to_string(suche.liste(liste).anzahl());
    if (liste != Rangliste::Loser)
        return zeilen;
    return "Anzahl gesamt: " + Format(suche.AnzahlOhneGewinn, "###,###") + " davon Kombinationen mit Anz. < " +
           std::to_string(suche.schwellen.SchwelleLoser) + ": " + zeilen;
}

std::string treffersucheBericht(const Trefferbericht& angaben, const Fortschritt& weiter)
{
    ClipReport bericht;
    bericht.reserviere(groesse(angaben)).zeile(kTreffersucheTitel).zeile("In die Auswertung einbezogene Ziehungen:");
    for (std::size_t i = 0; i < angaben.auftrag.spielarten.size(); ++i)
        bericht.zeile(angaben.auftrag.spielarten[i] + ":      " + angaben.auftrag.staende[i]);
    bericht.zeile(angaben.auftrag.ziehungen);

    Takt takt(weiter);
    std::uint64_t erledigt = 0;
    for (const Trefferbericht::Abschnitt& liste : angaben.listen) {
        const bool loser = &liste == &angaben.listen.back();
        bericht.leerzeile().zeile(liste.titel + ":  " + (loser ? "Anzahl:  " : "Anzahl: ") + liste.anzahl);
        bericht.zeile(kRanglistenkopf);
        for (std::size_t i = 0; i < liste.zeilen; ++i) {
            bericht.zeile(liste.zeile(i));
            if (!takt.schritt(++erledigt))
                return {};
        }
    }
    bericht.leerzeile().zeile(angaben.frage + (angaben.auftrag.auchHoehere ? " ja" : " nein"));
    return bericht.leerzeile().schlusshinweis().text();
}

#include "filters/logic/ZahlennachbarnListe.h"

#include "shell/logic/Format.h"

using Spalten = Nachbarspalten;

Nachbarzellen nachbarzellen(const Nachbarsuche& suche, const Nachbartreffer& treffer)
{
    Nachbarzellen zellen;
    zellen[0] = suche.gruppe.gruppentext;
    zellen[Spalten::kJahr] = Format(treffer.jjjj, "0000");
    zellen[Spalten::kWoche] = Format(treffer.sw, "00");
    if (suche.zusammen) {
        zellen[Spalten::kJahr] += "/" + zellen[Spalten::kWoche];
        zellen[Spalten::kWoche] = nachbarspiel(treffer.Spielart);
    }
    zellen[Spalten::kDatum] = treffer.datum;
    for (std::size_t i = 0; i < treffer.zahlen.size(); ++i)
        if (gehoertZurGruppe(treffer, treffer.zahlen[i]))
            zellen[Spalten::kZ1 + 2 * i] = Format(treffer.zahlen[i], "00");
    zellen[Spalten::kSZ] = superzahltext(treffer);
    return zellen;
}

bool gehoertZurGruppe(const Nachbartreffer& treffer, std::int32_t zahl)
{
    return gibtEs(zahl) && (treffer.gruppe >> zahl & 1U) != 0;
}

std::string_view nachbarspiel(std::int16_t spielart)
{
    switch (spielart) {
    case Mittwochslotto:
        return "Mi";
    case MittwochslottoB:
        return "MiB";
    default:
        return "Sa";
    }
}

std::string superzahltext(const Nachbartreffer& treffer)
{
    return treffer.s ? std::to_string(*treffer.s) : "-";
}

#include "filters/logic/Zahlennachbarn.h"

#include <bit>
#include <initializer_list>
#include <utility>

namespace {

constexpr std::uint32_t menge(std::initializer_list<unsigned> masken)
{
    std::uint32_t bits = 0;
    for (const unsigned maske : masken)
        bits |= 1U << maske;
    return bits;
}

Nachbartreffer treffer(const ZiehungsArchiv& archiv, std::size_t nr, Zahlenmenge gruppe, std::int32_t lauf)
{
    Nachbartreffer neuer;
    neuer.Spielart = archiv.Spielart;
    neuer.jjjj = archiv.jjjj[nr];
    neuer.sw = archiv.sw[nr];
    neuer.datum = datumVon(archiv, nr);
    neuer.zahlen = archiv.gewinnzahlen(nr);
    neuer.gruppe = gruppe;
    neuer.Suchlauf = lauf;
    if (std::cmp_greater_equal(nr, superzahlBeginn(archiv.Spielart)))
        neuer.s = archiv.s[nr];
    return neuer;
}

/// The numbers of a set with which `k` in a row start.
Zahlenmenge anfaenge(Zahlenmenge zahlen, int k)
{
    Zahlenmenge rest = zahlen;
    for (int i = 1; i < k; ++i)
        rest &= zahlen >> i;
    return rest;
}

/// One pass finds the rows of all runs, each of which then has its draws in their order.
std::vector<Nachbartreffer> sucheReihen(const ZiehungsArchiv& archiv, int k)
{
    std::array<std::vector<std::int32_t>, kHoechsteZahl + 1> ziehungen; // by the number that the row starts with
    std::size_t anzahl = 0;
    for (std::int32_t nr = 1; nr <= archiv.AnzahlZiehungen; ++nr) {
        const Zahlenmenge zahlen = zahlenmenge(archiv.gewinnzahlen(static_cast<std::size_t>(nr)));
        for (Zahlenmenge rest = anfaenge(zahlen, k); rest != 0; rest &= rest - 1) {
            ziehungen[static_cast<std::size_t>(std::countr_zero(rest))].push_back(nr);
            ++anzahl;
        }
    }

    std::vector<Nachbartreffer> gefundene;
    gefundene.reserve(anzahl);
    for (int erste = 1; erste <= kHoechsteZahl; ++erste) {
        const Zahlenmenge reihe = ((Zahlenmenge{1} << k) - 1) << erste;
        for (const std::int32_t nr : ziehungen[static_cast<std::size_t>(erste)])
            gefundene.push_back(treffer(archiv, static_cast<std::size_t>(nr), reihe, erste - 1));
    }
    return gefundene;
}

Zahlenmenge nachbarn(const Kombination& zahlen, std::uint32_t maske)
{
    Zahlenmenge alle = 0;
    for (std::size_t i = 0; i + 1 < zahlen.size(); ++i)
        if ((maske >> i & 1U) != 0)
            alle |= Zahlenmenge{3} << zahlen[i];
    return alle;
}

std::vector<Nachbartreffer> sucheMuster(const ZiehungsArchiv& archiv, std::uint32_t masken)
{
    std::vector<Nachbartreffer> gefundene;
    for (std::size_t nr = 1; std::cmp_less_equal(nr, archiv.AnzahlZiehungen); ++nr) {
        const Kombination zahlen = archiv.gewinnzahlen(nr);
        const std::uint32_t maske = Nachbarmaske(zahlen);
        if ((masken >> maske & 1U) != 0)
            gefundene.push_back(treffer(archiv, nr, nachbarn(zahlen, maske), 0));
    }
    return gefundene;
}

} // namespace

const std::array<Nachbargruppe, 5> kNachbargruppen{{
    {.code = 2, .gruppentext = "(2-Gr.)", .seitenkopf = "2-er Zahlennachbarn", .seitendatei = "nachbarn-2er.htm"},
    {.code = 3, .gruppentext = "(3-Gr.)", .seitenkopf = "3-er Zahlennachbarn", .seitendatei = "nachbarn-3er.htm"},
    {.code = 4,
     .gruppentext = "(4-Gr.)",
     .ohneTreffer = "*** Es sind noch keine Vier-Zahlennachbarn aufgetreten ***",
     .seitenkopf = "4-er Zahlennachbarn",
     .seitendatei = "nachbarn-4er.htm"},
    {.code = 5,
     .gruppentext = "(5-Gr.)",
     .ohneTreffer = "*** Es sind noch keine Fünf-Nachbarn aufgetreten ***",
     .seitenkopf = "5-er Zahlennachbarn",
     .seitendatei = "nachbarn-5er.htm"},
    {.code = 6,
     .gruppentext = "(6-Gr.)",
     .ohneTreffer = "*** Es sind noch keine Sechs-Zahlennachbarn aufgetreten ***",
     .seitenkopf = "6-er Zahlennachbarn",
     .seitendatei = "nachbarn-6er.htm"},
}};

const std::array<Nachbargruppe, 5> kNachbarmuster{{
    {.code = 22,
     .masken = menge({5, 9, 10, 17, 18, 20}),
     .gruppentext = "2 Zwillinge",
     .name = "2 Zwillinge",
     .ohneTreffer = "*** 2 Zwillinge sind noch nicht aufgetreten ***",
     .seitenkopf = "2 Zwillinge",
     .seitendatei = "2-Zwillinge.htm"},
    {.code = 222,
     .masken = menge({21}),
     .gruppentext = "3 Zwillinge",
     .name = "3 Zwillinge",
     .ohneTreffer = "*** 3 Zwillinge sind noch nicht aufgetreten ***",
     .seitenkopf = "3 Zwillinge",
     .seitendatei = "3-Zwillinge.htm"},
    {.code = 23,
     .masken = menge({11, 13, 19, 22, 25, 26}),
     .gruppentext = "1 Zwill. + 1 Drill.",
     .name = "1 Zwilling + 1 Drilling zusammen",
     .ohneTreffer = "*** 1 Zwilling + 1 Drilling zusammen sind noch nicht aufgetreten ***",
     .seitenkopf = "1 Zwill.+1 Drill.",
     .seitendatei = "1-Zwilling1-Drilling.htm"},
    {.code = 33,
     .masken = menge({27}),
     .gruppentext = "2 Drillinge",
     .name = "2 Drillinge",
     .ohneTreffer = "*** 2 Drillinge sind noch nicht aufgetreten ***",
     .seitenkopf = "2 Drillinge",
     .seitendatei = "2-Drillinge.htm"},
    {.code = 24,
     .masken = menge({23, 29}),
     .gruppentext = "1 Zwill. und 1 Vierl.",
     .name = "1 Zwilling +1 Vierling zusammen",
     .ohneTreffer = "*** 1 Zwilling +1 Vierling zusammen sind noch nicht aufgetreten ***",
     .seitenkopf = "1 Zwill.+1 Vierl.",
     .seitendatei = "1-Zwilling+1-Vierling.htm"},
}};

std::uint32_t Nachbarmaske(const Kombination& zahlen)
{
    std::uint32_t maske = 0;
    for (std::size_t i = 0; i + 1 < zahlen.size(); ++i)
        if (gibtEs(zahlen[i]) && gibtEs(zahlen[i + 1]) && zahlen[i + 1] - zahlen[i] == 1)
            maske |= 1U << i;
    return maske;
}

std::vector<Nachbartreffer> sucheNachbarn(const ZiehungsArchiv& archiv, const Nachbargruppe& gruppe)
{
    return gruppe.istMuster() ? sucheMuster(archiv, gruppe.masken) : sucheReihen(archiv, gruppe.code);
}

Nachbardatei nachbardatei(const ZiehungsArchiv& archiv)
{
    return {.Spielart = archiv.Spielart,
            .AnzahlZiehungen = archiv.AnzahlZiehungen,
            .letzteZiehung = jahrUndWoche(archiv, static_cast<std::size_t>(archiv.AnzahlZiehungen))};
}

#include "engines/logic/KombinationAusNummer.h"
#include "engines/logic/Trefferreferenz.h"
#include "engines/logic/Treffersuche.h"
#include "engines/tests/Zahlenreihen.h"
#include "shell/logic/Binomial.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

constexpr std::array<Rangliste, kRanglisten> kListen{Rangliste::Drei, Rangliste::Vier, Rangliste::Fuenf,
                                                     Rangliste::Sechs, Rangliste::Loser};

/// Which lists take a combination, from its plain counts.
bool gehoert(Rangliste liste, const Trefferzahlen& n, const Trefferschwellen& s, bool nurExakt)
{
    switch (liste) {
    case Rangliste::Drei:
        return n[3] >= s.SchwelleDrei && (!nurExakt || (n[6] == 0 && n[5] == 0 && n[4] == 0));
    case Rangliste::Vier:
        return n[4] >= s.SchwelleVier && (!nurExakt || (n[6] == 0 && n[5] == 0));
    case Rangliste::Fuenf:
        return n[5] >= s.SchwelleFuenf && (!nurExakt || n[6] == 0);
    case Rangliste::Sechs:
        return (n[6] >= 1 && n[5] >= 1) || n[6] >= 2;
    case Rangliste::Loser:
        return n[6] == 0 && n[5] == 0 && n[4] == 0 && n[3] < s.SchwelleLoser;
    }
    return false;
}

/// Looks at one combination in every so many, and at each one that stands in a list.
void pruefe(const std::vector<Zahlenmenge>& reihen, const Trefferschwellen& schwellen, bool nurExakt)
{
    const Treffersuche suche = sucheTreffer(reihen, schwellen, nurExakt);
    EXPECT_EQ(suche.AnzahlKombis, 13'983'816U);
    EXPECT_FALSE(suche.gestoppt);
    for (const Rangliste liste : kListen) {
        const Trefferrang& rang = suche.liste(liste);
        std::vector<std::int32_t> nummern;
        for (std::size_t i = 0; i < rang.anzahl(); ++i)
            nummern.push_back(rang.nummer(i));
        for (std::size_t i = 0; i < rang.anzahl(); i += 1 + rang.anzahl() / 1000) {
            const auto n = trefferMitMengen(zahlenmenge(KombinationAusNummer(nummern[i])), reihen);
            EXPECT_TRUE(gehoert(liste, n, schwellen, nurExakt)) << rang.zeile(i);
            EXPECT_EQ(rang.zeile(i), trefferzeile({n[6], n[5], n[4], n[3]}, nummern[i]));
        }
        std::ranges::sort(nummern);
        for (std::int32_t nummer = 1; nummer <= kKombinationen6aus49; nummer += 9'973) {
            const auto n = trefferMitMengen(zahlenmenge(KombinationAusNummer(nummer)), reihen);
            EXPECT_EQ(std::ranges::binary_search(nummern, nummer), gehoert(liste, n, schwellen, nurExakt)) << nummer;
        }
    }
}

TEST(Treffersuche, NimmtWasDieSchwellenSagen)
{
    std::mt19937 zufall(55);
    auto reihen = zufallsreihen(zufall, 49, 800);
    reihen.push_back(reihen.front());
    for (const bool nurExakt : {true, false})
        pruefe(reihen, {5, 25, 5, 2}, nurExakt);
}

TEST(Treffersuche, HatSchwellenFuerJedeAuswahl)
{
    EXPECT_EQ(trefferschwellen(7), (Trefferschwellen{70, 135, 17, 4}));
    EXPECT_EQ(trefferschwellen(1), (Trefferschwellen{34, 90, 11, 3}));
    EXPECT_EQ(trefferschwellen(3), (Trefferschwellen{60, 115, 14, 4}));
    EXPECT_EQ(trefferschwellen(5), (Trefferschwellen{60, 110, 14, 4}));
    EXPECT_EQ(trefferschwellen(4), (Trefferschwellen{1, 30, 6, 3}));
    EXPECT_EQ(trefferschwellen(2), (Trefferschwellen{10, 50, 9, 3}));
    EXPECT_EQ(trefferschwellen(6), (Trefferschwellen{20, 65, 10, 3}));
    EXPECT_EQ(trefferschwellen(0), Trefferschwellen{});
}

TEST(Treffersuche, OhneSchwellenNimmtSieAllesUndKeineVerlierer)
{
    const std::vector<Zahlenmenge> reihen(1, zahlenmenge(std::array{1, 2, 3, 4, 5, 6}));
    const Treffersuche alle = sucheTreffer(reihen, {}, false);
    EXPECT_EQ(alle.liste(Rangliste::Drei).anzahl(), 13'983'816U);
    EXPECT_EQ(alle.liste(Rangliste::Vier).anzahl(), 13'983'816U);
    EXPECT_EQ(alle.liste(Rangliste::Fuenf).anzahl(), 13'983'816U);
    EXPECT_EQ(alle.liste(Rangliste::Sechs).anzahl(), 0U);
    EXPECT_EQ(alle.liste(Rangliste::Loser).anzahl(), 0U);
    EXPECT_EQ(alle.liste(Rangliste::Fuenf).zeile(13'983'815), " 1 |  0 |  0 |   0 |    01 02 03 04 05 06");

    const Treffersuche exakt = sucheTreffer(reihen, {}, true);
    const auto vierer = static_cast<std::size_t>(Binomial(6, 4) * Binomial(43, 2));
    const auto fuenfer = static_cast<std::size_t>(Binomial(6, 5) * 43);
    EXPECT_EQ(exakt.liste(Rangliste::Drei).anzahl(), 13'983'816U - vierer - fuenfer - 1);
    EXPECT_EQ(exakt.liste(Rangliste::Vier).anzahl(), 13'983'816U - fuenfer - 1);
    EXPECT_EQ(exakt.liste(Rangliste::Fuenf).anzahl(), 13'983'816U - 1);
    EXPECT_EQ(exakt.AnzahlOhneGewinn, 13'983'816U - vierer - fuenfer - 1);
}

TEST(Treffersuche, OhneZiehungenIstAllesOhneGewinn)
{
    const Treffersuche suche = sucheTreffer({}, trefferschwellen(4), true);
    EXPECT_EQ(suche.AnzahlOhneGewinn, 13'983'816U);
    EXPECT_EQ(suche.liste(Rangliste::Loser).anzahl(), 13'983'816U);
    EXPECT_EQ(suche.liste(Rangliste::Drei).anzahl(), 0U);
}

TEST(Treffersuche, LauterGleicheZiehungen)
{
    const std::vector<Zahlenmenge> reihen(98'301, zahlenmenge(std::array{5, 10, 20, 30, 40, 49}));
    const Treffersuche suche = sucheTreffer(reihen, trefferschwellen(7), true);
    ASSERT_EQ(suche.liste(Rangliste::Sechs).anzahl(), 1U);
    EXPECT_EQ(suche.liste(Rangliste::Sechs).zeile(0), "98301 |  0 |  0 |   0 |    05 10 20 30 40 49");
    EXPECT_EQ(suche.liste(Rangliste::Fuenf).anzahl(), static_cast<std::size_t>(Binomial(6, 5) * 43));
    EXPECT_EQ(suche.liste(Rangliste::Drei).anzahl(), static_cast<std::size_t>(Binomial(6, 3) * Binomial(43, 3)));
}

TEST(Treffersuche, HaeltAmAnfangUndUnterwegs)
{
    const std::vector<Zahlenmenge> reihen(1, zahlenmenge(std::array{1, 2, 3, 4, 5, 6}));
    const Treffersuche nie = sucheTreffer(reihen, {}, false, [](std::uint64_t) { return false; });
    EXPECT_TRUE(nie.gestoppt);
    EXPECT_EQ(nie.AnzahlKombis, 0U);
    EXPECT_EQ(nie.liste(Rangliste::Drei).anzahl(), 0U);

    const Treffersuche halb = sucheTreffer(reihen, {}, false, [](std::uint64_t erledigt) { return erledigt == 0; });
    EXPECT_TRUE(halb.gestoppt);
    EXPECT_GT(halb.AnzahlKombis, 0U);
    EXPECT_LT(halb.AnzahlKombis, 13'983'816U);
    EXPECT_EQ(halb.liste(Rangliste::Drei).anzahl(), halb.AnzahlKombis);
    EXPECT_EQ(halb.liste(Rangliste::Drei).nummer(halb.AnzahlKombis - 1), 1);
}

} // namespace

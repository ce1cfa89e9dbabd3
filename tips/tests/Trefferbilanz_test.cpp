#include "testhilfen/ArchivAus.h"
#include "tips/rules/Trefferbilanz.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

constexpr Kombination kTip{1, 2, 3, 4, 5, 6};

/// Draws of Wednesday: 496 without a hit that have no Superzahl, and behind them one each with 0 to 6 hits, first
/// with the tip's Superzahl 4, then with another.
ZiehungsArchiv archivAllerTreffer()
{
    std::vector<TestZiehung> ziehungen(496, {1990, 1, {40, 41, 42, 43, 44, 45}, 0});
    for (int runde = 0; runde < 2; ++runde) {
        for (std::size_t treffer = 0; treffer <= 6; ++treffer) {
            TestZiehung ziehung{2000, 1, {40, 41, 42, 43, 44, 45}, 6};
            for (std::size_t i = 0; i < treffer; ++i)
                ziehung.zahlen[i] = kTip[i];
            ziehungen.push_back(ziehung);
        }
    }
    ZiehungsArchiv archiv = archivAus(2, ziehungen);
    for (std::size_t nr = 1; nr < archiv.s.size(); ++nr)
        archiv.s[nr] = nr < 504 ? 4 : 7;
    return archiv;
}

using Bewerter = Tippbewertung (*)(const ZiehungsArchiv&, std::int32_t, const Kombination&, std::int32_t, std::int16_t);

Trefferbilanz bilanz(const ZiehungsArchiv& archiv, Bewerter bewerte, std::int16_t spielart = 2)
{
    Trefferbilanz bilanz;
    for (std::int32_t nr = 1; nr <= archiv.AnzahlZiehungen; ++nr)
        bilanz.zaehle(bewerte(archiv, nr, kTip, 4, spielart));
    return bilanz;
}

TEST(Trefferbilanz, NeuerPlan)
{
    const Trefferbilanz alles = bilanz(archivAllerTreffer(), bewerteNeu);
    EXPECT_EQ(alles.Null, 498);
    EXPECT_EQ(alles.Einer, 2);
    EXPECT_EQ(alles.zweierRoh, 2);
    EXPECT_EQ(alles.Zweier(), 1);
    for (int klasse = 1; klasse <= 9; ++klasse)
        EXPECT_EQ(alles.anzahl(static_cast<Gewinnklasse>(klasse)), 1) << klasse;
    EXPECT_EQ(alles.anzahl(Gewinnklasse::Keine), 0);
    EXPECT_EQ(alles.gewinne(), 9);
    EXPECT_EQ(alles.haeufigkeit, (std::array<std::int32_t, 6>{12, 10, 8, 6, 4, 2}));
}

TEST(Trefferbilanz, AlterPlanKenntKeinenZweier)
{
    const Trefferbilanz alles = bilanz(archivAllerTreffer(), bewerteAlt);
    EXPECT_EQ(alles.zweierRoh, 2);
    EXPECT_EQ(alles.Zweier(), 2);
    EXPECT_EQ(alles.anzahl(Gewinnklasse::GK1), 1);
    EXPECT_EQ(alles.anzahl(Gewinnklasse::GK2), 1);
    // The Zusatzzahl 6 of all these draws is the last number of the tip.
    EXPECT_EQ(alles.anzahl(Gewinnklasse::GK3), 2);
    EXPECT_EQ(alles.anzahl(Gewinnklasse::GK5), 2);
    EXPECT_EQ(alles.anzahl(Gewinnklasse::GK7), 2);
    EXPECT_EQ(alles.anzahl(Gewinnklasse::GK9), 0);
    EXPECT_EQ(alles.gewinne(), 8);
}

TEST(Trefferbilanz, VorDerSuperzahlIstKeinZweierEinGewinn)
{
    ZiehungsArchiv archiv = archivAus(2, std::vector<TestZiehung>(497, {1990, 1, {1, 2, 40, 41, 42, 43}, 0}));
    std::fill(archiv.s.begin(), archiv.s.end(), 4);
    const Trefferbilanz alles = bilanz(archiv, bewerteNeu);
    EXPECT_EQ(alles.zweierRoh, 497);
    EXPECT_EQ(alles.anzahl(Gewinnklasse::GK9), 1);
    EXPECT_EQ(alles.Zweier(), 496);
    EXPECT_EQ(alles.gewinne(), 1);
}

TEST(Trefferbilanz, BilanzenLassenSichAddieren)
{
    const ZiehungsArchiv archiv = archivAllerTreffer();
    Trefferbilanz summe = bilanz(archiv, bewerteNeu);
    const Trefferbilanz einzeln = summe;
    summe += einzeln;
    EXPECT_EQ(summe.Null, 996);
    EXPECT_EQ(summe.Einer, 4);
    EXPECT_EQ(summe.Zweier(), 2);
    EXPECT_EQ(summe.gewinne(), 18);
    EXPECT_EQ(summe.haeufigkeit[0], 24);
    summe += Trefferbilanz{};
    EXPECT_EQ(summe.gewinne(), 18);
}

TEST(Trefferbilanz, EinLeeresArchivGibtNullen)
{
    EXPECT_EQ(bilanz(ZiehungsArchiv{}, bewerteNeu), Trefferbilanz{});
    EXPECT_EQ(bilanz(ZiehungsArchiv{}, bewerteAlt), Trefferbilanz{});
}

TEST(Trefferbilanz, JedeZiehungStehtInGenauEinemFeld)
{
    const ZiehungsArchiv archiv = archivAllerTreffer();
    for (const Bewerter bewerte : {bewerteNeu, bewerteAlt}) {
        for (const std::int16_t spielart : {Samstagslotto, Mittwochslotto, MittwochslottoB}) {
            const Trefferbilanz alles = bilanz(archiv, bewerte, spielart);
            EXPECT_EQ(alles.Null + alles.Einer + alles.Zweier() + alles.gewinne(), archiv.AnzahlZiehungen);
        }
    }
}

} // namespace

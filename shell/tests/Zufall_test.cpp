#include "shell/logic/Zufall.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace {

std::vector<double> folge(Zufall& zufall, std::size_t anzahl)
{
    std::vector<double> werte(anzahl);
    std::ranges::generate(werte, [&] { return zufall.Rnd(); });
    return werte;
}

TEST(Zufall, LiegtZwischenNullUndUnterEins)
{
    Zufall zufall(1);
    double summe = 0;
    constexpr int kAnzahl = 1'000'000;
    for (int i = 0; i < kAnzahl; ++i) {
        const double wert = zufall.Rnd();
        ASSERT_GE(wert, 0.0);
        ASSERT_LT(wert, 1.0);
        summe += wert;
    }
    EXPECT_NEAR(summe / kAnzahl, 0.5, 0.002); // seven standard deviations
}

TEST(Zufall, GestelltWiederholtErSich)
{
    Zufall zufall(49);
    const std::vector<double> erste = folge(zufall, 20);
    zufall.stelle(49);
    EXPECT_EQ(folge(zufall, 20), erste);
    zufall.stelle(50);
    EXPECT_NE(folge(zufall, 20), erste);
}

TEST(Zufall, JedesProgrammBeginntAnders)
{
    Zufall eins;
    Zufall zwei;
    EXPECT_NE(folge(eins, 4), folge(zwei, 4));
}

TEST(Zufall, ZweimalDieselbeSekundeGibtZweiFolgen)
{
    Zufall zufall;
    zufall.Randomize(43'200);
    const auto erste = sechsZahlen(zufall);
    zufall.Randomize(43'200);
    const auto zweite = sechsZahlen(zufall);
    zufall.Randomize(43'200);
    const auto dritte = sechsZahlen(zufall);
    EXPECT_FALSE(erste == zweite && zweite == dritte);
}

TEST(Zufall, RandomizeMischtDieSekundenEin)
{
    Zufall eins;
    Zufall zwei(eins);
    eins.Randomize(1);
    zwei.Randomize(2);
    EXPECT_NE(folge(eins, 4), folge(zwei, 4));
}

TEST(Zufall, GestelltSiehtRandomizeNichtAufDieUhr)
{
    Zufall eins(7);
    Zufall zwei(7);
    eins.Randomize(1);
    zwei.Randomize(86'399.5);
    const std::vector<double> danach = folge(eins, 10);
    EXPECT_EQ(danach, folge(zwei, 10));
    Zufall ohne(7);
    EXPECT_NE(danach, folge(ohne, 10));
}

TEST(Lottozahl, GanzerBereichUndNichtsDarueber)
{
    EXPECT_EQ(lottozahl(0.0), 1);
    EXPECT_EQ(lottozahl(1.0 / 49 + 1e-12), 2);
    EXPECT_EQ(lottozahl(48.0 / 49 + 1e-12), 49);
    EXPECT_EQ(lottozahl(std::nextafter(1.0, 0.0)), 49);
}

TEST(SechsZahlen, VerschiedenUndVonEinsBis49)
{
    Zufall zufall(3);
    for (int i = 0; i < 10'000; ++i) {
        const auto zahlen = sechsZahlen(zufall);
        const std::set<int> menge(zahlen.begin(), zahlen.end());
        ASSERT_EQ(menge.size(), 6U);
        ASSERT_GE(*menge.begin(), 1);
        ASSERT_LE(*menge.rbegin(), 49);
    }
}

TEST(SechsZahlen, SindDieVerschiedenenDerFolgeInIhrerReihenfolge)
{
    Zufall zufall(1955);
    Zufall gleicher(1955);
    for (int i = 0; i < 1000; ++i) {
        std::vector<int> erwartet;
        while (erwartet.size() < 6) {
            const int zahl = lottozahl(gleicher.Rnd());
            if (std::ranges::find(erwartet, zahl) == erwartet.end())
                erwartet.push_back(zahl);
        }
        const auto zahlen = sechsZahlen(zufall);
        ASSERT_TRUE(std::ranges::equal(zahlen, erwartet));
    }
}

/// Chi-squared over 49 cells: below 48 + 5 * sqrt(96) for a fair source.
TEST(SechsZahlen, JedeZahlKommtGleichOft)
{
    Zufall zufall(1986);
    constexpr int kTipps = 98'000;
    std::array<int, 50> anzahl{};
    for (int i = 0; i < kTipps; ++i)
        for (const int zahl : sechsZahlen(zufall))
            ++anzahl[static_cast<std::size_t>(zahl)];
    constexpr double kErwartet = kTipps * 6 / 49.0;
    double summe = 0;
    for (std::size_t zahl = 1; zahl <= 49; ++zahl)
        summe += (anzahl[zahl] - kErwartet) * (anzahl[zahl] - kErwartet) / kErwartet;
    EXPECT_LT(summe, 48 + 5 * std::sqrt(96.0));
}

} // namespace

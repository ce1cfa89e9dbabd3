#include "shell/logic/QuickSort.h"

#include <algorithm>
#include <cstddef>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The plain sort, without any care for the depth of its calls.
template <class T> void sortiereNachVorschrift(std::vector<T>& feld, std::ptrdiff_t unten, std::ptrdiff_t oben)
{
    const auto bei = [&](std::ptrdiff_t k) -> T& { return feld[static_cast<std::size_t>(k)]; };
    std::ptrdiff_t i = unten;
    std::ptrdiff_t j = oben;
    const T mitte = bei(gerundeteMitte(i, j));
    do {
        while (bei(i) < mitte)
            ++i;
        while (bei(j) > mitte)
            --j;
        if (i <= j) {
            std::swap(bei(i), bei(j));
            ++i;
            --j;
        }
    } while (i <= j);
    if (unten < j)
        sortiereNachVorschrift(feld, unten, j);
    if (i < oben)
        sortiereNachVorschrift(feld, i, oben);
}

/// Equal keys that differ otherwise show whether the same elements change places.
struct Markiert {
    int schluessel;
    int marke;

    bool operator<(const Markiert& anderer) const { return schluessel < anderer.schluessel; }
    bool operator>(const Markiert& anderer) const { return schluessel > anderer.schluessel; }
    bool operator==(const Markiert&) const = default;
};

TEST(QuickSort, SortiertZahlenAlsZahlen)
{
    std::vector<Variante> feld = {10.0, 9.0, 100.0, -1.5};
    QuickSort(feld);
    EXPECT_THAT(feld, ElementsAre(-1.5, 9.0, 10.0, 100.0));
}

TEST(QuickSort, SortiertTexteAlsTexte)
{
    std::vector<Variante> feld = {"10", " 9", "100", "9", "Ä", "a"};
    QuickSort(feld);
    EXPECT_EQ(feld, (std::vector<Variante>{" 9", "10", "100", "9", "a", "Ä"}));
}

TEST(QuickSort, ZahlenStehenVorTexten)
{
    std::vector<Variante> feld = {"1", 2.0, "0", 1.0};
    QuickSort(feld);
    EXPECT_EQ(feld, (std::vector<Variante>{1.0, 2.0, "0", "1"}));
}

TEST(QuickSort, LeerUndEinzeln)
{
    std::vector<int> leer;
    QuickSort(leer);
    EXPECT_THAT(leer, IsEmpty());
    std::vector<int> eins = {7};
    QuickSort(eins);
    EXPECT_THAT(eins, ElementsAre(7));
}

TEST(QuickSort, NurDerAngegebeneBereich)
{
    std::vector<int> feld = {9, 8, 7, 6, 5, 4};
    QuickSort(feld, 1, 3);
    EXPECT_THAT(feld, ElementsAre(9, 6, 7, 8, 5, 4));
    QuickSort(feld, 3);
    EXPECT_THAT(feld, ElementsAre(9, 6, 7, 4, 5, 8));
    QuickSort(feld, {}, 2);
    EXPECT_THAT(feld, ElementsAre(6, 7, 9, 4, 5, 8));
}

TEST(QuickSort, BereichAusserhalbWirdBegrenzt)
{
    std::vector<int> feld = {3, 1, 2};
    QuickSort(feld, -5, 99);
    EXPECT_THAT(feld, ElementsAre(1, 2, 3));
    QuickSort(feld, 7, 9);
    QuickSort(feld, 2, 0);
    EXPECT_THAT(feld, ElementsAre(1, 2, 3));
}

TEST(QuickSort, MitteRundetZurGeraden)
{
    EXPECT_EQ(gerundeteMitte(0, 1), 0);
    EXPECT_EQ(gerundeteMitte(0, 2), 1);
    EXPECT_EQ(gerundeteMitte(0, 3), 2);
    EXPECT_EQ(gerundeteMitte(0, 5), 2);
    EXPECT_EQ(gerundeteMitte(1, 2), 2);
    EXPECT_EQ(gerundeteMitte(3, 6), 4);
}

TEST(QuickSort, GleicheSchluesselStehenWieNachDerVorschrift)
{
    std::mt19937 zufall(6);
    for (int runde = 0; runde < 500; ++runde) {
        std::vector<Markiert> feld(1 + zufall() % 40);
        int marke = 0;
        for (Markiert& element : feld)
            element = {static_cast<int>(zufall() % 8), marke++};
        std::vector<Markiert> vorschrift = feld;
        sortiereNachVorschrift(vorschrift, 0, std::ssize(vorschrift) - 1);
        QuickSort(feld);
        ASSERT_EQ(feld, vorschrift);
    }
}

/// Builds, from the largest element down, an array whose middle is always the largest of its range, so that each
/// step takes off one element only.
std::vector<int> schlimmsterFall(int anzahl)
{
    std::vector<int> feld(static_cast<std::size_t>(anzahl));
    for (int k = 0; k < anzahl; ++k) {
        feld[static_cast<std::size_t>(k)] = k;
        std::swap(feld[static_cast<std::size_t>(k)], feld[static_cast<std::size_t>(gerundeteMitte(0, k))]);
    }
    return feld;
}

TEST(QuickSort, UngleicheTeileFuellenDenStapelNicht)
{
    constexpr int kAnzahl = 40'000; // each a call deep, if the longer part were called
    std::vector<int> feld = schlimmsterFall(kAnzahl);
    QuickSort(feld);
    EXPECT_TRUE(std::ranges::is_sorted(feld));
    EXPECT_EQ(feld.back(), kAnzahl - 1);
}

TEST(QuickSort, NaNHaeltDieSucheNichtImUngewissen)
{
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    std::vector<double> feld = {3, kNaN, 1, kNaN, 2, kNaN};
    QuickSort(feld);
    EXPECT_EQ(std::ranges::count_if(feld, [](double wert) { return wert != wert; }), 3);
}

} // namespace

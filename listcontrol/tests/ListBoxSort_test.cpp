#include "listcontrol/logic/ListBoxSort.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;

using Texte = std::vector<std::string>;

/// The plain quicksort: pivot at the rounded middle, scans held by the ends of the range.
void sortiereNachVorschrift(Texte& feld, std::ptrdiff_t erster, std::ptrdiff_t letzter)
{
    const auto bei = [&](std::ptrdiff_t k) -> std::string& { return feld[static_cast<std::size_t>(k)]; };
    std::ptrdiff_t i = erster;
    std::ptrdiff_t j = letzter;
    const std::string mitte = bei((erster + letzter) / 2);
    while (i <= j) {
        while (bei(i) < mitte && i < letzter)
            ++i;
        while (bei(j) > mitte && j > erster)
            --j;
        if (i <= j)
            std::swap(bei(i++), bei(j--));
    }
    if (erster < j)
        sortiereNachVorschrift(feld, erster, j);
    if (i < letzter)
        sortiereNachVorschrift(feld, i, letzter);
}

Texte zufaellige(std::size_t anzahl, std::mt19937& zufall)
{
    Texte feld(anzahl);
    for (std::string& text : feld) {
        text = std::to_string(zufall() % 50);
        text.insert(0, zufall() % 3, ' ');
    }
    return feld;
}

TEST(ListBoxSort, OrdnungDerBytes)
{
    Texte feld = {"99", "103", " 9", "11", "100", "10"};
    ListBoxSort(feld, 0, 5);
    EXPECT_THAT(feld, ElementsAre(" 9", "10", "100", "103", "11", "99"));
}

TEST(ListBoxSort, GrossVorKleinVorUmlaut)
{
    Texte feld = {"ä", "b", "Ä", "B", "€", ""};
    ListBoxSort(feld, 0, 5);
    EXPECT_THAT(feld, ElementsAre("", "B", "b", "Ä", "ä", "€"));
}

TEST(ListBoxSort, Absteigend)
{
    Texte feld = {"2", "3", "1", "2"};
    ListBoxSort(feld, 0, 3, true);
    EXPECT_THAT(feld, ElementsAre("3", "2", "2", "1"));
}

TEST(ListBoxSort, BereichAusEinemElementBleibt)
{
    Texte feld = {"3", "2", "1"};
    ListBoxSort(feld, 1, 1);
    EXPECT_THAT(feld, ElementsAre("3", "2", "1"));
}

TEST(ListBoxSort, NurDerBereich)
{
    Texte feld = {"9", "8", "7", "6"};
    ListBoxSort(feld, 1, 2);
    EXPECT_THAT(feld, ElementsAre("9", "7", "8", "6"));
}

TEST(ListBoxSort, BereichAusserhalbWirdBegrenzt)
{
    Texte leer;
    ListBoxSort(leer, 0, 10);
    EXPECT_TRUE(leer.empty());
    Texte feld = {"2", "1"};
    ListBoxSort(feld, 5, 9);
    EXPECT_THAT(feld, ElementsAre("2", "1"));
    ListBoxSort(feld, 1, 0);
    EXPECT_THAT(feld, ElementsAre("2", "1"));
    ListBoxSort(feld, 0, 99);
    EXPECT_THAT(feld, ElementsAre("1", "2"));
}

TEST(ListBoxSort, GibtWasDasQuicksortGibt)
{
    std::mt19937 zufall(12);
    for (std::size_t anzahl = 1; anzahl < 200; ++anzahl) {
        Texte feld = zufaellige(anzahl, zufall);
        Texte vorschrift = feld;
        sortiereNachVorschrift(vorschrift, 0, std::ssize(vorschrift) - 1);
        ListBoxSort(feld, 0, anzahl - 1);
        ASSERT_EQ(feld, vorschrift);
    }
}

TEST(ListBoxSort, ListeWirdNeuGefuelltUndNichtsIstGewaehlt)
{
    ListenModell liste({.MultiSelect = true});
    liste.fuelle({"b", "c", "a"});
    liste.SetListIndex(1);
    liste.SetSelected(2, true);
    const std::optional<double> dauer = ListBoxSort(liste);
    ASSERT_TRUE(dauer);
    EXPECT_GE(*dauer, 0.0);
    EXPECT_THAT(liste.zeilen(), ElementsAre("a", "b", "c"));
    EXPECT_EQ(liste.ListIndex(), ListenModell::kKeiner);
    EXPECT_EQ(liste.SelCount(), 0U);
    ListBoxSort(liste, true);
    EXPECT_THAT(liste.zeilen(), ElementsAre("c", "b", "a"));
}

TEST(ListBoxSort, LeereListe)
{
    ListenModell liste;
    EXPECT_TRUE(ListBoxSort(liste));
    EXPECT_EQ(liste.ListCount(), 0U);
}

TEST(ListBoxSort, ZeilenAufAnfrageBleibenWieSieSind)
{
    ListenModell liste;
    liste.aufAnfrage(3, [](std::size_t i) { return std::to_string(9 - i); });
    EXPECT_EQ(ListBoxSort(liste), std::nullopt);
    EXPECT_EQ(liste.List(0), "9");
    EXPECT_EQ(liste.ListCount(), 3U);
}

TEST(ListBoxSort, SortierteListeBleibtAufsteigend)
{
    ListenModell liste({.Sorted = true});
    liste.fuelle({"b", "a"});
    ListBoxSort(liste, true);
    EXPECT_THAT(liste.zeilen(), ElementsAre("a", "b"));
}

} // namespace

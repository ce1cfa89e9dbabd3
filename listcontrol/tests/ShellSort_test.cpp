#include "listcontrol/logic/modShellSort.h"
#include "listcontrol/logic/modSortCallback.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

using testing::ElementsAre;

int vergleiche(int links, int rechts)
{
    return links > rechts ? 1 : (links < rechts ? -1 : 0);
}

int vergleicheOrte(const void* links, const void* rechts)
{
    return vergleiche(*static_cast<const std::int32_t*>(links), *static_cast<const std::int32_t*>(rechts));
}

/// A key, and a mark that tells equal keys apart.
struct Markiert {
    int schluessel;
    int marke;

    bool operator==(const Markiert&) const = default;
};

std::vector<Markiert> zufaellige(std::size_t anzahl, int schluessel, std::mt19937& zufall)
{
    std::vector<Markiert> feld(anzahl);
    int marke = 0;
    for (Markiert& element : feld)
        element = {static_cast<int>(zufall() % static_cast<unsigned>(schluessel)), marke++};
    return feld;
}

/// The passes written out plainly: a straight insertion for each gap of the series, swap by swap.
void sortiereSchlicht(std::vector<Markiert>& feld)
{
    std::vector<std::size_t> abstaende = {1};
    while (abstaende.back() * 3 + 1 <= feld.size())
        abstaende.push_back(abstaende.back() * 3 + 1);
    for (auto abstand = abstaende.rbegin(); abstand != abstaende.rend(); ++abstand) {
        for (std::size_t i = *abstand; i < feld.size(); ++i)
            for (std::size_t k = i; k >= *abstand && feld[k - *abstand].schluessel > feld[k].schluessel; k -= *abstand)
                std::swap(feld[k], feld[k - *abstand]);
    }
}

TEST(ShellSort, SortiertRohenSpeicher)
{
    std::vector<std::int32_t> feld = {5, -1, 3, 3, 0, 9, 2};
    ShellSort(feld.data(), feld.size(), sizeof(std::int32_t), &vergleicheOrte);
    EXPECT_THAT(feld, ElementsAre(-1, 0, 2, 3, 3, 5, 9));
}

TEST(ShellSort, NullOderEinElementBewegtNichts)
{
    int vergleiche = 0;
    const auto zaehlend = [&](const void*, const void*) {
        ++vergleiche;
        return 1;
    };
    std::int32_t eins = 7;
    ShellSort(nullptr, 0, sizeof(eins), zaehlend);
    ShellSort(&eins, 1, sizeof(eins), zaehlend);
    EXPECT_EQ(eins, 7);
    EXPECT_EQ(vergleiche, 0);

    std::vector<std::string> leer;
    ShellSort(leer, [](const std::string&, const std::string&) { return 1; });
    EXPECT_TRUE(leer.empty());
    std::vector<std::string> einer = {"a"};
    ShellSort(einer, [](const std::string&, const std::string&) { return 1; });
    EXPECT_THAT(einer, ElementsAre("a"));
}

TEST(ShellSort, NurEinsGiltAlsDahinter)
{
    std::vector<int> feld = {3, 2, 1};
    ShellSort(feld, [](int links, int rechts) { return links > rechts ? 2 : -1; });
    EXPECT_THAT(feld, ElementsAre(3, 2, 1));
}

TEST(ShellSort, FasstNurDenAngegebenenSpeicherAn)
{
    std::vector<std::int32_t> feld = {9, 5, 4, 3, 1};
    ShellSort(feld.data() + 1, 3, sizeof(std::int32_t), &vergleicheOrte);
    EXPECT_THAT(feld, ElementsAre(9, 3, 4, 5, 1));
}

TEST(ShellSort, ElementeBeliebigerGroesse)
{
    struct Breit {
        std::int32_t schluessel;
        char rest[61];
    };
    std::mt19937 zufall(1);
    std::vector<Breit> feld(200);
    for (Breit& element : feld) {
        element.schluessel = static_cast<std::int32_t>(zufall() % 1000);
        std::ranges::fill(element.rest, static_cast<char>(element.schluessel % 100));
    }
    ShellSort(feld.data(), feld.size(), sizeof(Breit), &vergleicheOrte);
    for (std::size_t i = 0; i < feld.size(); ++i) {
        EXPECT_TRUE(i == 0 || feld[i - 1].schluessel <= feld[i].schluessel);
        EXPECT_EQ(feld[i].rest[60], static_cast<char>(feld[i].schluessel % 100));
    }
}

TEST(ShellSort, GleicheSchluesselStehenWieNachDenAbstaenden)
{
    std::mt19937 zufall(49);
    for (std::size_t anzahl = 0; anzahl < 150; ++anzahl) {
        const std::vector<Markiert> anfang = zufaellige(anzahl, 6, zufall);
        std::vector<Markiert> schlicht = anfang;
        sortiereSchlicht(schlicht);

        std::vector<Markiert> typisiert = anfang;
        ShellSort(typisiert,
                  [](const Markiert& l, const Markiert& r) { return vergleiche(l.schluessel, r.schluessel); });
        ASSERT_EQ(typisiert, schlicht) << anzahl;

        std::vector<Markiert> roh = anfang;
        ShellSort(roh.data(), roh.size(), sizeof(Markiert), &vergleicheOrte);
        ASSERT_EQ(roh, schlicht) << anzahl;
    }
}

TEST(ShellSort, SortiertAlleFolgenBisSiebenElemente)
{
    for (int anzahl = 0; anzahl <= 7; ++anzahl) {
        std::vector<int> folge(static_cast<std::size_t>(anzahl));
        std::iota(folge.begin(), folge.end(), 0);
        do {
            std::vector<int> feld = folge;
            ShellSort(feld, &vergleiche);
            ASSERT_TRUE(std::ranges::is_sorted(feld));
        } while (std::ranges::next_permutation(folge).found);
    }
}

TEST(ShellSort, TexteWerdenNichtByteweiseKopiert)
{
    std::mt19937 zufall(7);
    std::vector<std::string> feld(3000);
    for (std::string& text : feld)
        text.assign(zufall() % 60, static_cast<char>('a' + zufall() % 26));
    std::vector<std::string> erwartet = feld;
    std::ranges::sort(erwartet);
    ShellSort(feld, [](const std::string& l, const std::string& r) { return l > r ? 1 : 0; });
    EXPECT_EQ(feld, erwartet);
}

struct Zeile {
    std::vector<std::string> spalten;

    const std::string& Text(int spalte) const { return spalten[static_cast<std::size_t>(spalte)]; }
};

TEST(SortCallback, OhneGrossKleinNachDerSpalte)
{
    const Zeile a{{"x", "Ähre"}};
    const Zeile b{{"X", "ähren"}};
    EXPECT_EQ((SortCallback{0, Sortierrichtung::Aufsteigend}(a, b)), 0);
    EXPECT_EQ((SortCallback{1, Sortierrichtung::Aufsteigend}(a, b)), -1);
    EXPECT_EQ((SortCallback{1, Sortierrichtung::Aufsteigend}(b, a)), 1);
}

TEST(SortCallback, RichtungEinsDrehtDasVorzeichen)
{
    const Zeile a{{"1"}};
    const Zeile b{{"2"}};
    EXPECT_EQ(static_cast<int>(Sortierrichtung::Absteigend), 1);
    EXPECT_EQ((SortCallback{0, Sortierrichtung::Absteigend}(a, b)), 1);
    EXPECT_EQ((SortCallback{0, Sortierrichtung::Absteigend}(b, a)), -1);
    EXPECT_EQ((SortCallback{0, Sortierrichtung::Absteigend}(a, a)), 0);
}

TEST(SortCallback, MitShellSort)
{
    std::vector<Zeile> zeilen = {{{"b", "1"}}, {{"A", "3"}}, {{"C", "2"}}};
    ShellSort(zeilen, SortCallback{0, Sortierrichtung::Aufsteigend});
    EXPECT_EQ(zeilen[0].Text(0) + zeilen[1].Text(0) + zeilen[2].Text(0), "AbC");
    ShellSort(zeilen, SortCallback{1, Sortierrichtung::Absteigend});
    EXPECT_EQ(zeilen[0].Text(1) + zeilen[1].Text(1) + zeilen[2].Text(1), "321");
}

} // namespace

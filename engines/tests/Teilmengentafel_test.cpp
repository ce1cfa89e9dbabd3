#include "engines/logic/Teilmengentafel.h"
#include "engines/tests/Zahlenreihen.h"
#include "shell/logic/Binomial.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

std::size_t enthalten(Zahlenmenge menge, const std::vector<Zahlenmenge>& reihen)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(reihen, [menge](Zahlenmenge reihe) { return (reihe & menge) == menge; }));
}

template <class Zaehler> void pruefeTabellen(int n, const std::vector<Zahlenmenge>& reihen)
{
    const Teilmengentafel<Zaehler> tafel(n, reihen);
    for (int k = 2; k <= 5; ++k) {
        const auto mengen = alleMengen(n, k);
        const auto tabelle = tafel.tabelle(k);
        ASSERT_EQ(tabelle.size(), mengen.size());
        for (std::size_t i = 0; i < mengen.size(); ++i)
            ASSERT_EQ(tabelle[i], enthalten(mengen[i], reihen)) << n << " " << k << " " << i;
    }
}

TEST(Teilmengentafel, ZaehltJedeMengeAnIhremPlatz)
{
    std::mt19937 zufall(49);
    for (const int n : {6, 7, 11}) {
        std::vector<Zahlenmenge> reihen = zufallsreihen(zufall, n, 40);
        for (int anzahl = 0; anzahl <= 5; ++anzahl)
            reihen.push_back(zufallsmenge(zufall, n, anzahl));
        pruefeTabellen<std::uint16_t>(n, reihen);
        pruefeTabellen<std::uint32_t>(n, reihen);
    }
}

TEST(Teilmengentafel, LaesstZahlenUeberNWeg)
{
    const std::vector<Zahlenmenge> reihen{zahlenmenge(std::array{1, 2, 3, 4, 48, 49})};
    const Teilmengentafel<std::uint16_t> tafel(5, reihen);
    EXPECT_EQ(tafel.tabelle(4)[0], 1);
    EXPECT_EQ(tafel.tabelle(4)[1], 0);
    EXPECT_TRUE(tafel.ganze().empty());
}

TEST(Teilmengentafel, NenntGanzeReihenInIhrerOrdnung)
{
    const auto erste = zahlenmenge(std::array{1, 2, 3, 4, 5, 6});
    const auto letzte = zahlenmenge(std::array{44, 45, 46, 47, 48, 49});
    const auto mitte = zahlenmenge(std::array{5, 10, 20, 30, 40, 49});
    const std::vector<Zahlenmenge> reihen{letzte, mitte, erste, letzte, zahlenmenge(std::array{7, 8}), letzte};
    const Teilmengentafel<std::uint16_t> tafel(49, reihen);
    ASSERT_EQ(tafel.ganze().size(), 3U);
    EXPECT_EQ(tafel.ganze()[0].menge, erste);
    EXPECT_EQ(tafel.ganze()[0].nummer, 0U);
    EXPECT_EQ(tafel.ganze()[0].anzahl, 1U);
    EXPECT_EQ(tafel.ganze()[1].menge, mitte);
    EXPECT_EQ(tafel.ganze()[1].nummer, 6'324'250U);
    EXPECT_EQ(tafel.ganze()[2].menge, letzte);
    EXPECT_EQ(tafel.ganze()[2].nummer, 13'983'815U);
    EXPECT_EQ(tafel.ganze()[2].anzahl, 3U);
}

TEST(Teilmengentafel, KommtOhneReihenUndOhneZahlenAus)
{
    const Teilmengentafel<std::uint16_t> ohneReihen(49, {});
    EXPECT_EQ(ohneReihen.tabelle(5).size(), 1'906'884U);
    EXPECT_EQ(std::ranges::max(ohneReihen.tabelle(2)), 0);
    const Teilmengentafel<std::uint32_t> ohneZahlen(0, {});
    EXPECT_TRUE(ohneZahlen.tabelle(2).empty());
}

TEST(Zahlenmenge, NimmtNurZahlenUndJedeEinmal)
{
    EXPECT_EQ(zahlenmenge(std::array{0, 1, 1, 49, 50, -7}), Zahlenmenge{1} << 1 | Zahlenmenge{1} << 49);
    EXPECT_EQ(zahlenmenge(std::array{INT32_MIN, INT32_MAX, 64, 65}), 0U);
    EXPECT_EQ(gemeinsame(zahlenmenge(std::array{1, 2, 3}), zahlenmenge(std::array{2, 3, 4})), 2);
}

TEST(Binomial, IstGenau)
{
    EXPECT_EQ(Binomial(49, 6), 13'983'816);
    EXPECT_EQ(Binomial(49, 24), 63'205'303'218'876);
    EXPECT_EQ(Binomial(5, 0), 1);
    EXPECT_EQ(Binomial(5, 6), 0);
    EXPECT_EQ(Binomial(5, -1), 0);
}

} // namespace

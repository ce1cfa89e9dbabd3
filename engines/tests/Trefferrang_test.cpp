#include "engines/logic/Trefferrang.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

std::vector<std::string> zeilen(const Trefferrang& rang)
{
    std::vector<std::string> alle;
    for (std::size_t i = 0; i < rang.anzahl(); ++i)
        alle.push_back(rang.zeile(i));
    return alle;
}

TEST(Trefferrang, ZeileHatIhreBreiten)
{
    EXPECT_EQ(trefferzeile({0, 1, 12, 88}, 1), " 0 |  1 | 12 |  88 |    01 02 03 04 05 06");
    EXPECT_EQ(trefferzeile({100, 10, 1, 1000}, 13'983'816), "100 | 10 |  1 | 1000 |    44 45 46 47 48 49");
}

TEST(Trefferrang, IstLeerVorDemErsten)
{
    Trefferrang rang;
    rang.ordne();
    EXPECT_EQ(rang.anzahl(), 0U);
}

TEST(Trefferrang, OrdnetNachDemText)
{
    Trefferrang rang;
    std::int32_t nummer = 0;
    for (const std::uint32_t n3 : {1000U, 99U, 100U, 9U, 999U, 10'000U, 98'301U, 0U})
        for (const std::uint32_t n4 : {100U, 7U, 12U})
            rang.fuegeHinzu({0, n4 / 12, n4, n3}, ++nummer);
    rang.fuegeHinzu({2, 0, 0, 0}, ++nummer);
    rang.fuegeHinzu({0, 0, 7, 9}, ++nummer);
    rang.ordne();

    const auto alle = zeilen(rang);
    ASSERT_EQ(alle.size(), 26U);
    EXPECT_TRUE(std::ranges::is_sorted(alle));
    EXPECT_EQ(alle.front(), trefferzeile({0, 0, 7, 0}, 23));
    EXPECT_EQ(alle.back(), trefferzeile({2, 0, 0, 0}, 25));
}

TEST(Trefferrang, GleicheTrefferStehenInDerFolgeDerKombinationen)
{
    Trefferrang rang;
    for (const std::int32_t nummer : {3, 7, 12'000'000})
        rang.fuegeHinzu({0, 0, 1, 2}, nummer);
    rang.ordne();
    EXPECT_EQ(rang.nummer(0), 3);
    EXPECT_EQ(rang.nummer(1), 7);
    EXPECT_EQ(rang.nummer(2), 12'000'000);
}

} // namespace

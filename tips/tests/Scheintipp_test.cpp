#include "tips/logic/Scheintipp.h"

#include <gtest/gtest.h>

namespace {

constexpr Kombination kZahlen{3, 7, 12, 23, 34, 45};

TEST(Scheintipp, ZahlenUndSuperzahlNachIhrenTrennern)
{
    EXPECT_EQ(scheintippAus("202418. 3. 7.12.23.34.45:5", 4), (Scheintipp{4, kZahlen, 5, "202418"}));
    EXPECT_EQ(scheintippAus("202418.3.7.12.23.34.45:5", 1), (Scheintipp{1, kZahlen, 5, "202418"}));
    EXPECT_EQ(scheintippAus("  202418. 3. 7.12.23.34.45: 5 ", 1), (Scheintipp{1, kZahlen, 5, "202418"}));
}

TEST(Scheintipp, WasKeineZifferIstIstKeineSuperzahl)
{
    for (const char* ende : {"", ":", ":x", ":12", ":-1", ":ä", ": "})
        EXPECT_EQ(scheintippAus("202418. 3. 7.12.23.34.45" + std::string(ende), 1)->superzahl,
                  Scheintipp::kOhneSuperzahl)
            << ende;
    EXPECT_EQ(scheintippAus("202418. 3. 7.12.23.34.45:0:9", 1)->superzahl, 0);
}

TEST(Scheintipp, FalscheZahlenBleibenWieSieStehen)
{
    EXPECT_EQ(scheintippAus("202418.45. 0.50.-1.45. x:5", 1)->zahlen, (Kombination{45, 0, 50, -1, 45, 0}));
    EXPECT_EQ(scheintippAus("202418. 3", 1)->zahlen, (Kombination{3, 0, 0, 0, 0, 0}));
    EXPECT_EQ(scheintippAus("202418. 1. 2. 3. 4. 5. 6. 7. 8:5", 1)->zahlen, (Kombination{1, 2, 3, 4, 5, 6}));
}

TEST(Scheintipp, EineZeileOhneZahlIstKeinTipp)
{
    for (const char* zeile : {"", "   ", ":", ":5", "202418", "202418......:5", "202418. 0.50.-1.99. x. y:5", "12:3"})
        EXPECT_EQ(scheintippAus(zeile, 1), std::nullopt) << zeile;
    EXPECT_EQ(scheintippAus(std::string(300, '.'), 1), std::nullopt);
}

} // namespace

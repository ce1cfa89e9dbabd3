#include "engines/logic/Positionsrechner.h"

#include <gtest/gtest.h>

namespace {

TEST(Positionsrechner, DieSchritteEndenAnIhrenGrenzen)
{
    struct Fall {
        std::size_t schritt;
        std::int64_t letzter; ///< the last value that is stepped from
        std::int64_t ziel;
    };
    for (const Fall& fall :
         {Fall{0, 2, 1}, Fall{1, 13'983'815, 13'983'816}, Fall{2, 11, 1}, Fall{3, 13'983'805, 13'983'815},
          Fall{4, 101, 1}, Fall{5, 13'983'715, 13'983'815}, Fall{6, 1001, 1}, Fall{7, 13'982'815, 13'983'815}}) {
        const Positionsschritt& schritt = kPositionsschritte[fall.schritt];
        EXPECT_EQ(nachSchritt(fall.letzter, schritt), fall.ziel);
        const std::int64_t dahinter = fall.letzter + (schritt.weite < 0 ? -1 : 1);
        EXPECT_FALSE(nachSchritt(dahinter, schritt)) << dahinter;
        EXPECT_EQ(nachSchritt(5'000'000, schritt), 5'000'000 + schritt.weite);
    }
}

TEST(Positionsrechner, DieErgebniszeile)
{
    EXPECT_EQ(positionsergebnis({5, 10, 20, 30, 40, 49}, 6'324'251),
              "Die Kombination:   5 10 20 30 40 49 -> steht an Position: 6.324.251");
    EXPECT_EQ(positionsergebnis({1, 2, 3, 4, 5, 6}, 1), "Die Kombination:   1  2  3  4  5  6 -> steht an Position: 1");
    EXPECT_EQ(positionsergebnis({44, 45, 46, 47, 48, 49}, 13'983'816),
              "Die Kombination:  44 45 46 47 48 49 -> steht an Position: 13.983.816");
}

} // namespace

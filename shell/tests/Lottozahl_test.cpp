#include "shell/logic/Lottozahl.h"

#include <gtest/gtest.h>
#include <limits>

TEST(Lottozahl, EsGibtEinsBis49)
{
    EXPECT_EQ(kHoechsteZahl, 49);
    for (int zahl = 1; zahl <= 49; ++zahl)
        EXPECT_TRUE(gibtEs(zahl)) << zahl;
    for (const int keine : {std::numeric_limits<int>::min(), -1, 0, 50, std::numeric_limits<int>::max()})
        EXPECT_FALSE(gibtEs(keine)) << keine;
}

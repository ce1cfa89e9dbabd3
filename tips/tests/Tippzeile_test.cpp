#include "tips/logic/Tippzeile.h"

#include <gmock/gmock.h>

TEST(Tippzeile, NurGueltigeReihenMitElfLeerzeichenDavor)
{
    EXPECT_THAT(tippzeilen({{{" 3", " 7", "12", "23", "34", "45"}, "5"},
                            {},
                            {{"5", "3", "7", "8", "9", "10"}, ""},
                            {{"1", "02", "3", "4", "5", "49"}, ""}}),
                testing::ElementsAre("            3  7 12 23 34 45", "            1  2  3  4  5 49"));
}

#include "tips/logic/Tippcursor.h"

#include <gtest/gtest.h>

TEST(Tippcursor, GehtFeldFuerFeldImKreis)
{
    Tippcursor cursor;
    for (int schritt = 0; schritt < 12 * 6; ++schritt) {
        EXPECT_EQ(cursor, (Tippcursor{schritt / 6 + 1, schritt % 6}));
        EXPECT_EQ(cursor.vor().zurueck(), cursor);
        cursor = cursor.vor();
    }
    EXPECT_EQ(cursor, Tippcursor{});
    EXPECT_EQ(cursor.zurueck(), (Tippcursor{12, 5}));
}

TEST(Tippcursor, TieferUndHoeherBehaltenDasFeld)
{
    EXPECT_EQ((Tippcursor{1, 3}.tiefer()), (Tippcursor{2, 3}));
    EXPECT_EQ((Tippcursor{12, 3}.tiefer()), (Tippcursor{1, 3}));
    EXPECT_EQ((Tippcursor{12, 3}.hoeher()), (Tippcursor{11, 3}));
    EXPECT_EQ((Tippcursor{1, 3}.hoeher()), (Tippcursor{12, 3}));
}

#include "tools/muster/Aufruf.h"

#include <gtest/gtest.h>

using namespace std::chrono;

TEST(Aufruf, NimmtDenOrdnerAllein)
{
    const auto aufruf = liesAufruf({"/tmp/muster"});
    ASSERT_TRUE(aufruf);
    EXPECT_EQ(aufruf->ordner, "/tmp/muster");
    EXPECT_FALSE(aufruf->stand);
}

TEST(Aufruf, NimmtDenStandVorUndHinterDemOrdner)
{
    const sys_days stand = year{2026} / July / 24;
    EXPECT_EQ(liesAufruf({"--stand", "2026-07-24", "x"})->stand, stand);
    EXPECT_EQ(liesAufruf({"x", "--stand", "2026-07-24"})->stand, stand);
}

TEST(Aufruf, LehntUnverstandenesAb)
{
    EXPECT_FALSE(liesAufruf({}));
    EXPECT_FALSE(liesAufruf({"a", "b"}));
    EXPECT_FALSE(liesAufruf({"--hilfe"}));
    EXPECT_FALSE(liesAufruf({"a", "--stand"}));
    EXPECT_FALSE(liesAufruf({"--stand", "gestern", "a"}));
    EXPECT_FALSE(liesAufruf({"--stand", "2026-07-24", "--stand", "2026-07-25", "a"}));
}

TEST(Aufruf, StandIstEinTagDenEsGibt)
{
    EXPECT_TRUE(liesStand("2024-02-29"));
    EXPECT_FALSE(liesStand("2026-02-29"));
    EXPECT_FALSE(liesStand("2026-13-01"));
    EXPECT_FALSE(liesStand("2026-00-01"));
    EXPECT_FALSE(liesStand("26-07-24"));
    EXPECT_FALSE(liesStand("2026/07/24"));
    EXPECT_FALSE(liesStand("2026-07-2x"));
    EXPECT_FALSE(liesStand("2026-07-24 "));
    EXPECT_FALSE(liesStand(""));
}

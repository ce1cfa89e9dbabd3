#include "shell/logic/Zahlen.h"

#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <optional>

namespace {

TEST(Ganzzahl, GanzerTextMitBlanksAussen)
{
    EXPECT_EQ(ganzzahl("49"), 49);
    EXPECT_EQ(ganzzahl("  49 "), 49);
    EXPECT_EQ(ganzzahl("007"), 7);
    EXPECT_EQ(ganzzahl("-3"), -3);
    EXPECT_EQ(ganzzahl("+3"), 3);
}

TEST(Ganzzahl, AllesAndereIstKeine)
{
    for (const char* const text :
         {"", " ", "-", "+", "+-3", "--3", "4 9", "4a", "a4", "4,0", "4.0", "1e3", "0x10", "\t4"}) {
        EXPECT_EQ(ganzzahl(text), std::nullopt) << text;
    }
}

TEST(Ganzzahl, Grenzen)
{
    EXPECT_EQ(ganzzahl("2147483647"), INT32_MAX);
    EXPECT_EQ(ganzzahl("-2147483648"), INT32_MIN);
    EXPECT_EQ(ganzzahl("2147483648"), std::nullopt);
    EXPECT_EQ(ganzzahl("-2147483649"), std::nullopt);
    EXPECT_EQ(ganzzahl("99999999999999999999"), std::nullopt);
}

TEST(FuehrendeZahl, LiestBisZumErstenAnderenZeichen)
{
    EXPECT_EQ(fuehrendeZahl("49"), 49);
    EXPECT_EQ(fuehrendeZahl("  12 mal"), 12);
    EXPECT_EQ(fuehrendeZahl("4x9"), 4);
    EXPECT_EQ(fuehrendeZahl("-5,5"), -5);
    EXPECT_EQ(fuehrendeZahl("+7"), 7);
}

TEST(FuehrendeZahl, OhneZiffernNull)
{
    EXPECT_EQ(fuehrendeZahl(""), 0);
    EXPECT_EQ(fuehrendeZahl("x4"), 0);
    EXPECT_EQ(fuehrendeZahl("-"), 0);
}

TEST(FuehrendeZahl, ZuGrosseBleibtAmRand)
{
    EXPECT_EQ(fuehrendeZahl("99999999999 mal"), INT32_MAX);
    EXPECT_EQ(fuehrendeZahl("-99999999999"), INT32_MIN);
}

TEST(RundeZurGeraden, HalbeGehenZurGeraden)
{
    EXPECT_EQ(rundeZurGeraden(0.5), 0);
    EXPECT_EQ(rundeZurGeraden(1.5), 2);
    EXPECT_EQ(rundeZurGeraden(2.5), 2);
    EXPECT_EQ(rundeZurGeraden(-0.5), 0);
    EXPECT_EQ(rundeZurGeraden(-1.5), -2);
    EXPECT_EQ(rundeZurGeraden(-2.5), -2);
    EXPECT_EQ(rundeZurGeraden(2.4999), 2);
    EXPECT_EQ(rundeZurGeraden(2.5001), 3);
    EXPECT_EQ(rundeZurGeraden(7.0), 7);
}

TEST(RundeZurGeraden, WasKeineGanzeZahlWerdenKann)
{
    EXPECT_EQ(rundeZurGeraden(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_EQ(rundeZurGeraden(std::numeric_limits<double>::infinity()), INT64_MAX);
    EXPECT_EQ(rundeZurGeraden(-1e300), INT64_MIN);
}

TEST(FuehrendeDezimalzahl, MitPunktUndOhne)
{
    EXPECT_EQ(fuehrendeDezimalzahl(" 49.5"), 49.5);
    EXPECT_EQ(fuehrendeDezimalzahl("7x"), 7);
    EXPECT_EQ(fuehrendeDezimalzahl("-3"), -3);
    EXPECT_EQ(fuehrendeDezimalzahl("+3.25"), 3.25);
    EXPECT_EQ(fuehrendeDezimalzahl("1,5"), 1);
    for (const char* keine : {"", "x", "inf", "nan"})
        EXPECT_EQ(fuehrendeDezimalzahl(keine), 0) << keine;
    EXPECT_EQ(fuehrendeDezimalzahl(std::string(400, '9')), 0);
}

TEST(Zahlentext, ZweiStellenUndEinLeerzeichen)
{
    EXPECT_EQ(zahlentext({}), "");
    EXPECT_EQ(zahlentext(std::array{1, 2, 49}), "01 02 49");
    EXPECT_EQ(zahlentext(std::array{0, 99, 100}), "00 99 100");
    EXPECT_EQ(zahlentext(std::array{-5, INT32_MIN, INT32_MAX}), "-05 -2147483648 2147483647");
}

} // namespace

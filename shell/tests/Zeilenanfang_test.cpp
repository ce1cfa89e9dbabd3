#include "shell/logic/Zeilenanfang.h"

#include <gtest/gtest.h>

namespace {

constexpr auto kZiehung = "0123    So, 09.10.1955 1955/41  03 12 13 16 23 41";

TEST(Zeilenanfang, DasErsteFeldIstDieGetippteZahl)
{
    EXPECT_EQ(passung(kZiehung, "0123"), Passung::ErstesFeld);
    EXPECT_EQ(passung(kZiehung, "123"), Passung::ErstesFeld);
    EXPECT_EQ(passung("  17   452 mal", "17"), Passung::ErstesFeld);
    EXPECT_EQ(passung("1998/05", "1998"), Passung::ErstesFeld);
    EXPECT_EQ(passung("17\t03\t12", "17"), Passung::ErstesFeld);
    EXPECT_EQ(passung("Sa 0017", "17"), Passung::ErstesFeld);
    EXPECT_EQ(passung("0", "00"), Passung::ErstesFeld);
}

TEST(Zeilenanfang, JahrUndWocheStehenAuchWeiterHinten)
{
    EXPECT_EQ(passung(kZiehung, "1955"), Passung::Feld);
    EXPECT_EQ(passung(kZiehung, "1955/4"), Passung::AnfangEinesFeldes);
    EXPECT_EQ(passung(kZiehung, "1955/42"), Passung::Keine);
    EXPECT_EQ(passung(kZiehung, "09.10.1955"), Passung::AnfangEinesFeldes);
}

TEST(Zeilenanfang, EinAnfangIstWenigerAlsDieZahl)
{
    EXPECT_EQ(passung("1955/41 3", "19"), Passung::AnfangErstesFeld);
    EXPECT_EQ(passung("7 1955/41", "19"), Passung::AnfangEinesFeldes);
    EXPECT_LT(Passung::ErstesFeld, Passung::Feld);
    EXPECT_LT(Passung::Feld, Passung::AnfangErstesFeld);
    EXPECT_LT(Passung::AnfangErstesFeld, Passung::AnfangEinesFeldes);
}

TEST(Zeilenanfang, GruppenEinerGrossenZahlGehoerenZusammen)
{
    EXPECT_EQ(passung("      82.684  ->  1970/24", "82684"), Passung::ErstesFeld);
    EXPECT_EQ(passung("      82.684  ->  1970/24", "8268"), Passung::AnfangErstesFeld);
    EXPECT_EQ(passung("      82.684  ->  1970/24", "82.6"), Passung::AnfangErstesFeld);
    EXPECT_EQ(passung("13.983.816 44 45", "13983816"), Passung::ErstesFeld);
    EXPECT_EQ(passung("9.10.1955", "9"), Passung::ErstesFeld);
    EXPECT_EQ(passung("9.10.1955", "910"), Passung::Keine);
    EXPECT_EQ(passung("82.684", "82"), Passung::AnfangErstesFeld);
}

TEST(Zeilenanfang, NachDemDrittenFeldSiehtNiemandNach)
{
    EXPECT_EQ(passung(kZiehung, "41"), Passung::Keine);
    EXPECT_EQ(passung("1 2 3 4", "3"), Passung::Feld);
    EXPECT_EQ(passung("1 2 3 4", "4"), Passung::Keine);
}

TEST(Zeilenanfang, OhneZahlPasstNichts)
{
    EXPECT_EQ(passung("", "1"), Passung::Keine);
    EXPECT_EQ(passung("   ", "1"), Passung::Keine);
    EXPECT_EQ(passung("- Samstag a1", "1"), Passung::Keine);
}

} // namespace

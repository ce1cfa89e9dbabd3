#include "tools/muster/Spielwoche.h"

#include <gtest/gtest.h>

using namespace std::chrono;

TEST(Spielwoche, ErsteZiehungenDerSpiele)
{
    EXPECT_EQ(spielwocheVon(year{1955} / October / 9), (Spielwoche{1955, 41}));
    EXPECT_EQ(spielwocheVon(year{1986} / June / 4), (Spielwoche{1986, 23}));
}

TEST(Spielwoche, ZusatzzahlBeginntInDer25Woche1956)
{
    EXPECT_EQ(spielwocheVon(year{1956} / June / 17), (Spielwoche{1956, 25}));
}

TEST(Spielwoche, VerlegteZiehungGehoertZuIhremSonntag)
{
    EXPECT_EQ(spielwocheVon(year{1955} / December / 25), (Spielwoche{1955, 52}));
    EXPECT_EQ(spielwocheVon(year{1955} / December / 26), (Spielwoche{1955, 52}));
    EXPECT_EQ(spielwocheVon(year{1961} / December / 24), (Spielwoche{1961, 52}));
    EXPECT_EQ(spielwocheVon(year{1961} / December / 26), (Spielwoche{1961, 52}));
    EXPECT_EQ(spielwocheVon(year{1961} / December / 31), (Spielwoche{1961, 53}));
}

TEST(Spielwoche, SamstageVon1965GehoerenZumFolgendenSonntag)
{
    EXPECT_EQ(spielwocheVon(year{1965} / September / 4), spielwocheVon(year{1965} / September / 5));
    EXPECT_EQ(spielwocheVon(year{1965} / December / 25), (Spielwoche{1965, 52}));
}

TEST(Spielwoche, JahreswechselDerSonntageUndSamstage)
{
    EXPECT_EQ(spielwocheVon(year{1956} / January / 1), (Spielwoche{1956, 1}));
    EXPECT_EQ(spielwocheVon(year{1957} / January / 6), (Spielwoche{1957, 1}));
    EXPECT_EQ(spielwocheVon(year{1974} / January / 27), (Spielwoche{1974, 4}));
    EXPECT_EQ(spielwocheVon(year{1974} / February / 2), (Spielwoche{1974, 5}));
    EXPECT_EQ(spielwocheVon(year{1977} / January / 1), (Spielwoche{1977, 1}));
}

TEST(Spielwoche, UebergangZurZaehlungDerKalenderwochen)
{
    EXPECT_EQ(spielwocheVon(year{1982} / December / 25), (Spielwoche{1982, 52}));
    EXPECT_EQ(spielwocheVon(year{1983} / January / 1), (Spielwoche{1982, 53}));
    EXPECT_EQ(spielwocheVon(year{1983} / January / 8), (Spielwoche{1983, 1}));
}

TEST(Spielwoche, KalenderwochenRundUmDenJahreswechsel)
{
    EXPECT_EQ(spielwocheVon(year{1993} / January / 2), (Spielwoche{1992, 53}));
    EXPECT_EQ(spielwocheVon(year{2014} / December / 31), (Spielwoche{2015, 1}));
    EXPECT_EQ(spielwocheVon(year{2016} / January / 2), (Spielwoche{2015, 53}));
    EXPECT_EQ(spielwocheVon(year{2018} / January / 1), (Spielwoche{2018, 1}));
    EXPECT_EQ(spielwocheVon(year{2026} / July / 18), (Spielwoche{2026, 29}));
}

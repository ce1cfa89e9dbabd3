#include "statistics/logic/Zahlensummen.h"
#include "testhilfen/ArchivAus.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

ZiehungsArchiv vierZiehungen()
{
    return archivAus(Samstagslotto, {{1956, 26, {44, 45, 46, 47, 48, 49}, 43},
                                     {1955, 41, {3, 12, 13, 16, 23, 41}, 0},
                                     {1955, 42, {1, 2, 3, 4, 5, 6}, 0},
                                     {1956, 25, {6, 5, 4, 3, 2, 1}, 9}});
}

TEST(Zahlensummen, StehenNachSummeUndDarinNachDatum)
{
    EXPECT_THAT(summiere(vierZiehungen(), false).zeilen,
                ElementsAre(" 21       1955/42    1   2   3   4   5   6", " 21       1956/25    6   5   4   3   2   1",
                            "108       1955/41    3  12  13  16  23  41",
                            "279       1956/26   44  45  46  47  48  49"));
}

TEST(Zahlensummen, MitZusatzzahlStehtSieAmEnde)
{
    EXPECT_THAT(summiere(vierZiehungen(), true).zeilen,
                ElementsAre(" 21       1955/42    1   2   3   4   5   6     -",
                            " 30       1956/25    6   5   4   3   2   1     9",
                            "108       1955/41    3  12  13  16  23  41     -",
                            "322       1956/26   44  45  46  47  48  49    43"));
}

TEST(Zahlensummen, DieTexteNennenWasGerechnetWurde)
{
    const Zahlensummen ohne = summiere(vierZiehungen(), false);
    EXPECT_EQ(anzahltext(ohne), "4 Ziehungen ausgewertet");
    EXPECT_EQ(minimumText(ohne), "Minimum:  21    ");
    EXPECT_EQ(maximumText(ohne), "Maximum: 279    ");
    EXPECT_EQ(gesamttext(ohne), "Gesamtsumme der gezogenen Zahlen (ohne Zusatzzahl): 429");
    EXPECT_EQ(haeufigstetext(ohne), "Häufigste Summe: 21 ->  Sie ist 2 mal aufgetreten. (ohne Zusatzzahl)");
    const Zahlensummen mit = summiere(vierZiehungen(), true);
    EXPECT_EQ(gesamttext(mit), "Gesamtsumme der gezogenen Zahlen (mit Zusatzzahl): 481");
    EXPECT_EQ(haeufigstetext(mit), "Häufigste Summe: 21 ->  Sie ist 1 mal aufgetreten. (mit Zusatzzahl)");
}

TEST(Zahlensummen, VonGleichHaeufigenGiltDieKleinste)
{
    const HaeufigsteSumme beste = haeufigsteSumme(
        summiere(archivAus({{1, 2, 3, 4, 5, 7}, {1, 2, 3, 4, 5, 8}, {1, 2, 3, 4, 5, 8}, {1, 2, 3, 4, 6, 6}}), false));
    EXPECT_EQ(beste.summe, 22);
    EXPECT_EQ(beste.anzahl, 2);
}

TEST(Zahlensummen, OhneZiehungenIstAllesLeer)
{
    const Zahlensummen summen = summiere(ZiehungsArchiv{}, false);
    EXPECT_THAT(summen.zeilen, IsEmpty());
    EXPECT_EQ(minimumText(summen), "Minimum: ");
    EXPECT_EQ(haeufigstetext(Zahlensummen{}), "Häufigste Summe: 0 ->  Sie ist 0 mal aufgetreten. (ohne Zusatzzahl)");
}

} // namespace

#include "engines/logic/KombinationAusNummer.h"
#include "engines/logic/Kombinationseingabe.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::string> meldungen(const char* eingabe)
{
    const Zahlensuche suche = sucheZahlen(eingabe);
    EXPECT_EQ(suche.nummer.has_value(), suche.meldungen.empty()) << eingabe;
    return suche.meldungen;
}

TEST(KombinationsnummerTest, VonEinsBisZurLetzten)
{
    EXPECT_EQ(liesKombinationsnummer("1"), 1);
    EXPECT_EQ(liesKombinationsnummer("12.000.000"), 12'000'000);
    EXPECT_EQ(liesKombinationsnummer("12000000"), 12'000'000);
    EXPECT_EQ(liesKombinationsnummer(" 1.2.3 "), 123);
    EXPECT_EQ(liesKombinationsnummer("13.983.816"), 13'983'816);
    EXPECT_FALSE(liesKombinationsnummer("13.983.817"));
    EXPECT_FALSE(liesKombinationsnummer("0"));
    EXPECT_FALSE(liesKombinationsnummer("-5"));
    EXPECT_FALSE(liesKombinationsnummer("99999999999999999999"));
    EXPECT_FALSE(liesKombinationsnummer("-99999999999999999999"));
}

TEST(KombinationsnummerTest, WasKeineZahlIstGiltAlsNull)
{
    EXPECT_FALSE(liesKombinationsnummer(""));
    EXPECT_FALSE(liesKombinationsnummer("..."));
    EXPECT_FALSE(liesKombinationsnummer("abc"));
    EXPECT_EQ(liesKombinationsnummer("17 und vier"), 17);
}

TEST(KombinationsnummerTest, DieMeldungSagtGroesserEins)
{
    EXPECT_STREQ(kMeldungNummer, "Die Kombinationsnummer muss >1 und <=13.983.816 sein.");
}

TEST(ZahlensucheTest, SechsZahlenMitKommaOderLeerzeichen)
{
    const Kombination zahlen{11, 13, 24, 35, 46, 48};
    for (const char* eingabe : {"11 13 24 35 46 48", "11,13,24,35,46,48", "  11 13  24   35 46 48 ",
                                "11,13 24,35 46,48", "48 46 35 24 13 11", "46,11,48,13,35,24", "+11 013 24 35 46 48"}) {
        const Zahlensuche suche = sucheZahlen(eingabe);
        ASSERT_TRUE(suche.nummer) << eingabe;
        EXPECT_EQ(KombinationAusNummer(*suche.nummer), zahlen) << eingabe;
    }
    EXPECT_EQ(sucheZahlen("1 2  3 4   5 6").nummer, 1);
    EXPECT_EQ(sucheZahlen("49 48 47 46 45 44").nummer, 13'983'816);
}

TEST(ZahlensucheTest, KommaUndLeerzeichenZugleichSindMehrAlsSechsTeile)
{
    const std::vector<std::string> erwartet{
        "Falsche Zahleneingabe! Es müssen 6 Zahlen durch Komma oder Leerzeichen getrennt eingegeben werden."};
    for (const char* eingabe : {"1, 2, 3, 4, 5, 6", "1 , 2 3 4 5 6", "", "   ", "1", "1 2 3 4 5", "1 2 3 4 5 6 7",
                                "1,2,3,4,5,6,", "1;2;3;4;5;6"})
        EXPECT_EQ(meldungen(eingabe), erwartet) << eingabe;
}

TEST(ZahlensucheTest, FuerJedeFalscheZahlEineMeldung)
{
    const std::string text = "Falsche Zahleneingabe. Die einzelnen Zahlen müssen grösser 1 und kleiner 49 sein.";
    EXPECT_EQ(meldungen("1 2 3 4 5 50"), std::vector(1, text));
    EXPECT_EQ(meldungen("0 2 3 4 5 50"), std::vector(2, text));
    EXPECT_EQ(meldungen("0 -2 300 51 99 50"), std::vector(6, text));
    EXPECT_EQ(meldungen("1 2 3 4 5 99999999999999999999"), std::vector(1, text));
}

TEST(ZahlensucheTest, BuchstabenGeltenAlsNull)
{
    EXPECT_EQ(meldungen("a b c d e f").size(), 6U);
    EXPECT_EQ(meldungen("1,2,,3,4,5").size(), 1U);
    EXPECT_EQ(sucheZahlen("1x 2y 3z 4 5 6").nummer, 1);
}

TEST(ZahlensucheTest, EinsUndNeunundvierzigGeltenTrotzDerMeldung)
{
    EXPECT_EQ(sucheZahlen("1 2 3 4 5 49").nummer, 44);
}

TEST(ZahlensucheTest, BruecheGeltenAlsDasWasSieSind)
{
    EXPECT_EQ(sucheZahlen("49.5 2 3 4 5 6").meldungen.size(), 1U);
    EXPECT_EQ(sucheZahlen("0.9 2 3 4 5 6").meldungen.size(), 1U);
    EXPECT_EQ(sucheZahlen("1.5 2 3 4 5 6").nummer, 1);
}

TEST(ZahlensucheTest, WiederholteZahlenGebenIhreSumme)
{
    EXPECT_TRUE(sucheZahlen("1 1 2 3 4 5").nummer.has_value());
    EXPECT_TRUE(sucheZahlen("49 49 49 49 49 49").nummer.has_value());
    EXPECT_TRUE(sucheZahlen("1 1 1 1 1 1").nummer.has_value());
}

} // namespace

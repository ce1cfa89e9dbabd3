#include "tips/logic/Tippreihe.h"

#include <gtest/gtest.h>

namespace {

Tippreihe reihe(std::array<std::string, 6> zahlen, std::string superzahl = "")
{
    return {std::move(zahlen), std::move(superzahl)};
}

} // namespace

TEST(Tippreihe, EineLeereReiheIstKeinFehler)
{
    EXPECT_EQ(checkRow(reihe({"", "", "", "", "", ""}, "5")), Reihenstand::Leer);
}

TEST(Tippreihe, SechsSteigendeZahlenSindGueltig)
{
    const Tippreihe tip = reihe({" 3", "7", "012", "23", "34 ", "49"}, "5");
    EXPECT_EQ(checkRow(tip), Reihenstand::Gueltig);
    EXPECT_EQ(kombinationVon(tip), (Kombination{3, 7, 12, 23, 34, 49}));
    EXPECT_EQ(superzahlVon(tip), 5);
}

TEST(Tippreihe, AllesAndereIstEinFehler)
{
    for (const Tippreihe& falsch :
         {reihe({"3", "7", "12", "23", "34", ""}), reihe({"", "7", "12", "23", "34", "45"}),
          reihe({"3", "7", "12", "23", "34", "50"}), reihe({"0", "7", "12", "23", "34", "45"}),
          reihe({"-1", "7", "12", "23", "34", "45"}), reihe({"3", "7", "12", "23", "34", "x"}),
          reihe({"3", "7", "12", "23", "34", "4 9"}), reihe({"3", "7", "12", "23", "34", "99999999999"}),
          reihe({"3", "7", "12", "12", "34", "45"}), reihe({"7", "3", "12", "23", "34", "45"}),
          reihe({" ", " ", " ", " ", " ", " "})}) {
        EXPECT_EQ(checkRow(falsch), Reihenstand::Fehler) << falsch.zahlen[5];
        EXPECT_FALSE(kombinationVon(falsch));
    }
}

TEST(Tippreihe, DieSuperzahlIstEineZiffer)
{
    for (const char* text : {"", "x", "10", "-1", "5 5"})
        EXPECT_FALSE(superzahlVon(reihe({}, text))) << text;
    EXPECT_EQ(superzahlVon(reihe({}, " 0")), 0);
}

TEST(Tippreihe, EineNeueZahlOrdnetDieReihe)
{
    EXPECT_EQ(mitZahl(reihe({"7", "", "", "", "", ""}, "5"), 1, 3), reihe({"3", "7", "", "", "", ""}, "5"));
    EXPECT_EQ(mitZahl(reihe({"3", "7", "", "", "", ""}), 2, 7), reihe({"3", "7", "", "", "", ""}));
    EXPECT_EQ(mitZahl(reihe({" 3", "x", "50", "-1", "49", "03"}), 5, 1), reihe({"1", "3", "49", "", "", ""}));
    EXPECT_EQ(mitZahl(reihe({"1", "2", "3", "4", "5", "6"}), 0, 49), reihe({"2", "3", "4", "5", "6", "49"}));
    EXPECT_EQ(mitZahl(reihe({"", "", "", "", "", ""}), 5, 8), reihe({"8", "", "", "", "", ""}));
}

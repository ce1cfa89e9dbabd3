#include "filters/logic/ZahlennachbarnListe.h"

#include <gtest/gtest.h>

namespace {

const Nachbartreffer kTreffer{.Spielart = MittwochslottoB,
                              .jjjj = 1998,
                              .sw = 3,
                              .datum = "Mi, 14.01.1998",
                              .zahlen = {3, 9, 10, 20, 30, 31},
                              .gruppe = zahlenmenge(std::array{9, 10}),
                              .s = 7};

TEST(ZahlennachbarnListe, EineZeileZeigtNurDieZahlenDerGruppe)
{
    const Nachbarsuche suche{.gruppe = kNachbargruppen[0]};
    EXPECT_EQ(nachbarzellen(suche, kTreffer),
              (Nachbarzellen{"(2-Gr.)", "", "1998", "", "03", "", "Mi, 14.01.1998", "", "", "", "09", "", "10", "", "",
                             "",        "", "",     "", "",   "7"}));
}

TEST(ZahlennachbarnListe, UeberMehrereSpieleNenntSieDasSpiel)
{
    const Nachbarsuche suche{.gruppe = kNachbarmuster[2], .zusammen = true};
    Nachbartreffer treffer = kTreffer;
    treffer.gruppe = zahlenmenge(treffer.zahlen);
    treffer.s.reset();
    EXPECT_EQ(nachbarzellen(suche, treffer), (Nachbarzellen{"1 Zwill. + 1 Drill.",
                                                            "",
                                                            "1998/03",
                                                            "",
                                                            "MiB",
                                                            "",
                                                            "Mi, 14.01.1998",
                                                            "",
                                                            "03",
                                                            "",
                                                            "09",
                                                            "",
                                                            "10",
                                                            "",
                                                            "20",
                                                            "",
                                                            "30",
                                                            "",
                                                            "31",
                                                            "",
                                                            "-"}));
}

TEST(ZahlennachbarnListe, KurzeNamenDerSpiele)
{
    EXPECT_EQ(nachbarspiel(SpielartStart), "Sa");
    EXPECT_EQ(nachbarspiel(Samstagslotto), "Sa");
    EXPECT_EQ(nachbarspiel(Mittwochslotto), "Mi");
    EXPECT_EQ(nachbarspiel(MittwochslottoB), "MiB");
}

TEST(ZahlennachbarnListe, FalscheZahlenGehoerenZuKeinerGruppe)
{
    Nachbartreffer treffer;
    treffer.gruppe = ~Zahlenmenge{0};
    for (const std::int32_t zahl : {-1, 0, 50, 64, 1000})
        EXPECT_FALSE(gehoertZurGruppe(treffer, zahl)) << zahl;
    EXPECT_TRUE(gehoertZurGruppe(treffer, 49));
}

TEST(ZahlennachbarnListe, ZehnTrennerZwischenElfSpalten)
{
    for (const Nachbarspalten::Schluessel* schluessel : {&Nachbarspalten::kEinzeln, &Nachbarspalten::kZusammen})
        for (int spalte = 1; spalte < Nachbarspalten::kAnzahl; spalte += 2)
            EXPECT_EQ((*schluessel)[static_cast<std::size_t>(spalte)], "trenner" + std::to_string((spalte + 1) / 2));
    EXPECT_FALSE(Nachbarspalten::istZahl(6));
    EXPECT_TRUE(Nachbarspalten::istZahl(8));
    EXPECT_FALSE(Nachbarspalten::istZahl(9));
    EXPECT_TRUE(Nachbarspalten::istZahl(18));
    EXPECT_FALSE(Nachbarspalten::istZahl(20));
}

} // namespace

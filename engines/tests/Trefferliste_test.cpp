#include "engines/logic/KombinationAusNummer.h"
#include "engines/logic/Trefferliste.h"
#include "engines/logic/Zahlenspalten.h"
#include "engines/tests/Trefferarchiv.h"
#include "shell/logic/Zahlen.h"

#include <gtest/gtest.h>
#include <set>

namespace {

constexpr Kombination kGesucht{1, 2, 3, 4, 5, 6};

template <std::size_t N>
std::vector<std::string> zellen(const std::array<Trefferspalte, N>& spalten, const Gewinnfall& fall)
{
    std::vector<std::string> texte;
    for (const Trefferspalte& spalte : spalten)
        texte.push_back(trefferzelle(spalte.feld, fall, kGesucht));
    return texte;
}

TEST(TrefferlisteTest, MitSuperzahlGewinnenAuchZweiRichtige)
{
    const ZiehungsArchiv archiv = trefferarchiv({{{1, 2, 10, 11, 12, 13}, 4},
                                                 {{1, 2, 10, 11, 12, 13}, 5},
                                                 {{1, 2, 3, 11, 12, 13}, 5},
                                                 {{1, 10, 11, 12, 13, 14}, 4}});
    const std::vector<Gewinnfall> faelle = gewinnfaelle(archiv, kGesucht, 4);
    ASSERT_EQ(faelle.size(), 2U);
    EXPECT_EQ(faelle[0].treffer, 2);
    EXPECT_TRUE(faelle[0].mitSuperzahl);
    EXPECT_EQ(faelle[1].treffer, 3);
    EXPECT_FALSE(faelle[1].mitSuperzahl);
}

TEST(TrefferlisteTest, OhneGewaehlteSuperzahlZaehlenErstDrei)
{
    const ZiehungsArchiv archiv = trefferarchiv({{{1, 2, 10, 11, 12, 13}, 0}, {{1, 2, 3, 11, 12, 13}, 0}});
    const std::vector<Gewinnfall> faelle = gewinnfaelle(archiv, kGesucht, {});
    ASSERT_EQ(faelle.size(), 1U);
    EXPECT_FALSE(faelle[0].mitSuperzahl);
    EXPECT_EQ(trefferzelle(Trefferfeld::Gewinn, faelle[0], kGesucht), "3-er");
}

TEST(TrefferlisteTest, EineZeileMitSuperzahl)
{
    const ZiehungsArchiv archiv = trefferarchiv({{{1, 3, 5, 7, 40, 49}, 8, "Mi, 06.12.1995", 1995, 9}});
    const Gewinnfall fall = gewinnfaelle(archiv, kGesucht, 8).at(0);
    EXPECT_EQ(zellen(kTrefferspaltenMitSuperzahl, fall),
              (std::vector<std::string>{"1995/09", "", "01 ", "", "03 ", "", "05 ", "", "07", "", "40", "", "49", "",
                                        "8 ", "", "3-SZ", "", "Mi"}));
}

TEST(TrefferlisteTest, EineZeileOhneSuperzahl)
{
    const ZiehungsArchiv archiv = trefferarchiv({{{1, 3, 5, 6, 40, 49}, 8, "So, 09.10.1955", 1955, 41}});
    const Gewinnfall fall = gewinnfaelle(archiv, kGesucht, {}).at(0);
    EXPECT_EQ(zellen(kTrefferspalten, fall),
              (std::vector<std::string>{"1955/41", "", "01 ", "", "03 ", "", "05 ", "", "06 ", "", "40", "", "49", "",
                                        "4-er", "", "Sa"}));
}

TEST(TrefferlisteTest, DieGewinnklassenAlsText)
{
    std::set<std::string> texte;
    for (int richtige = 2; richtige <= 6; ++richtige) {
        Gewinnfall fall;
        fall.treffer = richtige;
        fall.mitSuperzahl = true;
        texte.insert(trefferzelle(Trefferfeld::Gewinn, fall, kGesucht));
        fall.mitSuperzahl = false;
        if (richtige > 2)
            texte.insert(trefferzelle(Trefferfeld::Gewinn, fall, kGesucht));
    }
    EXPECT_EQ(texte, (std::set<std::string>{"2-SZ", "3-SZ", "4-SZ", "5-SZ", "6-SZ", "3-er", "4-er", "5-er", "6-er"}));
}

TEST(TrefferlisteTest, DerTagDerZiehung)
{
    EXPECT_EQ(ziehungstag("Sa, 02.02.1974"), "Sa");
    EXPECT_EQ(ziehungstag("So, 09.10.1955"), "Sa");
    EXPECT_EQ(ziehungstag("Mo, 02.04.1956"), "Sa");
    EXPECT_EQ(ziehungstag("Di, 26.12.1961"), "Di");
    EXPECT_EQ(ziehungstag("Mi, 04.06.1986"), "Mi");
    EXPECT_EQ(ziehungstag("Mi, 04.06.1986 (B)"), "Mi(B)");
    EXPECT_EQ(ziehungstag(""), "");
    EXPECT_EQ(ziehungstag("S"), "S");
}

TEST(TrefferlisteTest, OhneDatumBleibtDerTagLeer)
{
    ZiehungsArchiv archiv = trefferarchiv({{kGesucht}});
    archiv.DatumAlle = {""};
    EXPECT_EQ(gewinnfaelle(archiv, kGesucht, {}).at(0).tag, "");
}

TEST(TrefferlisteTest, DieFarbenFolgenDenMarken)
{
    const Farbe grau{192, 192, 192};
    const Farbe hellblau{128, 255, 255};
    const Farbe rot{255, 0, 0};
    const Farbe gelb{255, 255, 0};
    EXPECT_EQ(trefferfarbe(Trefferfeld::Trenner, ""), (Trefferfarbe{grau, {}}));
    EXPECT_EQ(trefferfarbe(Trefferfeld::Zahl1, "07 "), (Trefferfarbe{hellblau, rot}));
    EXPECT_EQ(trefferfarbe(Trefferfeld::Zahl6, "49 "), (Trefferfarbe{hellblau, rot}));
    EXPECT_FALSE(trefferfarbe(Trefferfeld::Zahl6, "49"));
    EXPECT_EQ(trefferfarbe(Trefferfeld::Superzahl, "8 "), (Trefferfarbe{gelb, {}}));
    EXPECT_FALSE(trefferfarbe(Trefferfeld::Superzahl, "8"));
    EXPECT_FALSE(trefferfarbe(Trefferfeld::Gewinn, "3-er"));
    EXPECT_FALSE(trefferfarbe(Trefferfeld::JahrUndWoche, "1955/41"));
    EXPECT_FALSE(trefferfarbe(Trefferfeld::Ziehungstag, "Mi(B)"));
}

TEST(TrefferlisteTest, AuchElfAlsKeineSuperzahlIstZweiZeichenLang)
{
    EXPECT_TRUE(trefferfarbe(Trefferfeld::Superzahl, "11").has_value());
}

TEST(TrefferlisteTest, UngeradeSpaltenTrennenUndDieSchluesselSindEinmalig)
{
    const auto pruefe = [](std::span<const Trefferspalte> spalten) {
        std::set<std::string_view> schluessel;
        for (std::size_t i = 0; i < spalten.size(); ++i) {
            EXPECT_EQ(spalten[i].feld == Trefferfeld::Trenner, i % 2 == 1);
            EXPECT_EQ(spalten[i].titel.empty(), i % 2 == 1);
            EXPECT_TRUE(i % 2 == 0 || spalten[i].schluessel == "trenner" + std::to_string(i / 2 + 1));
            EXPECT_TRUE(schluessel.insert(spalten[i].schluessel).second);
        }
    };
    pruefe(kTrefferspaltenMitSuperzahl);
    pruefe(kTrefferspalten);
}

TEST(TrefferlisteTest, DieFaelleSindGenauDieGezaehlten)
{
    const ZiehungsArchiv archiv = zufallsarchiv(3000, 6);
    for (std::int32_t nummer = 1; nummer <= 13'983'816; nummer += 999'983) {
        const Kombination zahlen = KombinationAusNummer(nummer);
        EXPECT_EQ(zaehle(gewinnfaelle(archiv, zahlen, 5)), Zahlenspalten(archiv, 5).zaehle(zahlen));
    }
}

TEST(TrefferlisteTest, EineKombinationAlsTextUndZurueck)
{
    EXPECT_EQ(zahlentext(Kombination{1, 2, 3, 14, 25, 49}), "01 02 03 14 25 49");
    EXPECT_EQ(liesKombination(" 01 02 03 14 25 49 "), (Kombination{1, 2, 3, 14, 25, 49}));
    EXPECT_FALSE(liesKombination(""));
    EXPECT_FALSE(liesKombination("keine Sechserwiederholungen."));
    EXPECT_FALSE(liesKombination("01 02 03 04 05"));
    EXPECT_FALSE(liesKombination("06 05 04 03 02 01"));
    EXPECT_FALSE(liesKombination("01 02 03 04 05 50"));
    EXPECT_FALSE(liesKombination("a b c d e f"));
}

} // namespace

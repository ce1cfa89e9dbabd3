#include "statistics/logic/SuperzahlZeilen.h"

#include <gtest/gtest.h>

namespace {

using Zeilen = std::vector<std::string>;

Superzahlquelle quelle(std::int16_t spielart, std::int32_t ziehungen, const Ziffernzaehler& anzahl)
{
    Superzahlquelle quelle;
    quelle.spielart = spielart;
    quelle.ziehungen = ziehungen;
    quelle.anzahl = anzahl;
    for (const std::int32_t eine : anzahl)
        quelle.mitSuperzahl += eine;
    return quelle;
}

Superzahlstatistik alleSpiele(bool nurAb2000 = false)
{
    return {.nurAb2000 = nurAb2000,
            .quellen = {quelle(Samstagslotto, 3693, {180, 181, 182, 183, 184, 185, 186, 187, 188, 189}),
                        quelle(Mittwochslotto, 2094, {160, 160, 160, 160, 160, 160, 160, 160, 160, 160}),
                        quelle(MittwochslottoB, 757, {26, 26, 26, 26, 26, 26, 26, 26, 26, 27})}};
}

TEST(SuperzahlZeilen, DerBerichtNenntSpieleUndZiffern)
{
    EXPECT_EQ(
        superzahlBericht(alleSpiele()),
        (Zeilen{std::string(111, '='), " 3693 Samstagsziehungen , davon    1845 Ziehungen mit Superzahl",
                " 2094 Mittwochsziehungen, davon    1600 Ziehungen mit Superzahl   (alle)",
                "  757 Mittwochsz.(B)    , davon     261 Ziehungen mit Superzahl", std::string(111, '-'),
                " 6544 Ziehungen gesamt  , davon   3706 Ziehungen mit Superzahl ausgewertet", std::string(111, '='),
                "Superzahl: 0 ->    366 mal gezogen (Minimum)    Samstag:  180    Mittwoch:  160    Mittwoch (B):   26",
                "Superzahl: 1 ->    367 mal gezogen              Samstag:  181    Mittwoch:  160    Mittwoch (B):   26",
                "Superzahl: 2 ->    368 mal gezogen              Samstag:  182    Mittwoch:  160    Mittwoch (B):   26",
                "Superzahl: 3 ->    369 mal gezogen              Samstag:  183    Mittwoch:  160    Mittwoch (B):   26",
                "Superzahl: 4 ->    370 mal gezogen              Samstag:  184    Mittwoch:  160    Mittwoch (B):   26",
                "Superzahl: 5 ->    371 mal gezogen              Samstag:  185    Mittwoch:  160    Mittwoch (B):   26",
                "Superzahl: 6 ->    372 mal gezogen              Samstag:  186    Mittwoch:  160    Mittwoch (B):   26",
                "Superzahl: 7 ->    373 mal gezogen              Samstag:  187    Mittwoch:  160    Mittwoch (B):   26",
                "Superzahl: 8 ->    374 mal gezogen              Samstag:  188    Mittwoch:  160    Mittwoch (B):   26",
                "Superzahl: 9 ->    376 mal gezogen (Maximum)    Samstag:  189    Mittwoch:  160    Mittwoch (B):   27",
                std::string(111, '=')}));
}

TEST(SuperzahlZeilen, DerBerichtSagtAbWannDerMittwochZaehlt)
{
    EXPECT_EQ(superzahlBericht(alleSpiele(true))[2],
              " 2094 Mittwochsziehungen, davon    1600 Ziehungen mit Superzahl   (Ziehungen ab 06.12.2000)");
}

TEST(SuperzahlZeilen, MehrereZiffernTeilenSichMaximumUndMinimum)
{
    const Zeilen zeilen = superzahlBericht({.quellen = {quelle(Samstagslotto, 2000, {5, 7, 5, 6, 6, 6, 6, 6, 6, 7})}});
    EXPECT_EQ(zeilen[5], "Superzahl: 0 ->      5 mal gezogen (Minimum)    Samstag:    5");
    EXPECT_EQ(zeilen[6], "Superzahl: 1 ->      7 mal gezogen (Maximum)    Samstag:    7");
    EXPECT_EQ(zeilen[7], "Superzahl: 2 ->      5 mal gezogen (Minimum)    Samstag:    5");
    EXPECT_EQ(zeilen[14], "Superzahl: 9 ->      7 mal gezogen (Maximum)    Samstag:    7");
}

TEST(SuperzahlZeilen, GleicheAnzahlenHabenKeineMarke)
{
    const Zeilen zeilen = superzahlBericht({.quellen = {quelle(Samstagslotto, 0, {})}});
    EXPECT_EQ(zeilen[5], "Superzahl: 0 ->      0 mal gezogen              Samstag:    0");
}

TEST(SuperzahlZeilen, OhneSpielartGibtEsKeinenBericht)
{
    EXPECT_TRUE(superzahlBericht({}).empty());
    EXPECT_TRUE(zuletztZeilen({}, Samstagslotto).empty());
    EXPECT_TRUE(zuletztZeilenGemeinsam({}).empty());
}

TEST(SuperzahlZeilen, EineWocheStehtInDerEinzahl)
{
    Superzahlquelle samstag = quelle(Samstagslotto, 3693, {});
    samstag.zuletzt[0] = {3693, 0, "Sa, 18.07.2026"};
    samstag.zuletzt[3] = {3692, 1, "Sa, 11.07.2026"};
    samstag.zuletzt[9] = {3680, 13, "Sa, 18.04.2026"};
    EXPECT_EQ(zuletztZeilen({.quellen = {samstag}}, Samstagslotto),
              (Zeilen{"0 vor  0 Wochen, Sa, 18.07.2026", "3 vor  1 Woche,  Sa, 11.07.2026",
                      "9 vor 13 Wochen, Sa, 18.04.2026"}));
    EXPECT_EQ(zuletztZeilenGemeinsam({.quellen = {samstag}}),
              (Zeilen{"0 vor  0 Wochen, Sa, 18.07.2026", "3 vor  1 Woche,  Sa, 11.07.2026",
                      "9 vor 13 Wochen, Sa, 18.04.2026"}));
}

} // namespace

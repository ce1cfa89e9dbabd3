#include "shell/elements/Bildschirm.h"
#include "statistics/tests/Statistiktest.h"

namespace {

class Summenbildschirm : public Statistiktest {
protected:
    void oeffneMitDrei()
    {
        schreibe("SALOTTO.DAT", {"1955,41,03,12,13,16,23,41,00,0", "1955,42,01,02,03,04,05,06,00,0",
                                 "1956,25,01,02,03,04,05,06,49,0"});
        starte();
        oeffne("frmLquer");
    }
    QStringList zeilen() { return bedienung.zeilen("Liste1", 0, 100).zeilen; }
};

TEST_F(Summenbildschirm, ZeigtSpielUndBereich)
{
    oeffneMitDrei();
    EXPECT_EQ(titel(), "Ermitteln der Summe der Gewinnzahlen pro Ziehung");
    EXPECT_EQ(lies("Bezeichnung1"), "Samstagslotto");
    EXPECT_EQ(lies("Bezeichnung8"), "Auswertung von 1955/41 bis 1956/25");
    EXPECT_TRUE(zeilen().isEmpty());
}

TEST_F(Summenbildschirm, SummiertOhneUndMitZusatzzahl)
{
    oeffneMitDrei();
    klicke("Befehl1");
    EXPECT_EQ(zeilen(),
              QStringList({" 21       1955/42    1   2   3   4   5   6", " 21       1956/25    1   2   3   4   5   6",
                           "108       1955/41    3  12  13  16  23  41"}));
    EXPECT_EQ(lies("Bezeichnung3"), "3 Ziehungen ausgewertet");
    EXPECT_EQ(lies("Bezeichnung4"), "Minimum:  21    ");
    EXPECT_EQ(lies("Bezeichnung5"), "Maximum: 108    ");
    EXPECT_EQ(lies("Bezeichnung6"), "Gesamtsumme der gezogenen Zahlen (ohne Zusatzzahl): 150");
    klicke("Befehl2");
    EXPECT_EQ(zeilen()[1], " 70       1956/25    1   2   3   4   5   6    49");
    EXPECT_EQ(lies("Bezeichnung6"), "Gesamtsumme der gezogenen Zahlen (mit Zusatzzahl): 199");
}

TEST_F(Summenbildschirm, DieHaeufigsteSummeGehoertZurListe)
{
    oeffneMitDrei();
    klicke("Befehl4");
    EXPECT_EQ(lies("Bezeichnung7"), "Häufigste Summe: 0 ->  Sie ist 0 mal aufgetreten. (ohne Zusatzzahl)");
    klicke("Befehl1");
    EXPECT_EQ(lies("Bezeichnung7"), "");
    klicke("Befehl4");
    EXPECT_EQ(lies("Bezeichnung7"), "Häufigste Summe: 21 ->  Sie ist 2 mal aufgetreten. (ohne Zusatzzahl)");
    klicke("Befehl2");
    klicke("Befehl4");
    EXPECT_EQ(lies("Bezeichnung7"), "Häufigste Summe: 21 ->  Sie ist 1 mal aufgetreten. (mit Zusatzzahl)");
}

TEST_F(Summenbildschirm, InfoNenntDieMoeglichenSummen)
{
    oeffneMitDrei();
    klicke("cmdInfo");
    EXPECT_EQ(boxen(), QStringList("info|Mögliche Summen max/min pro Lottoziehung 6 aus 49|Mögliche Summe max. (ohne "
                                   "ZZ):279\nMögliche Summe max.  ( mit ZZ):322\nMögliche Summe min. (ohne ZZ): "
                                   "21\nMögliche Summe min.  ( mit ZZ): 28"));
}

TEST_F(Summenbildschirm, KeineSummeLiegtAusserhalbDesMoeglichen)
{
    starte();
    oeffne("frmLquer");
    klicke("Befehl1");
    ASSERT_EQ(zeilen().size(), 100);
    EXPECT_GE(zeilen().first().left(7).toInt(), 21);
    EXPECT_LE(lies("Bezeichnung5").mid(9).toInt(), 279);
}

TEST_F(Summenbildschirm, LeeresArchiv)
{
    schreibe("SALOTTO.DAT", {});
    starte();
    oeffne("frmLquer");
    klicke("Befehl1");
    EXPECT_TRUE(zeilen().isEmpty());
    EXPECT_EQ(lies("Bezeichnung3"), "0 Ziehungen ausgewertet");
    klicke("Befehl3");
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

} // namespace

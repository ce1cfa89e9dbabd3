#include "filters/tests/Filtertest.h"
#include "shell/elements/Bildschirm.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

/// Two draws of Saturday, one of Wednesday and one of its draw B.
class Verhaeltnisbildschirm : public Filtertest {
protected:
    Verhaeltnisbildschirm()
    {
        schreibe("SALOTTO.DAT", {"1955,41,02,04,06,08,10,12,00,0", "1955,42,01,03,05,07,09,11,00,0"});
        schreibe("MALOTTO.DAT", {"1986,23,11,26,27,30,35,38,49,0"});
        schreibe("MBLOTTO.DAT", {"1986,23,13,29,31,33,41,43,39,0"});
    }

    void zeige(const QString& bildschirm)
    {
        starte();
        oeffne(bildschirm);
    }
    QStringList zeilen(const QString& liste) { return bedienung.zeilen(liste, 0, 1000).zeilen; }
    std::vector<int> markierte()
    {
        std::vector<int> zahlen;
        for (int zahl = 1; zahl <= 49; ++zahl)
            if (zustand(QString("Bezeichnung6(%1)").arg(zahl)).contains("bold=true"))
                zahlen.push_back(zahl);
        return zahlen;
    }
};

TEST_F(Verhaeltnisbildschirm, OeffnetMitAllenSpielartenUndSuchtNichts)
{
    zeige("frmZusammenGU");
    EXPECT_EQ(titel(), "Gerade - Ungerade");
    EXPECT_EQ(lies("frmArt"), "Diese Spielarten in die Auswertung einbeziehen");
    EXPECT_EQ(lies("lblZ(0)"), "2  [1955/42]");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehugen: 4");
    EXPECT_EQ(lies("Bezeichnung7"), " Anzahl der Ziehungen: 4");
    EXPECT_TRUE(zeilen("List1").isEmpty());
    EXPECT_TRUE(zeilen("Liste3").isEmpty());
    EXPECT_FALSE(sichtbar("Bezeichnung3"));
}

TEST_F(Verhaeltnisbildschirm, SuchtAufKnopfdruckUndZeigtDenErstenFund)
{
    zeige("frmZusammenGU");
    klicke("Befehl1");
    EXPECT_EQ(zeilen("List1"), QStringList("1986/23   11 26 27 30 35 38  Mi, 04.06.1986"));
    EXPECT_EQ(lies("Bezeichnung1"), "1  Ziehungen [Drei Zahlen geraded 3:3]");
    EXPECT_EQ(zeilen("Liste3").size(), 9);
    EXPECT_EQ(zeilen("Liste3")[2], "     6:0        125,000 %");
    EXPECT_EQ(bedienung.gewaehlte("List1").zeilen, QStringList("0"));
    EXPECT_THAT(markierte(), ElementsAre(11, 26, 27, 30, 35, 38));
    EXPECT_TRUE(sichtbar("Bezeichnung3"));
}

TEST_F(Verhaeltnisbildschirm, EineWahlSuchtSofort)
{
    zeige("frmZusammenGU");
    klicke("Option1(0)");
    EXPECT_EQ(zeilen("List1"), QStringList("1955/41   02 04 06 08 10 12  So, 09.10.1955"));
    klicke("Option1(6)");
    EXPECT_EQ(zeilen("List1"), QStringList({"1955/42   01 03 05 07 09 11  So, 16.10.1955",
                                            "1986/23   13 29 31 33 41 43  Mi, 04.06.1986 (B)"}));
    EXPECT_EQ(lies("Bezeichnung1"), "2  Ziehungen [Keine Zahl gerade  0:6]");
    EXPECT_THAT(markierte(), ElementsAre(1, 3, 5, 7, 9, 11));
}

TEST_F(Verhaeltnisbildschirm, EinLeererFundLaesstDenTippscheinStehen)
{
    zeige("frmZusammenPrim");
    klicke("Option1(2)");
    ASSERT_EQ(zeilen("List1").size(), 1);
    const std::vector<int> vorher = markierte();
    klicke("Option1(0)");
    EXPECT_TRUE(zeilen("List1").isEmpty());
    EXPECT_EQ(lies("Bezeichnung1"), "0  Ziehungen [Sechs Primzahlen ]");
    ASSERT_TRUE(bedienung.ticke("Timer1").gelungen());
    EXPECT_EQ(markierte(), vorher);
}

TEST_F(Verhaeltnisbildschirm, DieAutomatikGehtDieListeDurch)
{
    zeige("frmZusammenHochTief");
    klicke("Option1(0)");
    ASSERT_EQ(zeilen("List1").size(), 2);
    bedienung.ticke("Timer1");
    EXPECT_THAT(markierte(), ElementsAre(1, 3, 5, 7, 9, 11));
    bedienung.ticke("Timer1");
    EXPECT_THAT(markierte(), ElementsAre(2, 4, 6, 8, 10, 12));
    EXPECT_EQ(lies("cmdAuto"), "E");
    klicke("cmdAuto");
    EXPECT_EQ(lies("cmdAuto"), "A");
    waehle("List1", {1});
    EXPECT_THAT(markierte(), ElementsAre(1, 3, 5, 7, 9, 11));
}

TEST_F(Verhaeltnisbildschirm, EinKaestchenLaedtNeuUndLaesstDieListenStehen)
{
    zeige("frmZusammenRand");
    klicke("Option1(0)");
    const QStringList vorher = zeilen("List1");
    klicke("chkArt(0)");
    EXPECT_EQ(lies("Bezeichnung7"), " Anzahl der Ziehungen: 2");
    EXPECT_EQ(zeilen("List1"), vorher);
    klicke("Befehl1");
    EXPECT_TRUE(zeilen("List1").isEmpty());
}

TEST_F(Verhaeltnisbildschirm, OhneSpielartIstAllesLeerUndEsBittetUmEine)
{
    zeige("frmZusammenPrim");
    klicke("Befehl1");
    for (const char* kasten : {"chkArt(0)", "chkArt(1)", "chkArt(2)"})
        klicke(kasten);
    EXPECT_TRUE(zeilen("Liste3").isEmpty());
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehungen: 0");
    EXPECT_TRUE(boxen().isEmpty());
    for (const char* start : {"Befehl1", "Option1(3)"}) {
        klicke(start);
        EXPECT_EQ(boxen(), QStringList("info|Tombrix|Es ist noch keine Spielart ausgewählt!")) << start;
        EXPECT_EQ(lies("Bezeichnung7"), " Anzahl der ausgewerteten Ziehungen: 0");
        EXPECT_TRUE(zeilen("List1").isEmpty());
    }
}

TEST_F(Verhaeltnisbildschirm, DieFuenfzehnPrimzahlenHaltenDieAutomatikAn)
{
    zeige("frmZusammenPrim");
    klicke("Befehl1");
    klicke("cmdPrimAnzeigen");
    EXPECT_THAT(markierte(), ElementsAre(2, 3, 5, 7, 11, 13, 17, 19, 23, 29, 31, 37, 41, 43, 47));
    EXPECT_EQ(lies("cmdAuto"), "A");
}

TEST_F(Verhaeltnisbildschirm, InfoStehtUeberDemBildschirm)
{
    zeige("frmZusammenHochTief");
    EXPECT_FALSE(sichtbar("Rahmen1"));
    klicke("Befehl3");
    EXPECT_TRUE(sichtbar("Rahmen1"));
    klicke("Befehl4");
    EXPECT_FALSE(sichtbar("Rahmen1"));
}

TEST_F(Verhaeltnisbildschirm, SchliessenLaesstDieZiehungenZusammenGeladen)
{
    zeige("frmZusammenGU");
    klicke("Befehl2");
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 4);
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(Verhaeltnisbildschirm, DreiLeereDateien)
{
    for (const char* datei : {"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"})
        schreibe(datei, {});
    zeige("frmZusammenGU");
    klicke("Befehl1");
    EXPECT_TRUE(zeilen("List1").isEmpty());
    EXPECT_EQ(zeilen("Liste3")[2], "     6:0        0 0,000 %");
}

} // namespace

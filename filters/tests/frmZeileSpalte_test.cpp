#include "filters/tests/Filtertest.h"
#include "shell/elements/Bildschirm.h"
#include "tools/buehne/Eingabe.h"

#include <QCoreApplication>
#include <QFile>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Four draws of Saturday and one of each draw of Wednesday: in the first row, in the first column, in both together,
/// and spread.
class Zellfilterbuehne : public Filtertest {
protected:
    Zellfilterbuehne()
    {
        schreibe("SALOTTO.DAT", {"1955,41,01,02,03,04,05,07,00,0", "1955,42,08,15,22,29,36,43,00,0",
                                 "1955,43,02,03,08,15,22,29,00,0", "1955,44,10,18,26,34,42,49,00,0"});
        schreibe("MALOTTO.DAT", {"1986,23,02,03,04,05,06,07,49,0"});
        schreibe("MBLOTTO.DAT", {"1986,23,01,02,03,04,05,06,39,0"});
    }

    void zeige(const QString& bildschirm)
    {
        starte();
        oeffne(bildschirm);
    }
    QStringList zeilen() { return bedienung.zeilen("List1", 0, 1000).zeilen; }
    QString angabe() { return lies("Bezeichnung7"); }
    Bildschirm& bildschirm() { return *buehne.bildschirme.geladen("frmZeileSpalte"); }
    /// Keys that go where the focus is.
    void tippe(const QString& tasten) { Eingabe::tippe(bildschirm().focusWidget(), tasten); }
    bool istGelb(int option) { return zustand(QString("Option1(%1)").arg(option)).contains("back=#ffff00"); }
};

TEST_F(Zellfilterbuehne, OeffnetInDerWahlVonZeilenUndSuchtNichts)
{
    zeige("frmZeileSpalte");
    EXPECT_EQ(titel(), "Zeilen-, Spalten- oder Zahlenbereichsfilter - Samstagslotto");
    EXPECT_EQ(angabe(), " Anzahl der Ziehungen: ");
    EXPECT_THAT(zeilen(), IsEmpty());
    EXPECT_TRUE(istGelb(0));
    EXPECT_FALSE(istGelb(1));
    EXPECT_TRUE(sichtbar("cz(0)"));
    EXPECT_FALSE(sichtbar("cs(0)"));
    EXPECT_FALSE(bedienung.finde("frmArt"));
}

TEST_F(Zellfilterbuehne, DerTitelNenntDieSpielart)
{
    starte();
    buehne.umgebung.menue->waehleSpielart(Mittwochslotto);
    oeffne("frmZeileSpalte");
    EXPECT_EQ(titel(), "Zeilen-, Spalten- oder Zahlenbereichsfilter - Mittwochslotto ");
    klicke("cz(0)");
    EXPECT_EQ(angabe(), "1 Ziehung (100,00%) von 1 Ziehungen ");
    klicke("Befehl2");
    buehne.umgebung.menue->waehleSpielart(MittwochslottoB);
    oeffne("frmZeileSpalte");
    EXPECT_EQ(titel(), "Zeilen-, Spalten- oder Zahlenbereichsfilter - Mittwochslotto (B)");
}

TEST_F(Zellfilterbuehne, EinKaestchenMarkiertSeineZeileUndSuchtSofort)
{
    zeige("frmZeileSpalte");
    klicke("cz(0)");
    EXPECT_THAT(markierte("Zelle"), ElementsAre(1, 2, 3, 4, 5, 6, 7));
    EXPECT_EQ(zeilen(), QStringList("1955/41   01 02 03 04 05 07     So, 09.10.1955"));
    EXPECT_EQ(angabe(), "1 Ziehung (25,00%) von 4 Ziehungen ");
    EXPECT_THAT(markierte("Bezeichnung6"), ElementsAre(1, 2, 3, 4, 5, 7));
    klicke("cz(0)");
    EXPECT_THAT(markierte("Zelle"), IsEmpty());
    EXPECT_THAT(zeilen(), IsEmpty());
    EXPECT_EQ(angabe(), "0 Ziehungen (0%) von 4 Ziehungen ");
}

TEST_F(Zellfilterbuehne, AlleSiebenZeilenFindenAlles)
{
    zeige("frmZeileSpalte");
    for (int zeile = 0; zeile < 7; ++zeile)
        klicke(QString("cz(%1)").arg(zeile));
    EXPECT_EQ(zeilen().size(), 4);
    EXPECT_EQ(angabe(), "4 Ziehungen (100,00%) von 4 Ziehungen ");
}

TEST_F(Zellfilterbuehne, EinKaestchenMarkiertSeineSpalte)
{
    zeige("frmZeileSpalte");
    klicke("Option1(1)");
    EXPECT_FALSE(sichtbar("cz(0)"));
    klicke("cs(0)");
    EXPECT_THAT(markierte("Zelle"), ElementsAre(1, 8, 15, 22, 29, 36, 43));
    EXPECT_EQ(zeilen(), QStringList("1955/42   08 15 22 29 36 43     So, 16.10.1955"));
}

TEST_F(Zellfilterbuehne, InBeidesZaehltEineZelleInIhrerZeileOderSpalte)
{
    zeige("frmZeileSpalte");
    klicke("Option1(2)");
    klicke("cz(0)");
    klicke("cs(0)");
    EXPECT_EQ(markierte("Zelle").size(), 13);
    EXPECT_EQ(zeilen().size(), 3);
    klicke("cz(0)"); // the crossing cell stays marked by its column
    EXPECT_THAT(markierte("Zelle"), ElementsAre(1, 8, 15, 22, 29, 36, 43));
    EXPECT_EQ(zeilen().size(), 1);
}

TEST_F(Zellfilterbuehne, EinWechselNimmtAlleMarkenUndFundeZurueck)
{
    zeige("frmZeileSpalte");
    klicke("cz(0)");
    ASSERT_EQ(zeilen().size(), 1);
    klicke("Option1(2)");
    EXPECT_TRUE(istGelb(2));
    EXPECT_FALSE(istGelb(0));
    EXPECT_TRUE(sichtbar("cz(0)"));
    EXPECT_TRUE(sichtbar("cs(6)"));
    EXPECT_TRUE(zustand("cz(0)").contains("checked=false"));
    EXPECT_THAT(markierte("Zelle"), IsEmpty());
    EXPECT_THAT(zeilen(), IsEmpty());
    EXPECT_EQ(angabe(), "0 Ziehungen (0%) von 4 Ziehungen ");
}

TEST_F(Zellfilterbuehne, NurImBereichWirktEinKlickAufEineZelle)
{
    zeige("frmZeileSpalte");
    for (const char* modus : {"Option1(0)", "Option1(1)", "Option1(2)"}) {
        klicke(modus);
        klicke("Zelle(10)");
        EXPECT_THAT(markierte("Zelle"), IsEmpty()) << modus;
    }
    klicke("Option1(3)");
    EXPECT_FALSE(sichtbar("cz(0)"));
    EXPECT_FALSE(sichtbar("cs(0)"));
    for (const int zahl : {10, 18, 26, 34, 42, 49})
        klicke(QString("Zelle(%1)").arg(zahl));
    EXPECT_EQ(zeilen(), QStringList("1955/44   10 18 26 34 42 49     So, 30.10.1955"));
    klicke("Zelle(1)");
    EXPECT_EQ(markierte("Zelle").size(), 7);
    EXPECT_EQ(zeilen().size(), 1);
    klicke("Zelle(10)");
    EXPECT_THAT(zeilen(), IsEmpty());
    EXPECT_EQ(angabe(), "0 Ziehungen (0,00%) von 4 Ziehungen ");
}

TEST_F(Zellfilterbuehne, DerBereichIstMitDerTastaturAllein)
{
    zeige("frmZeileSpalte");
    bildschirm().activateWindow();
    QCoreApplication::processEvents();
    tippe("Right Right Right");
    EXPECT_TRUE(istGelb(3));
    tippe("Tab Space Right Space Right Space Right Space Right Space Right Right Space");
    EXPECT_THAT(markierte("Zelle"), ElementsAre(1, 2, 3, 4, 5, 7));
    EXPECT_EQ(zeilen().size(), 1);
    tippe("Space");
    EXPECT_THAT(zeilen(), IsEmpty());
}

TEST_F(Zellfilterbuehne, DieKaestchenFolgenDerTabulatortaste)
{
    zeige("frmZeileSpalte");
    bildschirm().activateWindow();
    QCoreApplication::processEvents();
    QStringList reihe;
    for (int i = 0; i < 9; ++i) {
        tippe("Tab");
        reihe << bildschirm().focusWidget()->objectName();
    }
    EXPECT_EQ(reihe, QStringList({"cz(0)", "cz(1)", "cz(2)", "cz(3)", "cz(4)", "cz(5)", "cz(6)", "cmdClear", "List1"}));
}

TEST_F(Zellfilterbuehne, LoeschenNimmtMarkenKaestchenUndListe)
{
    zeige("frmZeileSpalte");
    klicke("cz(0)");
    klicke("cmdClear");
    EXPECT_THAT(markierte("Zelle"), IsEmpty());
    EXPECT_TRUE(zustand("cz(0)").contains("checked=false"));
    EXPECT_THAT(zeilen(), IsEmpty());
    EXPECT_EQ(angabe(), " Anzahl der Ziehungen: ");
    EXPECT_TRUE(istGelb(0));
}

TEST_F(Zellfilterbuehne, DieAutomatikGehtDieFundeDurch)
{
    zeige("frmZeileSpalte");
    klicke("Option1(2)");
    klicke("cz(0)");
    klicke("cs(0)");
    ASSERT_TRUE(bedienung.ticke("Timer1").gelungen());
    EXPECT_THAT(markierte("Bezeichnung6"), ElementsAre(8, 15, 22, 29, 36, 43));
    EXPECT_EQ(markierte("Zelle").size(), 13);
    klicke("cmdAuto");
    EXPECT_EQ(lies("cmdAuto"), "A");
}

TEST_F(Zellfilterbuehne, InfoNenntDieZahlDerZiehungen)
{
    zeige("frmZeileSpalte");
    klicke("Befehl3");
    EXPECT_EQ(lies("Rahmen1Text"),
              "6 Zahlen sind dabei mindestens auszuwählen. Da aber von den 13.983.816 möglichen Kombinationen erst 4 "
              "gezogen wurden, müssen meistens mehr als 6 Zahlen ausgewählt werden, um passende Ziehungen für den "
              "gewählten Bereich zu finden. ");
    EXPECT_GT(bedienung.finde("Rahmen1")->property("width").toInt(), 300);
    klicke("Befehl4");
    EXPECT_FALSE(sichtbar("Rahmen1"));
}

TEST_F(Zellfilterbuehne, EineLeereDatei)
{
    schreibe("SALOTTO.DAT", {});
    zeige("frmZeileSpalte");
    klicke("cz(0)");
    EXPECT_EQ(angabe(), "0 Ziehungen (0,00%) von 0 Ziehungen ");
}

TEST_F(Zellfilterbuehne, ZusammenSuchtInAllenGewaehltenSpielarten)
{
    zeige("frmZusammenZeileSpalte");
    EXPECT_EQ(titel(), "Zeilen-, Spalten- oder Zahlenbereichsfilter ");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehugen: 6");
    klicke("cz(0)");
    EXPECT_EQ(zeilen(), QStringList({"1955/41   01 02 03 04 05 07     So, 09.10.1955",
                                     "1986/23   02 03 04 05 06 07     Mi, 04.06.1986",
                                     "1986/23   01 02 03 04 05 06     Mi, 04.06.1986 (B)"}));
    EXPECT_EQ(angabe(), "3 Ziehungen (50,00%) von 6 Ziehungen ");
    klicke("chkArt(0)");
    EXPECT_EQ(angabe(), "2 Ziehungen (100,00%) von 2 Ziehungen ");
    klicke("Befehl3");
    EXPECT_TRUE(lies("Rahmen1Text").contains("erst 2 (Sa+Mi+Mi(B)) gezogen wurden, müssen meistens mehr als 6"));
}

TEST_F(Zellfilterbuehne, ZusammenOhneSpielartIstLeerUndBittetUmEine)
{
    zeige("frmZusammenZeileSpalte");
    klicke("cz(0)");
    for (const char* kasten : {"chkArt(0)", "chkArt(1)", "chkArt(2)"})
        klicke(kasten);
    EXPECT_THAT(zeilen(), IsEmpty());
    EXPECT_EQ(angabe(), " Anzahl der Ziehungen: 0");
    EXPECT_EQ(lies("lblZ(0)"), "-");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehungen: 0");
    EXPECT_THAT(boxen(), IsEmpty());
    klicke("cz(1)");
    EXPECT_EQ(boxen(), QStringList("info|Tombrix|Es ist noch keine Spielart ausgewählt!"));
    EXPECT_THAT(zeilen(), IsEmpty());
    klicke("chkArt(1)");
    EXPECT_EQ(angabe(), "1 Ziehung (100,00%) von 1 Ziehungen ");
}

TEST_F(Zellfilterbuehne, ZusammenOhneEineDateiZaehltNichts)
{
    ASSERT_TRUE(QFile::remove(ordner.filePath("MBLOTTO.DAT")));
    zeige("frmZusammenZeileSpalte");
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_EQ(lies("lblZ(0)"), "-");
    klicke("cz(0)");
    EXPECT_EQ(angabe(), "0 Ziehungen (0,00%) von 0 Ziehungen ");
}

} // namespace

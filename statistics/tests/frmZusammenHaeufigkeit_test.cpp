#include "shell/elements/Bildschirm.h"
#include "shell/elements/Farben.h"
#include "statistics/tests/Statistiktest.h"

#include <QFile>
#include <QScrollBar>

namespace {

/// Two draws of Saturday, two of Wednesday and one of its draw B.
class ZusammenHaeufigkeitsbildschirm : public Statistiktest {
protected:
    ZusammenHaeufigkeitsbildschirm()
    {
        schreibe("SALOTTO.DAT", {"1955,41,01,02,03,04,05,06,00,0", "1955,42,01,02,03,04,05,07,49,0"});
        schreibe("MALOTTO.DAT", {"1986,23,01,02,03,10,11,12,48,0", "1986,24,01,02,03,10,11,13,00,0"});
        schreibe("MBLOTTO.DAT", {"1986,23,01,20,21,22,23,24,00,0"});
    }

    void zeige()
    {
        starte();
        oeffne("frmZusammenHaeufigkeit");
    }
    QString anzahl(int zahl) { return lies(QString("bezeichnung114(%1)").arg(zahl)); }
    bool hatFarbe(int zahl, const QColor& farbe)
    {
        return zustand(QString("bezeichnung114(%1)").arg(zahl)).contains("back=" + farbe.name());
    }
    QWidget* feld(const QString& name)
    {
        return buehne.bildschirme.geladen("frmZusammenHaeufigkeit")->findChild<QWidget*>(name);
    }
    QRect balken(int zahl) { return feld(QString("Balken(%1)").arg(zahl))->geometry(); }
    bool hatBalken(int zahl) { return feld(QString("Balken(%1)").arg(zahl))->isVisible(); }
};

TEST_F(ZusammenHaeufigkeitsbildschirm, ZaehltBeimOeffnenAlleSpiele)
{
    zeige();
    EXPECT_EQ(titel(), "Häufigkeit der gezogenen Gewinnzahlen");
    EXPECT_EQ(lies("lblZ(0)"), "2  [1955/42]");
    EXPECT_EQ(lies("lblZ(2)"), "1  [1986/23]");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 5");
    EXPECT_EQ(lies("lblAuswertung"), "Auswertung von: So, 09.10.1955 bis Mi, 11.06.1986");
    EXPECT_EQ(anzahl(1), "5");
    EXPECT_EQ(anzahl(10), "2");
    EXPECT_EQ(anzahl(49), "0");
    EXPECT_TRUE(hatFarbe(1, Farben::Hoechstwert));
    EXPECT_TRUE(hatFarbe(49, Farben::Markiert));
    EXPECT_TRUE(hatFarbe(10, Qt::white));
    EXPECT_EQ(gelaufene({"cmdBereich(0)", "cmdBereich(1)"}), QStringList("cmdBereich(0)"));
}

TEST_F(ZusammenHaeufigkeitsbildschirm, JedesKaestchenZaehltNeu)
{
    zeige();
    klicke("chkART(0)");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 3");
    EXPECT_EQ(lies("lblAuswertung"), "Auswertung von: Mi, 04.06.1986 bis Mi, 11.06.1986");
    EXPECT_EQ(anzahl(4), "0");
    klicke("chkART(1)");
    EXPECT_EQ(lies("lblAuswertung"), "Auswertung von: Mi, 04.06.1986 (B) bis Mi, 04.06.1986 (B)");
    EXPECT_EQ(anzahl(1), "1");
    klicke("chkART(2)");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 0");
    EXPECT_EQ(lies("lblAuswertung"), "");
    EXPECT_EQ(anzahl(1), "0");
    EXPECT_TRUE(hatFarbe(1, Qt::white));
    EXPECT_FALSE(hatBalken(1));
    klicke("chkART(2)");
    EXPECT_TRUE(hatBalken(1));
}

TEST_F(ZusammenHaeufigkeitsbildschirm, DieZusatzzahlZaehltAufWunsch)
{
    zeige();
    klicke("chkZusatzzahl");
    EXPECT_EQ(anzahl(49), "1");
    EXPECT_EQ(anzahl(48), "1");
    klicke("chkZusatzzahl");
    EXPECT_EQ(anzahl(49), "0");
}

TEST_F(ZusammenHaeufigkeitsbildschirm, NurDieLetzten)
{
    zeige();
    setze("cmbAnz", "2");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 2");
    EXPECT_EQ(lies("lblAuswertung"), "Auswertung von: Mi, 04.06.1986 (B) bis Mi, 11.06.1986");
    EXPECT_EQ(gelaufene({"cmdBereich(0)", "cmdBereich(1)"}), QStringList("cmdBereich(1)"));
    klicke("chkART(1)");
    EXPECT_EQ(lies("lblAuswertung"), "Auswertung von: So, 16.10.1955 bis Mi, 04.06.1986 (B)");
    klicke("cmdBereich(0)");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 3");
    EXPECT_EQ(lies("cmbAnz"), "2");
    klicke("cmdBereich(1)");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 2");
    setze("cmbAnz", "3000");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 3");
}

TEST_F(ZusammenHaeufigkeitsbildschirm, OhneBrauchbareAnzahlZaehlenAlle)
{
    zeige();
    for (const char* unsinn : {"0", "-3", "viele", ""}) {
        setze("cmbAnz", "1");
        setze("cmbAnz", unsinn);
        EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 5") << unsinn;
        EXPECT_EQ(gelaufene({"cmdBereich(0)", "cmdBereich(1)"}), QStringList("cmdBereich(0)")) << unsinn;
    }
}

TEST_F(ZusammenHaeufigkeitsbildschirm, EnterImFeldZaehltDieLetzten)
{
    zeige();
    setze("cmbAnz", "1");
    klicke("cmdBereich(0)");
    tippe("cmbAnz", "Return");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 1");
}

TEST_F(ZusammenHaeufigkeitsbildschirm, AbDezember2000FehlenDieErstenMittwochsziehungen)
{
    std::vector<std::string> mittwoch(757, "1986,23,01,02,03,10,11,12,48,0");
    mittwoch.emplace_back("2000,49,31,32,33,34,35,36,48,0");
    schreibe("MALOTTO.DAT", mittwoch);
    zeige();
    klicke("optMI(1)");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 4");
    EXPECT_EQ(anzahl(31), "1");
    EXPECT_EQ(anzahl(10), "0");
    klicke("chkART(0)");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 2");
    klicke("optMI(0)");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 759");
}

TEST_F(ZusammenHaeufigkeitsbildschirm, DieWahlDesMittwochsGiltNurMitIhm)
{
    zeige();
    EXPECT_TRUE(bedienbar("optMI(1)"));
    klicke("chkART(1)");
    EXPECT_FALSE(bedienbar("optMI(0)"));
    EXPECT_FALSE(bedienbar("optMI(1)"));
    klicke("chkART(1)");
    EXPECT_TRUE(bedienbar("optMI(1)"));
}

TEST_F(ZusammenHaeufigkeitsbildschirm, NurSiebenAus38)
{
    zeige();
    for (const char* kasten : {"chkART(0)", "chkART(1)", "chkART(2)", "chkART(3)"})
        klicke(kasten);
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 214");
    EXPECT_EQ(lies("lblAuswertung"), "Auswertung von: Mi, 28.04.1982 bis 28.05.1986 (7aus38)");
    EXPECT_EQ(anzahl(6), "57");
    EXPECT_EQ(anzahl(39), "0");
    EXPECT_TRUE(hatFarbe(6, Farben::Hoechstwert));
    EXPECT_TRUE(hatFarbe(34, Farben::Markiert));
    EXPECT_TRUE(hatFarbe(39, Qt::white));
    EXPECT_TRUE(hatBalken(38));
    EXPECT_FALSE(hatBalken(39));
    klicke("chkZusatzzahl");
    EXPECT_EQ(anzahl(6), "63");
    klicke("chkART(0)");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 216");
    EXPECT_EQ(lies("lblAuswertung"), "Auswertung von: Mi, 28.04.1982 (7aus38) bis So, 16.10.1955");
    EXPECT_TRUE(hatBalken(49));
}

TEST_F(ZusammenHaeufigkeitsbildschirm, SortiertDieBalken)
{
    zeige();
    EXPECT_EQ(lies("cmdSort4"), "Sort H");
    EXPECT_LT(balken(9).top(), balken(10).top());
    klicke("cmdSort4");
    EXPECT_EQ(lies("cmdSort4"), "Sort GZ");
    EXPECT_LT(balken(10).top(), balken(9).top());
    EXPECT_LT(balken(10).top(), balken(11).top()); // equal counts stay in the order of the numbers
    klicke("chkART(1)");
    EXPECT_LT(balken(4).top(), balken(10).top());
    klicke("cmdSort4");
    EXPECT_EQ(lies("cmdSort4"), "Sort H");
    EXPECT_LT(balken(9).top(), balken(10).top());
}

TEST_F(ZusammenHaeufigkeitsbildschirm, ZoomtVomKleinstenZumGroesstenWert)
{
    schreibe("SALOTTO.DAT", {"1955,41,01,02,03,04,05,06,00,0"});
    starte();
    oeffne("frmZusammenHaeufigkeit");
    for (const char* kasten : {"chkART(0)", "chkART(1)", "chkART(2)", "chkART(3)"})
        klicke(kasten);
    EXPECT_EQ(lies("cmdZoom"), "zoom-in");
    EXPECT_EQ(lies("lblSkala(0)"), "57,00");
    EXPECT_EQ(lies("lblSkala(4)"), "0,00");
    const int vorher = balken(6).width() - balken(34).width();
    klicke("cmdZoom");
    EXPECT_EQ(lies("cmdZoom"), "zoom-out");
    EXPECT_EQ(lies("lblSkala(0)"), "57,00");
    EXPECT_EQ(lies("lblSkala(4)"), "23,00");
    EXPECT_GT(balken(6).width() - balken(34).width(), vorher);
    klicke("cmdZoom");
    EXPECT_EQ(lies("lblSkala(4)"), "0,00");
}

TEST_F(ZusammenHaeufigkeitsbildschirm, DasBildRollt)
{
    zeige();
    auto* rollbalken = dynamic_cast<QScrollBar*>(feld("VScroll1"));
    ASSERT_NE(rollbalken, nullptr);
    ASSERT_GT(rollbalken->maximum(), 0);
    const int vorher = feld("Picture1")->mapTo(feld("frmGraphik"), QPoint(0, 0)).y();
    setze("VScroll1", "50");
    EXPECT_EQ(feld("Picture1")->mapTo(feld("frmGraphik"), QPoint(0, 0)).y(), vorher - 50);
}

TEST_F(ZusammenHaeufigkeitsbildschirm, EineFehlendeDateiWirdGenanntUndZaehltNichts)
{
    zeige();
    boxen();
    QFile::remove(ordner.filePath("MALOTTO.DAT"));
    klicke("chkART(2)");
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_EQ(lies("lblZ(0)"), "-");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 0");
    EXPECT_EQ(anzahl(1), "0");
    klicke("chkZusatzzahl");
    EXPECT_TRUE(boxen().isEmpty());
    klicke("chkART(1)");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 2");
}

TEST_F(ZusammenHaeufigkeitsbildschirm, DreiLeereDateien)
{
    for (const char* datei : {"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"})
        schreibe(datei, {});
    zeige();
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 0");
    EXPECT_FALSE(hatBalken(1));
    klicke("cmdZoom");
    klicke("cmdSort4");
    EXPECT_FALSE(hatBalken(1));
}

TEST_F(ZusammenHaeufigkeitsbildschirm, SchliessenLaesstDieZiehungenZusammenGeladen)
{
    zeige();
    klicke("Command3");
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 5);
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

} // namespace

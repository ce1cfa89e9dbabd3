#include "shell/elements/Bildschirm.h"
#include "statistics/tests/Statistiktest.h"

#include <QFile>

namespace {

const QColor kNeueste{255, 255, 0};
const QColor kAelteste{255, 0, 0};

/// Two draws of Saturday, two of Wednesday and one of its draw B.
class ZusammenZuletztbildschirm : public Statistiktest {
protected:
    ZusammenZuletztbildschirm()
    {
        schreibe("SALOTTO.DAT", {"1955,41,01,02,03,04,05,06,00,0", "1955,42,01,02,03,04,05,07,49,0"});
        schreibe("MALOTTO.DAT", {"1986,23,01,02,03,10,11,12,48,0", "1986,24,01,02,03,10,11,13,00,0"});
        schreibe("MBLOTTO.DAT", {"1986,23,01,20,21,22,23,24,00,0"});
    }

    void zeige()
    {
        starte();
        oeffne("frmZusammenZuletzt");
    }
    QString ausspielungen(int zahl) { return lies(QString("bezeichnung114(%1)").arg(zahl)); }
    bool hatFarbe(int zahl, const QColor& farbe)
    {
        return zustand(QString("bezeichnung114(%1)").arg(zahl)).contains("back=" + farbe.name());
    }
    QStringList zeilen(const QString& liste) { return bedienung.zeilen(liste, 0, 100).zeilen; }
};

TEST_F(ZusammenZuletztbildschirm, ZaehltBeimOeffnenAlleSpiele)
{
    zeige();
    EXPECT_EQ(titel(), "Wann wurden die Gewinnzahlen zuletzt gezogen? ( Samstag und Mittwoch zusammen)");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 5");
    EXPECT_EQ(ausspielungen(13), "0");
    EXPECT_EQ(ausspielungen(20), "1");
    EXPECT_EQ(ausspielungen(12), "2");
    EXPECT_EQ(ausspielungen(7), "3");
    EXPECT_EQ(ausspielungen(49), "4");
    EXPECT_TRUE(hatFarbe(13, kNeueste));
    EXPECT_TRUE(hatFarbe(6, kAelteste));
    EXPECT_TRUE(hatFarbe(12, Qt::white));
    EXPECT_EQ(lies("lblLegende(0)"), "Zuletzt gezogen");
    EXPECT_EQ(lies("lblLegende(1)"), " Maximum");
}

TEST_F(ZusammenZuletztbildschirm, BeideListenHabenEineZeileJeZahl)
{
    zeige();
    const QStringList nachZahl = zeilen("lstZuletzt");
    ASSERT_EQ(nachZahl.size(), 49);
    EXPECT_EQ(nachZahl[11], "12   2  Mi, 04.06.1986");
    EXPECT_EQ(nachZahl[19], "20   1  Mi, 04.06.1986 (B)");
    const QStringList nachAusspielungen = zeilen("lstZuletztSort");
    ASSERT_EQ(nachAusspielungen.size(), 49);
    EXPECT_EQ(nachAusspielungen.first(), " 6   4  So, 09.10.1955");
    EXPECT_EQ(nachAusspielungen.last(), "13   0  Mi, 11.06.1986");
}

TEST_F(ZusammenZuletztbildschirm, JedesKaestchenZaehltNeu)
{
    zeige();
    klicke("chkArt(1)");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 3");
    EXPECT_EQ(ausspielungen(7), "1"); // B counts as a draw, but without its numbers
    EXPECT_EQ(ausspielungen(20), "2");
    EXPECT_EQ(zeilen("lstZuletzt")[19], "20   2  ");
    klicke("chkArt(2)");
    EXPECT_EQ(ausspielungen(7), "0");
    EXPECT_EQ(zeilen("lstZuletzt")[6], " 7   0  So, 16.10.1955");
}

TEST_F(ZusammenZuletztbildschirm, MitBAlleinIstKeineZahlGezogen)
{
    schreibe("MBLOTTO.DAT", {"1986,23,01,20,21,22,23,24,00,0", "1986,24,01,20,21,22,23,25,00,0"});
    zeige();
    klicke("chkArt(0)");
    klicke("chkArt(1)");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 2");
    EXPECT_EQ(ausspielungen(25), "1");
    EXPECT_TRUE(hatFarbe(25, kAelteste));
    EXPECT_EQ(zeilen("lstZuletzt")[24], "25   1  ");
}

TEST_F(ZusammenZuletztbildschirm, OhneSpielartStehtUeberallNull)
{
    zeige();
    for (const char* kasten : {"chkArt(0)", "chkArt(1)", "chkArt(2)"})
        klicke(kasten);
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 0");
    EXPECT_EQ(ausspielungen(1), "0");
    EXPECT_TRUE(hatFarbe(1, Qt::white));
    EXPECT_TRUE(zeilen("lstZuletzt").isEmpty());
    EXPECT_TRUE(zeilen("lstZuletztSort").isEmpty());
}

TEST_F(ZusammenZuletztbildschirm, EineFehlendeDateiWirdGenanntUndZaehltNichts)
{
    zeige();
    boxen();
    QFile::remove(ordner.filePath("SALOTTO.DAT"));
    klicke("chkArt(2)");
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_EQ(lies("lblTipp"), "Anzahl der ausgewerteten Ziehungen: 0");
    EXPECT_TRUE(zeilen("lstZuletzt").isEmpty());
}

TEST_F(ZusammenZuletztbildschirm, EineEinzigeZiehung)
{
    schreibe("SALOTTO.DAT", {"1955,41,01,02,03,04,05,06,00,0"});
    zeige();
    klicke("chkArt(1)");
    klicke("chkArt(2)");
    EXPECT_EQ(ausspielungen(1), "0");
    EXPECT_EQ(ausspielungen(49), "0");
    EXPECT_EQ(zeilen("lstZuletzt")[48], "49   0  ");
}

TEST_F(ZusammenZuletztbildschirm, SchliessenLaesstDieZiehungenZusammenGeladen)
{
    zeige();
    klicke("Command3");
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 5);
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

} // namespace

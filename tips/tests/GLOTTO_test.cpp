#include "shell/elements/Bildschirm.h"
#include "tips/tests/Tipptest.h"

#include <QStringList>

#include <algorithm>

namespace {

class Lottozahlengenerator : public Tipptest {
protected:
    void oeffneUndTippe()
    {
        starte();
        oeffne("GLOTTO");
        klicke("Befehl1");
    }
    QStringList zeilen(int liste) { return bedienung.zeilen(QString("Liste%1").arg(liste), 0, 9).zeilen; }
};

TEST_F(Lottozahlengenerator, FuelltSechsFelder)
{
    oeffneUndTippe();
    EXPECT_EQ(titel(), " Lottozahlen-Generator");
    EXPECT_EQ(lies("Bezeichnung58"), " Anzahl der ausgewerteten Tipps -> 6");
    for (int tipp = 1; tipp <= 6; ++tipp) {
        const QList<int> zahlen = markierte(QString("Bezeichnung%1").arg(tipp));
        ASSERT_EQ(zahlen.size(), 6);
        QStringList gezogen = zeilen(tipp);
        QStringList geordnet;
        for (const int zahl : zahlen)
            geordnet += QString::number(zahl).rightJustified(2);
        std::ranges::sort(gezogen);
        EXPECT_EQ(gezogen, geordnet);
        klicke("Befehl6");
        EXPECT_EQ(zeilen(tipp + 6), geordnet);
        klicke("Befehl3");
    }
}

TEST_F(Lottozahlengenerator, ZeigtZiehungsfolgeOderZahlenfolge)
{
    oeffneUndTippe();
    EXPECT_TRUE(sichtbar("Liste1"));
    EXPECT_FALSE(sichtbar("Liste7"));
    klicke("Befehl6");
    EXPECT_FALSE(sichtbar("Liste1"));
    EXPECT_TRUE(sichtbar("Liste7"));
}

TEST_F(Lottozahlengenerator, DieStatistikZaehltAlleTipps)
{
    oeffneUndTippe();
    klicke("Befehl1");
    EXPECT_EQ(lies("Bezeichnung58"), " Anzahl der ausgewerteten Tipps -> 12");
    klicke("Befehl7");
    int summe = 0;
    for (int zahl = 1; zahl <= 49; ++zahl)
        summe += lies(QString("Bezeichnung114(%1)").arg(zahl)).toInt();
    EXPECT_EQ(summe, 72);
    klicke("Befehl8");
    EXPECT_FALSE(sichtbar("Bezeichnung114(1)"));
}

TEST_F(Lottozahlengenerator, VorDemErstenTippGibtEsNichtsZuZeigen)
{
    starte();
    oeffne("GLOTTO");
    EXPECT_EQ(lies("Bezeichnung58"), " Anzahl der ausgewerteten Tipps -> 0");
    for (const char* knopf : {"Befehl3", "Befehl5", "Befehl6", "Befehl7", "cmdTipp(0)"})
        EXPECT_FALSE(bedienbar(knopf)) << knopf;
    EXPECT_TRUE(markierte("Bezeichnung1").isEmpty());
}

TEST_F(Lottozahlengenerator, DerGelbeRandGibtDenTippZurAuswertung)
{
    oeffneUndTippe();
    const QList<int> tipp = markierte("Bezeichnung3");
    klicke("cmdTipp(2)");
    ASSERT_TRUE(bedienung.benutze("frmLottoneu").gelungen());
    EXPECT_EQ(markierte("Bezeichnung6"), tipp);
    EXPECT_TRUE(lies("Label2").startsWith("Ziehungen mit Gewinnen: "));
    const QList<int> anderer = [this] {
        bedienung.benutze("GLOTTO");
        klicke("cmdTipp(0)");
        return markierte("Bezeichnung1");
    }();
    bedienung.benutze("frmLottoneu");
    EXPECT_EQ(markierte("Bezeichnung6"), anderer);
    schliesse();
    EXPECT_TRUE(buehne.bildschirme.geladen("GLOTTO")->isVisible());
    EXPECT_FALSE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

} // namespace

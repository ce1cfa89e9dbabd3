#include "tips/tests/Tipptest.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

class Kugelbildschirm : public Tipptest {
protected:
    /// Lets it run until the list has so many tips, then presses a button.
    void laufeBis(int tips, const QString& knopf)
    {
        starte();
        oeffne("frmKugel1");
        setze("HBildlauf1", "0");
        bool gedrueckt = false;
        buehne.pumpe.beiZug = [&] {
            if (gedrueckt || bedienung.anzahl("Liste1").zeilen.value(0).toInt() < tips)
                return;
            gedrueckt = true;
            EXPECT_EQ(lies("Befehl1"), "Stop");
            klicke(knopf);
        };
        klicke("Befehl1");
        buehne.pumpe.beiZug = {};
    }
};

TEST_F(Kugelbildschirm, FuelltDieListeBisZumStopp)
{
    laufeBis(4, "Befehl1");
    EXPECT_EQ(lies("Befehl1"), "Start");
    const QStringList zeilen = bedienung.zeilen("Liste1", 0, 100).zeilen;
    ASSERT_GE(zeilen.size(), 4);
    for (const QString& zeile : zeilen) {
        QStringList zahlen = zeile.split(' ');
        EXPECT_EQ(zahlen.size(), 6);
        EXPECT_EQ(zahlen.removeDuplicates(), 0);
        QStringList geordnet = zahlen;
        geordnet.sort();
        EXPECT_EQ(zahlen, geordnet);
    }
}

TEST_F(Kugelbildschirm, EndVerlaesstAuchEinenLauf)
{
    laufeBis(1, "Befehl2");
    QCoreApplication::processEvents();
    EXPECT_EQ(buehne.bildschirme.geladen("frmKugel1"), nullptr);
}

TEST_F(Kugelbildschirm, DieVerzoegerungStehtInZehntelsekunden)
{
    starte();
    oeffne("frmKugel1");
    setze("HBildlauf1", "7");
    EXPECT_EQ(lies("lblVerzoegerung"), "0,7 Sek");
    setze("HBildlauf1", "12");
    EXPECT_EQ(lies("lblVerzoegerung"), "1,2 Sek");
}

TEST_F(Kugelbildschirm, DrucktDieListe)
{
    laufeBis(2, "Befehl1");
    buehne.drucker.setzeDatei(ordner.filePath("kugeln.pdf"));
    klicke("Befehl3");
    EXPECT_TRUE(QFile::exists(ordner.filePath("kugeln.pdf")));
}

} // namespace

#include "archive/screens/Spielartenwahl.h"
#include "archive/tests/Archivbildschirmtest.h"
#include "shell/elements/Bildschirm.h"

#include <QDir>
#include <QFile>

namespace {

class Spielartenprobe final : public Bildschirm {
public:
    explicit Spielartenprobe(Umgebung& umgebung) : Bildschirm(umgebung, "frmProbe", "Probe")
    {
        setzeInhalt(spalte({new Spielartenwahl(*this), luecke()}));
    }
};

/// Two draws of Saturday, three of Wednesday and one of its draw B.
class ElementSpielartenwahl : public Archivbildschirmtest {
protected:
    ElementSpielartenwahl()
    {
        buehne.bildschirme.registriere<Spielartenprobe>("frmProbe");
        schreibeSamstag();
        schreibe("MALOTTO.DAT", {"1986,23,01,02,27,30,35,38,49,0", "1986,24,08,16,23,32,34,42,26,0",
                                 "1986,25,08,16,23,32,34,43,26,0"});
        schreibe("MBLOTTO.DAT", {"1986,23,04,15,28,31,35,43,25,0"});
    }
    void schreibeSamstag() const
    {
        schreibe("SALOTTO.DAT", {"1955,41,01,02,13,16,23,41,00,0", "1955,42,01,02,13,16,23,42,00,0"});
    }
    void entferne(const QString& datei) const { QFile::remove(ordner.filePath(datei)); }
    void oeffneProbe()
    {
        starte();
        boxen();
        oeffne("frmProbe");
    }
    QStringList staende() { return {lies("lblZ(0)"), lies("lblZ(1)"), lies("lblZ(2)")}; }
    QString fehlt(const QString& datei) const
    {
        return "info|Tombrix|Die Datei " + QDir(ordner.path()).absolutePath() + "/" + datei + " wurde nicht gefunden!";
    }
    void erwarteNichts()
    {
        EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 0);
        EXPECT_EQ(staende(), QStringList({"-", "-", "-"}));
        EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehugen: 0");
    }
};

const QStringList kDateien{"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"};

TEST_F(ElementSpielartenwahl, ZaehltDieZiehungenDerAngekreuzten)
{
    oeffneProbe();
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 6);
    EXPECT_EQ(staende(), QStringList({"2  [1955/42]", "3  [1986/25]", "1  [1986/23]"}));
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehugen: 6");
    klicke("chkArt(1)");
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 3);
    EXPECT_EQ(staende(), QStringList({"2  [1955/42]", "-", "1  [1986/23]"}));
}

// The files before the missing one have been read by then; they count no draws either.
TEST_F(ElementSpielartenwahl, OhneEineDerDateienZaehltSieKeineZiehung)
{
    starte();
    for (const QString& datei : kDateien) {
        SCOPED_TRACE(datei.toStdString());
        ASSERT_TRUE(QFile::rename(ordner.filePath(datei), ordner.filePath("weg")));
        oeffne("frmProbe");
        EXPECT_EQ(boxen(), QStringList{fehlt(datei)});
        erwarteNichts();
        schliesse();
        ASSERT_TRUE(QFile::rename(ordner.filePath("weg"), ordner.filePath(datei)));
    }
}

TEST_F(ElementSpielartenwahl, ErstEinKaestchenLaedtWieder)
{
    oeffneProbe();
    entferne("MBLOTTO.DAT");
    klicke("chkArt(0)");
    EXPECT_EQ(boxen(), QStringList{fehlt("MBLOTTO.DAT")});
    erwarteNichts();
    klicke("chkArt(2)");
    EXPECT_TRUE(boxen().isEmpty());
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 3);
    EXPECT_EQ(staende(), QStringList({"-", "3  [1986/25]", "-"}));
    klicke("chkArt(2)");
    EXPECT_EQ(boxen(), QStringList{fehlt("MBLOTTO.DAT")});
    erwarteNichts();
}

TEST_F(ElementSpielartenwahl, NichtsAngekreuztLaesstEsDabei)
{
    entferne("MALOTTO.DAT");
    oeffneProbe();
    klicke("chkArt(0)");
    klicke("chkArt(2)");
    boxen();
    klicke("chkArt(1)");
    EXPECT_TRUE(boxen().isEmpty());
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 0);
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehungen: 0");
}

TEST_F(ElementSpielartenwahl, DieDateiWiederDaUndEinKaestchenZaehltAlles)
{
    entferne("SALOTTO.DAT");
    buehne.pumpe.beendet = true; // the menu has no file to begin with
    oeffneProbe();
    boxen();
    erwarteNichts();
    schreibeSamstag();
    klicke("chkArt(2)");
    klicke("chkArt(2)");
    EXPECT_TRUE(boxen().isEmpty());
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 6);
}

} // namespace

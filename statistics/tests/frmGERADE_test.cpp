#include "shell/elements/Bildschirm.h"
#include "statistics/tests/Statistiktest.h"

#include <QFileInfo>

namespace {

class Gruppenbildschirm : public Statistiktest {
protected:
    void oeffneMitDrei()
    {
        schreibe("SALOTTO.DAT", {"1955,41,03,12,13,16,23,41,00,0", "1956,25,01,09,10,20,30,40,49,0",
                                 "1957,01,07,08,14,15,48,49,02,0"});
        starte();
        oeffne("frmGERADE");
    }
    QStringList werte(const QStringList& namen)
    {
        QStringList texte;
        for (const QString& name : namen)
            texte << lies(name);
        return texte;
    }
    QStringList septiden()
    {
        QStringList texte;
        for (int i = 0; i < 7; ++i)
            texte << lies(QString("txtSep(%1)").arg(i));
        return texte;
    }
};

const QStringList kAnzahlen{"Text3", "Text4", "Text5", "Text6"};
const QStringList kZehner{"Text7", "Text8", "Text9", "Text10", "Text11"};

TEST_F(Gruppenbildschirm, OeffnetMitDenJahrenDesArchivs)
{
    oeffneMitDrei();
    EXPECT_EQ(titel(), "Septiden, Zehnergruppen, gerade, ungerade");
    EXPECT_EQ(lies("Text1"), "1955");
    EXPECT_EQ(lies("Text2"), "1957");
    EXPECT_FALSE(bedienbar("Befehl5"));
    ueberfahre("Text1");
    EXPECT_EQ(titel(), "Anfang nicht kleiner als 1955 wählen !");
    ueberfahre("Text2");
    EXPECT_EQ(titel(), "Nicht größer als aktueller Erfassungstand in xxLotto.dat wählen !");
}

TEST_F(Gruppenbildschirm, ZaehltInDenDreiArten)
{
    oeffneMitDrei();
    klicke("Befehl2");
    EXPECT_EQ(titel(), "Gerade oder ungerade Gewinnzahlen / Zehnergruppen");
    EXPECT_EQ(werte(kAnzahlen), QStringList({"9", "9", "18", "3"}));
    EXPECT_EQ(werte(kZehner), QStringList({"5", "6", "2", "1", "4"}));
    EXPECT_EQ(septiden(), QStringList({"3", "6", "3", "1", "1", "2", "2"}));
    klicke("Befehl3");
    EXPECT_EQ(werte(kAnzahlen), QStringList({"10", "10", "20", "3"}));
    klicke("Befehl4");
    EXPECT_EQ(werte(kAnzahlen), QStringList({"1", "1", "2", "3"}));
}

TEST_F(Gruppenbildschirm, EinJahrAusVierZiffernOhneVergleichMitDemAnderen)
{
    oeffneMitDrei();
    setze("Text1", "57");
    klicke("Befehl2");
    EXPECT_EQ(boxen(), QStringList("info|Lotto-Nachricht|Jahreszahlen 4-stellig eingeben !"));
    EXPECT_EQ(lies("Text6"), "");
    setze("Text1", "1957");
    setze("Text2", "1955");
    klicke("Befehl2");
    EXPECT_TRUE(boxen().isEmpty());
    EXPECT_EQ(werte(kAnzahlen), QStringList({"0", "0", "0", "0"}));
}

TEST_F(Gruppenbildschirm, InfoNenntDasErsteJahrDerSpielart)
{
    starte();
    klicke("Option2");
    oeffne("frmGERADE");
    klicke("Befehl6");
    EXPECT_EQ(boxen(), QStringList("info|Lotto-Info|Anfang ->  nicht kleiner als 1986, Ende -> nicht größer als "
                                   "aktueller Erfassungsstand."));
}

TEST_F(Gruppenbildschirm, DrucktDieLetzteAuswertung)
{
    oeffneMitDrei();
    buehne.drucker.setzeDatei(ordner.filePath("druck.pdf"));
    klicke("Befehl2");
    setze("Text1", "1957");
    klicke("Befehl5");
    EXPECT_GT(QFileInfo(ordner.filePath("druck.pdf")).size(), 1000);
}

TEST_F(Gruppenbildschirm, LeeresArchivUndEineZiehung)
{
    schreibe("SALOTTO.DAT", {});
    starte();
    oeffne("frmGERADE");
    klicke("Befehl2");
    EXPECT_EQ(boxen(), QStringList("info|Lotto-Nachricht|Jahreszahlen 4-stellig eingeben !"));
    schliesse();
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
    schreibe("SALOTTO.DAT", {"1955,41,03,12,13,16,23,41,00,0"});
    klicke("Option1");
    oeffne("frmGERADE");
    klicke("Befehl4");
    EXPECT_EQ(werte(kAnzahlen), QStringList({"0", "0", "0", "1"}));
}

} // namespace

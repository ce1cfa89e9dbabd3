#include "engines/screens/frmZusammenBank.h"
#include "engines/tests/Suchtest.h"

#include <QFile>

namespace {

class Bankbildschirm : public Suchtest {
protected:
    void oeffneKleine()
    {
        schreibe("SALOTTO.DAT", {"1986,51,15,25,27,30,42,48,00,0"});
        schreibe("MALOTTO.DAT", {"1986,23,15,25,27,30,42,49,00,0"});
        schreibe("MBLOTTO.DAT", {"1986,23,01,02,27,30,48,49,00,0"});
        starte();
        oeffne("frmZusammenBank");
    }

    QStringList zeilen(const QString& liste) { return bedienung.zeilen(liste, 0, 100).zeilen; }
};

TEST_F(Bankbildschirm, OeffnetFuerEineZahl)
{
    oeffneKleine();
    EXPECT_EQ(titel(), "Wie oft wurden bestimmte Gewinnzahlen (z.B. Bankzahlen) zusammen mit anderen  gezogen?");
    EXPECT_EQ(lies("optA(0)"), "Wie oft wurde   1 Gewinnzahl zusammen mit den restlichen Zahlen gezogen? ");
    EXPECT_EQ(lies("frmZahl"), "Gewinnzahl wählen");
    EXPECT_FALSE(sichtbar("Combo2"));
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehugen: 3");
    klicke("optA(1)");
    EXPECT_EQ(lies("frmZahl"), "Gewinnzahlen wählen");
    EXPECT_TRUE(sichtbar("Combo2"));
    klicke("optA(0)");
    EXPECT_FALSE(sichtbar("Combo2"));
}

TEST_F(Bankbildschirm, ZaehltMitEinerZahl)
{
    oeffneKleine();
    setze("Combo1", "27");
    klicke("Command1");
    EXPECT_EQ(zeilen("List2").size(), 48);
    EXPECT_EQ(zeilen("List3").size(), 48);
    EXPECT_EQ(zeilen("List2").first(), " 1  ->    1");
    EXPECT_TRUE(zeilen("List2").contains("30  ->    3"));
    EXPECT_TRUE(zeilen("List2").filter("27  ->").isEmpty());
    EXPECT_EQ(zeilen("List3").first(), "   0  ->  3");
    EXPECT_EQ(zeilen("List3").last(), "   3  -> 30");
    EXPECT_EQ(lies("lblErgebnis"), "27 in 3 Ziehungen (Samstagslotto Mittwochslotto Mittwochslotto(B))");
}

TEST_F(Bankbildschirm, ZaehltMitZweiZahlen)
{
    oeffneKleine();
    klicke("chkArt(2)");
    klicke("optA(1)");
    setze("Combo1", "27");
    setze("Combo2", "48");
    klicke("Command1");
    EXPECT_EQ(zeilen("List2").size(), 47);
    EXPECT_TRUE(zeilen("List2").contains("15  ->    1"));
    EXPECT_TRUE(zeilen("List2").contains("49  ->    0"));
    EXPECT_EQ(lies("lblErgebnis"), "27 und 48 in 2 Ziehungen (Samstagslotto Mittwochslotto)");
}

TEST_F(Bankbildschirm, ZweiGleicheZahlenWerdenAbgelehnt)
{
    oeffneKleine();
    klicke("Command1");
    klicke("optA(1)");
    setze("Combo1", "9");
    setze("Combo2", "9");
    klicke("Command1");
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Abbruch. Es wurden gleiche Zahle ausgewählt!"});
    EXPECT_TRUE(zeilen("List2").isEmpty());
    EXPECT_TRUE(zeilen("List3").isEmpty());
    EXPECT_EQ(lies("lblErgebnis"), "");
    klicke("optA(0)"); // the second number does not count then
    klicke("Command1");
    EXPECT_TRUE(boxen().isEmpty());
    EXPECT_EQ(zeilen("List2").size(), 48);
}

TEST_F(Bankbildschirm, DieAngabeBleibtDieDerZaehlung)
{
    oeffneKleine();
    klicke("Command1");
    const QString angabe = lies("lblErgebnis");
    klicke("chkArt(0)");
    setze("Combo1", "5");
    EXPECT_EQ(lies("lblErgebnis"), angabe);
    EXPECT_EQ(angabe, "1 in 3 Ziehungen (Samstagslotto Mittwochslotto Mittwochslotto(B))");
}

TEST_F(Bankbildschirm, OhneSpielartKommtEineBitte)
{
    oeffneKleine();
    klicke("Command1");
    const QStringList vorher = zeilen("List2");
    for (int i = 0; i < 3; ++i)
        klicke(QString("chkArt(%1)").arg(i));
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehungen: 0");
    klicke("Command1");
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Bitte mindestens eine Spielart auswählen."});
    EXPECT_EQ(zeilen("List2"), vorher);
}

TEST_F(Bankbildschirm, EineFehlendeDateiZaehltNichts)
{
    starte();
    QFile::remove(ordner.filePath("MBLOTTO.DAT"));
    oeffne("frmZusammenBank");
    EXPECT_EQ(boxen().size(), 1);
    klicke("Command1");
    EXPECT_EQ(zeilen("List2").first(), " 2  ->    0");
    EXPECT_TRUE(lies("lblErgebnis").startsWith("1 in 0 Ziehungen"));
}

} // namespace

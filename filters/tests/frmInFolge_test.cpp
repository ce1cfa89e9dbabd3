#include "filters/tests/Filtertest.h"

namespace {

const QString kNichts = "---------------------- noch nicht aufgetreten -------------------------------------  ";

/// 7 comes in three draws in a row, 1, 2 and 3 together in the last three; the Zusatzzahl 44 follows itself.
class InFolgeBildschirm : public Filtertest {
protected:
    InFolgeBildschirm()
    {
        schreibe("SALOTTO.DAT",
                 {"1955,41,07,10,20,30,40,41,44,0", "1955,42,07,11,21,31,42,43,44,0", "1955,43,01,02,03,07,12,22,00,0",
                  "1955,44,01,02,03,13,23,33,00,0", "1955,45,01,02,03,14,24,34,00,0"});
    }

    void zeige()
    {
        starte();
        oeffne("frmInFolge");
    }
    QStringList zeilen() { return bedienung.zeilen("List1", 0, 100000).zeilen; }
};

TEST_F(InFolgeBildschirm, OeffnetMitFuenfUndSuchtNichts)
{
    zeige();
    EXPECT_EQ(titel(), "Wann und wie oft wurden die Gewinnzahlen maximal in Folge gezogen?");
    EXPECT_EQ(lies("txtWieviel"), "5");
    EXPECT_EQ(lies("lblSart"), "SAMSTAGSLOTTO");
    EXPECT_EQ(lies("lblZZ"), "");
    EXPECT_TRUE(zeilen().isEmpty());
}

TEST_F(InFolgeBildschirm, ListetDieSerienMitIhrenZiehungen)
{
    zeige();
    setze("txtWieviel", "3");
    klicke("C2");
    const QStringList alle = zeilen();
    ASSERT_EQ(alle.size(), 4 * 5 + 1);
    EXPECT_EQ(alle[0], "---------------------------- Gewinnzahlzahl 1 --------------------------------  ");
    EXPECT_EQ(alle[1], "                      3 mal in Folge gezogen (ohne die ZZ) ");
    EXPECT_EQ(alle[2], " 1955  43  01 02 03 07 12 22  00    -   So, 23.10.1955   Nr.     3");
    EXPECT_EQ(alle[15], "---------------------------- Gewinnzahlzahl 7 --------------------------------  ");
    EXPECT_EQ(alle[17], " 1955  41  07 10 20 30 40 41  44    -   So, 09.10.1955   Nr.     1");
    EXPECT_EQ(alle[20], QString(68, '-'));
    EXPECT_EQ(lies("lblZZ"), " - ohne  Zusatzzahl -");
    EXPECT_EQ(lies("lblErgebnis"), "Gefunden: 4 (mindestens 3 mal in Folge gezogen)");
}

TEST_F(InFolgeBildschirm, MitZusatzzahlZaehltAuchDiese)
{
    zeige();
    setze("txtWieviel", "2");
    klicke("C2");
    EXPECT_EQ(zeilen().filter("Gewinnzahlzahl 44").size(), 0);
    klicke("C3");
    EXPECT_EQ(zeilen().filter("Gewinnzahlzahl 44").size(), 1);
    EXPECT_EQ(zeilen().filter("2 mal in Folge gezogen (mit ZZ)").size(), 1);
    EXPECT_EQ(lies("lblZZ"), " - mit  Zusatzzahl -");
    EXPECT_TRUE(zustand("C3").contains("back=#b2dcc0"));
}

TEST_F(InFolgeBildschirm, EineLaengereSerieAlsJedeGibtEsNicht)
{
    zeige();
    klicke("C2");
    EXPECT_EQ(zeilen(), QStringList{kNichts});
    setze("txtWieviel", "32767");
    klicke("C3");
    EXPECT_EQ(zeilen(), QStringList{kNichts});
    EXPECT_TRUE(boxen().isEmpty());
}

TEST_F(InFolgeBildschirm, DreiZahlenFragenNichtNachDemFeld)
{
    zeige();
    setze("txtWieviel", "Unsinn");
    klicke("cmdDreiZahlen");
    EXPECT_TRUE(boxen().isEmpty());
    ASSERT_EQ(zeilen().size(), 6);
    EXPECT_TRUE(zeilen()[0].contains("Gewinnzahlzahl 1, 2, 3 "));
    EXPECT_EQ(zeilen()[1], "                      3 mal in Folge gezogen (ohne die ZZ) ");
    EXPECT_EQ(lies("lblZZ"), " - ohne  Zusatzzahl -");
    EXPECT_EQ(lies("lblErgebnis"), "Gefunden: 1 (drei Zahlen zusammen, mindestens 3 mal in Folge gezogen)");
}

TEST_F(InFolgeBildschirm, UnsinnigeEingabenSagtEineBoxUndNichtsAendertSich)
{
    zeige();
    setze("txtWieviel", "3");
    klicke("C3");
    const QStringList vorher = zeilen();
    for (const char* eingabe : {"", "abc", "0", "-3", "99999999999", "32768", "2,5", "3 4"}) {
        setze("txtWieviel", eingabe);
        klicke("C2");
        EXPECT_EQ(boxen(), QStringList{"info|Lotto-Nachricht|Bitte eine ganze Zahl von 1 bis 32767 eingeben !"})
            << eingabe;
        EXPECT_EQ(zeilen(), vorher);
        EXPECT_EQ(lies("lblZZ"), " - mit  Zusatzzahl -");
        EXPECT_EQ(lies("lblErgebnis"), "Gefunden: 4 (mindestens 3 mal in Folge gezogen)");
    }
}

TEST_F(InFolgeBildschirm, EnterImFeldSuchtWieZuletzt)
{
    zeige();
    setze("txtWieviel", "2");
    klicke("C3");
    tippe("txtWieviel", "3");
    setze("txtWieviel", "3");
    tippe("txtWieviel", "Return");
    EXPECT_EQ(lies("lblErgebnis"), "Gefunden: 4 (mindestens 3 mal in Folge gezogen)");
    EXPECT_EQ(lies("lblZZ"), " - mit  Zusatzzahl -");
}

TEST_F(InFolgeBildschirm, EinLeeresArchivUndEineEinzigeZiehung)
{
    schreibe("SALOTTO.DAT", {});
    zeige();
    for (const char* knopf : {"C2", "C3", "cmdDreiZahlen"}) {
        klicke(knopf);
        EXPECT_EQ(zeilen(), QStringList{kNichts});
    }
    klicke("cmdEnd");
    schreibe("SALOTTO.DAT", {"1955,41,07,10,20,30,40,41,44,0"});
    buehne.umgebung.menue->waehleSpielart(1);
    oeffne("frmInFolge");
    setze("txtWieviel", "1");
    klicke("C3");
    EXPECT_EQ(zeilen().size(), 7 * 3 + 1);
}

TEST_F(InFolgeBildschirm, ZeigtDieSuperzahlAbIhrerErstenZiehung)
{
    std::vector<std::string> saetze(497, "1986,23,11,26,27,30,35,38,49,5");
    schreibe("MALOTTO.DAT", saetze);
    starte();
    buehne.umgebung.menue->waehleSpielart(2);
    oeffne("frmInFolge");
    EXPECT_EQ(lies("lblSart"), "MITTWOCHSLOTTO ");
    klicke("C2");
    ASSERT_EQ(zeilen().size(), 6 * (497 + 2) + 1);
    EXPECT_TRUE(zeilen()[2 + 495].contains("  49    -   Mi, "));
    EXPECT_TRUE(zeilen()[2 + 496].contains("  49    5   Mi, "));
}

} // namespace

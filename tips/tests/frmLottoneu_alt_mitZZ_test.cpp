#include "tips/tests/Zeitreisetest.h"

#include <QPushButton>

namespace {

class AlteGewinnklassen : public Zeitreisetest {
protected:
    void oeffneFuer(std::int16_t spielart)
    {
        starte();
        buehne.umgebung.menue->waehleSpielart(spielart);
        oeffne("frmLottoneu_alt_mitZZ");
    }
    QString klassen()
    {
        return felder({"txtSSZ", "txtSechser", "txtFZ", "txtFünfer", "txtVZ", "txtVierer", "txtDZ", "txtDreier",
                       "txtZweier", "txtEiner", "txtNull"});
    }
};

TEST_F(AlteGewinnklassen, DieFestenTexte)
{
    oeffneFuer(Samstagslotto);
    EXPECT_EQ(titel(), "Vergleich mit allen Ziehungen seit 1955 (altes Gewinnschema mit Zusatzzahl)");
    EXPECT_EQ(lies("Label6"), "AUSWERTUNG NACH DEM ALTEN GEWINNSCHEMA MIT ZUSATZZAHL (GALT BIS  04.05.2013)");
    EXPECT_EQ(lies("Label8"), "ALTE GEWINNKLASSEN!");
    EXPECT_EQ(lies("Rahmen2"), "Ausgabe: Häufigkeit der Zahlen seit 1955 (ohne Zusatzzahl)");
    EXPECT_EQ(lies("Command3"), "&Info");
    klicke("Command3");
    EXPECT_EQ(boxen(), QStringList{"info|Lotto-Info|Die Superzahl spielte bei diesem alten Gewinnklassenschema nur bei "
                                   "6 Richtigen eine Rolle (6er+SZ, Jackpot)."});
    for (const char* name : {"Befehl18", "cmdHtml_Gewinn", "Option3(0)", "frame3"})
        EXPECT_EQ(bedienung.finde(name), nullptr) << name;
}

TEST_F(AlteGewinnklassen, NurAbDreiRichtigen)
{
    oeffneFuer(Samstagslotto);
    stelleSuperzahl(4);
    klickeZahlen(kTip);
    EXPECT_EQ(zeilen(), 2);
    EXPECT_EQ(zeile(0), "1991|49|Sa, 07.12.1991| 01| 02| 03|40|41|42|-|4|Dreier");
    EXPECT_EQ(zeile(1), "1991|51|Sa, 21.12.1991| 01| 02| 03| 04| 05| 06|-|5|Sechser");
    EXPECT_EQ(klassen(), "0 1 0 0 0 0 0 1 1887 0 1");
    stelleSuperzahl(5);
    EXPECT_EQ(zeile(1).section('|', 9), "-| 5|Sechser+SZ");
    EXPECT_EQ(klassen(), "1 0 0 0 0 0 0 1 1887 0 1");
}

TEST_F(AlteGewinnklassen, DieZusatzzahlTrenntDieKlassen)
{
    oeffneFuer(Mittwochslotto);
    EXPECT_EQ(titel(), "Vergleich mit allen Ziehungen seit 1986 (altes Gewinnschema mit Zusatzzahl)");
    klickeZahlen(kTip);
    EXPECT_EQ(zeile(0).section('|', 3), " 01| 02| 03| 04|40|41|-|-|Vierer");
    EXPECT_EQ(zeile(1).section('|', 3), " 01| 02| 03|40|41|42| 05|-|Dreier+ZZ");
    EXPECT_EQ(klassen(), "0 0 0 0 0 1 1 0 0 0 0");
    const QStringList farben = bedienung.farben("ListView1", 1).zeilen.value(0).split('\t');
    EXPECT_EQ(farben.value(18), "#ffff00/#000000");
    EXPECT_EQ(farben.value(20), "#ffffff/#000000");
}

TEST_F(AlteGewinnklassen, AmMittwochBZaehltDieZusatzzahlBeimViererNicht)
{
    oeffneFuer(MittwochslottoB);
    klickeZahlen(kTip);
    EXPECT_EQ(zeile(0).section('|', 3), " 01| 02| 03| 04|40|41|05|-|Vierer");
    EXPECT_EQ(klassen(), "0 0 0 0 0 1 0 0 0 0 0");
}

TEST_F(AlteGewinnklassen, SuchtKombinationen)
{
    oeffneFuer(Mittwochslotto);
    klicke("Option2");
    EXPECT_EQ(titel(), "Vergleich mit allen Ziehungen seit 1986 (altes Gewinnschema mit Zusatzzahl)");
    klickeZahlen({3, 42});
    EXPECT_EQ(lies("Label2"), "Ziehungen mit der gesuchten Kombination 3 42:   1 mal");
    EXPECT_EQ(zeile(0).section('|', 3), "01|02| 03|40|41| 42|05|-|");
    EXPECT_EQ(klassen(), "0 0 0 0 0 0 0 0 1 0 0");
}

TEST_F(AlteGewinnklassen, OhneUebergabeFuehrtDasSchliessenZumMenue)
{
    oeffneFuer(Samstagslotto);
    klicke("Befehl2");
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

} // namespace

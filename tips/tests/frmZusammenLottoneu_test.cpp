#include "tips/screens/frmZusammenLottoneu.h"
#include "tips/tests/Zeitreisetest.h"

#include <QPushButton>

namespace {

class ZeitreiseZusammen : public Zeitreisetest {
protected:
    void SetUp() override
    {
        starte();
        oeffne("frmZusammenLottoneu");
    }
};

constexpr auto kTitelVorher = "Lottozeitreise, die Treffer einer ausgewählten Tippkombination";

TEST_F(ZeitreiseZusammen, OeffnetMitAllenDreiSpielen)
{
    EXPECT_EQ(titel(), kTitelVorher);
    EXPECT_EQ(lies("Bezeichnung1"), "Ausgewertete Ziehungen: 0");
    EXPECT_EQ(lies("chkArt(2)"), "Mttwochslotto (B)");
    for (const char* name : {"chkArt(0)", "chkArt(1)", "chkArt(2)"})
        EXPECT_TRUE(zustand(name).contains("checked=true")) << name;
    EXPECT_EQ(bedienung.finde("Option3(0)"), nullptr);
    EXPECT_EQ(bedienung.finde("frame3"), nullptr);
}

TEST_F(ZeitreiseZusammen, WertetEinSpielNachDemAnderenAus)
{
    stelleSuperzahl(4);
    klickeZahlen(kTip);
    EXPECT_EQ(lies("Label2"), "Ziehungen mit Gewinnen: 6");
    EXPECT_EQ(lies("Bezeichnung1"), "Ausgewertete Ziehungen: 1893");
    EXPECT_EQ(titel(), "Lottozeitreise - Die Treffer der ausgewählten Tippkombination von 1970/01 bis 1991/52");
    QStringList wochen;
    for (int i = 0; i < zeilen(); ++i)
        wochen << zeile(i).section('|', 0, 0);
    EXPECT_EQ(wochen, (QStringList{"1986/23", "1986/23", "1991/49", "1991/50", "1991/50", "1991/51"}));
    EXPECT_EQ(zeile(2), "1991/49|Sa|Sa, 07.12.1991| 01| 02| 03|40|41|42| 4|Dreier+SZ");
    EXPECT_EQ(felder({"txtSechser", "txtVierer", "txtDZ", "txtDreier", "txtZZ", "txtZweier", "txtNull"}),
              "1 2 1 1 1 1886 1");
    EXPECT_EQ(haeufigkeiten(), "1892 1892 5 3 1 1");
    EXPECT_EQ(buehne.archiv.Spielart, MittwochslottoB);
}

TEST_F(ZeitreiseZusammen, EinWechselDerSpieleWertetNeuAus)
{
    klickeZahlen(kTip);
    klicke("chkArt(0)");
    klicke("chkArt(1)");
    EXPECT_EQ(lies("Label2"), "Ziehungen mit Gewinnen: 1");
    EXPECT_EQ(zeile(0), "1986/23|Mi(B)|Mi, 04.06.1986| 01| 02| 03| 04|40|41|-|Vierer");
    EXPECT_EQ(lies("Bezeichnung1"), "Ausgewertete Ziehungen: 1");
    EXPECT_EQ(titel(), "Lottozeitreise - Die Treffer der ausgewählten Tippkombination von 1986/23 bis 1986/23");
    EXPECT_EQ(lies("Bezeichnung20"), "MITTWOCHSLOTTO (B)");
    klicke("chkArt(2)");
    EXPECT_EQ(zeilen(), 0);
    EXPECT_EQ(lies("Label2"), "");
    EXPECT_EQ(lies("txtVierer"), "0");
    EXPECT_EQ(lies("Bezeichnung1"), "Ausgewertete Ziehungen: 0");
    EXPECT_EQ(titel(), kTitelVorher);
    EXPECT_FALSE(bedienbar("cmdHtml_Gewinn"));
    klicke("Command2");
    EXPECT_EQ(lies("Label2"), "");
    klicke("chkArt(0)");
    EXPECT_EQ(lies("Bezeichnung1"), "Ausgewertete Ziehungen: 1890");
}

TEST_F(ZeitreiseZusammen, SuchtKombinationenInAllenSpielen)
{
    klicke("Option2");
    EXPECT_EQ(titel(), "Lottozeitreise - Wie oft wurde eine Kombination gezogen?");
    klickeZahlen({3, 42});
    EXPECT_EQ(lies("Label2"), "Ziehungen mit der gesuchten Kombination 3 42:   2 mal");
    EXPECT_EQ(zeile(0).section('|', 0, 2), "1991/49|Sa|Sa, 07.12.1991");
    EXPECT_EQ(zeile(1).section('|', 0, 1), "1991/50|Mi");
    EXPECT_EQ(lies("txtZweier"), "2");
    EXPECT_EQ(zeilen(), 10);
    EXPECT_EQ(titel(), "Lottozeitreise - Wie oft wurde eine Kombination gezogen?");
}

TEST_F(ZeitreiseZusammen, EineFehlendeDateiWirdEinmalGenanntUndZaehltNicht)
{
    QFile::remove(ordner.filePath("MALOTTO.DAT"));
    klickeZahlen(kTip);
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_EQ(lies("Bezeichnung1"), "Ausgewertete Ziehungen: 1891");
    klicke("Command2");
    EXPECT_EQ(boxen().size(), 0);
    klicke("chkArt(1)");
    klicke("chkArt(1)");
    EXPECT_EQ(boxen().size(), 1);
    schreibe("MALOTTO.DAT", {"1986,23,01,02,03,04,40,41,00,0"});
    klicke("Command2");
    EXPECT_EQ(lies("Bezeichnung1"), "Ausgewertete Ziehungen: 1892");
    QFile::remove(ordner.filePath("MALOTTO.DAT"));
    klicke("Command2");
    EXPECT_EQ(boxen().size(), 1);
}

TEST_F(ZeitreiseZusammen, EinDoppelklickNimmtDieSpaetesteZiehung)
{
    ASSERT_TRUE(bedienung.doppelklicke("Bezeichnung16").gelungen());
    EXPECT_EQ(tippzahlen(), "7 8 9 10 11 12");
    klicke("chkArt(0)");
    ASSERT_TRUE(bedienung.doppelklicke("Bezeichnung16").gelungen());
    EXPECT_EQ(tippzahlen(), "1 2 3 40 41 42");
}

TEST_F(ZeitreiseZusammen, BehaeltDasErgebnisWennDasMenueEinSpielLaedt)
{
    klickeZahlen(kTip);
    buehne.umgebung.menue->waehleSpielart(Samstagslotto);
    buehne.bildschirme.geladen("frmZusammenLottoneu")->beimZeigen();
    EXPECT_EQ(lies("Bezeichnung1"), "Ausgewertete Ziehungen: 1893");
    EXPECT_EQ(lies("Label2"), "Ziehungen mit Gewinnen: 5");
}

TEST_F(ZeitreiseZusammen, DasZuletztGeladeneSpielBleibt)
{
    klickeZahlen(kTip);
    klicke("chkArt(2)");
    klicke("Befehl2");
    EXPECT_EQ(buehne.archiv.Spielart, Mittwochslotto);
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 2);
}

TEST_F(ZeitreiseZusammen, ExportiertDieGemischteListe)
{
    klicke("chkArt(0)");
    klickeZahlen(kTip);
    klicke("Befehl18");
    EXPECT_EQ(aufDemDesktop("kombinationen-1-2-3-4-5-6.csv"), "1986/23,Mi,Mi, 04.06.1986,01,02,03,04,40,41,-,\r\n"
                                                              "1986/23,Mi(B),Mi, 04.06.1986,01,02,03,04,40,41,-,\r\n"
                                                              "1991/50,Mi,Mi, 11.06.1986,01,02,03,40,41,42,-,\r\n");
    klicke("cmdHtml_Gewinn");
    const QByteArray seite = aufDemDesktop("gewinnliste.htm");
    EXPECT_TRUE(seite.contains("Mittwochslotto + Mittwochslotto (b) - Gewinne"));
    EXPECT_TRUE(seite.contains(", Anzahl der ausgewerteten Ziehungen: 3</div>"));
}

} // namespace

#include "filters/tests/Filtertest.h"
#include "shell/elements/Bildschirm.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Musterbuehne : public Filtertest {
protected:
    Musterbuehne()
    {
        schreibe("SALOTTO.DAT", {"1955,41,01,02,03,04,05,06,00,0", "1955,42,01,02,03,08,09,15,00,0",
                                 "1955,43,07,14,21,28,35,42,00,0", "1955,44,01,02,03,08,09,16,00,0"});
    }

    void zeige()
    {
        starte();
        oeffne("frmZeileSpalte2");
    }
    QStringList zeilen(const QString& liste) { return bedienung.zeilen(liste, 0, 1000).zeilen; }
    QString angabe() { return lies("Bezeichnung7"); }
};

TEST_F(Musterbuehne, OeffnetInDenZeilenUndSuchtNichts)
{
    zeige();
    EXPECT_EQ(titel(), "Zeilen / Spalten Filter 2 - Samstagslotto");
    EXPECT_TRUE(zustand("optAuswahl(0)").contains("checked=true"));
    EXPECT_EQ(lies("Rahmen2"), "SUCHE ZIEHUNGEN MIT :");
    EXPECT_EQ(lies("optZeile(0)"), "6 Zahlen in einer Zeile");
    EXPECT_THAT(zeilen("List1"), IsEmpty());
    EXPECT_FALSE(sichtbar("List2"));
}

TEST_F(Musterbuehne, DerTitelNenntDieSpielart)
{
    starte();
    buehne.umgebung.menue->waehleSpielart(Mittwochslotto);
    oeffne("frmZeileSpalte2");
    EXPECT_EQ(titel(), "Zeilen / Spalten Filter 2 - Mittwochslotto ");
    klicke("Befehl2");
    buehne.umgebung.menue->waehleSpielart(MittwochslottoB);
    oeffne("frmZeileSpalte2");
    EXPECT_EQ(titel(), "Zeilen / Spalten Filter 2 - Mittwochslotto (B)");
}

TEST_F(Musterbuehne, BerechnungListetDasGewaehlteMuster)
{
    zeige();
    klicke("optZeile(5)");
    klicke("Command22");
    EXPECT_EQ(zeilen("List1"), QStringList({"1955/42   01 02 03 08 09 15     So, 16.10.1955",
                                            "1955/44   01 02 03 08 09 16     So, 30.10.1955"}));
    EXPECT_EQ(angabe(), "2 Ziehungen (50,00%) von 4 Ziehungen ");
    EXPECT_THAT(markierte("Bezeichnung6"), ElementsAre(1, 2, 3, 8, 9, 15));
    klicke("optZeile(0)");
    EXPECT_EQ(angabe(), "1 Ziehung  (25,00%) von 4 Ziehungen ");
}

TEST_F(Musterbuehne, DieSpaltenNennenSichInDenOptionen)
{
    zeige();
    klicke("optZeile(0)");
    klicke("optAuswahl(1)");
    EXPECT_EQ(lies("optZeile(0)"), "6 Zahlen in einer Spalte");
    EXPECT_EQ(lies("optZeile(1)"), "5 Zahlen in einer Spalte");
    EXPECT_EQ(lies("optZeile(4)"), "2 x 3 Zahlen");
    EXPECT_EQ(zeilen("List1"), QStringList("1955/43   07 14 21 28 35 42     So, 23.10.1955"));
    klicke("optAuswahl(0)");
    EXPECT_EQ(lies("optZeile(0)"), "6 Zahlen in einer Zeile");
    EXPECT_EQ(zeilen("List1"), QStringList("1955/41   01 02 03 04 05 06     So, 09.10.1955"));
}

TEST_F(Musterbuehne, F5Berechnet)
{
    zeige();
    tippe("frmZeileSpalte2", "F5");
    EXPECT_EQ(angabe(), "0 Ziehungen (0,00%) von 4 Ziehungen ");
}

TEST_F(Musterbuehne, DieUebersichtStehtAnStelleDerFunde)
{
    zeige();
    const QSize vorher = buehne.bildschirme.geladen("frmZeileSpalte2")->size();
    klicke("cmdUebersicht");
    EXPECT_EQ(lies("cmdUebersicht"), "<");
    EXPECT_FALSE(sichtbar("List1"));
    EXPECT_FALSE(sichtbar("frame3"));
    const QStringList tafel = zeilen("List2");
    ASSERT_EQ(tafel.size(), 29);
    EXPECT_EQ(tafel[3], "6 Zahlen in einer Zeile        1 25,00");
    EXPECT_EQ(tafel[8], "1 x 3, 1 x 2, 1 x 1 Zahl       2 50,00");
    EXPECT_EQ(tafel[18], "6 Zahlen in einer Spalte       1 25,00");
    EXPECT_EQ(buehne.bildschirme.geladen("frmZeileSpalte2")->size(), vorher);
    klicke("cmdUebersicht");
    EXPECT_EQ(lies("cmdUebersicht"), "Übersicht");
    EXPECT_FALSE(sichtbar("List2"));
    EXPECT_TRUE(sichtbar("List1"));
    EXPECT_TRUE(sichtbar("frame3"));
}

TEST_F(Musterbuehne, EineSucheLegtDieUebersichtWeg)
{
    zeige();
    klicke("cmdUebersicht");
    klicke("optZeile(0)");
    EXPECT_EQ(lies("cmdUebersicht"), "Übersicht");
    EXPECT_EQ(zeilen("List1").size(), 1);
    EXPECT_TRUE(sichtbar("List1"));
}

TEST_F(Musterbuehne, EineLeereDatei)
{
    schreibe("SALOTTO.DAT", {});
    zeige();
    klicke("Command22");
    EXPECT_EQ(angabe(), "0 Ziehungen (0,00%) von 0 Ziehungen ");
    klicke("cmdUebersicht");
    EXPECT_EQ(zeilen("List2")[3], "6 Zahlen in einer Zeile        0  0,00");
}

} // namespace

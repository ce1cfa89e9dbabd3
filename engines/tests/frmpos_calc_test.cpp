#include "engines/tests/Suchtest.h"
#include "shell/elements/Bildschirm.h"

namespace {

constexpr auto kFehler = " Fehler: Die Positionszahl muss >=1 und <=13.983.816 sein.";

class Positionsrechner : public Suchtest {
protected:
    void SetUp() override
    {
        starte();
        oeffne("frmPOSKOM");
        klicke("Command1");
        ASSERT_TRUE(bedienung.benutze("frmpos_calc").gelungen());
    }

    void klickeZahl(int zahl) { klicke(QString("Bezeichnung6(%1)").arg(zahl)); }
    /// Takes the marks of the first calculation away and marks these.
    void waehleZahlen(const QList<int>& zahlen)
    {
        klicke("Option1(1)");
        for (const int zahl : markierte("Bezeichnung6"))
            klickeZahl(zahl);
        for (const int zahl : zahlen)
            klickeZahl(zahl);
    }
};

TEST_F(Positionsrechner, OeffnetMitDerErstenKombination)
{
    EXPECT_EQ(titel(), "Positionszahl->Kombination;   Kombination -> Positionszahl");
    EXPECT_EQ(lies("Text1"), "1");
    EXPECT_EQ(lies("Text2"), "Die Kombination:   1  2  3  4  5  6 -> steht an Position: 1");
    EXPECT_EQ(markierte("Bezeichnung6"), (QList<int>{1, 2, 3, 4, 5, 6}));
    EXPECT_TRUE(zustand("Option1(0)").contains("checked=true"));
    EXPECT_FALSE(bedienbar("Rahmen6"));
    EXPECT_FALSE(sichtbar("Label3"));
    EXPECT_TRUE(sichtbar("Frame1"));
    EXPECT_EQ(lies("Label5"), "- velmark -");
}

TEST_F(Positionsrechner, RechnetVonDerPositionszahl)
{
    setze("Text1", "6324251");
    EXPECT_EQ(lies("Text2"), "Die Kombination:   5 10 20 30 40 49 -> steht an Position: 6.324.251");
    EXPECT_EQ(markierte("Bezeichnung6"), (QList<int>{5, 10, 20, 30, 40, 49}));
    setze("Text1", "13.983.815");
    EXPECT_EQ(lies("Text2"), "Die Kombination:  43 45 46 47 48 49 -> steht an Position: 13.983.815");
    EXPECT_EQ(lies("Label4"), "");
}

TEST_F(Positionsrechner, EineFalscheEingabeLaesstDasLetzteErgebnis)
{
    setze("Text1", "2");
    const QString vorher = lies("Text2");
    for (const char* text : {"0", "13983817", "abc", "-5", "99999999999999999999", "1,5"}) {
        setze("Text1", text);
        EXPECT_EQ(lies("Label4"), kFehler) << text;
        EXPECT_EQ(lies("Text2"), vorher) << text;
        EXPECT_EQ(markierte("Bezeichnung6"), (QList<int>{1, 2, 3, 4, 5, 7})) << text;
    }
    setze("Text1", "3");
    EXPECT_EQ(lies("Label4"), "");
    EXPECT_EQ(lies("Text2"), "Die Kombination:   1  2  3  4  5  8 -> steht an Position: 3");
}

TEST_F(Positionsrechner, DieSchritteHaltenAnIhrenGrenzen)
{
    struct Fall {
        const char* knopf;
        const char* hinweis;
        const char* von;
        const char* nach;
    };
    for (const Fall& fall :
         {Fall{"Command2", "-1", "2", "1"}, Fall{"Command2", "-1", "1", "1"},
          Fall{"Command3", "+1", "13983815", "13983816"}, Fall{"Command3", "+1", "13983816", "13983816"},
          Fall{"Command4", "-10", "11", "1"}, Fall{"Command4", "-10", "10", "10"},
          Fall{"Command6", "+10", "13983805", "13983815"}, Fall{"Command6", "+10", "13983806", "13983806"},
          Fall{"Command5", "-100", "101", "1"}, Fall{"Command5", "-100", "100", "100"},
          Fall{"Command7", "+100", "13983715", "13983815"}, Fall{"Command7", "+100", "13983716", "13983716"},
          Fall{"Command8", "-1000", "1001", "1"}, Fall{"Command8", "-1000", "1000", "1000"},
          Fall{"Command9", "+1000", "13982815", "13983815"}, Fall{"Command9", "+1000", "13982816", "13982816"}}) {
        setze("Text1", fall.von);
        klicke(fall.knopf);
        EXPECT_EQ(lies("Text1"), fall.nach) << fall.knopf << " " << fall.von;
        const auto* knopf = bedienung.aktuell()->findChild<QWidget*>(fall.knopf);
        EXPECT_EQ(knopf->toolTip(), fall.hinweis);
    }
    setze("Text1", "keine");
    klicke("Command3");
    EXPECT_EQ(lies("Text1"), "keine");
}

TEST_F(Positionsrechner, RechnetVonDerKombination)
{
    waehleZahlen({49, 5, 40, 10, 30});
    EXPECT_TRUE(sichtbar("Label3"));
    EXPECT_FALSE(sichtbar("Frame1"));
    EXPECT_FALSE(sichtbar("Label2"));
    EXPECT_TRUE(bedienbar("Rahmen6"));
    klickeZahl(20);
    EXPECT_EQ(lies("Text1"), "6324251");
    EXPECT_EQ(lies("Text2"), "Die Kombination:   5 10 20 30 40 49 -> steht an Position: 6.324.251");
    EXPECT_EQ(markierte("Bezeichnung6"), (QList<int>{5, 10, 20, 30, 40, 49}));
}

TEST_F(Positionsrechner, EinSiebenterKlickAendertNichts)
{
    waehleZahlen({11, 12, 23, 34, 35, 48});
    klickeZahl(1);
    EXPECT_EQ(lies("Text1"), "10771741");
    EXPECT_EQ(markierte("Bezeichnung6"), (QList<int>{11, 12, 23, 34, 35, 48}));
    EXPECT_TRUE(boxen().isEmpty());
    // With one taken away the last result stays, until there are six again.
    klickeZahl(48);
    EXPECT_EQ(markierte("Bezeichnung6").size(), 5);
    EXPECT_EQ(lies("Text2"), "Die Kombination:  11 12 23 34 35 48 -> steht an Position: 10.771.741");
    klickeZahl(49);
    EXPECT_EQ(lies("Text1"), "10771742");
}

TEST_F(Positionsrechner, DerWechselDerRichtungRechnetNeu)
{
    setze("Text1", "12588102");
    klicke("Option1(1)");
    EXPECT_EQ(lies("Text2"), "Die Kombination:  15 25 27 30 42 48 -> steht an Position: 12.588.102");
    klickeZahl(48);
    klickeZahl(49);
    EXPECT_EQ(lies("Text1"), "12588103");
    klicke("Option1(0)");
    EXPECT_EQ(markierte("Bezeichnung6"), (QList<int>{15, 25, 27, 30, 42, 49}));
    EXPECT_FALSE(bedienbar("Rahmen6"));
}

TEST_F(Positionsrechner, DieGewaehlteKombinationSchreibtIhrePositionszahlZurueck)
{
    klicke("Option1(1)");
    setze("Text1", "77");
    EXPECT_EQ(lies("Text1"), "1");
    EXPECT_TRUE(lies("Text2").endsWith(" -> steht an Position: 1"));
    EXPECT_EQ(markierte("Bezeichnung6"), (QList<int>{1, 2, 3, 4, 5, 6}));
}

TEST_F(Positionsrechner, ImAusgeschaltetenFeldWirdNichtsMarkiert)
{
    EXPECT_FALSE(bedienung.klicke("Bezeichnung6(20)").grund.isEmpty());
    EXPECT_EQ(markierte("Bezeichnung6"), (QList<int>{1, 2, 3, 4, 5, 6}));
}

TEST_F(Positionsrechner, DasErgebnisfeldIstNurZumLesen)
{
    EXPECT_FALSE(bedienung.setze("Text2", "x").grund.isEmpty());
    EXPECT_EQ(lies("Text2"), "Die Kombination:   1  2  3  4  5  6 -> steht an Position: 1");
}

TEST_F(Positionsrechner, ErklaertSich)
{
    klicke("Command1");
    EXPECT_EQ(boxen(),
              QStringList{"info|Lotto-Info|Das Programm ermittelt die lexikographische Ordnungszahl (hier als "
                          "Positionszahl bezeichnet) einer gegebenen Kombination.\r\nAuch der umgekehrte Weg, die "
                          "Ermittlung der Kombination zu einer gegebenen Ordnungszahl, ist möglich. \r\nBeispiel:\r\n"
                          "Kombination: 1 2 3 4 5 6 -> Ordnungszahl: 1\r\nOrdnungszahl: 13.983.816 -> Kombination: 44 "
                          "45 46 47 48 49\r\n"});
}

TEST_F(Positionsrechner, SchliesstZurListe)
{
    schliesse();
    EXPECT_EQ(buehne.bildschirme.geladen("frmpos_calc"), nullptr);
    EXPECT_TRUE(buehne.bildschirme.geladen("frmPOSKOM")->isVisible());
    EXPECT_FALSE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

} // namespace

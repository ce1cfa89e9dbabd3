#include "listcontrol/screens/ListView.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "testhilfen/Schreibhindernisse.h"
#include "tips/screens/frmLottoneu.h"
#include "tips/tests/Zeitreisetest.h"

#include <QDir>

namespace {

constexpr auto kSchreibfehler = "info|Tombrix|Fehler beim Schreiben! Mögliche Ursachen:\n"
                                "1. Der aktuelle Ordner befindet sich auf einen schreibgeschützten Datenträger.\n"
                                "2. Sie besitzen nicht die erforderlichen Rechte um in diesen Ordner zu schreiben.";

class Zeitreisebild : public Zeitreisetest {
protected:
    void SetUp() override
    {
        starte();
        oeffne("frmLottoneu");
    }

    frmLottoneu& bildschirm() { return buehne.bildschirme.lade<frmLottoneu>("frmLottoneu"); }
    QString klassen()
    {
        return felder({"txtSechser_SZ", "txtSechser", "txtFZ", "txtFünfer", "txtVZ", "txtVierer", "txtDZ", "txtDreier",
                       "txtZZ", "txtZweier", "txtEiner", "txtNull"});
    }
};

constexpr auto kLeereKlassen = "0 0 0 0 0 0 0 0 0 0 0 0";

TEST_F(Zeitreisebild, OeffnetImVollenTippMitDenGewinnen)
{
    EXPECT_EQ(titel(), "Vergleich eines Tipps mit allen Ziehungen seit 1. Ausspielung 1955");
    EXPECT_EQ(lies("Bezeichnung20"), "SAMSTAGSLOTTO");
    EXPECT_EQ(lies("Bezeichnung1"), "1890 Ziehungen, von: 1970/01 bis: 1991/52");
    EXPECT_EQ(lies("Rahmen2"), "Ausgabe: Häufigkeit der Zahlen seit 1955");
    EXPECT_EQ(lies("Rahmen6"), "6 Zahlen auswählen");
    EXPECT_EQ(lies("Label1"), "Anzahl der Gewinne:");
    EXPECT_EQ(lies("Label2"), "Die Ziehungen mit Gewinnen");
    EXPECT_EQ(lies("Label3"), "Ausgabe: Ausgewählte Tippreihe");
    EXPECT_EQ(lies("lblSZ"), "0");
    EXPECT_EQ(lies("lblOPT1(0)"), "●");
    EXPECT_EQ(lies("lblOPT3(1)"), "●");
    EXPECT_EQ(lies("lblOPT3(0)"), "○");
    EXPECT_EQ(klassen(), kLeereKlassen);
    EXPECT_EQ(zeilen(), 0);
    EXPECT_FALSE(bedienbar("cmdHtml_Gewinn"));
    EXPECT_FALSE(sichtbar("Rahmen4"));
}

TEST_F(Zeitreisebild, WertetMitDerSechstenZahlAus)
{
    stelleSuperzahl(4);
    klickeZahlen({1, 2, 3, 4, 5});
    EXPECT_EQ(zeilen(), 0);
    EXPECT_EQ(lies("Bezeichnung13"), "");
    klickeZahlen({6});
    EXPECT_EQ(lies("Label2"), "Ziehungen mit Gewinnen: 3");
    EXPECT_EQ(zeilen(), 3);
    EXPECT_EQ(zeile(0), "1991|49|Sa, 07.12.1991| 01| 02| 03|40|41|42| 4|Dreier+SZ");
    EXPECT_EQ(zeile(1), "1991|50|Sa, 14.12.1991| 01| 02|40|41|42|43| 4|Zweier+SZ");
    EXPECT_EQ(zeile(2), "1991|51|Sa, 21.12.1991| 01| 02| 03| 04| 05| 06|5|Sechser");
    EXPECT_EQ(klassen(), "0 1 0 0 0 0 1 0 1 1886 0 1");
    EXPECT_EQ(haeufigkeiten(), "1889 1889 2 1 1 1");
    EXPECT_EQ(lies("Bezeichnung13"), "1");
    EXPECT_TRUE(lies("Bezeichnung8").startsWith("Suchzeit: "));
    EXPECT_TRUE(bedienbar("cmdHtml_Gewinn"));
    EXPECT_TRUE(bedienbar("Befehl18"));
}

TEST_F(Zeitreisebild, EineSiebteZahlAendertNichts)
{
    klickeZahlen(kTip);
    const QString vorher = klassen();
    klickeZahlen({49});
    EXPECT_EQ(markierte("Bezeichnung6"), kTip);
    EXPECT_EQ(klassen(), vorher);
    EXPECT_EQ(tippzahlen(), "1 2 3 4 5 6");
}

TEST_F(Zeitreisebild, UnterSechsZahlenStehtNichtsMehrDa)
{
    klickeZahlen(kTip);
    ASSERT_EQ(zeilen(), 2);
    klickeZahlen({3});
    EXPECT_EQ(tippzahlen(), "1 2 4 5 6 ");
    EXPECT_EQ(klassen(), kLeereKlassen);
    EXPECT_EQ(haeufigkeiten(), "     ");
    EXPECT_EQ(zeilen(), 0);
    EXPECT_EQ(lies("Label2"), "Die Ziehungen mit Gewinnen");
    EXPECT_EQ(lies("Bezeichnung13"), "");
    EXPECT_FALSE(bedienbar("cmdHtml_Gewinn"));
    klicke("Befehl18");
    EXPECT_FALSE(QDir(ordner.filePath("Desktop")).exists());
}

TEST_F(Zeitreisebild, DieSuperzahlLaeuftImKreisUndWertetAus)
{
    klickeZahlen(kTip);
    EXPECT_EQ(zeilen(), 2);
    klicke("Command1");
    EXPECT_EQ(lies("lblSZ"), "9");
    klicke("Command2");
    EXPECT_EQ(lies("lblSZ"), "0");
    stelleSuperzahl(5);
    EXPECT_EQ(zeile(1), "1991|51|Sa, 21.12.1991| 01| 02| 03| 04| 05| 06| 5|Sechser+SZ");
    EXPECT_EQ(lies("txtSechser_SZ"), "1");
    EXPECT_EQ(lies("txtSechser"), "0");
}

TEST_F(Zeitreisebild, MitFuenfZahlenWertetDieSuperzahlNichtsAus)
{
    klickeZahlen({1, 2, 3, 4, 5});
    klicke("Command2");
    EXPECT_EQ(lies("lblSZ"), "1");
    EXPECT_EQ(zeilen(), 0);
    EXPECT_EQ(lies("Bezeichnung8"), "");
    EXPECT_EQ(klassen(), kLeereKlassen);
}

TEST_F(Zeitreisebild, AlleZiehungenMitIhrenMarken)
{
    klicke("Option3(0)");
    EXPECT_EQ(zeilen(), 1890);
    EXPECT_EQ(lies("Label2"), "Alle 1890 Ziehungen");
    EXPECT_EQ(zeile(1886), "1991|49|Sa, 07.12.1991|01|02|03|40|41|42|4|");
    EXPECT_EQ(klassen(), kLeereKlassen);
    EXPECT_FALSE(bedienbar("cmdHtml_Gewinn"));
    stelleSuperzahl(4);
    klickeZahlen(kTip);
    EXPECT_EQ(lies("Label2"), "Alle 1890 Ziehungen mit ihren Treffern");
    EXPECT_EQ(zeile(1885).section('|', 3), " 01| 02|40|41|42|43|-|");
    EXPECT_EQ(zeile(1887).section('|', 3), " 01| 02|40|41|42|43| 4|Zweier+SZ");
    EXPECT_EQ(zeile(1889).section('|', 3), "07|08|09|10|11|12|3|");
    stelleSuperzahl(3);
    EXPECT_EQ(zeile(1887).section('|', 3), " 01| 02|40|41|42|43|4|");
    EXPECT_EQ(zeile(1889).section('|', 3), "07|08|09|10|11|12|3|");
    klickeZahlen({6});
    EXPECT_EQ(zeilen(), 1890);
    EXPECT_EQ(zeile(1887).section('|', 3), "01|02|40|41|42|43|4|");
    klickeZahlen({6});
    klicke("Option3(1)");
    EXPECT_EQ(zeilen(), 2);
    EXPECT_EQ(lies("Label2"), "Ziehungen mit Gewinnen: 2");
}

TEST_F(Zeitreisebild, EineGewaehlteZeileBleibtInDerListeAller)
{
    klicke("Option3(0)");
    klickeZahlen(kTip);
    waehle("ListView1", {1886});
    klicke("Command2");
    EXPECT_EQ(bedienung.gewaehlte("ListView1").zeilen, QStringList{"1886"});
}

TEST_F(Zeitreisebild, DieMarkenUndErklaerungenSchaltenAuch)
{
    klicke("lblOPT3(0)");
    EXPECT_EQ(zeilen(), 1890);
    EXPECT_EQ(lies("lblOPT3(0)"), "●");
    EXPECT_EQ(lies("lblOPT3(1)"), "○");
    klicke("lblc2(1)");
    EXPECT_EQ(zeilen(), 0);
    klicke("lblC(1)");
    EXPECT_EQ(lies("lblOPT1(1)"), "●");
    EXPECT_EQ(lies("Rahmen6"), "Kombination auswählen");
    klicke("lblOPT1(0)");
    EXPECT_EQ(lies("Rahmen6"), "6 Zahlen auswählen");
}

TEST_F(Zeitreisebild, DerModusWechseltTexteUndLoescht)
{
    klickeZahlen(kTip);
    klicke("Option2");
    EXPECT_EQ(titel(), "Suche nach einer Kombination in allen Ziehungen seit 1. Ausspielung 1955");
    EXPECT_EQ(markierte("Bezeichnung6"), QList<int>());
    EXPECT_EQ(zeilen(), 0);
    EXPECT_EQ(klassen(), kLeereKlassen);
    EXPECT_EQ(lies("Rahmen6"), "Kombination auswählen");
    EXPECT_EQ(lies("Label1"), "Häufigkeit der Kombination:");
    EXPECT_EQ(lies("Rahmen1"), "Ausgabe: Ausgewählte Kombination");
    EXPECT_EQ(lies("Label3"), "Ausgabe: Ausgewählte Kombination");
    EXPECT_EQ(lies("Label2"), "Die Ziehungen mit der gesuchter Kombination");
    for (const char* name : {"Befehl3", "Label5", "lblSZ", "Command1", "Command2", "Command3", "Command4", "frame3",
                             "Label6", "cmdHtml_Gewinn"})
        EXPECT_FALSE(sichtbar(name)) << name;
    EXPECT_TRUE(sichtbar("Befehl18"));
    klicke("option1");
    for (const char* name : {"Befehl3", "lblSZ", "Command3", "frame3", "cmdHtml_Gewinn"})
        EXPECT_TRUE(sichtbar(name)) << name;
}

TEST_F(Zeitreisebild, EinAnderesSpielOderEinAndererModusVerschiebtNichts)
{
    const auto orte = [this] {
        QList<QPoint> alle;
        for (const char* name : {"Bezeichnung6(1)", "Text1", "txtNull"}) {
            auto* feld = qobject_cast<QWidget*>(bedienung.finde(name));
            QCoreApplication::processEvents();
            alle << feld->mapTo(feld->window(), QPoint(0, 0));
        }
        return alle;
    };
    const QList<QPoint> vorher = orte();
    klicke("Option2");
    EXPECT_EQ(orte(), vorher);
    buehne.umgebung.menue->waehleSpielart(Mittwochslotto);
    bildschirm().beimZeigen();
    EXPECT_EQ(orte(), vorher);
}

TEST_F(Zeitreisebild, SuchtNachJedemKlick)
{
    klicke("Option2");
    klickeZahlen({2});
    EXPECT_EQ(lies("Label2"), "Ziehungen mit der gesuchten Kombination 2:   1889 mal");
    EXPECT_EQ(lies("txtEiner"), "1889");
    klickeZahlen({3});
    EXPECT_EQ(lies("Label2"), "Ziehungen mit der gesuchten Kombination 2 3:   2 mal");
    EXPECT_EQ(klassen(), "0 0 0 0 0 0 0 0 0 2 0 0");
    EXPECT_EQ(haeufigkeiten(), "1889 2    ");
    EXPECT_EQ(zeilen(), 10);
    EXPECT_EQ(zeile(0), "1991|49|Sa, 07.12.1991|01| 02| 03|40|41|42|4|");
    EXPECT_EQ(zeile(2), "||||||||||");
    klickeZahlen({49});
    EXPECT_EQ(lies("Label2"), "Ziehungen mit der gesuchten Kombination 2 3 49: 0 (noch nicht gezogen)");
    EXPECT_EQ(zeilen(), 10);
    klickeZahlen({2, 3, 49});
    EXPECT_EQ(zeilen(), 0);
    EXPECT_EQ(lies("Label2"), "Die Ziehungen mit der gesuchter Kombination");
    klickeZahlen(kTip);
    EXPECT_EQ(lies("txtSechser"), "1");
    EXPECT_EQ(lies("Bezeichnung13"), "1");
}

TEST_F(Zeitreisebild, EinZufallstippHatSechsZahlenUndBehaeltDieSuperzahl)
{
    stelleSuperzahl(7);
    klicke("Command4");
    const QList<int> erster = markierte("Bezeichnung6");
    EXPECT_EQ(erster.size(), 6);
    EXPECT_EQ(lies("lblSZ"), "7");
    EXPECT_TRUE(lies("Label2").startsWith("Ziehungen mit Gewinnen: "));
    klicke("Command4");
    EXPECT_NE(markierte("Bezeichnung6"), erster);
}

TEST_F(Zeitreisebild, EinDoppelklickNimmtDieLetzteZiehung)
{
    ASSERT_TRUE(bedienung.doppelklicke("Bezeichnung16").gelungen());
    EXPECT_EQ(tippzahlen(), "7 8 9 10 11 12");
    EXPECT_EQ(lies("lblSZ"), "3");
    EXPECT_EQ(lies("txtSechser_SZ"), "1");
}

TEST_F(Zeitreisebild, OhneSuperzahlDerLetztenZiehungBleibtDieDesTipps)
{
    buehne.umgebung.menue->waehleSpielart(Mittwochslotto);
    stelleSuperzahl(8);
    ASSERT_TRUE(bedienung.doppelklicke("Bezeichnung16").gelungen());
    EXPECT_EQ(tippzahlen(), "1 2 3 40 41 42");
    EXPECT_EQ(lies("lblSZ"), "8");
}

TEST_F(Zeitreisebild, EineKombinationAusIhrerPositionszahl)
{
    klicke("Befehl3");
    ASSERT_TRUE(sichtbar("Rahmen4"));
    setze("Text7", "6324251");
    klicke("Befehl6");
    EXPECT_EQ(tippzahlen(), "5 10 20 30 40 49");
    EXPECT_EQ(lies("Bezeichnung13"), "6.324.251");
    EXPECT_TRUE(lies("Label2").startsWith("Ziehungen mit Gewinnen: "));
    struct Fall {
        const char* knopf;
        const char* position;
    };
    for (const Fall& fall :
         {Fall{"Befehl5", "6.324.252"}, Fall{"Befehl7", "6.324.251"}, Fall{"Befehl9", "6.324.261"},
          Fall{"Befehl8", "6.324.251"}, Fall{"Befehl11", "6.324.351"}, Fall{"Befehl10", "6.324.251"}}) {
        klicke(fall.knopf);
        EXPECT_EQ(lies("Bezeichnung13"), fall.position) << fall.knopf;
    }
    setze("Text7", "007");
    tippe("Text7", "Return");
    EXPECT_EQ(lies("Bezeichnung13"), "7");
    EXPECT_EQ(lies("Bezeichnung19"), "");
    klicke("Befehl4");
    EXPECT_FALSE(sichtbar("Rahmen4"));
}

TEST_F(Zeitreisebild, EineFalschePositionszahlAendertNichts)
{
    klicke("Befehl3");
    setze("Text7", "13983816");
    klicke("Befehl6");
    EXPECT_EQ(tippzahlen(), "44 45 46 47 48 49");
    for (const char* text : {"", "abc", "4 9", "0", "-1", "13983817", "99999999999", "1,5"}) {
        setze("Text7", text);
        klicke("Befehl6");
        EXPECT_EQ(lies("Bezeichnung19"), "Fehler") << text;
        EXPECT_EQ(tippzahlen(), "44 45 46 47 48 49") << text;
    }
    setze("Text7", "13983816");
    klicke("Befehl5");
    EXPECT_EQ(lies("Bezeichnung19"), "Fehler");
    EXPECT_EQ(lies("Text7"), "13983816");
    klicke("Befehl6");
    EXPECT_EQ(lies("Bezeichnung19"), "");
    setze("Text7", "50");
    klicke("Befehl10");
    EXPECT_EQ(lies("Bezeichnung19"), "Fehler");
}

TEST_F(Zeitreisebild, EinKlickInsTippfeldSchliesstDiePositionstafel)
{
    klicke("Befehl3");
    klickeZahlen({1});
    EXPECT_FALSE(sichtbar("Rahmen4"));
    klicke("Befehl3");
    klicke("Option2");
    EXPECT_FALSE(sichtbar("Rahmen4"));
}

TEST_F(Zeitreisebild, DieDefinitionDerPositionszahl)
{
    klicke("Befehl1");
    EXPECT_NE(buehne.bildschirme.geladen("frmpos2"), nullptr);
}

TEST_F(Zeitreisebild, ExportiertDieListe)
{
    klickeZahlen(kTip);
    klicke("Befehl18");
    EXPECT_EQ(aufDemDesktop("kombinationen-1-2-3-4-5-6.csv"), "1991,49,Sa, 07.12.1991,01,02,03,40,41,42,4,\r\n"
                                                              "1991,51,Sa, 21.12.1991,01,02,03,04,05,06,5,\r\n");
    EXPECT_EQ(buehne.oeffner.entnehme(), QStringList{ordner.filePath("Desktop/kombinationen-1-2-3-4-5-6.csv")});
    klicke("cmdHtml_Gewinn");
    EXPECT_TRUE(aufDemDesktop("gewinnliste.htm").contains("<td>51</td><td>Sa, 21.12.1991</td>"));
    EXPECT_EQ(buehne.oeffner.entnehme(), QStringList{ordner.filePath("Desktop/gewinnliste.htm")});
}

TEST_F(Zeitreisebild, ExportiertInDerFolgeDerListe)
{
    klickeZahlen(kTip);
    auto* liste = qobject_cast<QWidget*>(bedienung.finde("ListView1"));
    ASSERT_NE(liste, nullptr);
    dynamic_cast<ListView&>(*liste).Sort(2, Sortierrichtung::Absteigend);
    klicke("Befehl18");
    EXPECT_TRUE(aufDemDesktop("kombinationen-1-2-3-4-5-6.csv").startsWith("1991,51,"));
    klicke("cmdHtml_Gewinn");
    const QByteArray seite = aufDemDesktop("gewinnliste.htm");
    EXPECT_LT(seite.indexOf("21.12.1991"), seite.indexOf("07.12.1991"));
}

TEST_F(Zeitreisebild, DieLeerenZeilenEinerSucheSindLeereZeilen)
{
    klicke("Option2");
    klickeZahlen({3, 40});
    klicke("Befehl18");
    EXPECT_EQ(aufDemDesktop("kombinationen-3-40.csv"),
              "1991,49,Sa, 07.12.1991,01,02,03,40,41,42,4,\r\n" + QByteArray("\r\n").repeated(9));
    klickeZahlen({49});
    klicke("Befehl18");
    EXPECT_FALSE(liegtAufDemDesktop("kombinationen-3-40-49.csv"));
}

TEST_F(Zeitreisebild, GeloeschtWirdNichtsExportiert)
{
    klickeZahlen(kTip);
    klicke("Befehl19");
    EXPECT_EQ(zeilen(), 11);
    EXPECT_EQ(zeile(10), "||||||||||");
    EXPECT_FALSE(bedienbar("cmdHtml_Gewinn"));
    klicke("Befehl18");
    EXPECT_FALSE(liegtAufDemDesktop("kombinationen-1-2-3-4-5-6.csv"));
    EXPECT_TRUE(buehne.oeffner.entnehme().isEmpty());
    klicke("Command2");
    EXPECT_EQ(zeilen(), 2);
    EXPECT_TRUE(bedienbar("cmdHtml_Gewinn"));
}

TEST_F(Zeitreisebild, NachDemLoeschenStehenWiederAlleZiehungen)
{
    klicke("Option3(0)");
    klickeZahlen(kTip);
    klicke("Befehl19");
    EXPECT_EQ(zeilen(), 11);
    klicke("Command1");
    EXPECT_EQ(zeilen(), 1890);
    EXPECT_EQ(zeile(1888).section('|', 3), " 01| 02| 03| 04| 05| 06|5|Sechser");
}

TEST_F(Zeitreisebild, EinTippOhneGewinnHatKeineSeite)
{
    klickeZahlen({13, 14, 15, 16, 17, 18});
    EXPECT_EQ(lies("Label2"), "Ziehungen mit Gewinnen: 0");
    EXPECT_EQ(zeilen(), 0);
    EXPECT_EQ(lies("txtNull"), "1890");
    EXPECT_FALSE(bedienbar("cmdHtml_Gewinn"));
}

TEST_F(Zeitreisebild, EinSchreibfehlerLaesstDieAlteDatei)
{
    klickeZahlen(kTip);
    klicke("cmdHtml_Gewinn");
    const QByteArray vorher = aufDemDesktop("gewinnliste.htm");
    ASSERT_FALSE(vorher.isEmpty());
    klicke("Command2");
    {
        const VolleScheibe voll(1000);
        klicke("cmdHtml_Gewinn");
    }
    EXPECT_EQ(boxen(), QStringList{kSchreibfehler});
    EXPECT_EQ(aufDemDesktop("gewinnliste.htm"), vorher);
    EXPECT_EQ(QDir(ordner.filePath("Desktop")).entryList(QDir::Files | QDir::Hidden), QStringList{"gewinnliste.htm"});
}

TEST_F(Zeitreisebild, OhneDesktopOrdnerWirdErGemachtOderGemeldet)
{
    QFile(ordner.filePath("Desktop")).open(QIODevice::WriteOnly);
    klickeZahlen(kTip);
    for (const char* knopf : {"Befehl18", "cmdHtml_Gewinn"}) {
        klicke(knopf);
        EXPECT_EQ(boxen(), QStringList{kSchreibfehler}) << knopf;
    }
    EXPECT_TRUE(buehne.oeffner.entnehme().isEmpty());
}

TEST_F(Zeitreisebild, EineGeschuetzteDateiWirdErsetzt)
{
    klickeZahlen(kTip);
    klicke("Befehl18");
    QFile alte(ordner.filePath("Desktop/kombinationen-1-2-3-4-5-6.csv"));
    ASSERT_TRUE(alte.setPermissions(QFile::ReadOwner));
    klicke("Option3(0)");
    klicke("Befehl18");
    EXPECT_EQ(aufDemDesktop("kombinationen-1-2-3-4-5-6.csv").count('\n'), 1890);
}

TEST_F(Zeitreisebild, FolgtEinemSpielDasDasMenueGewechseltHat)
{
    klickeZahlen(kTip);
    buehne.umgebung.menue->waehleSpielart(Mittwochslotto);
    buehne.bildschirme.geladen("frmLottoneu")->beimZeigen();
    EXPECT_EQ(lies("Bezeichnung20"), "MITTWOCHSLOTTO ");
    EXPECT_EQ(lies("Bezeichnung1"), "2 Ziehungen, von: 1986/23 bis: 1991/50");
    EXPECT_EQ(lies("Rahmen2"), "Ausgabe: Häufigkeit der ausgewählten Zahlen seit 1986");
    EXPECT_EQ(titel(), "Vergleich eines Tipps mit allen Ziehungen seit 1. Ausspielung 1986");
    EXPECT_EQ(lies("Label2"), "Ziehungen mit Gewinnen: 2");
    EXPECT_EQ(zeile(0), "1986|23|Mi, 04.06.1986| 01| 02| 03| 04|40|41|-|Vierer");
    EXPECT_EQ(klassen(), "0 0 0 0 0 1 0 1 0 0 0 0");
}

TEST_F(Zeitreisebild, FolgtDemSpielAuchSobaldSieWiederVorneIst)
{
    Bildschirm& menue = *buehne.bildschirme.geladen("frmLSTART");
    menue.show();
    menue.activateWindow();
    QCoreApplication::processEvents();
    buehne.umgebung.menue->waehleSpielart(Mittwochslotto);
    EXPECT_EQ(lies("Bezeichnung20"), "SAMSTAGSLOTTO");
    bildschirm().activateWindow();
    QCoreApplication::processEvents();
    EXPECT_EQ(lies("Bezeichnung20"), "MITTWOCHSLOTTO ");
}

TEST_F(Zeitreisebild, GibtDenTippAnDenAltenPlan)
{
    stelleSuperzahl(5);
    klickeZahlen(kTip);
    klicke("Command3");
    ASSERT_TRUE(bedienung.benutze("frmLottoneu_alt_mitZZ").gelungen());
    EXPECT_EQ(markierte("Bezeichnung6"), kTip);
    EXPECT_EQ(tippzahlen(), "1 2 3 4 5 6");
    EXPECT_EQ(lies("lblSZ"), "5");
    EXPECT_EQ(lies("Label2"), "Ziehungen mit Gewinnen: 2");
    EXPECT_EQ(lies("txtSSZ"), "1");
    EXPECT_EQ(lies("Befehl2"), "&Zurück");
    klicke("Befehl2");
    EXPECT_TRUE(bildschirm().isVisible());
    EXPECT_FALSE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(Zeitreisebild, GibtAuchEinenUnfertigenTippWeiter)
{
    klickeZahlen({8, 9});
    klicke("Command3");
    ASSERT_TRUE(bedienung.benutze("frmLottoneu_alt_mitZZ").gelungen());
    EXPECT_EQ(tippzahlen(), "8 9    ");
    EXPECT_EQ(zeilen(), 0);
}

TEST_F(Zeitreisebild, SchliesstDenAltenPlanMit)
{
    klicke("Command3");
    bildschirm().schliesse();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(buehne.bildschirme.geladen("frmLottoneu_alt_mitZZ"), nullptr);
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(Zeitreisebild, NimmtDenTippEinesAnderenBildschirms)
{
    klicke("Option2");
    stelleSuperzahl(0);
    Tippfeld7x7 tipp;
    tipp.zeige(std::vector<std::int32_t>{1, 2, 3, 4, 5, 6});
    bildschirm().uebernimm(tipp);
    EXPECT_EQ(lies("Label2"), "Ziehungen mit Gewinnen: 2");
    EXPECT_EQ(tippzahlen(), "1 2 3 4 5 6");
    EXPECT_EQ(lies("lblSZ"), "0");
    EXPECT_EQ(lies("lblOPT1(0)"), "●");
    bildschirm().uebernimm(tipp, 5);
    EXPECT_EQ(lies("lblSZ"), "5");
    EXPECT_EQ(lies("txtSechser_SZ"), "1");
    schliesse();
    EXPECT_FALSE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(Zeitreisebild, EinLeeresArchivGibtNichts)
{
    buehne.archiv = {};
    klickeZahlen(kTip);
    EXPECT_EQ(zeilen(), 0);
    EXPECT_EQ(klassen(), kLeereKlassen);
    ASSERT_TRUE(bedienung.doppelklicke("Bezeichnung16").gelungen());
    EXPECT_EQ(tippzahlen(), "1 2 3 4 5 6");
    klicke("Option3(0)");
    EXPECT_EQ(zeilen(), 0);
}

TEST_F(Zeitreisebild, DieFarbenDerZeilen)
{
    stelleSuperzahl(4);
    klickeZahlen(kTip);
    const QStringList farben = bedienung.farben("ListView1", 0).zeilen.value(0).split('\t');
    EXPECT_EQ(farben.value(0), "#d9fcfd/#000000");
    EXPECT_EQ(farben.value(1), "#c0c0c0/#000000");
    EXPECT_EQ(farben.value(6), "#80ffff/#ff0000");
    EXPECT_EQ(farben.value(12), "#d9fcfd/#000000");
    EXPECT_EQ(farben.value(18), "#ffff00/#000000");
    waehle("ListView1", {0});
    EXPECT_EQ(bedienung.farben("ListView1", 0).zeilen.value(0).split('\t').value(0), "#ffc080/#000000");
    EXPECT_EQ(bedienung.farben("ListView1", 1).zeilen.value(0).split('\t').value(0), "#ffffff/#000000");
}

TEST_F(Zeitreisebild, DieInfoErklaertBeideModi)
{
    klicke("Befehl13");
    const QString box = boxen().value(0);
    EXPECT_TRUE(box.startsWith("info|Lotto-Info|Die Gewinne werden nach dem seit 04.05.2013 gültigen "
                               "Gewinnklassenplan ermittelt."));
    EXPECT_TRUE(box.contains("Alte Gewinnklassen"));
}

} // namespace

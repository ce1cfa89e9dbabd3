#include "engines/screens/frmHGDV.h"
#include "engines/tests/Suchtest.h"
#include "testhilfen/VollsucheReferenz.h"

#include <QCoreApplication>
#include <QTimer>

#include <algorithm>

namespace {

class Vollsuchtest : public Suchtest {
protected:
    void oeffneMit(const std::vector<std::string>& saetze)
    {
        schreibe("SALOTTO.DAT", saetze);
        starte();
        oeffne("frmHGDV");
    }

    static QString knopf(int groesse) { return QString("cmdKombiSuche(%1)").arg(groesse); }
    QStringList zeilen(const QString& liste) { return bedienung.zeilen(liste, 0, 2'000'000).zeilen; }
    frmHGDV& schirm() const { return dynamic_cast<frmHGDV&>(*buehne.bildschirme.geladen("frmHGDV")); }
    bool istGeladen() const { return buehne.bildschirme.geladen("frmHGDV") != nullptr; }

    static void raeumeAuf()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Does `tue` once, at the turn of the event loop with this number, counted from 1.
    void beimZug(int nummer, const std::function<void()>& tue)
    {
        zug_ = 0;
        buehne.pumpe.beiZug = [this, nummer, tue] {
            if (++zug_ == nummer)
                tue();
        };
    }

    int zug_ = 0;
};

const std::vector<std::string> kZwei{"1955,41,03,12,13,16,23,41,00,0", "1955,42,03,12,18,30,32,49,00,0"};

TEST_F(Vollsuchtest, OeffnetMitStrichen)
{
    oeffneMit(kZwei);
    EXPECT_EQ(titel(), "Suche nach Wiederholungen (brute force)   Samstagslotto   2 Ziehungen von 1955/41 bis 1955/42");
    EXPECT_EQ(lies("txtH"), "        Kombinationen\n--------------------------------\nüberhaupt mögliche: -\n"
                            " noch nie gezogene: -\n   einmal gezogene: -\n mehrfach gezogene: -");
    EXPECT_TRUE(zustand("Option2").contains("checked=true"));
    for (const char* feld : {"Liste1", "Bezeichnung8", "Befehl3", "Bezeichnung9", "Text1", "Bezeichnung10"})
        EXPECT_FALSE(sichtbar(feld)) << feld;
    EXPECT_EQ(lies("cmdKombiSuche(4)"), "&Vierer-Wiederholungen");
    EXPECT_TRUE(zeilen("Liste3").isEmpty());
}

TEST_F(Vollsuchtest, ZweierOhneAnimation)
{
    oeffneMit(kZwei);
    klicke(knopf(2));
    EXPECT_EQ(zeilen("Liste3"), QStringList{"   2 mal -> 03 12"});
    EXPECT_EQ(lies("txtH"), "      Zweierkombinationen\n--------------------------------\nüberhaupt mögliche: 1.176\n"
                            " noch nie gezogene: 1.147\n   einmal gezogene: 28\n mehrfach gezogene: 1");
    EXPECT_EQ(lies("lblSL"), "Suchläufe: 1.176 von 1.176  100%");
    EXPECT_EQ(lies("Text15"), "Zweierwiederholungen");
    EXPECT_EQ(lies("Label5"), lies("Label4"));
    EXPECT_EQ(bedienung.gewaehlte("Liste3").zeilen, QStringList{"0"});
    EXPECT_FALSE(sichtbar("Liste1"));
    EXPECT_TRUE(sichtbar("Rahmen5"));
    EXPECT_FALSE(sichtbar("Bezeichnung10"));
    for (int groesse = 2; groesse <= 6; ++groesse)
        EXPECT_TRUE(bedienbar(knopf(groesse)));
    EXPECT_TRUE(titel().startsWith("Suche nach Wiederholungen (brute force)   Samstagslotto"));
    EXPECT_EQ(schirm().ergebnis(), sucheEinfach(buehne.archiv, 2));
}

TEST_F(Vollsuchtest, OhneAnimationBleibtDasFeldWieAmAnfang)
{
    oeffneMit(kZwei);
    klicke(knopf(4));
    for (int zahl = 1; zahl <= 49; ++zahl) {
        const QString farben = zustand(QString("Bezeichnung6(%1)").arg(zahl));
        EXPECT_TRUE(farben.endsWith(zahl <= 4 ? "back=#00ffff fore=#ff0000" : "back=#ffffff fore=#000000")) << zahl;
    }
}

TEST_F(Vollsuchtest, DreierZeigenAuchDieNieGezogenen)
{
    oeffneMit(kZwei);
    klicke(knopf(3));
    for (const char* feld : {"Liste1", "Bezeichnung8", "Befehl3", "Bezeichnung9", "Text1"})
        EXPECT_TRUE(sichtbar(feld)) << feld;
    EXPECT_EQ(lies("Text1"), "18384");
    const QStringList nie = zeilen("Liste1");
    ASSERT_EQ(nie.size(), 18384);
    EXPECT_EQ(nie.first(), "01 02 03");
    EXPECT_EQ(nie.last(), "47 48 49");
    EXPECT_EQ(static_cast<int>(schirm().ergebnis().nieGezogene.size()), 18384);
    klicke(knopf(2));
    for (const char* feld : {"Liste1", "Bezeichnung8", "Befehl3", "Bezeichnung9", "Text1"})
        EXPECT_FALSE(sichtbar(feld)) << feld;
}

TEST_F(Vollsuchtest, OhneSechserwiederholungStehtEsInDerListe)
{
    oeffneMit(kZwei);
    klicke(knopf(6));
    EXPECT_EQ(zeilen("Liste3"), QStringList{"Keine Sechserwiederholungen!"});
    EXPECT_TRUE(lies("txtH").endsWith("überhaupt mögliche: 13.983.816\n noch nie gezogene: 13.983.814\n"
                                      "   einmal gezogene: 2\n mehrfach gezogene: 0"));
    EXPECT_EQ(lies("lblSL"), "Suchläufe: 13.983.816 von 13.983.816  100%");
    EXPECT_TRUE(schirm().ergebnis().wiederholungen.empty());
    klicke(knopf(5));
    EXPECT_TRUE(zeilen("Liste3").isEmpty());
}

TEST_F(Vollsuchtest, FindetEineSechserwiederholung)
{
    oeffneMit({kZwei[0], kZwei[1], kZwei[0]});
    klicke(knopf(6));
    EXPECT_EQ(zeilen("Liste3"), QStringList{"    2 mal -> 03 12 13 16 23 41"});
    EXPECT_EQ(bedienung.gewaehlte("Liste3").zeilen, QStringList{"0"});
}

TEST_F(Vollsuchtest, DieListeIstEineRangfolge)
{
    starte();
    oeffne("frmHGDV");
    klicke(knopf(2));
    const QStringList gezeigt = zeilen("Liste3");
    EXPECT_TRUE(std::is_sorted(gezeigt.begin(), gezeigt.end()));
    std::vector<std::string> gefunden = sucheEinfach(buehne.archiv, 2).wiederholungen;
    std::ranges::sort(gefunden);
    EXPECT_EQ(schirm().wiederholungen(), gefunden);
    EXPECT_TRUE(lies("txtH").contains(" noch nie gezogene: 0\n"));
}

TEST_F(Vollsuchtest, MitAnimationZeigtJedeKombination)
{
    oeffneMit(kZwei);
    setze("Option1", "on");
    std::vector<QList<int>> gesehen;
    buehne.pumpe.beiZug = [&] { gesehen.push_back(markierte("Bezeichnung6")); };
    klicke(knopf(2));
    buehne.pumpe.beiZug = {};
    ASSERT_EQ(gesehen.size(), 1176U);
    std::size_t nummer = 0;
    for (int a = 1; a <= 48; ++a)
        for (int b = a + 1; b <= 49; ++b)
            EXPECT_EQ(gesehen[nummer++], (QList<int>{a, b}));
    EXPECT_EQ(schirm().ergebnis(), sucheEinfach(buehne.archiv, 2));
    EXPECT_EQ(zeilen("Liste3"), QStringList{"   2 mal -> 03 12"});
}

TEST_F(Vollsuchtest, BeideArtenGebenDasselbe)
{
    starte();
    oeffne("frmHGDV");
    for (const int groesse : {2, 3}) {
        setze("Option2", "on");
        klicke(knopf(groesse));
        const Suchergebnis ohne = schirm().ergebnis();
        const QStringList wiederholungen = zeilen("Liste3");
        const QStringList nieGezogene = zeilen("Liste1");
        const QString zusammen = lies("txtH");
        setze("Option1", "on");
        schirm().setUpdatesEnabled(false); // painting each of the combinations would take most of the time
        klicke(knopf(groesse));
        schirm().setUpdatesEnabled(true);
        EXPECT_EQ(schirm().ergebnis(), ohne);
        EXPECT_EQ(zeilen("Liste3"), wiederholungen);
        EXPECT_EQ(zeilen("Liste1"), nieGezogene);
        EXPECT_EQ(lies("txtH"), zusammen);
    }
}

TEST_F(Vollsuchtest, WaehrendDesLaufsIstNurDasAbbrechenFrei)
{
    oeffneMit(kZwei);
    setze("Option1", "on");
    beimZug(20, [this] {
        for (int groesse = 2; groesse <= 6; ++groesse)
            EXPECT_FALSE(bedienbar(knopf(groesse)));
        EXPECT_FALSE(bedienbar("Befehl1"));
        EXPECT_FALSE(bedienbar("Befehl2"));
        EXPECT_FALSE(sichtbar("Rahmen5"));
        EXPECT_TRUE(sichtbar("Bezeichnung10"));
        EXPECT_EQ(lies("Bezeichnung10"), "BITTE WARTEN !");
        EXPECT_EQ(titel(), "Bitte warten !");
        EXPECT_EQ(lies("lblSL"), "Suchläufe: 0 von 1.176");
        EXPECT_EQ(lies("Label4"), "00:00:00");
        EXPECT_EQ(schirm().focusWidget()->objectName(), "Befehl5");
        EXPECT_TRUE(schirm().findChild<QTimer*>("Timer2")->isActive());
        schirm().suche(3); // a second one while it runs
        EXPECT_EQ(lies("Text15"), "Zweierwiederholungen");
    });
    klicke(knopf(2));
    EXPECT_EQ(schirm().ergebnis(), sucheEinfach(buehne.archiv, 2));
    EXPECT_FALSE(schirm().findChild<QTimer*>("Timer2")->isActive());
}

TEST_F(Vollsuchtest, DieTitelDerViererUndSechser)
{
    oeffneMit(kZwei);
    setze("Option1", "on");
    for (const auto& [groesse, text] :
         {std::pair(3, "Bitte warten !"), std::pair(4, "Suche nach Viererkombinationen"),
          std::pair(5, "Bitte warten !"), std::pair(6, "Suche nach Sechserwiederholungen")}) {
        beimZug(3, [this, text] {
            EXPECT_EQ(titel(), text);
            klicke("Befehl5");
        });
        klicke(knopf(groesse));
        EXPECT_TRUE(titel().startsWith("Suche nach Wiederholungen (brute force)   Samstagslotto"));
    }
}

TEST_F(Vollsuchtest, Timer2ZeigtZeitUndSchaetzung)
{
    oeffneMit(kZwei);
    setze("Option1", "on");
    buehne.uhr.stelle("2026-11-21T23:59:58");
    beimZug(589, [this] {
        buehne.uhr.stelle("2026-11-22T00:00:07");
        EXPECT_TRUE(bedienung.ticke("Timer2").gelungen());
        EXPECT_EQ(lies("Label4"), "00:00:10");
        EXPECT_EQ(lies("Label5"), "00:00:19");
        EXPECT_EQ(lies("lblSL"), "Suchläufe: 588 von 1.176  50,00%");
    });
    klicke(knopf(2));
    EXPECT_EQ(lies("Label5"), lies("Label4"));
    const QString vorher = lies("Label4");
    bedienung.ticke("Timer2");
    EXPECT_EQ(lies("Label4"), vorher);
}

TEST_F(Vollsuchtest, EinAbbruchBehaeltDieZeilenBisDahin)
{
    oeffneMit(kZwei);
    setze("Option1", "on");
    beimZug(200, [this] { klicke("Befehl5"); });
    klicke(knopf(2));
    EXPECT_EQ(zug_, 200); // the stop acts at the next combination
    EXPECT_EQ(lies("txtH"), "Berechnung wurde abgebrochen!");
    EXPECT_EQ(lies("lblSL"), "Berechnung wurde abgebrochen!");
    EXPECT_EQ(zeilen("Liste3"), QStringList{"   2 mal -> 03 12"});
    EXPECT_EQ(schirm().ergebnis().Suchlaeufe, 200);
    EXPECT_TRUE(schirm().ergebnis().abgebrochen());
    EXPECT_TRUE(bedienbar("Befehl2"));
    EXPECT_TRUE(bedienbar(knopf(2)));
    buehne.pumpe.beiZug = {};
    klicke(knopf(2));
    EXPECT_EQ(schirm().ergebnis(), sucheEinfach(buehne.archiv, 2));
}

TEST_F(Vollsuchtest, EinAbbruchDerSechserNenntKeineFehlanzeige)
{
    oeffneMit(kZwei);
    setze("Option1", "on");
    beimZug(1, [this] { klicke("Befehl5"); });
    klicke(knopf(6));
    EXPECT_EQ(zug_, 1);
    EXPECT_TRUE(zeilen("Liste3").isEmpty());
    EXPECT_EQ(lies("txtH"), "Berechnung wurde abgebrochen!");
}

TEST_F(Vollsuchtest, BerichtAbbruchHaeltAuchDenLaufOhneAnimation)
{
    oeffneMit(kZwei);
    buehne.umgebung.BerichtAbbruch = true;
    for (const char* art : {"Option1", "Option2"}) {
        setze(art, "on");
        klicke(knopf(5));
        EXPECT_EQ(schirm().ergebnis().Suchlaeufe, 0);
        EXPECT_EQ(lies("txtH"), "Berechnung wurde abgebrochen!");
    }
    buehne.umgebung.BerichtAbbruch = false;
    klicke(knopf(5));
    EXPECT_FALSE(schirm().ergebnis().abgebrochen());
}

TEST_F(Vollsuchtest, BerichtAbbruchMittenInDerAnimation)
{
    oeffneMit(kZwei);
    setze("Option1", "on");
    beimZug(7, [this] { buehne.umgebung.BerichtAbbruch = true; });
    klicke(knopf(4));
    EXPECT_EQ(schirm().ergebnis().Suchlaeufe, 7);
}

TEST_F(Vollsuchtest, GeschlossenMittenImLaufGehtErNachDemHalt)
{
    oeffneMit(kZwei);
    setze("Option1", "on");
    beimZug(5, [this] { schirm().close(); });
    klicke(knopf(6));
    EXPECT_EQ(zug_, 5);
    raeumeAuf();
    EXPECT_FALSE(istGeladen());
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(Vollsuchtest, DasEndeDesProgrammsHaeltDenLauf)
{
    oeffneMit(kZwei);
    setze("Option1", "on");
    beimZug(5, [this] { buehne.pumpe.beendet = true; });
    klicke(knopf(6));
    EXPECT_LE(zug_, 6);
    EXPECT_TRUE(schirm().ergebnis().abgebrochen());
}

TEST_F(Vollsuchtest, SuchtAuchOhneGezeigtZuWerden)
{
    schreibe("SALOTTO.DAT", kZwei);
    starte();
    auto& motor = buehne.bildschirme.lade<frmHGDV>("frmHGDV");
    motor.suche(3);
    EXPECT_FALSE(motor.isVisible());
    EXPECT_EQ(motor.ergebnis(), sucheEinfach(buehne.archiv, 3));
    EXPECT_EQ(motor.wiederholungen().size(), motor.ergebnis().wiederholungen.size());
    motor.suche(7);
    motor.suche(1);
    EXPECT_EQ(motor.ergebnis().groesse, 3);
}

TEST_F(Vollsuchtest, BerichtetInDieZwischenablage)
{
    schreibe("MALOTTO.DAT", {"1986,23,11,26,27,30,35,38,49,0", "1986,24,11,26,32,34,42,43,26,0"});
    starte();
    klicke("Option2");
    oeffne("frmHGDV");
    buehne.zwischenablage.setze("vorher");
    klicke("Befehl6");
    EXPECT_EQ(buehne.zwischenablage.text(), "vorher"); // nothing found yet
    klicke(knopf(3));
    klicke("Befehl6");
    EXPECT_EQ(buehne.zwischenablage.text(), "vorher");
    klicke("Befehl3");
    const QStringList nie = buehne.zwischenablage.text().split("\r\n");
    EXPECT_EQ(nie[1], "*** MITTWOCHSLOTTO  ***");
    EXPECT_EQ(nie[2], "Noch nie gezogene Dreierkombinationen im Mittwochslotto ");
    EXPECT_EQ(nie[4], "01 02 03");
    EXPECT_EQ(nie.size(), 4 + 18384 + 6);
    klicke(knopf(2));
    klicke("Befehl6");
    EXPECT_EQ(buehne.zwischenablage.text(),
              "\r\n*** MITTWOCHSLOTTO  ***\r\n"
              "Zweierwiederholungen im Mittwochslotto \r\n"
              "\r\n"
              "   2 mal -> 11 26\r\n"
              "\r\n"
              "Erfassungstand der Ziehungen: 1986/24  Mi, 11.06.1986\r\n"
              "Anzahl der ausgewerteten Ziehungen: 2\r\n"
              "Hinweis: Falls die Spalten der Tabelle nicht ordentlich dargestellt werden, \r\n"
              "wählen sie für die Ansicht eine nichtproportionale Schriftart (z.B. Courier).\r\n");
}

TEST_F(Vollsuchtest, EinLeeresArchivHatNurNieGezogene)
{
    oeffneMit({});
    EXPECT_EQ(titel(), "Suche nach Wiederholungen (brute force)   Samstagslotto");
    for (const int groesse : {2, 3, 4, 5, 6}) {
        klicke(knopf(groesse));
        EXPECT_EQ(schirm().ergebnis().NieGezogen, schirm().ergebnis().SuchlaeufeGesamt);
    }
    EXPECT_EQ(zeilen("Liste3"), QStringList{"Keine Sechserwiederholungen!"});
}

TEST_F(Vollsuchtest, DieInfoKommtUndGehtWiederZurSuche)
{
    oeffneMit(kZwei);
    klicke("Befehl1");
    EXPECT_EQ(buehne.klang.gespielt.back(), 1);
    ASSERT_TRUE(bedienung.benutze("frmInfoHGDV").gelungen());
    const QString text = zeilen("Liste1").join('\n');
    EXPECT_TRUE(text.contains("Zweier:  ca:       24 sek, ohne Animation        4 sek\n"
                              "Dreier:  ca:     1:20 min, ohne Animation       23 sek\n"
                              "Vierer:  ca:    14:00 min, ohne Animation     2:20 min\n"
                              "Fünfer:  ca:  1:58:00 h  , ohne Animation    23:00 min\n"
                              "Sechser: ca: 14:00:00 h  , ohne Animation 02:40:00 h"));
    EXPECT_TRUE(text.contains("13.983.616"));
    klicke("Befehl1");
    raeumeAuf();
    EXPECT_EQ(buehne.bildschirme.geladen("frmInfoHGDV"), nullptr);
    EXPECT_TRUE(schirm().isVisible());
    EXPECT_FALSE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
    ASSERT_TRUE(bedienung.benutze("frmHGDV").gelungen());
    klicke("Befehl1");
    klicke("Befehl2"); // takes the info with it
    raeumeAuf();
    EXPECT_EQ(buehne.bildschirme.geladen("frmInfoHGDV"), nullptr);
    EXPECT_FALSE(istGeladen());
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

} // namespace

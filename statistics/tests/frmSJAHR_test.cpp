#include "shell/elements/Bildschirm.h"
#include "statistics/screens/frmSJAHR.h"
#include "statistics/tests/Statistiktest.h"

namespace {

class JahrUndWocheBildschirm : public Statistiktest {
protected:
    QStringList zeilen(const QString& liste) { return bedienung.zeilen(liste, 0, 100000).zeilen; }
    QString gewaehlte(const QString& liste) { return bedienung.gewaehlte(liste).zeilen.join(','); }

    /// Two years; the number 7 comes twice in each, in 1956 once as Zusatzzahl.
    void schreibeZweiJahre()
    {
        schreibe("SALOTTO.DAT", {"1955,41,01,02,03,04,05,07,00,0", "1955,42,07,12,18,30,32,49,00,0",
                                 "1956,41,07,12,13,16,23,41,01,0", "1956,42,01,02,03,04,05,06,07,0"});
    }
};

TEST_F(JahrUndWocheBildschirm, OeffnetMitDenDatenDesArchivs)
{
    schreibeZweiJahre();
    starte();
    oeffne("frmSJAHR");
    EXPECT_EQ(titel(), "Ziehungshäufigkeit einer Gewinnzahl pro Jahr / pro Spielwoche");
    EXPECT_EQ(lies("Bezeichnung10"), "SAMSTAGSLOTTO");
    EXPECT_EQ(lies("Bezeichnung58"), "4");
    EXPECT_EQ(lies("Bezeichnung4"), "1955/41");
    EXPECT_EQ(lies("Bezeichnung16"), "1956/42");
    EXPECT_TRUE(sichtbar("Bezeichnung2"));
    for (const char* knopf : {"Befehl4", "Befehl5", "Befehl6"})
        EXPECT_FALSE(bedienbar(knopf)) << knopf;
    EXPECT_TRUE(zeilen("Liste1").isEmpty());
}

TEST_F(JahrUndWocheBildschirm, EinKlickAufEineZahlZaehltJahreUndWochen)
{
    schreibeZweiJahre();
    starte();
    oeffne("frmSJAHR");
    klicke("Bezeichnung6(7)");
    EXPECT_EQ(zeilen("Liste1"), QStringList({"1955        2", "1956        1"}));
    EXPECT_EQ(gewaehlte("Liste1"), "0");
    EXPECT_EQ(lies("lblMaximum"), "Maximum: 2");
    EXPECT_EQ(lies("Bezeichnung8"), "3");
    const QStringList wochen = zeilen("Liste2");
    ASSERT_EQ(wochen.size(), 53);
    EXPECT_EQ(wochen[40], "   41         2");
    EXPECT_EQ(wochen[41], "   42         1");
    EXPECT_EQ(wochen[52], "   53         0");
    EXPECT_EQ(gewaehlte("Liste2"), "40");
    EXPECT_EQ(lies("lblMax2"), "Maximum: 2");
    EXPECT_EQ(titel(), "Ziehungshäufigkeit einer Gewinnzahl pro Jahr / pro Spielwoche");
    for (const char* knopf : {"Befehl4", "Befehl5", "Befehl6"})
        EXPECT_TRUE(bedienbar(knopf)) << knopf;
}

TEST_F(JahrUndWocheBildschirm, AlleJahreMitDemMaximumSindGewaehlt)
{
    schreibeZweiJahre();
    starte();
    oeffne("frmSJAHR");
    klicke("optZ(1)");
    boxen();
    klicke("Bezeichnung6(7)");
    EXPECT_EQ(zeilen("Liste1"), QStringList({"1955        2", "1956        2"}));
    EXPECT_EQ(gewaehlte("Liste1"), "0,1");
    EXPECT_EQ(gewaehlte("Liste2"), "40,41");
    klicke("Bezeichnung6(48)");
    EXPECT_EQ(gewaehlte("Liste1"), "0,1");
    EXPECT_EQ(gewaehlte("Liste2").split(',').size(), 53);
    EXPECT_EQ(lies("lblMaximum"), "Maximum: 0");
}

TEST_F(JahrUndWocheBildschirm, DerModusZaehltNeu)
{
    schreibeZweiJahre();
    starte();
    oeffne("frmSJAHR");
    klicke("Bezeichnung6(7)");
    klicke("optZ(1)");
    EXPECT_EQ(lies("Bezeichnung8"), "4");
    klicke("optZ(2)");
    EXPECT_EQ(lies("Bezeichnung8"), "1");
    EXPECT_EQ(zeilen("Liste1"), QStringList({"1955        0", "1956        1"}));
    klicke("optZ(0)");
    EXPECT_EQ(lies("Bezeichnung8"), "3");
    EXPECT_EQ(boxen(), QStringList());
}

TEST_F(JahrUndWocheBildschirm, OhneZahlWeistDerModusZurueck)
{
    starte();
    oeffne("frmSJAHR");
    klicke("optZ(2)");
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Bitte zunächst eine Gewinnzahl auswählen."});
    EXPECT_TRUE(zeilen("Liste1").isEmpty());
    EXPECT_TRUE(zeilen("Liste2").isEmpty());
    EXPECT_FALSE(bedienbar("Befehl4"));
}

TEST_F(JahrUndWocheBildschirm, ZeigtJedesJahrImEinzelnen)
{
    schreibeZweiJahre();
    starte();
    oeffne("frmSJAHR");
    klicke("optZ(1)");
    klicke("Bezeichnung6(7)");
    klicke("Befehl4");
    EXPECT_EQ(zeilen("Liste1"), QStringList({"1955   SW 41", "1955   SW 42", "----------------------------",
                                             "** 1955 Summe=   2 **", "============================", "1956   SW 41",
                                             "1956   SW 42", "----------------------------", "** 1956 Summe=   2 **"}));
    EXPECT_EQ(titel(), "Ziehungshäufigkeit pro Jahr  /  Ziehungshäufigkeit pro Spielwoche");
    EXPECT_EQ(gewaehlte("Liste1"), "");
    EXPECT_EQ(zeilen("Liste2").size(), 53);
    klicke("Bezeichnung6(1)");
    EXPECT_EQ(zeilen("Liste1").size(), 2);
}

TEST_F(JahrUndWocheBildschirm, AllesFolgtDemErgebnisAuchNachEinemAnderenArchiv)
{
    const auto zeigeAlles = [this] {
        klicke("Befehl4");
        QStringList alles = zeilen("Liste1");
        for (const char* knopf : {"Befehl5", "Befehl6"}) {
            klicke(knopf);
            alles << buehne.zwischenablage.text();
        }
        return alles;
    };
    starte();
    oeffne("frmSJAHR");
    klicke("Bezeichnung6(13)");
    const QStringList vorher = zeigeAlles();
    buehne.umgebung.menue->waehleSpielart(MittwochslottoB);
    EXPECT_EQ(zeigeAlles(), vorher);
}

TEST_F(JahrUndWocheBildschirm, EineAuswertungFolgtDemArchivDasDannGeladenIst)
{
    starte();
    oeffne("frmSJAHR");
    buehne.umgebung.menue->waehleSpielart(MittwochslottoB);
    klicke("Bezeichnung6(13)");
    EXPECT_EQ(lies("Bezeichnung10"), "MITTWOCHSLOTTO (B)");
    EXPECT_EQ(lies("Bezeichnung58"), "757");
    EXPECT_EQ(lies("Bezeichnung4"), "1986/23");
    EXPECT_EQ(lies("Bezeichnung16"), "2000/48");
}

TEST_F(JahrUndWocheBildschirm, BerichteStehenInDerZwischenablage)
{
    schreibeZweiJahre();
    starte();
    oeffne("frmSJAHR");
    klicke("Bezeichnung6(7)");
    klicke("Befehl5");
    const QString proJahr = buehne.zwischenablage.text();
    EXPECT_TRUE(proJahr.contains("*** Wie oft wurde die Zahl 7 pro Jahr gezogen ? *** IM SAMSTAGSLOTTO\r\n"));
    EXPECT_TRUE(proJahr.contains("   (ohne Zusatzzahl,  Stand: 1956/42)\r\n"));
    EXPECT_TRUE(proJahr.contains("  Jahr   Häufigkeit\r\n1955        2\r\n1956        1\r\n\r\n"));
    EXPECT_TRUE(proJahr.contains("Ziehungen mit der ausgewählten Gewinnzahl: 3 (ohne Zusatzzahl) \r\n"));
    klicke("Befehl6");
    const QString proWoche = buehne.zwischenablage.text();
    EXPECT_TRUE(proWoche.contains("die Zahl 7 pro Spielwoche gezogen ? *** IM SAMSTAGSLOTTO\r\n"));
    EXPECT_TRUE(proWoche.contains("Spielwoche   Häufigkeit\r\n    1         0\r\n"));
    EXPECT_EQ(proWoche.count("\r\n"), 62);
}

TEST_F(JahrUndWocheBildschirm, HinweiseUndInfo)
{
    starte();
    oeffne("frmSJAHR");
    klicke("Bezeichnung6(49)");
    ueberfahre("Befehl5");
    EXPECT_EQ(titel(), "Druckt Häufigkeit pro Jahr.");
    ueberfahre("Befehl6");
    EXPECT_EQ(titel(), "Druckt Häufigkeit pro Spielwoche.");
    klicke("Befehl3");
    EXPECT_EQ(boxen(), QStringList{"info|LOTTO-INFO|Alle ca. fünf Jahre hat das Spieljahr\n53 Spielwochen."});
}

TEST_F(JahrUndWocheBildschirm, AmMittwochBeginntDieListe1986OhneHinweis)
{
    starte();
    for (const char* option : {"Option2", "Option3"}) {
        klicke(option);
        oeffne("frmSJAHR");
        EXPECT_FALSE(sichtbar("Bezeichnung2"));
        EXPECT_EQ(lies("Bezeichnung4"), "1986/23");
        klicke("Bezeichnung6(1)");
        EXPECT_TRUE(zeilen("Liste1").first().startsWith("1986  "));
        schliesse();
    }
}

TEST_F(JahrUndWocheBildschirm, ErgebnisIstWasDieListenZeigen)
{
    starte();
    oeffne("frmSJAHR");
    klicke("Bezeichnung6(13)");
    const auto& bildschirm = buehne.bildschirme.lade<frmSJAHR>("frmSJAHR");
    const JahrUndWoche& ergebnis = bildschirm.ergebnis();
    EXPECT_EQ(ergebnis.zahl, 13);
    EXPECT_EQ(QString::number(ergebnis.proJahr.gesamt), lies("Bezeichnung8"));
    const QStringList jahre = zeilen("Liste1");
    ASSERT_EQ(static_cast<std::size_t>(jahre.size()), ergebnis.proJahr.jahre.size());
    for (qsizetype i = 0; i < jahre.size(); ++i)
        EXPECT_EQ(jahre[i].last(7).trimmed().toInt(), ergebnis.proJahr.jahre[static_cast<std::size_t>(i)].anzahl);
    const QStringList wochen = zeilen("Liste2");
    for (qsizetype i = 0; i < wochen.size(); ++i)
        EXPECT_EQ(wochen[i].last(8).trimmed().toInt(), ergebnis.proWoche[static_cast<std::size_t>(i)]);
}

TEST_F(JahrUndWocheBildschirm, MitDerTastaturEineZahl)
{
    schreibeZweiJahre();
    starte();
    oeffne("frmSJAHR");
    klicke("Bezeichnung6(1)");
    EXPECT_EQ(lies("Bezeichnung8"), "2");
    tippe("Bezeichnung6(1)", "Right");
    tippe("Bezeichnung6(1)", "Space");
    EXPECT_TRUE(zustand("Bezeichnung6(2)").contains("back=#00ffff"));
    EXPECT_FALSE(zustand("Bezeichnung6(1)").contains("back=#00ffff"));
}

TEST_F(JahrUndWocheBildschirm, LeeresArchiv)
{
    schreibe("SALOTTO.DAT", {});
    starte();
    oeffne("frmSJAHR");
    EXPECT_EQ(lies("Bezeichnung58"), "0");
    EXPECT_EQ(lies("Bezeichnung16"), "0000/00");
    klicke("Bezeichnung6(7)");
    EXPECT_EQ(zeilen("Liste1"), QStringList{"1955        0"});
    EXPECT_EQ(zeilen("Liste2").size(), 53);
    klicke("Befehl4");
    klicke("Befehl5");
    EXPECT_TRUE(buehne.zwischenablage.text().contains("Stand: 0000/00)"));
}

} // namespace

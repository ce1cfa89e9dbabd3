#include "filters/screens/frmZusammenGROUP.h"
#include "filters/tests/Nachbarbuehne.h"

#include <QCheckBox>

namespace {

const QStringList kSuchknoepfe{"Command1",    "Befehl12",    "Befehl1",     "Befehl3",     "Befehl4",
                               "cmdMulti(0)", "cmdMulti(1)", "cmdMulti(2)", "cmdMulti(3)", "cmdMulti(4)"};
const QStringList kKaesten{"chkSart(1)", "chkSart(2)", "chkSart(3)"};

class NachbarnZusammen : public Nachbarbuehne {
protected:
    /// The game of each row.
    QStringList spiele()
    {
        QStringList alle;
        for (const QString& zeile : kurz())
            alle << zeile.split(';')[2];
        return alle;
    }
};

TEST_F(NachbarnZusammen, OeffnetMitAllenSpielenUndSuchtNichts)
{
    zeige("frmZusammenGROUP");
    EXPECT_EQ(titel(), "Suche nach zusammenhängenden Zahlengruppen (Zahlennachbarn)");
    EXPECT_EQ(lies("Bezeichnung2"), " Anzahl der ausgewerteten Ziehungen: 6");
    const QStringList namen{"Samstag", "Mittwoch", "Mittwoch (B)"};
    for (qsizetype i = 0; i < 3; ++i) {
        EXPECT_TRUE(zustand(kKaesten[i]).contains("checked=true"));
        EXPECT_EQ(schirm("frmZusammenGROUP").findChild<QCheckBox*>(kKaesten[i])->text(), namen[i]);
    }
    EXPECT_TRUE(zeilen().isEmpty());
    EXPECT_FALSE(bedienbar("Command2"));
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 3); // nothing was loaded yet
}

TEST_F(NachbarnZusammen, DieDateienStehenHintereinander)
{
    zeige("frmZusammenGROUP");
    klicke("Befehl12");
    EXPECT_EQ(kurz(), QStringList({
                          "(3-Gr.);1955/41;Sa;So, 09.10.1955;01;02;03;;;;-",
                          "(3-Gr.);1955/41;Sa;So, 09.10.1955;;02;03;04;;;-",
                          "(3-Gr.);1986/24;Mi;Mi, 11.06.1986;11;12;13;;;;-",
                          "(3-Gr.);1986/23;Mi;Mi, 04.06.1986;;;20;21;22;;-",
                          "(3-Gr.);1986/24;Mi;Mi, 11.06.1986;;;;20;21;22;-",
                      }));
    EXPECT_EQ(lies("txtDreier"), "5");
    klicke("Command1");
    EXPECT_EQ(lies("txtZweier"), "16");
    EXPECT_EQ(spiele().count("Sa"), 6);
    EXPECT_EQ(spiele().lastIndexOf("Sa"), 5);
    EXPECT_EQ(spiele().indexOf("MiB"), 13);
    EXPECT_EQ(lies("Bezeichnung6"), "48");
    EXPECT_EQ(lies("Bezeichnung8"), "48");
    EXPECT_EQ(lies("Bezeichnung2"), " Anzahl der ausgewerteten Ziehungen: 6");
}

TEST_F(NachbarnZusammen, JahrUndWocheInEinerSpalteUndDasSpielInDerNaechsten)
{
    zeige("frmZusammenGROUP");
    const auto* liste = schirm("frmZusammenGROUP").findChild<ListView*>("ListView1");
    QStringList namen;
    for (int spalte = 0; spalte < liste->ColumnCount(); spalte += 2)
        namen << QString::fromStdString(liste->ColumnKey(spalte));
    EXPECT_EQ(namen.join(' '), "Gruppe Jahr/SW SArt Datum Z1 Z2 Z3 Z4 Z5 Z6 SZ");
}

TEST_F(NachbarnZusammen, DieMuster)
{
    zeige("frmZusammenGROUP");
    klicke("cmdMulti(0)");
    EXPECT_EQ(kurz(), QStringList{"2 Zwillinge;1955/42;Sa;So, 16.10.1955;01;02;10;11;;;-"});
    EXPECT_EQ(lies("lblMulti"), "1 in den Ziehungen 2 Zwillinge");
    EXPECT_EQ(lies("Bezeichnung6"), "1");
    EXPECT_EQ(lies("Bezeichnung8"), "1");
    klicke("cmdMulti(1)");
    EXPECT_EQ(kurz(), QStringList{"3 Zwillinge;1986/23;MiB;Mi, 04.06.1986;01;02;10;11;48;49;-"});
    klicke("cmdMulti(2)");
    EXPECT_EQ(kurz(), QStringList{"1 Zwill. + 1 Drill.;1986/23;Mi;Mi, 04.06.1986;01;02;20;21;22;;-"});
    EXPECT_EQ(lies("lblMulti"), "1 in den Ziehungen 1 Zwilling + 1 Drilling zusammen");
    klicke("cmdMulti(3)");
    EXPECT_EQ(kurz(), QStringList{"2 Drillinge;1986/24;Mi;Mi, 11.06.1986;11;12;13;20;21;22;-"});
    klicke("cmdMulti(4)");
    EXPECT_EQ(kurz(), QStringList{"*** 1 Zwilling +1 Vierling zusammen sind noch nicht aufgetreten ***;;;;;;;;;;"});
    EXPECT_EQ(lies("lblMulti"), "");
    EXPECT_EQ(gelaufene(kSuchknoepfe), QStringList{"cmdMulti(4)"});
}

TEST_F(NachbarnZusammen, OhneTrefferMeldenAlleAbVier)
{
    for (const char* datei : {"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"})
        schreibe(datei, {"1986,23,01,03,05,07,09,11,00,1"});
    zeige("frmZusammenGROUP");
    const QStringList meldungen{
        "",
        "",
        "*** Es sind noch keine Vier-Zahlennachbarn aufgetreten ***",
        "*** Es sind noch keine Fünf-Nachbarn aufgetreten ***",
        "*** Es sind noch keine Sechs-Zahlennachbarn aufgetreten ***",
        "*** 2 Zwillinge sind noch nicht aufgetreten ***",
        "*** 3 Zwillinge sind noch nicht aufgetreten ***",
        "*** 1 Zwilling + 1 Drilling zusammen sind noch nicht aufgetreten ***",
        "*** 2 Drillinge sind noch nicht aufgetreten ***",
        "*** 1 Zwilling +1 Vierling zusammen sind noch nicht aufgetreten ***",
    };
    for (qsizetype i = 0; i < kSuchknoepfe.size(); ++i) {
        klicke(kSuchknoepfe[i]);
        EXPECT_EQ(zeilen().value(0).trimmed(), meldungen[i]);
        EXPECT_EQ(zeilen().size(), meldungen[i].isEmpty() ? 0 : 1);
    }
}

TEST_F(NachbarnZusammen, EinKaestchenRaeumtAllesWeg)
{
    zeige("frmZusammenGROUP");
    klicke("Command1");
    klicke("cmdMulti(0)");
    klicke("chkSart(1)");
    EXPECT_TRUE(zeilen().isEmpty());
    for (const char* feld : {"txtZweier", "txtDreier", "txtVierer", "txtFünfer", "txtSechser"})
        EXPECT_EQ(lies(feld), "0") << feld;
    EXPECT_EQ(lies("lblMulti"), "");
    EXPECT_EQ(lies("Bezeichnung12"), "");
    EXPECT_EQ(lies("Bezeichnung2"), " Anzahl der ausgewerteten Ziehungen: 3");
    EXPECT_FALSE(bedienbar("Command2"));
    EXPECT_EQ(gelaufene(kSuchknoepfe), QStringList());
    EXPECT_FALSE(dynamic_cast<frmZusammenGROUP&>(schirm("frmZusammenGROUP")).ergebnis());
    klicke("Command1");
    EXPECT_EQ(lies("txtZweier"), "10");
    EXPECT_FALSE(spiele().contains("Sa"));
}

TEST_F(NachbarnZusammen, OhneSpielBittetEsUmEines)
{
    zeige("frmZusammenGROUP");
    for (const QString& kasten : kKaesten)
        klicke(kasten);
    EXPECT_EQ(lies("Bezeichnung2"), " Anzahl der ausgewerteten Ziehungen: 0");
    EXPECT_EQ(boxen(), QStringList());
    for (const char* knopf : {"Command1", "Befehl4", "cmdMulti(4)"}) {
        klicke(knopf);
        EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Bitte mindestens eine Spielart auswählen."}) << knopf;
        EXPECT_TRUE(zeilen().isEmpty());
        EXPECT_EQ(titel(), "Suche nach zusammenhängenden Zahlengruppen (Zahlennachbarn)");
    }
    EXPECT_FALSE(bedienbar("Command2"));
}

TEST_F(NachbarnZusammen, EineFehlendeDateiZaehltNichtsUndMeldetSichEinmal)
{
    starte();
    QFile::remove(ordner.filePath("MALOTTO.DAT"));
    oeffne("frmZusammenGROUP");
    EXPECT_EQ(lies("Bezeichnung2"), " Anzahl der ausgewerteten Ziehungen: 4");
    EXPECT_EQ(boxen(), QStringList());
    klicke("Command1");
    const QStringList gezeigt = boxen();
    ASSERT_EQ(gezeigt.size(), 1);
    EXPECT_TRUE(gezeigt[0].contains("MALOTTO.DAT"));
    EXPECT_EQ(lies("txtZweier"), "9");
    EXPECT_EQ(lies("Bezeichnung2"), " Anzahl der ausgewerteten Ziehungen: 4");
    klicke("Command2");
    EXPECT_TRUE(inhalt(seitenpfad("nachbarn-2er.htm"))
                    .contains("Mittwochslotto, Erfassungsstand der Ziehungsdatei: 0000/00 "
                              "[Spieljahr/Spielwoche], Anzahl der Ziehungen: 0"));
}

TEST_F(NachbarnZusammen, GehtBeimSchliessenZumVorgefundenenSpielZurueck)
{
    starte();
    klicke("Option2");
    oeffne("frmZusammenGROUP");
    klicke("Command1");
    EXPECT_EQ(buehne.archiv.Spielart, MittwochslottoB);
    schliesse();
    EXPECT_EQ(buehne.archiv.Spielart, Mittwochslotto);
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 2);
    EXPECT_EQ(buehne.archiv.sw[2], 24);
}

TEST_F(NachbarnZusammen, AuchMittenImLaufGehtEsZurueck)
{
    zeige("frmZusammenGROUP");
    klickeUnd("Command1", 60, [this] {
        EXPECT_EQ(buehne.archiv.Spielart, Mittwochslotto);
        schirm("frmZusammenGROUP").schliesse();
    });
    QCoreApplication::processEvents();
    EXPECT_FALSE(buehne.bildschirme.geladen("frmZusammenGROUP"));
    EXPECT_EQ(buehne.archiv.Spielart, Samstagslotto);
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 3);
}

TEST_F(NachbarnZusammen, AbbrechenLaesstDieUebrigenDateienAus)
{
    zeige("frmZusammenGROUP");
    klickeUnd("Command1", 49, [this] { klicke("Befehl5"); }); // before the first run of the second file
    EXPECT_EQ(lies("txtZweier"), "6");
    EXPECT_FALSE(spiele().contains("Mi"));
    EXPECT_EQ(lies("Bezeichnung8"), "0");
    klicke("Command1");
    EXPECT_EQ(lies("txtZweier"), "16");
    klickeUnd("cmdMulti(4)", 2, [this] { klicke("Befehl5"); });
    EXPECT_TRUE(zeilen().isEmpty());
}

TEST_F(NachbarnZusammen, EinKaestchenWaehrendDerSucheBleibtWieEsWar)
{
    zeige("frmZusammenGROUP");
    klickeUnd("Command1", 2, [this] { klicke("chkSart(2)"); });
    EXPECT_TRUE(zustand("chkSart(2)").contains("checked=true"));
    EXPECT_EQ(lies("txtZweier"), "16");
}

TEST_F(NachbarnZusammen, DieSeiteIstDieDerSuche)
{
    zeige("frmZusammenGROUP");
    const QStringList namen{"nachbarn-2er.htm",         "nachbarn-3er.htm",         "nachbarn-4er.htm",
                            "nachbarn-5er.htm",         "nachbarn-6er.htm",         "2-Zwillinge.htm",
                            "3-Zwillinge.htm",          "1-Zwilling1-Drilling.htm", "2-Drillinge.htm",
                            "1-Zwilling+1-Vierling.htm"};
    for (qsizetype i = 0; i < namen.size(); ++i) {
        klicke(kSuchknoepfe[i]);
        klicke("Command2");
        EXPECT_EQ(buehne.oeffner.entnehme(), QStringList{seitenpfad(namen[i])});
        const bool leer = zeilen().value(0).startsWith("***");
        EXPECT_EQ(inhalt(seitenpfad(namen[i])).count("<td class=\"gruppe\""), leer ? 0 : zeilen().size());
    }
    const QByteArray seite = inhalt(seitenpfad("nachbarn-2er.htm"));
    EXPECT_TRUE(seite.contains("<h1>2-er Zahlennachbarn  1955</h1>"));
    EXPECT_TRUE(seite.contains("Samstagslotto: 6 mal &nbsp; Mittwochslotto: 7 mal &nbsp; Mittwochslotto (B): 3 mal "));
    EXPECT_TRUE(seite.contains("<td class=\"sart\">MiB</td>"));
}

TEST_F(NachbarnZusammen, SuchtEinMusterOhneKnopf)
{
    starte();
    auto& werkzeug = buehne.bildschirme.lade<frmZusammenGROUP>("frmZusammenGROUP");
    werkzeug.SucheMuster(222);
    EXPECT_EQ(werkzeug.ergebnis()->treffer.size(), 1U);
    werkzeug.SucheMuster(5);
    EXPECT_EQ(werkzeug.ergebnis()->gruppe.code, 222);
}

TEST_F(NachbarnZusammen, DreiLeereDateien)
{
    for (const char* datei : {"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"})
        schreibe(datei, {});
    zeige("frmZusammenGROUP");
    klicke("Command1");
    EXPECT_TRUE(zeilen().isEmpty());
    EXPECT_EQ(lies("Bezeichnung2"), " Anzahl der ausgewerteten Ziehungen: 0");
    EXPECT_EQ(boxen(), QStringList());
}

} // namespace

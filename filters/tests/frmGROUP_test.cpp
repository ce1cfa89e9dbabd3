#include "filters/screens/frmGROUP.h"
#include "filters/tests/Nachbarbuehne.h"
#include "testhilfen/Schreibhindernisse.h"

#include <gmock/gmock.h>

namespace {

constexpr auto kGrundtitel = "Suche nach zusammenhängenden Zahlengruppen (Zahlennachbarn)";
constexpr auto kSchreibfehler = "info|Tombrix|Fehler beim Schreiben! Mögliche Ursachen:\n"
                                "1. Der aktuelle Ordner befindet sich auf einen schreibgeschützten Datenträger.\n"
                                "2. Sie besitzen nicht die erforderlichen Rechte um in diesen Ordner zu schreiben.";
const QStringList kSuchknoepfe{"Command1", "Befehl12", "Befehl1", "Befehl3", "Befehl4"};
const QStringList kAnzahlfelder{"txtZweier", "txtDreier", "txtVierer", "txtFünfer", "txtSechser"};

class Nachbarn : public Nachbarbuehne {};

TEST_F(Nachbarn, OeffnetMitDemStandUndSuchtNichts)
{
    zeige("frmGROUP");
    EXPECT_EQ(titel(), kGrundtitel);
    EXPECT_EQ(lies("Bezeichnung1"), "SAMSTAGSLOTTO");
    EXPECT_EQ(lies("Bezeichnung2"), "Auswertung von: 1955/41 bis: 1955/43    Anzahl der Ziehungen: 3");
    for (const QString& feld : kAnzahlfelder)
        EXPECT_EQ(lies(feld), "0");
    EXPECT_TRUE(zeilen().isEmpty());
    EXPECT_FALSE(bedienbar("Command2"));
    EXPECT_FALSE(sichtbar("Bezeichnung10"));
}

TEST_F(Nachbarn, NenntDieAnderenSpiele)
{
    starte();
    klicke("Option2");
    oeffne("frmGROUP");
    EXPECT_EQ(lies("Bezeichnung1"), "MITTWOCHSLOTTO ");
    schliesse();
    klicke("Option3");
    oeffne("frmGROUP");
    EXPECT_EQ(lies("Bezeichnung1"), "MITTWOCHSLOTTO (B)");
    EXPECT_EQ(lies("Bezeichnung2"), "Auswertung von: 1986/23 bis: 1986/23    Anzahl der Ziehungen: 1");
}

TEST_F(Nachbarn, ListetDiePaareNachIhremAnfang)
{
    zeige("frmGROUP");
    klicke("Command1");
    EXPECT_EQ(kurz(), QStringList({
                          "(2-Gr.);1955;41;So, 09.10.1955;01;02;;;;;-",
                          "(2-Gr.);1955;42;So, 16.10.1955;01;02;;;;;-",
                          "(2-Gr.);1955;41;So, 09.10.1955;;02;03;;;;-",
                          "(2-Gr.);1955;41;So, 09.10.1955;;;03;04;;;-",
                          "(2-Gr.);1955;42;So, 16.10.1955;;;10;11;;;-",
                          "(2-Gr.);1955;43;So, 23.10.1955;;;;;48;49;-",
                      }));
    EXPECT_EQ(lies("txtZweier"), "6");
    EXPECT_EQ(lies("Bezeichnung6"), "48");
    EXPECT_EQ(lies("Bezeichnung8"), "48");
    EXPECT_THAT(lies("Bezeichnung12").toStdString(), testing::MatchesRegex("Suchzeit: [0-9,]+ ms"));
    EXPECT_EQ(titel(), "Suche nach Zahlennachbarn");
    EXPECT_EQ(gelaufene(kSuchknoepfe), QStringList{"Command1"});
    EXPECT_FALSE(sichtbar("Bezeichnung10"));
}

TEST_F(Nachbarn, JedeGroesseHatIhrFeldUndIhreLaeufe)
{
    schreibe("SALOTTO.DAT", {"1955,41,01,02,03,04,05,06,00,5"});
    zeige("frmGROUP");
    for (qsizetype i = 0; i < kSuchknoepfe.size(); ++i) {
        klicke(kSuchknoepfe[i]);
        EXPECT_EQ(zeilen().size(), 5 - i);
        EXPECT_EQ(lies(kAnzahlfelder[i]), QString::number(5 - i));
        EXPECT_EQ(lies("Bezeichnung6"), QString::number(48 - i));
        EXPECT_EQ(lies("Bezeichnung8"), QString::number(48 - i));
        EXPECT_TRUE(zeilen()[0].startsWith(QString("(%1-Gr.)").arg(i + 2)));
    }
    EXPECT_EQ(lies("txtZweier"), "5"); // each keeps its count
}

TEST_F(Nachbarn, DieSpaltenHeissenSo)
{
    zeige("frmGROUP");
    const auto* liste = schirm("frmGROUP").findChild<ListView*>("ListView1");
    QStringList namen;
    for (int spalte = 0; spalte < liste->ColumnCount(); ++spalte)
        namen << QString::fromStdString(liste->ColumnKey(spalte));
    EXPECT_EQ(namen.join(' '), "Gruppe trenner1 Jahr trenner2 SW trenner3 Datum trenner4 Z1 trenner5 Z2 trenner6 Z3 "
                               "trenner7 Z4 trenner8 Z5 trenner9 Z6 trenner10 SZ");
    EXPECT_EQ(liste->ColumnCaption(4), "SW");
    EXPECT_EQ(liste->ColumnCaption(5), "");
}

TEST_F(Nachbarn, MaltTrennerGrauUndDieGruppeRot)
{
    zeige("frmGROUP");
    klicke("Befehl1");
    ASSERT_EQ(zeilen().size(), 1);
    const QStringList farben = bedienung.farben("ListView1", 0).zeilen.value(0).split('\t');
    ASSERT_EQ(farben.size(), 21);
    for (int spalte = 0; spalte < 21; ++spalte)
        if (spalte % 2 == 1)
            EXPECT_TRUE(farben[spalte].startsWith("#c0c0c0/")) << spalte;
        else if (spalte >= 8 && spalte <= 14)
            EXPECT_EQ(farben[spalte], "#80ffff/#ff0000") << spalte;
        else
            EXPECT_EQ(farben[spalte], farben[0]) << spalte;
    EXPECT_TRUE(farben[0].startsWith("#ffffff/"));
}

TEST_F(Nachbarn, OhneTrefferMeldenErstFuenfUndSechs)
{
    schreibe("SALOTTO.DAT", {"1955,41,01,03,05,07,09,11,00,5"});
    zeige("frmGROUP");
    for (const char* knopf : {"Command1", "Befehl12", "Befehl1"}) {
        klicke(knopf);
        EXPECT_TRUE(zeilen().isEmpty()) << knopf;
        EXPECT_TRUE(bedienbar("Command2"));
    }
    klicke("Befehl3");
    EXPECT_EQ(kurz(), QStringList{"*** Es sind noch keine Fünf-Nachbarn aufgetreten ***;;;;;;;;;;"});
    EXPECT_EQ(lies("txtFünfer"), "0");
    klicke("Befehl4");
    EXPECT_EQ(kurz(), QStringList{"*** Es sind noch keine Sechs-Zahlennachbarn aufgetreten ***;;;;;;;;;;"});
    EXPECT_EQ(dynamic_cast<frmGROUP&>(schirm("frmGROUP")).ergebnis()->treffer.size(), 0U);
}

TEST_F(Nachbarn, DieMeldungPasstInIhreSpalte)
{
    schreibe("SALOTTO.DAT", {"1955,41,01,02,05,07,09,11,00,5"});
    zeige("frmGROUP");
    const auto* liste = schirm("frmGROUP").findChild<ListView*>("ListView1");
    const int schmal = liste->ColumnWidth(0);
    klicke("Befehl4");
    EXPECT_GE(liste->ColumnWidth(0), liste->breiteFuerZeichen(static_cast<int>(zeilen()[0].trimmed().size())));
    klicke("Command1");
    EXPECT_EQ(liste->ColumnWidth(0), schmal);
}

TEST_F(Nachbarn, DieSuperzahlZeigtSichErstSeitIhremBeginn)
{
    std::vector<std::string> saetze(1887, "2000,01,01,02,10,20,30,40,00,5");
    schreibe("SALOTTO.DAT", saetze);
    zeige("frmGROUP");
    klicke("Command1");
    const QStringList alle = kurz();
    ASSERT_EQ(alle.size(), 1887);
    EXPECT_TRUE(alle[1885].endsWith(";-"));
    EXPECT_TRUE(alle[1886].endsWith(";5"));
}

TEST_F(Nachbarn, LeeresArchiv)
{
    schreibe("SALOTTO.DAT", {});
    zeige("frmGROUP");
    EXPECT_EQ(lies("Bezeichnung2"), "Auswertung von: 0000/00 bis: 0000/00    Anzahl der Ziehungen: 0");
    klicke("Command1");
    EXPECT_TRUE(zeilen().isEmpty());
    EXPECT_EQ(lies("txtZweier"), "0");
    klicke("Command2");
    EXPECT_TRUE(inhalt(seitenpfad("nachbarn-2er.htm")).contains("Anzahl der Ziehungen: 0"));
}

TEST_F(Nachbarn, FalscheUndUngeordneteZahlen)
{
    schreibe("SALOTTO.DAT", {"1955,41,48,49,50,51,52,53,00,5", "1955,42,30,12,11,99,10,-3,00,6"});
    zeige("frmGROUP");
    klicke("Befehl12");
    EXPECT_EQ(kurz(), QStringList{"(3-Gr.);1955;42;So, 16.10.1955;;12;11;;10;;-"});
    klicke("Command1");
    EXPECT_EQ(zeilen().size(), 3);
    klicke("Command2");
    EXPECT_EQ(boxen(), QStringList());
}

TEST_F(Nachbarn, SperrtSichWaehrendDerSuche)
{
    zeige("frmGROUP");
    klicke("Befehl12");
    klickeUnd("Command1", 1, [this] {
        EXPECT_TRUE(schirm("frmGROUP").laeuft());
        for (const QString& knopf : kSuchknoepfe)
            EXPECT_FALSE(bedienbar(knopf)) << knopf.toStdString();
        EXPECT_FALSE(bedienbar("Command2"));
        EXPECT_TRUE(bedienbar("Befehl5"));
        EXPECT_TRUE(sichtbar("Bezeichnung10"));
        EXPECT_EQ(lies("Bezeichnung10"), "BITTE WARTEN !");
        EXPECT_EQ(lies("Bezeichnung6"), "48");
        EXPECT_EQ(lies("Bezeichnung8"), "0");
        EXPECT_EQ(lies("Bezeichnung12"), "");
        EXPECT_EQ(titel(), "Bitte warten !");
        EXPECT_TRUE(zeilen().isEmpty());
        dynamic_cast<frmGROUP&>(schirm("frmGROUP")).SucheNachbarn(6); // waits for its turn in vain
    });
    EXPECT_EQ(zeilen().size(), 6);
    for (const QString& knopf : kSuchknoepfe)
        EXPECT_TRUE(bedienbar(knopf)) << knopf.toStdString();
    EXPECT_TRUE(bedienbar("Command2"));
    EXPECT_EQ(schirm("frmGROUP").focusWidget()->objectName(), "Command1");
}

TEST_F(Nachbarn, DerFokusBleibtWoErWar)
{
    zeige("frmGROUP");
    klicke("Command1");
    for (const char* feld : {"Command1", "Befehl4", "Command2", "ListView1"}) {
        tippe(feld, "F5");
        EXPECT_EQ(schirm("frmGROUP").focusWidget()->objectName(), feld);
    }
}

TEST_F(Nachbarn, AbbrechenWirktVorDemNaechstenLauf)
{
    zeige("frmGROUP");
    klickeUnd("Command1", 3, [this] { klicke("Befehl5"); });
    EXPECT_EQ(zeilen().size(), 3); // those that start with 1 and 2
    EXPECT_EQ(lies("Bezeichnung8"), "2");
    EXPECT_EQ(lies("txtZweier"), "3");
    EXPECT_EQ(titel(), "Suche nach Zahlennachbarn");
    klicke("Command2");
    const QByteArray seite = inhalt(seitenpfad("nachbarn-2er.htm"));
    EXPECT_TRUE(seite.contains("Die Suche wurde abgebrochen."));
    EXPECT_EQ(seite.count("<td class=\"gruppe\""), 3);
    klicke("Command1");
    EXPECT_EQ(zeilen().size(), 6);
}

TEST_F(Nachbarn, NachEinemAbbruchHeisstEsNichtDassEsKeineGibt)
{
    zeige("frmGROUP");
    klickeUnd("Befehl4", 1, [this] { tippe("frmGROUP", "Escape"); });
    EXPECT_TRUE(buehne.bildschirme.geladen("frmGROUP"));
    EXPECT_TRUE(zeilen().isEmpty());
}

TEST_F(Nachbarn, DerBerichtHaeltSieAn)
{
    zeige("frmGROUP");
    buehne.umgebung.BerichtAbbruch = true;
    klicke("Command1");
    EXPECT_TRUE(zeilen().isEmpty());
    buehne.umgebung.BerichtAbbruch = false;
    klicke("Command1");
    EXPECT_EQ(zeilen().size(), 6);
}

TEST_F(Nachbarn, SchliessenMittenImLauf)
{
    zeige("frmGROUP");
    klickeUnd("Command1", 2, [this] { schirm("frmGROUP").schliesse(); });
    QCoreApplication::processEvents();
    EXPECT_FALSE(buehne.bildschirme.geladen("frmGROUP"));
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
}

TEST_F(Nachbarn, LaeuftAlsWerkzeugOhneGezeigtZuWerden)
{
    starte();
    auto& werkzeug = buehne.bildschirme.lade<frmGROUP>("frmGROUP");
    EXPECT_FALSE(werkzeug.ergebnis());
    werkzeug.SucheNachbarn(4);
    ASSERT_TRUE(werkzeug.ergebnis());
    EXPECT_EQ(werkzeug.ergebnis()->treffer.size(), 1U);
    EXPECT_EQ(werkzeug.ergebnis()->treffer[0].jjjj, 1955);
    EXPECT_EQ(werkzeug.ergebnis()->dateien[0].treffer, 1U);
    EXPECT_FALSE(werkzeug.isVisible());
}

TEST_F(Nachbarn, F5WiederholtDieSucheVonZuletzt)
{
    zeige("frmGROUP");
    klicke("Befehl1");
    tippe("ListView1", "F5");
    EXPECT_EQ(zeilen().size(), 1);
    EXPECT_EQ(gelaufene(kSuchknoepfe), QStringList{"Befehl1"});
}

TEST_F(Nachbarn, SchreibtUndOeffnetDieSeite)
{
    zeige("frmGROUP");
    for (int k = 2; k <= 6; ++k) {
        klicke(kSuchknoepfe[k - 2]);
        klicke("Command2");
        const QString pfad = seitenpfad(QString("nachbarn-%1er.htm").arg(k));
        EXPECT_EQ(buehne.oeffner.entnehme(), QStringList{pfad});
        const QByteArray seite = inhalt(pfad);
        EXPECT_EQ(seite.count("<td class=\"gruppe\""), k <= 4 ? zeilen().size() : 0);
        EXPECT_EQ(seite.count("\"zahl_g\""), (k <= 4 ? zeilen().size() : 0) * k);
        EXPECT_TRUE(seite.endsWith("</html>\r\n"));
        EXPECT_EQ(titel(), "Gespeichert: " + pfad);
    }
    EXPECT_EQ(boxen(), QStringList());
    EXPECT_EQ(seiten().size(), 5);
}

TEST_F(Nachbarn, DieSeiteGehoertZurLetztenSucheUndNichtZurSortierung)
{
    zeige("frmGROUP");
    klicke("Command1");
    auto* liste = schirm("frmGROUP").findChild<ListView*>("ListView1");
    liste->Sort(4, Sortierrichtung::Absteigend);
    klicke("Command2");
    const QByteArray seite = inhalt(seitenpfad("nachbarn-2er.htm"));
    EXPECT_LT(seite.indexOf(">41</td>"), seite.indexOf("<td class=\"woche\">43</td>"));
    EXPECT_EQ(seite.indexOf("<td class=\"woche\">"), seite.indexOf("<td class=\"woche\">41</td>"));
}

TEST_F(Nachbarn, ErsetztEineAeltereGeschuetzteSeite)
{
    legeAlteSeite("nachbarn-2er.htm");
    QFile::setPermissions(seitenpfad("nachbarn-2er.htm"), QFile::ReadOwner);
    zeige("frmGROUP");
    klicke("Command1");
    klicke("Command2");
    EXPECT_EQ(boxen(), QStringList());
    EXPECT_TRUE(inhalt(seitenpfad("nachbarn-2er.htm")).endsWith("</html>\r\n"));
}

TEST_F(Nachbarn, AufVollerScheibeBleibtDieAlteSeite)
{
    legeAlteSeite("nachbarn-2er.htm");
    zeige("frmGROUP");
    klicke("Command1");
    {
        const VolleScheibe voll(1'000);
        klicke("Command2");
    }
    EXPECT_EQ(boxen(), QStringList{kSchreibfehler});
    EXPECT_EQ(buehne.oeffner.entnehme(), QStringList());
    EXPECT_EQ(inhalt(seitenpfad("nachbarn-2er.htm")), "alt");
    EXPECT_EQ(seiten(), QStringList{"nachbarn-2er.htm"});
    EXPECT_NE(titel(), "Gespeichert: " + seitenpfad("nachbarn-2er.htm"));
}

TEST_F(Nachbarn, OhneRechteBleibtDieAlteSeite)
{
    legeAlteSeite("nachbarn-2er.htm");
    zeige("frmGROUP");
    klicke("Command1");
    QFile::setPermissions(ordner.path(), QFile::Permissions(0x5055));
    {
        const OhneSonderrechte ohne;
        if (!ohne.gilt())
            GTEST_SKIP() << "root may write everywhere";
        klicke("Command2");
    }
    QFile::setPermissions(ordner.path(), QFile::Permissions(0x7055));
    EXPECT_EQ(boxen(), QStringList{kSchreibfehler});
    EXPECT_EQ(inhalt(seitenpfad("nachbarn-2er.htm")), "alt");
}

TEST_F(Nachbarn, EinOrdnerAnStelleDerSeiteIstEinFehler)
{
    QDir(ordner.path()).mkdir("nachbarn-2er.htm");
    zeige("frmGROUP");
    klicke("Command1");
    klicke("Command2");
    EXPECT_EQ(boxen(), QStringList{kSchreibfehler});
    EXPECT_TRUE(QFileInfo(seitenpfad("nachbarn-2er.htm")).isDir());
    EXPECT_EQ(seiten(), QStringList());
}

TEST_F(Nachbarn, EinAngehaltenerExportHinterlaesstNichts)
{
    schreibe("SALOTTO.DAT", std::vector<std::string>(20'000, "2000,01,01,02,03,04,05,06,00,5"));
    legeAlteSeite("nachbarn-2er.htm");
    zeige("frmGROUP");
    klicke("Command1");
    EXPECT_EQ(lies("txtZweier"), "100000");
    klickeUnd("Command2", 1, [this] { klicke("Befehl5"); });
    EXPECT_EQ(boxen(), QStringList());
    EXPECT_EQ(buehne.oeffner.entnehme(), QStringList());
    EXPECT_EQ(inhalt(seitenpfad("nachbarn-2er.htm")), "alt");
    EXPECT_EQ(seiten(), QStringList{"nachbarn-2er.htm"});
}

} // namespace

#include "shell/elements/Bildschirm.h"
#include "statistics/screens/frmHJAHR.h"
#include "statistics/tests/Statistiktest.h"
#include "testhilfen/Schreibhindernisse.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr auto kSchreibfehler = "info|Tombrix|Fehler beim Schreiben! Mögliche Ursachen:\n"
                                "1. Der aktuelle Ordner befindet sich auf einen schreibgeschützten Datenträger.\n"
                                "2. Sie besitzen nicht die erforderlichen Rechte um in diesen Ordner zu schreiben.";

class Jahrestabellenbildschirm : public Statistiktest {
protected:
    QString seitenpfad(const QString& name) const { return ordner.filePath("haeufigkeit-pro-jahr/" + name); }

    QByteArray inhalt(const QString& pfad) const
    {
        QFile datei(pfad);
        EXPECT_TRUE(datei.open(QIODevice::ReadOnly)) << pfad.toStdString();
        return datei.readAll();
    }

    void legeAlteSeite(const QString& name) const
    {
        QDir(ordner.path()).mkdir("haeufigkeit-pro-jahr");
        QFile datei(seitenpfad(name));
        ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
        datei.write("alt");
    }

    QStringList seiten() const { return QDir(seitenpfad("")).entryList(QDir::Files | QDir::Hidden); }
};

TEST_F(Jahrestabellenbildschirm, ErklaertSichBeimOeffnen)
{
    starte();
    oeffne("frmHJAHR");
    EXPECT_EQ(titel(), "Häufigkeit der Gewinnzahlen pro Spieljahr (als HTML-Datei)");
    EXPECT_EQ(lies("Bezeichnung1"), "SAMSTAGSLOTTO");
    EXPECT_TRUE(lies("Bezeichnung3").startsWith("Gespeicherte Ziehungen: 1955/41 bis: 2026/46"));
    EXPECT_EQ(lies("lblDorW"),
              "Für die Berechnung das Ziehungsdatum oder die Spielwoche verwenden? (siehe HelpButton)");
    EXPECT_TRUE(lies("Bezeichnung2").contains("Was wird nach dem Start geschehen?"));
    EXPECT_TRUE(lies("Bezeichnung2").contains("Legende: ZZ -> Zusatzzahl"));
    EXPECT_TRUE(zustand("optDatumOderWoche(0)").contains("checked=true"));
    klicke("cmdInfo");
    const QStringList gezeigt = boxen();
    ASSERT_EQ(gezeigt.size(), 1);
    EXPECT_TRUE(gezeigt[0].startsWith("info|Lotto-Info|In den Statistiken zur Häufigkeit der Gewinnzahlen"));
    EXPECT_TRUE(gezeigt[0].endsWith("(2015/01) fand schon am 31.12.2014 statt."));
    EXPECT_FALSE(QFileInfo::exists(seitenpfad("")));
}

TEST_F(Jahrestabellenbildschirm, SchreibtUndOeffnetAlleNeunSeiten)
{
    starte();
    const QStringList spiele{"samstag", "mittwoch", "mittwoch-b"};
    const QStringList modi{"ohne", "mit", "nur"};
    for (int spiel = 0; spiel < 3; ++spiel) {
        klicke(QString("Option%1").arg(spiel + 1));
        oeffne("frmHJAHR");
        for (int modus = 0; modus < 3; ++modus) {
            klicke(QString("Befehl%1").arg(modus + 2));
            const QString pfad = seitenpfad(QString("pro_jahr_%1_%2_ZZ.htm").arg(spiele[spiel], modi[modus]));
            EXPECT_EQ(buehne.oeffner.entnehme(), QStringList{pfad});
            const QByteArray seite = inhalt(pfad);
            EXPECT_TRUE(seite.startsWith("<!doctype html public \"-//W3C//DTD HTML 4.0 //EN\">\r\n<html>"));
            EXPECT_TRUE(seite.contains(modi[modus].toLatin1() + " Zusatzzahl)</h3>"));
            EXPECT_TRUE(seite.endsWith("</html>\r\n"));
            EXPECT_EQ(seite.contains("Seitdem wird nur noch eine Mittwochsziehung"), spiel == 2);
            EXPECT_EQ(titel(), "Gespeichert: " + pfad);
        }
        schliesse();
    }
    EXPECT_EQ(boxen(), QStringList());
    EXPECT_EQ(seiten().size(), 9);
}

TEST_F(Jahrestabellenbildschirm, NachDatumOderNachSpielwoche)
{
    schreibe("SALOTTO.DAT", {"1955,41,01,02,03,04,05,06,00,0", "1956,01,01,02,03,04,05,07,00,0"});
    starte(); // the second draw was on 16.10.1955
    oeffne("frmHJAHR");
    klicke("Befehl2");
    const QString pfad = seitenpfad("pro_jahr_samstag_ohne_ZZ.htm");
    EXPECT_TRUE(inhalt(pfad).contains("Jahr: 1955 ->  2 mal gezogen (ohne Zusatzzahl)<br>"));
    EXPECT_FALSE(inhalt(pfad).contains("<th>1956</th>"));
    klicke("optDatumOderWoche(1)");
    klicke("Befehl2");
    EXPECT_TRUE(inhalt(pfad).contains("Jahr: 1955 ->  1 mal gezogen (ohne Zusatzzahl)<br>"));
    EXPECT_TRUE(inhalt(pfad).contains("<th>1956</th>"));
    EXPECT_EQ(seiten(), QStringList{"pro_jahr_samstag_ohne_ZZ.htm"});
    const Jahrestabelle& ergebnis = buehne.bildschirme.lade<frmHJAHR>("frmHJAHR").ergebnis();
    EXPECT_FALSE(ergebnis.nachDatum);
    EXPECT_EQ(ergebnis.tabelle.zeilen.size(), 2U);
}

TEST_F(Jahrestabellenbildschirm, ErsetztEineAeltereGeschuetzteSeite)
{
    legeAlteSeite("pro_jahr_samstag_mit_ZZ.htm");
    QFile::setPermissions(seitenpfad("pro_jahr_samstag_mit_ZZ.htm"), QFile::ReadOwner);
    starte();
    oeffne("frmHJAHR");
    klicke("Befehl3");
    EXPECT_EQ(boxen(), QStringList());
    EXPECT_TRUE(inhalt(seitenpfad("pro_jahr_samstag_mit_ZZ.htm")).endsWith("</html>\r\n"));
}

TEST_F(Jahrestabellenbildschirm, EineDateiAnStelleDesOrdnersIstEinFehler)
{
    schreibe("haeufigkeit-pro-jahr", {"eine Datei"});
    starte();
    oeffne("frmHJAHR");
    klicke("Befehl2");
    EXPECT_EQ(boxen(), QStringList{"info|FEHLER|Der Html-Ziel-Ordner kann nicht erstellt werden!"});
    EXPECT_EQ(buehne.oeffner.entnehme(), QStringList());
    EXPECT_EQ(inhalt(ordner.filePath("haeufigkeit-pro-jahr")), "eine Datei\r\n");
    EXPECT_EQ(titel(), "Häufigkeit der Gewinnzahlen pro Spieljahr (als HTML-Datei)");
}

TEST_F(Jahrestabellenbildschirm, DerKnopfDerGeschriebenenSeiteSiehtSoAus)
{
    const QStringList knoepfe{"Befehl2", "Befehl3", "Befehl4"};
    starte();
    oeffne("frmHJAHR");
    EXPECT_EQ(gelaufene(knoepfe), QStringList());
    for (const QString& knopf : knoepfe) {
        klicke(knopf);
        EXPECT_EQ(gelaufene(knoepfe), QStringList{knopf});
    }
    {
        const VolleScheibe voll(10'000);
        klicke("Befehl2");
    }
    EXPECT_EQ(gelaufene(knoepfe), QStringList{"Befehl4"});
}

TEST_F(Jahrestabellenbildschirm, EnterUndF5SchreibenDieSeiteVonZuletzt)
{
    starte();
    oeffne("frmHJAHR");
    tippe("optDatumOderWoche(0)", "Return");
    EXPECT_EQ(buehne.oeffner.entnehme(), QStringList{seitenpfad("pro_jahr_samstag_ohne_ZZ.htm")});
    klicke("Befehl4");
    buehne.oeffner.entnehme();
    tippe("frmHJAHR", "F5");
    EXPECT_EQ(buehne.oeffner.entnehme(), QStringList{seitenpfad("pro_jahr_samstag_nur_ZZ.htm")});
}

TEST_F(Jahrestabellenbildschirm, AufVollerScheibeBleibtDieAlteSeite)
{
    legeAlteSeite("pro_jahr_samstag_ohne_ZZ.htm");
    starte();
    oeffne("frmHJAHR");
    {
        const VolleScheibe voll(10'000);
        klicke("Befehl2");
    }
    EXPECT_EQ(boxen(), QStringList{kSchreibfehler});
    EXPECT_EQ(buehne.oeffner.entnehme(), QStringList());
    EXPECT_EQ(inhalt(seitenpfad("pro_jahr_samstag_ohne_ZZ.htm")), "alt");
    EXPECT_EQ(seiten().size(), 1);
    klicke("Befehl2");
    EXPECT_EQ(boxen(), QStringList());
    EXPECT_TRUE(inhalt(seitenpfad("pro_jahr_samstag_ohne_ZZ.htm")).endsWith("</html>\r\n"));
}

TEST_F(Jahrestabellenbildschirm, OhneRechteBleibtDieAlteSeite)
{
    legeAlteSeite("pro_jahr_samstag_ohne_ZZ.htm");
    starte();
    oeffne("frmHJAHR");
    QFile::setPermissions(ordner.path(), QFile::Permissions(0x7055));
    QFile::setPermissions(seitenpfad(""), QFile::Permissions(0x5055));
    {
        const OhneSonderrechte ohne;
        if (!ohne.gilt())
            GTEST_SKIP() << "root may write everywhere";
        klicke("Befehl2");
    }
    QFile::setPermissions(seitenpfad(""), QFile::Permissions(0x7055));
    EXPECT_EQ(boxen(), QStringList{kSchreibfehler});
    EXPECT_EQ(inhalt(seitenpfad("pro_jahr_samstag_ohne_ZZ.htm")), "alt");
}

TEST_F(Jahrestabellenbildschirm, LeeresArchivGibtEineLeereTabelle)
{
    schreibe("SALOTTO.DAT", {});
    starte();
    oeffne("frmHJAHR");
    klicke("Befehl4");
    const QByteArray seite = inhalt(seitenpfad("pro_jahr_samstag_nur_ZZ.htm"));
    EXPECT_EQ(seite.count("<tr>"), 2);
    EXPECT_FALSE(seite.contains("In einem Jahr"));
}

} // namespace

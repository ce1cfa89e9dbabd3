#include "filters/tests/Filtertest.h"
#include "shell/elements/Bildschirm.h"
#include "testhilfen/Schreibhindernisse.h"

#include <QFile>

namespace {

const QString kNichts = "----------------- noch nicht aufgetreten -------------------------------------  ";
const QStringList kPaare{"cmdEine", "cmdZwei", "cmdDrei", "cmdVier", "cmdFuenf", "cmdSechs"};

/// Two Saturday draws that share 1 and 2. Between them lie a Wednesday draw, which shares 1 with the first, and one of
/// Mittwoch (B), which shares 31 with that.
class Folgeziehungsbildschirm : public Filtertest {
protected:
    Folgeziehungsbildschirm()
    {
        schreibe("SALOTTO.DAT", samstage("1986,22,01,02,03,04,05,06,00,0", "1986,23,01,02,21,22,23,24,00,0"));
        schreibe("MALOTTO.DAT", {"1986,23,01,31,32,33,34,35,00,0"});
        schreibe("MBLOTTO.DAT", {"1986,23,31,41,42,43,44,45,00,0"});
    }

    /// Records of which the last two are those of 31.05.1986 and 07.06.1986, before and behind the first Wednesday.
    /// Those before them share nothing with one another.
    static std::vector<std::string> samstage(const std::string& vorletzte, const std::string& letzte)
    {
        std::vector<std::string> alle;
        for (int i = 0; i < 1598; ++i)
            alle.emplace_back(i % 2 == 0 ? "1986,22,11,12,13,14,15,16,00,0" : "1986,22,36,37,38,46,47,48,00,0");
        alle.insert(alle.end(), {vorletzte, letzte});
        return alle;
    }

    void zeige()
    {
        starte();
        oeffne("frmZusammenWiederholungenInFolgeziehung");
    }
    QStringList zeilen(const QString& liste) { return bedienung.zeilen(liste, 0, 100000).zeilen; }
    /// How many draws repeat exactly so many numbers, by the overview.
    int anzahl(int zahlen) { return zeilen("List2")[7 - zahlen].right(9).chopped(4).toInt(); }
    QString datei() const { return ordner.filePath("Folge.txt"); }
    QByteArray inhalt() const
    {
        QFile text(datei());
        return text.open(QIODevice::ReadOnly) ? text.readAll() : QByteArray("fehlt");
    }
    void speichere()
    {
        buehne.boxen.antworte("file:" + datei());
        klicke("cmdSave");
    }
};

TEST_F(Folgeziehungsbildschirm, ZeigtGleichDieUebersichtAllerSpielarten)
{
    zeige();
    EXPECT_EQ(titel(), "Wiederholungen von Gewinnzahlen in der Folgeziehung");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehugen: 1602");
    ASSERT_EQ(zeilen("List2").size(), 13);
    EXPECT_EQ(zeilen("List2")[0], " Übersicht - Wiederholung von:");
    EXPECT_TRUE(zeilen("List1").isEmpty());
}

TEST_F(Folgeziehungsbildschirm, EineAndereSpielartLiegtDazwischen)
{
    zeige();
    EXPECT_EQ(anzahl(2), 0);
    EXPECT_EQ(anzahl(1), 2); // 1, then 31
    klicke("chkArt(2)");
    EXPECT_EQ(anzahl(1), 2); // 1, then 1 again
    klicke("chkArt(1)");
    EXPECT_EQ(anzahl(2), 1);
    EXPECT_EQ(anzahl(1), 0);
}

TEST_F(Folgeziehungsbildschirm, EinKaestchenErneuertAuchDieEinzelheiten)
{
    zeige();
    klicke("cmdZwei");
    EXPECT_EQ(zeilen("List1").last(), kNichts);
    klicke("chkArt(2)");
    klicke("chkArt(1)");
    ASSERT_EQ(zeilen("List1").size(), 3 + 4 + 2);
    EXPECT_EQ(zeilen("List1")[1], "Wiederholung von Zwei Zahlen in der Folgeziehung");
    EXPECT_TRUE(zeilen("List1")[3].startsWith(" 1986  22  01 02 03 04 05 06  00    -   Sa, "));
    EXPECT_TRUE(zeilen("List1")[4].startsWith(" 1986  23  01 02 21 22 23 24  00    -   Sa, "));
    EXPECT_EQ(zeilen("List1")[5], " Wiederholung der Zahlen: 01 02");
    EXPECT_EQ(zeilen("List1")[7], " 1 mal aufgetreten");
    EXPECT_EQ(zeilen("List1")[8], QString(68, '='));
}

TEST_F(Folgeziehungsbildschirm, JedeZeileListetIhreAnzahl)
{
    zeige();
    const QStringList worte{"Einer Zahl", "Zwei Zahlen", "Drei Zahlen", "Vier Zahlen", "Fuenf Zahlen", "Sechs Zahlen"};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(lies(kPaare[i]), ">=2 mal in Folge");
        klicke(kPaare[i]);
        EXPECT_EQ(zeilen("List1")[1], "Wiederholung von " + worte[i] + " in der Folgeziehung");
        EXPECT_TRUE(zustand(kPaare[i]).contains("back=#b2dcc0"));
    }
    EXPECT_EQ(lies("lblZahlen(6)"), "Sechs Gewinnzahlen");
    EXPECT_EQ(lies("lblZahlen(1)"), "Eine Gewinnzahl");
}

TEST_F(Folgeziehungsbildschirm, SuchtZahlenInDreiZiehungenHintereinander)
{
    schreibe("SALOTTO.DAT", {"1955,41,01,02,03,04,05,06,00,0", "1955,42,01,02,13,14,15,16,00,0",
                             "1955,43,01,02,23,24,25,26,00,0", "1955,44,02,33,34,35,36,37,00,0"});
    zeige();
    klicke("chkArt(1)");
    klicke("chkArt(2)");
    klicke("cmdFolge(1)");
    ASSERT_EQ(zeilen("List1").size(), 5 + 6 + 1);
    EXPECT_EQ(zeilen("List1")[0], "--------------- Gewinnzahlzahl 1 --------------------------------  ");
    EXPECT_EQ(zeilen("List1")[6], "                      4 mal in Folge gezogen ");
    klicke("cmdFolge(2)");
    ASSERT_EQ(zeilen("List1").size(), 5 + 1);
    EXPECT_EQ(zeilen("List1")[0], "--------------- Gewinnzahlzahl 1, 2 --------------------------------  ");
    for (int zahlen = 3; zahlen <= 6; ++zahlen) {
        klicke(QString("cmdFolge(%1)").arg(zahlen));
        EXPECT_EQ(zeilen("List1"), QStringList{kNichts});
    }
}

TEST_F(Folgeziehungsbildschirm, OhneSpielartIstAllesLeerUndEsBittetUmEine)
{
    zeige();
    klicke("cmdEine");
    for (const char* kasten : {"chkArt(0)", "chkArt(1)", "chkArt(2)"})
        klicke(kasten);
    EXPECT_TRUE(zeilen("List1").isEmpty());
    EXPECT_TRUE(zeilen("List2").isEmpty());
    EXPECT_FALSE(bedienbar("cmdSave"));
    EXPECT_TRUE(boxen().isEmpty());
    for (const char* knopf : {"cmdEine", "cmdFolge(2)"}) {
        klicke(knopf);
        EXPECT_EQ(boxen(), QStringList("info|Tombrix|Bitte mindestens eine Spielart auswählen."));
        EXPECT_TRUE(zeilen("List1").isEmpty());
    }
    klicke("chkArt(0)");
    EXPECT_EQ(zeilen("List2").size(), 13);
    EXPECT_EQ(zeilen("List1")[1], "Wiederholung von Einer Zahl in der Folgeziehung");
    EXPECT_TRUE(bedienbar("cmdSave"));
}

TEST_F(Folgeziehungsbildschirm, EineFehlendeDateiZaehltKeineZiehung)
{
    QFile::remove(ordner.filePath("MALOTTO.DAT"));
    zeige();
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehugen: 0");
    EXPECT_EQ(anzahl(1), 0);
    klicke("cmdEine");
    EXPECT_EQ(zeilen("List1").last(), kNichts);
    klicke("chkArt(1)");
    EXPECT_EQ(lies("lblTipp"), "Anzahl der auszuwertenden Ziehugen: 1601");
}

TEST_F(Folgeziehungsbildschirm, LeereDateien)
{
    for (const char* name : {"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"})
        schreibe(name, {});
    zeige();
    EXPECT_EQ(zeilen("List2")[1], "    6 Zahlen in der Folgeziehung:    0 mal");
    for (const QString& knopf : kPaare) {
        klicke(knopf);
        EXPECT_EQ(zeilen("List1").last(), kNichts);
    }
}

TEST_F(Folgeziehungsbildschirm, ErklaertSich)
{
    zeige();
    klicke("cmdInfo");
    const QStringList info = boxen();
    ASSERT_EQ(info.size(), 1);
    EXPECT_TRUE(info[0].startsWith("info|Lotto-Info|"));
    EXPECT_TRUE(info[0].contains("dann liegt die Mittwochsziehung dazwischen, und sie zählt nicht."));
    klicke("cmdInfo2");
    EXPECT_EQ(boxen(), QStringList("info|Lotto-Info|Die Wahrscheinlichkeit für die Wiederholung von 4, 5, oder 6 "
                                   "Gewinzzahlen in mehr als 2 Folgeziehungen ist sehr gering. Bis zum Jahr 2015 ist "
                                   "so ein Wiederholungsfall noch nicht aufgetreten."));
}

TEST_F(Folgeziehungsbildschirm, SpeichertWasDieListenZeigen)
{
    zeige();
    klicke("chkArt(2)");
    klicke("cmdEine");
    speichere();
    QStringList soll{"Falls die Tabellen nicht richtig dargestellt werden, wählen sie für die Ansicht ",
                     "eine nichtproportionale Schriftart (z.B. Courier New oder Courier)",
                     "",
                     "Spielarten: Samstagslotto Mittwochslotto ",
                     "Anzahl der ausgewerteten Ziehungen: 1601",
                     ""};
    soll << zeilen("List2") << "" << zeilen("List1") << "";
    EXPECT_EQ(QString::fromLatin1(inhalt()), soll.join("\r\n"));
    EXPECT_TRUE(boxen()[0].startsWith("file|Wiederholungen speichern unter|"));
}

TEST_F(Folgeziehungsbildschirm, DasSpeichernSchlaegtEinenNamenVor)
{
    zeige();
    klicke("cmdSave");
    const QStringList gezeigt = boxen();
    ASSERT_EQ(gezeigt.size(), 1);
    EXPECT_TRUE(gezeigt[0].endsWith("/Wiederholungen_in_der_Folgeziehung")) << gezeigt[0].toStdString();
    EXPECT_EQ(inhalt(), "fehlt");
}

TEST_F(Folgeziehungsbildschirm, AufVollerScheibeBleibtDieAlteDatei)
{
    schreibe("Folge.txt", {"alt"});
    zeige();
    klicke("cmdEine");
    {
        const VolleScheibe voll(100);
        speichere();
    }
    const QStringList gezeigt = boxen();
    ASSERT_EQ(gezeigt.size(), 2);
    EXPECT_TRUE(gezeigt[1].startsWith("info|Tombrix|Die Datei Folge.txt konnte nicht geschrieben werden."));
    EXPECT_EQ(inhalt(), "alt\r\n");
    speichere();
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_GT(inhalt().size(), 500);
}

TEST_F(Folgeziehungsbildschirm, OhneRechteBleibtDieAlteDatei)
{
    schreibe("Folge.txt", {"alt"});
    zeige();
    QFile::setPermissions(ordner.path(), QFile::Permissions(0x5055));
    {
        const OhneSonderrechte ohne;
        if (!ohne.gilt())
            GTEST_SKIP() << "root may write everywhere";
        speichere();
    }
    QFile::setPermissions(ordner.path(), QFile::Permissions(0x7055));
    EXPECT_EQ(boxen().size(), 2);
    EXPECT_EQ(inhalt(), "alt\r\n");
}

TEST_F(Folgeziehungsbildschirm, EinAngehaltenesSpeichernLaesstDieAlteDatei)
{
    schreibe("Folge.txt", {"alt"});
    schreibe("SALOTTO.DAT", std::vector<std::string>(32'000, "1955,41,01,02,03,04,05,06,00,0"));
    zeige();
    klicke("cmdSechs");
    Bildschirm* schirm = buehne.bildschirme.geladen("frmZusammenWiederholungenInFolgeziehung");
    buehne.pumpe.beiZug = [schirm] { schirm->stoppe(); };
    speichere();
    buehne.pumpe.beiZug = nullptr;
    EXPECT_EQ(inhalt(), "alt\r\n");
    EXPECT_EQ(boxen().size(), 1);
}

} // namespace

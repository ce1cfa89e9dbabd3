#include "archive/tests/Archivbildschirmtest.h"
#include "testhilfen/Schreibhindernisse.h"

#include <QDir>
#include <QFile>
#include <QWidget>

namespace {

class Strukturbildschirm : public Archivbildschirmtest {
protected:
    QStringList zeilen(const char* liste) { return bedienung.zeilen(liste, 0, 100).zeilen; }
};

TEST_F(Strukturbildschirm, DasMusterIstFehlerfrei)
{
    starte();
    oeffne("frmlana");
    EXPECT_EQ(titel(), "Analyse der Gewinnzahldatei SALOTTO.DAT");
    EXPECT_EQ(lies("Bezeichnung1"), "Überprüfung der Datensatzstruktur von Gewinnzahldatei SALOTTO.DAT");
    EXPECT_FALSE(sichtbar("Liste2"));
    klicke("Befehl2");
    EXPECT_EQ(lies("Bezeichnung4"), QString("Korrekte Ziehungen: %1").arg(buehne.archiv.AnzahlZiehungen));
    EXPECT_EQ(lies("Bezeichnung5"), "Falsche Ziehungen: 0");
    EXPECT_EQ(zeilen("Liste1"), QStringList{"*** Alle Datensätze haben die richtige Struktur ***"});
    EXPECT_EQ(lies("Bezeichnung6"), "2026/46");
    waehle("Liste1", {0});
    EXPECT_TRUE(sichtbar("Liste2"));
    EXPECT_EQ(bedienung.gewaehlte("Liste2").zeilen, QStringList());
}

TEST_F(Strukturbildschirm, AltPPrueft)
{
    starte();
    oeffne("frmlana");
    drueckeKuerzel("frmlana", "Alt+P");
    EXPECT_EQ(lies("Bezeichnung5"), "Falsche Ziehungen: 0");
    EXPECT_EQ(buehne.oeffner.entnehme(), QStringList());
}

TEST_F(Strukturbildschirm, EinKlickAufDieFehlerzeileFindetDieBeschreibung)
{
    schreibe("MALOTTO.DAT", {"1986,23,01,02,03,04,05,06,00,0", "1986,24,01,02,03,04,05,55,00,0",
                             "1986,25,01,02,03,04,05,06,06,0", "1986,26,01,02,03,04,05,06,00,"});
    starte();
    klicke("Option2");
    oeffne("frmlana");
    klicke("Befehl2");
    EXPECT_EQ(lies("Bezeichnung4"), "Korrekte Ziehungen: 1");
    EXPECT_EQ(lies("Bezeichnung5"), "Falsche Ziehungen: 3 >> Zur Fehlerbeschreibung -> klicke auf Fehlerlzeile <<");
    EXPECT_EQ(zeilen("Liste1").value(0), "Error 36 nach Ziehung: 1986 >> 1986,24,01,02,03,04,05,55,00,0 <<");
    for (const auto& [zeile, fehler] : {std::pair(0, 36), std::pair(1, 40), std::pair(2, 2)}) {
        waehle("Liste1", {zeile});
        EXPECT_EQ(bedienung.gewaehlte("Liste2").zeilen, QStringList{QString::number(fehler)});
    }
    EXPECT_EQ(lies("Liste2"), "Error 02: Datensatz hat weniger als 28 Zeichen.");
}

TEST_F(Strukturbildschirm, FehlerUndInfotafelHabenIhreZeilen)
{
    starte();
    oeffne("frmlana");
    EXPECT_EQ(bedienung.anzahl("Liste2").zeilen, QStringList{"41"});
    EXPECT_EQ(zeilen("Liste2").value(0), " ");
    EXPECT_EQ(zeilen("Liste2").value(5), "Error 05: ");
    EXPECT_FALSE(sichtbar("Rahmen1"));
    klicke("Befehl6");
    EXPECT_TRUE(sichtbar("Rahmen1"));
    EXPECT_EQ(zeilen("Liste3").size(), 13);
    EXPECT_EQ(lies("Rahmen1"), "Info");
    klicke("Befehl7");
    EXPECT_FALSE(sichtbar("Rahmen1"));
}

TEST_F(Strukturbildschirm, KeinKnopfMachtDasFensterGroesser)
{
    schreibe("SALOTTO.DAT", {"1955,41,03,12,13,16,23,41,00,0", "kaputt"});
    starte();
    oeffne("frmlana");
    const auto* liste2 = qobject_cast<QWidget*>(bedienung.finde("Liste2"));
    QCoreApplication::processEvents();
    const QSize vorher = liste2->window()->size();
    klicke("Befehl2");
    waehle("Liste1", {0});
    klicke("Befehl6");
    QCoreApplication::processEvents();
    EXPECT_EQ(liste2->window()->size(), vorher);
    const auto* tafel = qobject_cast<QWidget*>(bedienung.finde("Rahmen1"));
    EXPECT_TRUE(tafel->parentWidget()->rect().contains(tafel->geometry()));
}

TEST_F(Strukturbildschirm, NachEinemLaufOhneDateiStehtNichtsMehrVomVorigen)
{
    starte();
    oeffne("frmlana");
    klicke("Befehl2");
    waehle("Liste1", {0});
    QFile::remove(ordner.filePath("SALOTTO.DAT"));
    klicke("Befehl2");
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_EQ(lies("Bezeichnung4"), "Korrekte Ziehungen:");
    EXPECT_EQ(lies("Bezeichnung5"), "Falsche Ziehungen:");
    EXPECT_EQ(lies("Bezeichnung6"), "");
    EXPECT_EQ(zeilen("Liste1"), QStringList());
    EXPECT_FALSE(sichtbar("Liste2"));
}

TEST_F(Strukturbildschirm, EineFehlendeDateiMeldetSich)
{
    starte();
    oeffne("frmlana");
    QFile::remove(ordner.filePath("SALOTTO.DAT"));
    klicke("Befehl2");
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|ERROR 53: Die Ziehungsdatei xxLOTTO.DAT wurde nicht gefunden. Die "
                                   "Datei xxLOTTO.DAT muß sich im gleichen Verzeichnis wie das Programm TOMBRIX.EXE "
                                   "befinden."});
}

TEST_F(Strukturbildschirm, GeprueftWirdDieDateiDieDerTitelNennt)
{
    schreibe("MALOTTO.DAT", {"kaputt"});
    starte();
    oeffne("frmlana");
    buehne.archiv.Spielart = Mittwochslotto;
    klicke("Befehl2");
    EXPECT_EQ(lies("Bezeichnung5"), "Falsche Ziehungen: 0");
    klicke("Befehl3");
    EXPECT_EQ(buehne.oeffner.entnehme(), QStringList{ordner.filePath("SALOTTO.DAT")});
}

TEST_F(Strukturbildschirm, WasNichtGelesenWerdenKannGiltNichtAlsRichtig)
{
    starte();
    oeffne("frmlana");
    klicke("Befehl2");
    EXPECT_EQ(zeilen("Liste1").size(), 1);
    QFile::remove(ordner.filePath("SALOTTO.DAT"));
    QDir(ordner.path()).mkdir("SALOTTO.DAT");
    klicke("Befehl2");
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Die Ziehungsdatei SALOTTO.DAT kann nicht gelesen werden und wurde "
                                   "nicht geprüft.\nAn ihrer Stelle liegt ein Ordner."});
    EXPECT_EQ(zeilen("Liste1"), QStringList());
    EXPECT_EQ(lies("Bezeichnung4"), "Korrekte Ziehungen:");
    EXPECT_EQ(lies("Bezeichnung5"), "Falsche Ziehungen:");
    EXPECT_EQ(lies("Bezeichnung6"), "");
}

TEST_F(Strukturbildschirm, OhneRechteSagtErDas)
{
    starte();
    oeffne("frmlana");
    QFile::setPermissions(ordner.filePath("SALOTTO.DAT"), {});
    QFile::setPermissions(ordner.path(), QFile::Permissions(0x7755));
    const OhneSonderrechte ohne;
    if (!ohne.gilt())
        GTEST_SKIP() << "every right is there, and stays";
    klicke("Befehl2");
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Die Ziehungsdatei SALOTTO.DAT kann nicht gelesen werden und wurde "
                                   "nicht geprüft.\nSie besitzen nicht die erforderlichen Rechte um sie zu lesen."});
}

TEST_F(Strukturbildschirm, VonEinerUeberlangenDateiSagtErWasErNichtGeprueftHat)
{
    starte();
    oeffne("frmlana");
    QFile datei(ordner.filePath("SALOTTO.DAT"));
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    datei.write(QByteArray("1998,13,02,08,10,12,22,35,46,3\r\n").repeated(600'000));
    datei.close();
    klicke("Befehl2");
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Die Ziehungsdatei SALOTTO.DAT ist länger als 16.777.216 Zeichen. Was "
                                   "dahinter steht, wurde nicht geprüft."});
    EXPECT_EQ(lies("Bezeichnung4"), "Korrekte Ziehungen: 524288");
    EXPECT_EQ(zeilen("Liste1"), QStringList());
}

TEST_F(Strukturbildschirm, LauterLeerzeilenStehenAlleDa)
{
    starte();
    oeffne("frmlana");
    QFile datei(ordner.filePath("SALOTTO.DAT"));
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    datei.write(QByteArray(16 << 20, '\n'));
    datei.close();
    klicke("Befehl2");
    EXPECT_EQ(bedienung.anzahl("Liste1").zeilen, QStringList{"16777216"});
    EXPECT_EQ(bedienung.zeilen("Liste1", 16777215, 1).zeilen, QStringList{"Error 01 nach Ziehung: 1955/4X >>  <<"});
    waehle("Liste1", {16777215});
    EXPECT_EQ(bedienung.gewaehlte("Liste2").zeilen, QStringList{"1"});
    EXPECT_EQ(boxen(), QStringList());
}

TEST_F(Strukturbildschirm, DieEditorenBekommenDieAktiveDatei)
{
    starte();
    oeffne("frmlana");
    for (const char* knopf : {"Befehl3", "Befehl4", "Befehl5"})
        klicke(knopf);
    EXPECT_EQ(buehne.oeffner.entnehme(), QStringList(3, ordner.filePath("SALOTTO.DAT")));
}

TEST_F(Strukturbildschirm, OhneEditorNenntDieBoxDasProgramm)
{
    starte();
    oeffne("frmlana");
    buehne.oeffner.scheitert = true;
    for (const char* knopf : {"Befehl3", "Befehl4", "Befehl5"})
        klicke(knopf);
    EXPECT_EQ(boxen(),
              (QStringList{"info|Tombrix|ERROR 53: MS-Write wurde nicht gefunden. Verwenden Sie einen  vorhandenen "
                           "ASCII-Text-Editor um die DateiSALOTTO.DAT zu aktualisieren.",
                           "info|Tombrix|ERROR 53: DOS Editor EDIT.COM  wurde nicht gefunden. Verwenden Sie einen  "
                           "vorhandenen ASCII-Editor um die Datei SALOTTO.DAT zu aktualisieren.",
                           "info|Tombrix|ERROR 53: WordPad wurde nicht gefunden. Verwenden Sie einen  vorhandenen "
                           "ASCII-Text-Editor um die Datei SALOTTO.DAT zu aktualisieren."}));
}

} // namespace

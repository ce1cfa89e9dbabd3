#include "engines/screens/frmKombiAscii.h"
#include "engines/tests/Suchtest.h"
#include "shell/logic/IniDatei.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace {

class Exportbildschirm : public Suchtest {
protected:
    /// With an empty folder as the target.
    void oeffneExport(const QString& unterordner = "Ziel")
    {
        QDir(ordner.path()).mkpath(unterordner);
        ziel_ = ordner.filePath(unterordner);
        starte();
        oeffne("frmKombiAscii");
        waehleOrdner(ziel_);
    }

    void waehleOrdner(const QString& pfad)
    {
        buehne.boxen.antworte("file:" + pfad);
        klicke("cmdSpeicherpfad");
        boxen();
    }

    QStringList dateien() const
    {
        return QDir(ziel_).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    QByteArray inhalt(const QString& datei) const
    {
        QFile offen(QDir(ziel_).filePath(datei));
        return offen.open(QIODevice::ReadOnly) ? offen.readAll() : QByteArray("fehlt");
    }
    std::string ini(const char* abschnitt, const char* schluessel) const
    {
        return IniLesen(ordner.filePath("druck_settings.ini").toStdString(), abschnitt, schluessel);
    }
    bool an(const QString& option) { return zustand(option).contains("checked=true"); }

    /// Clicks the start, and does `tue` at the first turn of the event loop.
    void starteUnd(const std::function<void()>& tue)
    {
        bool getan = false;
        buehne.pumpe.beiZug = [&] {
            if (!std::exchange(getan, true))
                tue();
        };
        klicke("cmdStart");
        buehne.pumpe.beiZug = nullptr;
        EXPECT_TRUE(getan);
    }

    QString ziel_;
};

TEST_F(Exportbildschirm, OeffnetMitDenVorgaben)
{
    starte();
    oeffne("frmKombiAscii");
    EXPECT_EQ(titel(), "Alle Lottokombinationen erzeugen und in ASCII-Textdateien speichern.");
    for (const char* option : {"optK(4)", "optBZ(0)", "optSep(0)", "optEx(0)", "optAll(0)"})
        EXPECT_TRUE(an(option)) << option;
    EXPECT_FALSE(an("chkKN"));
    EXPECT_EQ(lies("cmbVon"), "1");
    EXPECT_EQ(lies("cmbBis"), "49");
    EXPECT_EQ(lies("lblBis"), "Z6<=");
    EXPECT_EQ(lies("lblDateien"), "6aus49.txt (265,7 MB)");
    for (const char* gesperrt : {"cmbB(0)", "cmbVon", "cmbBis", "cmdAbbruch"})
        EXPECT_FALSE(bedienbar(gesperrt)) << gesperrt;
    const QString dokumente = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    EXPECT_EQ(QDir(lies("lblPfad")), QDir(QDir(dokumente).exists() ? dokumente : ordner.path()));
}

TEST_F(Exportbildschirm, DieHinweiseFolgenDerWahl)
{
    oeffneExport();
    ueberfahre("cmdStart");
    EXPECT_EQ(titel(), "Generiert alle 13.983.816 möglichen Kombinationen 6aus49 und schreibt sie in eine "
                       "ASCII-Textdatei oder in mehrere Teildateien ");
    klicke("optK(1)");
    klicke("optBZ(2)");
    ueberfahre("cmdStart");
    EXPECT_EQ(titel(), "Filtert aus allen möglichen 18.424 Kombinationen nur die heraus, in denen alle ausgewählten "
                       "Bankzahlen enthalten sind.");
    EXPECT_EQ(lies("lblBis"), "Z3<=");
    EXPECT_TRUE(bedienbar("cmbB(1)"));
    EXPECT_FALSE(bedienbar("cmbB(2)"));
    EXPECT_EQ(lies("lblDateien"), "3aus49_Bank_B1_B2.txt (570 Bytes)");
    klicke("optBZ(6)");
    EXPECT_FALSE(bedienbar("cmbB(0)"));
    EXPECT_TRUE(bedienbar("cmbVon"));
}

TEST_F(Exportbildschirm, SchreibtAlleZweier)
{
    oeffneExport();
    klicke("optK(0)");
    klicke("optSep(2)");
    klicke("optEx(1)");
    klicke("chkKN");
    klicke("cmdStart");
    EXPECT_TRUE(boxen().isEmpty());
    EXPECT_EQ(dateien(), QStringList{"2aus49.csv"});
    const QList<QByteArray> zeilen = inhalt("2aus49.csv").split('\n');
    EXPECT_EQ(zeilen.size(), 1178);
    EXPECT_EQ(zeilen[0], "           LNr:\r");
    EXPECT_EQ(zeilen[1], "01;02         1\r");
    EXPECT_EQ(zeilen[1176], "48;49      1176\r");
    EXPECT_EQ(lies("lblAnzahl"), "Generierte Kombinationen: 1.176");
    EXPECT_TRUE(lies("lblZeit").startsWith("Zeit = "));
    EXPECT_TRUE(bedienbar("optK(0)"));
    EXPECT_FALSE(bedienbar("cmdAbbruch"));
    klicke("optK(1)"); // the count was of another choice
    EXPECT_EQ(lies("lblAnzahl"), "");
    EXPECT_EQ(lies("lblZeit"), "");
}

TEST_F(Exportbildschirm, SchreibtMitFuenfBankzahlen)
{
    oeffneExport("Über alle Maßen");
    klicke("optBZ(5)");
    for (int i = 0; i < 5; ++i)
        setze(QString("cmbB(%1)").arg(i), QString::number(5 - i));
    klicke("chkKN");
    klicke("cmdStart");
    EXPECT_EQ(dateien(), QStringList{"6aus49_Bank_B5_B4_B3_B2_B1.txt"});
    const QList<QByteArray> zeilen = inhalt(dateien().value(0)).split('\n');
    ASSERT_EQ(zeilen.size(), 1 + 44 + 5 + 1);
    EXPECT_EQ(zeilen[0], "                   [LNr:          ]  [KNr:           ]\r");
    EXPECT_EQ(zeilen[1], "01 02 03 04 05 06                 1                  1\r");
    EXPECT_EQ(zeilen[44], "01 02 03 04 05 49                44                 44\r");
    EXPECT_EQ(zeilen[45], "Legende:\r");
    EXPECT_EQ(zeilen[49], "Gefilterte Kombinationen:         44\r");
    EXPECT_EQ(lies("lblAnzahl"), "Gefilterte Kombinationen: 44");
}

TEST_F(Exportbildschirm, PrueftBankzahlenUndBereich)
{
    oeffneExport();
    const auto meldung = [this] {
        klicke("cmdStart");
        return boxen();
    };
    klicke("optBZ(2)");
    setze("cmbB(1)", "1");
    EXPECT_EQ(meldung(), QStringList{"info|Tombrix|Es wurden Bankzahlen doppelt ausgewählt!"});
    EXPECT_EQ(lies("lblDateien"), "-");
    klicke("optBZ(6)");
    setze("cmbVon", "20");
    setze("cmbBis", "20");
    EXPECT_EQ(meldung(), QStringList{"info|Tombrix|Der Bereichsanfang, die Zahl1, muss kleiner als Zahl6 sein!"});
    setze("cmbBis", "24");
    EXPECT_EQ(meldung(), QStringList{"info|Tombrix|Der gewählte Bereich ist zu klein! Z6 muss >= Z1+5 sein "});
    klicke("optK(3)");
    klicke("cmdStart");
    EXPECT_EQ(dateien(), QStringList{"5aus49_Bereich_von_20_bis_24.txt"});
    EXPECT_TRUE(inhalt(dateien().value(0)).startsWith("20 21 22 23 24\r\nLegende:\r\n"));
}

TEST_F(Exportbildschirm, FragtEinmalVorDemErsetzen)
{
    oeffneExport();
    for (const char* alte : {"5aus49_Teil_2.txt", "5aus49_Teil_9.txt"})
        schreibe(QString("Ziel/") + alte, {"alt"});
    klicke("optK(3)");
    klicke("optAll(1)");
    klicke("cmdStart");
    EXPECT_EQ(boxen(), QStringList{"question|Tombrix|Im Ordner " + ziel_ +
                                   " gibt es 2 der Dateien schon, von 5aus49_Teil_2.txt bis 5aus49_Teil_9.txt.\n"
                                   "Sollen sie ersetzt werden?"});
    EXPECT_EQ(dateien().size(), 2);
    EXPECT_EQ(inhalt("5aus49_Teil_2.txt"), "alt\r\n");
    buehne.boxen.antworte("yes");
    klicke("cmdStart");
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_EQ(dateien().size(), 10);
    EXPECT_TRUE(inhalt("5aus49_Teil_1.txt").startsWith("01 02 03 04 05\r\n"));
    EXPECT_EQ(inhalt("5aus49_Teil_2.txt").size(), 200'000 * 16);
}

TEST_F(Exportbildschirm, EinFehlenderOrdnerWirdGemeldet)
{
    oeffneExport();
    QDir(ziel_).removeRecursively();
    klicke("cmdStart");
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Den Ordner " + ziel_ +
                                   " gibt es nicht.\nBitte einen anderen Speicherordner wählen."});
    klicke("cmdOpen");
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Ordner " + ziel_ + " konnte nicht geöffnet werden."});
}

TEST_F(Exportbildschirm, EinFehlschlagWirdGemeldet)
{
    oeffneExport();
    QDir(ziel_).mkdir("2aus49.txt");
    buehne.boxen.antworte("yes");
    klicke("optK(0)");
    klicke("cmdStart");
    const QStringList gezeigte = boxen();
    ASSERT_EQ(gezeigte.size(), 2);
    EXPECT_TRUE(gezeigte[1].startsWith("info|Tombrix|Die Datei 2aus49.txt konnte nicht geschrieben werden.\n"));
    EXPECT_TRUE(gezeigte[1].endsWith("Es wurde keine Datei fertig."));
    EXPECT_TRUE(dateien().isEmpty());
}

TEST_F(Exportbildschirm, LaeuftUndHaeltAn)
{
    oeffneExport();
    klicke("optBZ(1)");
    starteUnd([this] {
        EXPECT_EQ(titel(), "Suche läuft...");
        EXPECT_TRUE(lies("lblAnzahl").startsWith("Suche läuft -> Gefilterte Kombinationen: "));
        for (const char* gesperrt : {"cmdStart", "optK(0)", "cmbB(0)", "chkKN", "cmdSpeicherpfad"})
            EXPECT_FALSE(bedienbar(gesperrt)) << gesperrt;
        klicke("cmdAbbruch");
    });
    EXPECT_EQ(titel(), "Abgebrochen. Es wurde keine Datei fertig.");
    EXPECT_TRUE(dateien().isEmpty());
    EXPECT_TRUE(bedienbar("cmdStart"));
    EXPECT_TRUE(bedienbar("cmbB(0)"));
}

TEST_F(Exportbildschirm, SchliesstMittenDrin)
{
    oeffneExport();
    starteUnd([this] { schliesse(); });
    QCoreApplication::processEvents();
    EXPECT_EQ(buehne.bildschirme.geladen("frmKombiAscii"), nullptr);
    EXPECT_TRUE(dateien().isEmpty());
    EXPECT_EQ(ini("Save_Path", "SavePath"), ziel_.toStdString());
}

TEST_F(Exportbildschirm, MerktSichDieWahl)
{
    oeffneExport();
    klicke("optSep(3)");
    klicke("optEx(1)");
    klicke("optAll(1)");
    klicke("chkKN");
    klicke("optBZ(6)");
    setze("cmbVon", "7");
    setze("cmbBis", "33");
    schliesse();
    EXPECT_EQ(ini("Separator", "optSep(3)"), "True");
    EXPECT_EQ(ini("Separator", "optSep(0)"), "False");
    EXPECT_EQ(ini("Bereich", "bis"), "33");
    oeffne("frmKombiAscii");
    for (const char* option : {"optSep(3)", "optEx(1)", "optAll(1)", "chkKN", "optBZ(0)", "optK(4)"})
        EXPECT_TRUE(an(option)) << option;
    EXPECT_EQ(lies("cmbVon"), "7");
    EXPECT_EQ(lies("cmbBis"), "33");
    EXPECT_EQ(lies("lblPfad"), ziel_);
}

TEST_F(Exportbildschirm, NimmtUnsinnInDenEinstellungenNichtAn)
{
    schreibe("druck_settings.ini", {"[Separator]", "optSep(1)=Quatsch", "[Bereich]", "von=77", "bis=-1", "[EineDatei]",
                                    "optAll(1)=", "[Save_Path]", "SavePath=irgendwo"});
    starte();
    oeffne("frmKombiAscii");
    EXPECT_TRUE(an("optSep(0)"));
    EXPECT_TRUE(an("optAll(0)"));
    EXPECT_EQ(lies("cmbVon"), "1");
    EXPECT_EQ(lies("cmbBis"), "49");
    EXPECT_NE(lies("lblPfad"), "irgendwo");
}

TEST_F(Exportbildschirm, EinAbgebrochenerOrdnerdialogAendertNichts)
{
    oeffneExport();
    klicke("cmdSpeicherpfad");
    EXPECT_EQ(boxen(), QStringList{"file|Bitte einen Ordner auswählen...|" + ziel_});
    EXPECT_EQ(lies("lblPfad"), ziel_);
}

TEST_F(Exportbildschirm, OeffnetDenOrdner)
{
    oeffneExport();
    klicke("cmdOpen");
    EXPECT_EQ(buehne.oeffner.entnehme(), QStringList{ziel_});
    buehne.oeffner.scheitert = true;
    klicke("cmdOpen");
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Ordner " + ziel_ + " konnte nicht geöffnet werden."});
}

TEST_F(Exportbildschirm, ErklaertSich)
{
    oeffneExport();
    klicke("cmdInfo");
    const QStringList gezeigte = boxen();
    ASSERT_EQ(gezeigte.size(), 1);
    EXPECT_TRUE(gezeigte[0].startsWith("info|Lotto-Info|"));
    EXPECT_TRUE(gezeigte[0].contains("540 MB"));
}

} // namespace

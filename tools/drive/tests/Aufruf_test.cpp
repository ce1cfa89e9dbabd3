// The program tombrix-drive itself: its options, its standard input and output, its exit status.

#include "testhilfen/Programmbuehne.h"

#include <QCoreApplication>
#include <QProcess>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr int kGeduld = 20000; ///< milliseconds after which a call that does not end has failed

class Aufruf : public Programmbuehne {
protected:
    /// Calls the program with the sample archive, or with the folder `verzeichnis`.
    void rufe(const QByteArray& eingabe, const QStringList& optionen = {}, const QString& verzeichnis = {})
    {
        starteProgramm(QStringList{"--dir", verzeichnis.isEmpty() ? ordner.path() : verzeichnis} + optionen, eingabe);
    }

    void starteProgramm(const QStringList& argumente, const QByteArray& eingabe)
    {
        QProcess lauf;
        lauf.start(QCoreApplication::applicationDirPath() + "/tombrix-drive", argumente);
        ASSERT_TRUE(lauf.waitForStarted());
        lauf.write(eingabe);
        lauf.closeWriteChannel();
        const bool beendet = lauf.waitForFinished(kGeduld);
        EXPECT_TRUE(beendet) << "Der Aufruf endet nicht.";
        if (!beendet)
            lauf.kill();
        EXPECT_EQ(lauf.exitStatus(), QProcess::NormalExit);
        ausgabe = QString::fromUtf8(lauf.readAllStandardOutput()).split('\n');
        EXPECT_EQ(ausgabe.takeLast(), "");
        fehler = lauf.readAllStandardError().toStdString();
        status = lauf.exitCode();
    }

    QStringList ausgabe;
    std::string fehler;
    int status = -1;
};

TEST_F(Aufruf, GehorchtDenZeilenUndEndetMitNull)
{
    rufe("# Titel\r\ntitle\r\n\r\nopen frmSTAT1\nget Text1");
    EXPECT_THAT(ausgabe, ElementsAre("> title", "  Lotto-Auswahlmenü", "> open frmSTAT1", "> get Text1", "  1955"));
    EXPECT_EQ(status, 0);
}

TEST_F(Aufruf, EndetMitEinsWennEtwasNichtGeht)
{
    rufe("click Befehl99\ntitle\n");
    EXPECT_THAT(ausgabe, ElementsAre("> click Befehl99", "! kein Feld Befehl99", "> title", "  Lotto-Auswahlmenü"));
    EXPECT_EQ(status, 1);
}

TEST_F(Aufruf, QuitLaesstDenRestLiegen)
{
    rufe("quit\ntitle\n");
    EXPECT_THAT(ausgabe, ElementsAre("> quit"));
    EXPECT_EQ(status, 0);
}

TEST_F(Aufruf, OhneEingabeEndetEsGleich)
{
    rufe("");
    EXPECT_TRUE(ausgabe.isEmpty());
    EXPECT_EQ(status, 0);
}

TEST_F(Aufruf, FalscheOptionenEndenMitZwei)
{
    starteProgramm({}, "title\n");
    EXPECT_EQ(status, 2);
    EXPECT_THAT(fehler, HasSubstr("--dir"));
    rufe("title\n", {"--clock", "gestern"});
    EXPECT_EQ(status, 2);
    EXPECT_THAT(fehler, HasSubstr("--clock"));
    rufe("title\n", {"--seed", "viel"});
    EXPECT_EQ(status, 2);
    EXPECT_THAT(fehler, HasSubstr("--seed"));
}

TEST_F(Aufruf, GleicheSaatZeigtDenGleichenTipp)
{
    const auto tipp = [this](const char* saat) {
        QByteArray zeilen;
        for (int zahl = 1; zahl <= 49; ++zahl)
            zeilen += "state Bezeichnung1(" + QByteArray::number(zahl) + ")\n";
        rufe(zeilen, {"--seed", saat});
        return ausgabe;
    };
    const QStringList erster = tipp("49");
    EXPECT_EQ(erster.filter("bold=true").size(), 6);
    EXPECT_EQ(tipp("49"), erster);
    EXPECT_NE(tipp("50"), erster);
}

TEST_F(Aufruf, EineFehlendeDateiZeigtIhreBoxUndHaeltNichtsAuf)
{
    const QTemporaryDir leer;
    rufe("wait 100\nboxes\ntitle\nquit\n", {}, leer.path());
    const QString box = "  info\tTombrix\tERROR 53: Die Ziehungsdatei SALOTTO.DAT wurde nicht gefunden. Die Datei "
                        "SALOTTO.DAT muß sich im gleichen Verzeichnis wie das Programm TOMBRIX.EXE befinden.\tok";
    EXPECT_THAT(ausgabe, testing::Contains(box));
    EXPECT_LE(ausgabe.count(box), 20);
    EXPECT_THAT(ausgabe, testing::Contains("! kein Bildschirm"));
    EXPECT_EQ(ausgabe.last(), "> quit");
    EXPECT_EQ(status, 1);
}

TEST_F(Aufruf, EineFehlendeDateiEndetAuchMitDerEingabe)
{
    const QTemporaryDir leer;
    rufe("boxes\n", {}, leer.path());
    EXPECT_EQ(ausgabe.value(0), "> boxes");
    EXPECT_EQ(status, 0);
    rufe("", {}, leer.filePath("gibt es nicht"));
    EXPECT_EQ(status, 0);
}

TEST_F(Aufruf, EineFehlendeZweiteDateiBlockiertDieSteuerungNicht)
{
    QFile::remove(ordner.filePath("MALOTTO.DAT"));
    rufe("click Option2\nwait 30\nboxes\nquit\n");
    EXPECT_EQ(ausgabe.value(0), "> click Option2");
    EXPECT_EQ(ausgabe.filter("Die Ziehungsdatei MALOTTO.DAT wurde nicht gefunden.").isEmpty(), false);
    EXPECT_EQ(status, 0);
}

} // namespace

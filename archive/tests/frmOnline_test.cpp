#include "archive/screens/Fortschrittsfeld.h"
#include "archive/screens/Spielartlader.h"
#include "archive/tests/Onlinetest.h"
#include "shell/elements/Bildschirm.h"
#include "shell/logic/Dateisperre.h"
#include "testhilfen/Kindprozess.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QTimer>

namespace {

using namespace std::chrono_literals;

/// Milliseconds after which the client would give up by itself.
constexpr int kGeduldDesClients = 30'000;

class Online : public Onlinetest {
protected:
    void SetUp() override
    {
        altSa = inhalt("SALOTTO.DAT");
        altMa = inhalt("MALOTTO.DAT");
    }
    void erwarteGesperrt(bool gesperrt)
    {
        for (const char* knopf : {"cmdStart(0)", "cmdStart(1)", "cmdStart(2)"})
            EXPECT_NE(bedienbar(knopf), gesperrt) << knopf;
    }
    int gefuellt() const
    {
        return buehne.bildschirme.geladen("frmOnline")->findChild<QWidget*>("Picture1") ? balken()->gefuellt() : -1;
    }
    Fortschrittsfeld* balken() const
    {
        return dynamic_cast<Fortschrittsfeld*>(
            buehne.bildschirme.geladen("frmOnline")->findChild<QWidget*>("Picture1"));
    }
    /// An answer that never comes to its end.
    Serverantwort haengende(const std::string& bytes) const
    {
        Serverantwort antwort =
            antworteMitKopf({"HTTP/1.1 200 OK", "Content-Length: " + std::to_string(bytes.size() + 100'000)}, bytes);
        antwort.bleibtOffen = true;
        return antwort;
    }

    static qsizetype offeneDateien() { return QDir("/proc/self/fd").entryList(QDir::AllEntries | QDir::System).size(); }

    std::string altSa;
    std::string altMa;
};

TEST_F(Online, OeffnetMitOrdnerUndAdressen)
{
    starte();
    oeffne("frmOnline");
    EXPECT_EQ(titel(), "Aktualisierung der Ziehungsdateien");
    EXPECT_EQ(lies("txtFolder"), QDir(ordner.path()).absolutePath() + QDir::separator());
    for (const auto& [feld, pfad] : {std::pair("txtSa", "/lotto/Salotto.dat"), std::pair("txtMa", "/lotto/Malotto.dat"),
                                     std::pair("txtURL", "/lotto/ziehungen.zip")}) {
        EXPECT_TRUE(lies(feld).startsWith("http://"));
        EXPECT_TRUE(lies(feld).endsWith(pfad));
    }
    EXPECT_EQ(lies("Label3"), "0 %");
    EXPECT_EQ(lies("lblInfo(5)"), "Geschwindigkeit:");
    erwarteGesperrt(false);
    EXPECT_EQ(gefuellt(), 0);
}

TEST_F(Online, EinAndererServerLaesstSichVonAussenNennen)
{
    qputenv("TOMBRIX_UPDATE_SERVER", "http://server.invalid:81//");
    starte();
    oeffne("frmOnline");
    qunsetenv("TOMBRIX_UPDATE_SERVER");
    EXPECT_EQ(lies("txtSa"), "http://server.invalid:81/lotto/Salotto.dat");
}

TEST_F(Online, HoltDenSamstag)
{
    server.setze("/lotto/Salotto.dat", antworte(mitEinerMehr(altSa)));
    oeffneOnline();
    const int vorher = buehne.archiv.AnzahlZiehungen;
    klicke("cmdStart(1)");
    EXPECT_EQ(boxen(), QStringList{"info|Lotto-Aktualisieren-Nachricht|Letzte eingetragene Samstags-Ziehung: \nSa, "
                                   "21.11.2026\n2026/47 ->  1,  2,  3, 14, 25, 49  SZ:  7"});
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == mitEinerMehr(altSa));
    EXPECT_TRUE(inhalt("SALOTTO.DAT.alt") == altSa);
    EXPECT_EQ(zusaetzliche(), QStringList{"SALOTTO.DAT.alt"});
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, vorher + 1);
    erwarteGesperrt(false);
    EXPECT_EQ(lies("lblStatus(0)"), QString("%1 Bytes").arg(altSa.size() + 32));
    EXPECT_EQ(lies("lblStatus(1)"), lies("lblStatus(0)"));
    EXPECT_TRUE(lies("lblStatus(5)").endsWith(" KB/s"));
    EXPECT_EQ(lies("lblStatus(6)"), "Status: Download  100,0% empfangen");
    EXPECT_EQ(lies("Label3"), "100,0 %");
    EXPECT_EQ(gefuellt(), balken()->contentsRect().width() - 3);
    EXPECT_EQ(balken()->farbe(), QColor(192, 192, 0));
}

TEST_F(Online, HoltDenMittwochUndStelltDasMenueDarauf)
{
    server.setze("/lotto/Malotto.dat", antworte(mitEinerMehr(altMa)));
    oeffneOnline();
    klicke("cmdStart(2)");
    const QStringList gezeigt = boxen();
    ASSERT_EQ(gezeigt.size(), 1);
    EXPECT_TRUE(
        gezeigt[0].startsWith("info|Lotto-Aktualisieren-Nachricht|Letzte eingetragene Mittwochs-Ziehung: \nMi"));
    EXPECT_TRUE(gezeigt[0].endsWith("2026/47 ->   1,  2,  3, 14, 25, 49   SZ:  7"));
    EXPECT_TRUE(inhalt("MALOTTO.DAT") == mitEinerMehr(altMa));
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == altSa);
    EXPECT_EQ(buehne.archiv.Spielart, Mittwochslotto);
    schliesse();
    EXPECT_TRUE(zustand("Option2").contains("checked=true"));
    EXPECT_EQ(buehne.archiv.Spielart, Mittwochslotto);
}

TEST_F(Online, SchliessenLaedtDasSpielDerOptionDesMenues)
{
    oeffneOnline();
    ladeSpielart(buehne.umgebung, MittwochslottoB); // as another screen may have left it
    schliesse();
    EXPECT_TRUE(zustand("Option1").contains("checked=true"));
    EXPECT_EQ(buehne.archiv.Spielart, Samstagslotto);
    EXPECT_EQ(static_cast<std::int32_t>(buehne.archiv.jjjj.size()) - 1, buehne.archiv.AnzahlZiehungen);
    EXPECT_EQ(buehne.archiv.jjjj.at(1), 1955);
}

TEST_F(Online, SchliessenOhneDieDateiDerOptionLaesstKeineAnderenZiehungen)
{
    oeffneOnline();
    ladeSpielart(buehne.umgebung, MittwochslottoB);
    QFile::remove(ordner.filePath("SALOTTO.DAT"));
    schliesse();
    EXPECT_EQ(boxen(), QStringList());
    EXPECT_EQ(buehne.archiv.Spielart, Samstagslotto);
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 0);
}

TEST_F(Online, WaehrendDerUebertragungSindDieStartknoepfeGesperrt)
{
    Serverantwort antwort = antworte(mitEinerMehr(altSa));
    antwort.stueck = 20'000;
    antwort.pause = 20ms;
    server.setze("/lotto/Salotto.dat", antwort);
    oeffneOnline();
    int blicke = 0;
    QString gestartet;
    buehne.pumpe.beiZug = [&] {
        if (!buehne.bildschirme.geladen("frmOnline")->laeuft())
            return;
        ++blicke;
        erwarteGesperrt(true);
        EXPECT_TRUE(bedienbar("Command2"));
        EXPECT_TRUE(inhalt("SALOTTO.DAT") == altSa || inhalt("SALOTTO.DAT") == mitEinerMehr(altSa));
        EXPECT_TRUE(gibtEs("Salotto-kopie.dat"));
    };
    QTimer::singleShot(0, [&] { gestartet = lies("lblStatus(6)"); });
    klicke("cmdStart(1)");
    buehne.pumpe.beiZug = {};
    EXPECT_GT(blicke, 2);
    EXPECT_EQ(gestartet, "Status: Aktualisierung wird gestartet. Bitte warten ...");
    erwarteGesperrt(false);
}

TEST_F(Online, OhneServerStehtDerFehlerInDerStatuszeile)
{
    oeffneOnline();
    setze("txtSa", QString("http://127.0.0.1:%1/lotto/Salotto.dat").arg(freierPort()));
    klicke("cmdStart(1)");
    EXPECT_EQ(boxen(), QStringList());
    EXPECT_EQ(lies("lblStatus(6)"), "Status: Fehler 1, Server nicht gefunden");
    EXPECT_EQ(lies("lblStatus(0)"), "0");
    EXPECT_EQ(lies("Label3"), "0 %");
    EXPECT_EQ(gefuellt(), 0);
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == altSa);
    EXPECT_EQ(zusaetzliche(), QStringList());
    erwarteGesperrt(false);
}

TEST_F(Online, JederFehlerDesServersLaesstDieDateiStehen)
{
    const std::vector<std::pair<Serverantwort, QString>> faelle{
        {antworteMitStatus("404 Not Found"), "Status: Fehler 404, Seite/Datei nicht gefunden"},
        {antworteMitStatus("500 Internal Server Error"), "Status: Fehler 500, Unbekannter Fehler"},
        {antworteMitKopf({"HTTP/1.1 301 Moved", "Location: /"}, ""), "Status: Fehler 301, Unbekannter Fehler"},
        {antworte(""), "Status: Fehler 3, Downloadgröße 0 Byte"},
        {antworteMitKopf({"HTTP/1.1 200 OK", "Transfer-Encoding: chunked"}, "0\r\n\r\n"),
         "Status: Fehler 3, Downloadgröße 0 Byte"},
        {antworteMitKopf({"HTTP/1.1 200 OK", "Content-Length: 9663676416"}, "1955"),
         "Status: Fehler 3, Downloadgröße 0 Byte"},
        {antworteMitKopf({"SSH-2.0-Unsinn"}, ""), "Status: Aktualisierung wird gestartet. Bitte warten ..."},
    };
    oeffneOnline();
    for (const auto& [antwort, status] : faelle) {
        server.setze("/lotto/Salotto.dat", antwort);
        klicke("cmdStart(1)");
        EXPECT_EQ(lies("lblStatus(6)"), status);
        EXPECT_EQ(boxen(), QStringList());
        EXPECT_TRUE(inhalt("SALOTTO.DAT") == altSa);
        EXPECT_EQ(zusaetzliche(), QStringList());
        erwarteGesperrt(false);
    }
}

TEST_F(Online, EineUnverstandeneAdresseIstFehlerZwei)
{
    oeffneOnline();
    for (const char* url : {"https://127.0.0.1/Salotto.dat", "unsinn", "http://127.0.0.1/lotto/.."}) {
        setze("txtSa", url);
        klicke("cmdStart(1)");
        EXPECT_EQ(lies("lblStatus(6)"), "Status: Fehler 2, URL nicht interpretierbar");
    }
    EXPECT_EQ(zusaetzliche(), QStringList());
}

TEST_F(Online, EineAeltereDateiWirdAbgewiesenUndSperrtBisZumNeuenOeffnen)
{
    server.setze("/lotto/Salotto.dat", antworte(altSa.substr(0, altSa.size() - 32)));
    oeffneOnline();
    klicke("cmdStart(1)");
    EXPECT_EQ(boxen(), QStringList{kAbgewiesen});
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == altSa);
    EXPECT_EQ(zusaetzliche(), QStringList());
    erwarteGesperrt(true);
    schliesse();
    EXPECT_GT(buehne.archiv.AnzahlZiehungen, 3000);
    oeffne("frmOnline");
    erwarteGesperrt(false);
}

TEST_F(Online, EineAbgeschnitteneDateiWirdAbgewiesen)
{
    const std::string neu = mitEinerMehr(altSa);
    server.setze("/lotto/Salotto.dat",
                 antworteMitKopf({"HTTP/1.1 200 OK", "Content-Length: " + std::to_string(neu.size())},
                                 neu.substr(0, neu.size() / 2)));
    oeffneOnline();
    klicke("cmdStart(1)");
    EXPECT_EQ(boxen(), QStringList{kAbgewiesen});
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == altSa);
}

TEST_F(Online, GleichVieleZiehungenSindEinErfolg)
{
    std::string andere = altSa;
    andere[andere.size() - 3] = andere[andere.size() - 3] == '1' ? '2' : '1';
    server.setze("/lotto/Salotto.dat", antworte(andere));
    oeffneOnline();
    klicke("cmdStart(1)");
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == andere);
    EXPECT_FALSE(gibtEs("Salotto-kopie.dat"));
}

TEST_F(Online, EineFehlendeDateiFuehrtInKeineBox)
{
    oeffneOnline();
    QFile::remove(QDir(ordner.path()).filePath("SALOTTO.DAT"));
    klicke("cmdStart(1)");
    EXPECT_EQ(lies("lblStatus(6)"), "Status: Fehler 404, Seite/Datei nicht gefunden");
    EXPECT_FALSE(gibtEs("SALOTTO.DAT"));
    EXPECT_EQ(zusaetzliche(), QStringList());
    server.setze("/lotto/Salotto.dat", antworte(altSa));
    klicke("cmdStart(1)");
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == altSa);
    EXPECT_EQ(zusaetzliche(), QStringList());
}

TEST_F(Online, SchliessenMitFehlenderDateiFuehrtInKeineBox)
{
    oeffneOnline();
    QFile::remove(QDir(ordner.path()).filePath("SALOTTO.DAT"));
    klicke("cmdStart(1)");
    schliesse();
    EXPECT_EQ(boxen(), QStringList());
    EXPECT_EQ(buehne.archiv.AnzahlZiehungen, 0);
    EXPECT_EQ(buehne.bildschirme.geladen("frmOnline"), nullptr);
    schreibeBytes("SALOTTO.DAT", altSa);
    klicke("Option1");
    EXPECT_GT(buehne.archiv.AnzahlZiehungen, 3000);
}

TEST_F(Online, EinFehlendesVerzeichnisWirdGesagtUndNichtsIstGeschehen)
{
    oeffneOnline();
    for (const QString& verzeichnis : {QString(), ordner.filePath("gibtesnicht"), ordner.filePath("SALOTTO.DAT")}) {
        setze("txtFolder", verzeichnis);
        klicke("cmdStart(1)");
        EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Bitte ein gültiges, vorhandenes Verzeichnis angeben."});
    }
    EXPECT_EQ(lies("lblStatus(6)"), "0");
    EXPECT_TRUE(server.anfragen().empty());
    EXPECT_EQ(zusaetzliche(), QStringList());
    erwarteGesperrt(false);
}

TEST_F(Online, EinAnderesVerzeichnisBekommtDieDateiOhneMeldung)
{
    const QTemporaryDir anderes;
    server.setze("/lotto/Salotto.dat", antworte(mitEinerMehr(altSa)));
    oeffneOnline();
    setze("txtFolder", anderes.path());
    klicke("cmdStart(1)");
    EXPECT_EQ(boxen(), QStringList());
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == altSa);
    EXPECT_EQ(zusaetzliche(), QStringList());
    EXPECT_EQ(QDir(anderes.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"Salotto.dat"});
    erwarteGesperrt(false);
}

TEST_F(Online, HoltDasZipUndHebtDasVorigeAuf)
{
    server.setze("/lotto/ziehungen.zip", antworte("PK1"));
    oeffneOnline();
    klicke("cmdStart(0)");
    server.setze("/lotto/ziehungen.zip", antworte("PK2"));
    klicke("cmdStart(0)");
    EXPECT_EQ(boxen(), QStringList());
    EXPECT_EQ(inhalt("ziehungen.zip"), "PK2");
    EXPECT_EQ(inhalt("ziehungen-kopie.zip"), "PK1");
    EXPECT_EQ(zusaetzliche(), (QStringList{"ziehungen-kopie.zip", "ziehungen.zip"}));
    EXPECT_EQ(buehne.archiv.Spielart, Samstagslotto);
    erwarteGesperrt(false);
}

TEST_F(Online, SchliessenMittenInDerUebertragungKehrtSauberZurueck)
{
    server.setze("/lotto/Salotto.dat", haengende(altSa));
    oeffneOnline();
    const auto offene = offeneDateien();
    QElapsedTimer uhr;
    uhr.start();
    QTimer blick;
    int blicke = 0;
    blick.callOnTimeout([&] {
        blicke += server.gesendet() >= altSa.size() ? 1 : 0;
        if (blicke == 10)
            klicke("Command2");
    });
    blick.start(5ms);
    klicke("cmdStart(1)");
    blick.stop();
    EXPECT_LT(uhr.elapsed(), kGeduldDesClients);
    EXPECT_EQ(boxen().size(), 1); // the count test has shown its result
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == altSa);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(buehne.bildschirme.geladen("frmOnline"), nullptr);
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
    EXPECT_GT(buehne.archiv.AnzahlZiehungen, 3000);
    for (const QDeadlineTimer frist(1s); offeneDateien() > offene && !frist.hasExpired();) // the server closes its end
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    EXPECT_LE(offeneDateien(), offene);
}

TEST_F(Online, SchliessenBevorDerServerAntwortetKehrtSauberZurueck)
{
    Serverantwort stumm;
    stumm.bleibtOffen = true;
    server.setze("/lotto/Salotto.dat", stumm);
    oeffneOnline();
    QTimer::singleShot(50, [this] { schliesse(); });
    QElapsedTimer uhr;
    uhr.start();
    klicke("cmdStart(1)");
    QCoreApplication::processEvents();
    EXPECT_LT(uhr.elapsed(), kGeduldDesClients);
    EXPECT_EQ(boxen(), QStringList());
    EXPECT_EQ(buehne.bildschirme.geladen("frmOnline"), nullptr);
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == altSa);
    EXPECT_EQ(zusaetzliche(), QStringList());
}

TEST_F(Online, DasEndeDesProgrammsBrichtDieUebertragungAb)
{
    server.setze("/lotto/Salotto.dat", haengende(altSa));
    oeffneOnline();
    buehne.pumpe.beiZug = [this] { buehne.pumpe.beendet = true; };
    QElapsedTimer uhr;
    uhr.start();
    klicke("cmdStart(1)");
    EXPECT_LT(uhr.elapsed(), kGeduldDesClients);
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == altSa);
}

TEST_F(Online, SchreibtEinAnderesProgrammBleibtDieDateiUndEsStehtDa)
{
    server.setze("/lotto/Salotto.dat", antworte(mitEinerMehr(altSa)));
    oeffneOnline();
    auto fremde = Dateisperre::nimm(ordner.filePath("SALOTTO.DAT").toStdString(), {});
    ASSERT_TRUE(fremde);
    klicke("cmdStart(1)");
    EXPECT_EQ(lies("lblStatus(6)"),
              "Status: Ein anderes Programm schreibt gerade. Die bisherige Datei bleibt unverändert.");
    EXPECT_EQ(boxen(), QStringList());
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == altSa);
    EXPECT_EQ(zusaetzliche(), QStringList());
    erwarteGesperrt(false);
    fremde.reset();
    klicke("cmdStart(1)");
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == mitEinerMehr(altSa));
}

TEST_F(Online, EineSeiteUnterDemNamenEinesAnderenSpielsWirdAbgewiesen)
{
    server.setze("/lotto/MALOTTO.dat", antworte("<html>nicht da</html>"));
    oeffneOnline();
    setze("txtSa", adresse("/lotto/MALOTTO.dat"));
    klicke("cmdStart(1)");
    EXPECT_EQ(boxen(), QStringList{kAbgewiesen});
    EXPECT_TRUE(inhalt("MALOTTO.DAT") == altMa);
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == altSa);
    EXPECT_EQ(zusaetzliche(), QStringList());
}

TEST_F(Online, EinZweiterDruckWaehrendDerUebertragungTutNichts)
{
    Serverantwort antwort = antworte(mitEinerMehr(altSa));
    antwort.stueck = 30'000;
    antwort.pause = 20ms;
    server.setze("/lotto/Salotto.dat", antwort);
    oeffneOnline();
    QTimer::singleShot(0, [this] {
        for (const char* knopf : {"cmdStart(0)", "cmdStart(1)", "cmdStart(2)"})
            EXPECT_FALSE(bedienung.klicke(knopf).gelungen());
    });
    klicke("cmdStart(1)");
    EXPECT_EQ(server.anfragen().size(), 1U);
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == mitEinerMehr(altSa));
}

TEST_F(Online, DieHilfeErklaertSich)
{
    oeffneOnline();
    klicke("Command1");
    const QString hilfe = boxen().value(0);
    EXPECT_TRUE(hilfe.startsWith("info|Download-Info|Das Programm baut selbst keine Verbindung zum Internet auf. "));
    EXPECT_TRUE(hilfe.contains("die Meldung \"Server nicht gefunden\".\n\nDie Ziehungsdateien stehen"));
    EXPECT_TRUE(hilfe.endsWith("Sie müssen dann noch mit einem Zip-Programm entpackt werden."));
}

TEST_F(Online, ZeigtHinweise)
{
    oeffneOnline();
    ueberfahre("cmdStart(1)");
    EXPECT_EQ(titel(), "Aktualisieren Samstagslotto");
    ueberfahre("Command2");
    EXPECT_EQ(titel(), "Zum Lotto-Auswahlmenü");
}

} // namespace

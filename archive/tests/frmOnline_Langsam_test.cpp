// The screen of the online update against servers that drip, stall, or never answer.

#include "archive/tests/Onlinetest.h"
#include "shell/elements/Bildschirm.h"

#include <QElapsedTimer>

namespace {

using namespace std::chrono_literals;

constexpr auto kChunk = std::size_t{8192};
constexpr auto kZuLange = "Status: Nach 10 Minuten abgebrochen. Die bisherige Datei bleibt unverändert.";

class LangsamerServer : public Onlinetest {
protected:
    void SetUp() override { altSa = inhalt("SALOTTO.DAT"); }

    void antworteServer(Serverantwort antwort) { server.setze("/lotto/Salotto.dat", std::move(antwort)); }
    bool laeuft() const
    {
        const Bildschirm* bildschirm = buehne.bildschirme.geladen("frmOnline");
        return bildschirm && bildschirm->laeuft() && !bildschirm->schliesst();
    }
    /// Presses the start button and goes back to the menu after a while. In between the user has a turn at least every
    /// 50 ms on the average, and the way back is a short one.
    void erwarteDassManHandelnKann()
    {
        constexpr qint64 kDauer = 600;
        constexpr qint64 kZug = 50;
        constexpr qint64 kHeimweg = 1000; // far from the seconds of a server, and near enough on a busy machine
        QElapsedTimer uhr;
        qint64 zurueck = -1;
        qint64 zuege = 0;
        buehne.pumpe.beiZug = [&] {
            if (!laeuft())
                return;
            ++zuege;
            if (uhr.elapsed() < kDauer)
                return;
            zurueck = uhr.elapsed();
            klicke("Command2");
        };
        uhr.start();
        klicke("cmdStart(1)");
        buehne.pumpe.beiZug = {};
        EXPECT_GE(zurueck, kDauer);
        EXPECT_LT(uhr.elapsed(), zurueck + kHeimweg);
        EXPECT_GE(zuege, zurueck / kZug);
        EXPECT_TRUE(inhalt("SALOTTO.DAT") == altSa);
    }
    /// Lets ten minutes go by as soon as the transfer has come so far, in two steps.
    void lasseZehnMinutenVergehen(const std::function<bool()>& istSoweit)
    {
        int schritte = 0;
        buehne.pumpe.beiZug = [&] {
            if (schritte == 2 || !laeuft() || !istSoweit())
                return;
            buehne.uhr.rueckeVor(schritte == 0 ? 9min + 30s : 30s);
            ++schritte;
        };
        QElapsedTimer uhr;
        uhr.start();
        klicke("cmdStart(1)");
        buehne.pumpe.beiZug = {};
        EXPECT_EQ(schritte, 2) << "it has ended before its time";
        EXPECT_LT(uhr.elapsed(), 10'000);
    }

    std::string altSa;
};

TEST_F(LangsamerServer, DerBytesTropft)
{
    Serverantwort antwort = antworte(altSa.substr(0, 30));
    antwort.stueck = 1;
    antwort.pause = 100ms;
    antworteServer(antwort);
    oeffneOnline();
    erwarteDassManHandelnKann();
}

TEST_F(LangsamerServer, DerSchnellerTropftAlsGewartetWird)
{
    Serverantwort antwort = antworte(altSa.substr(0, 1000));
    antwort.stueck = 1;
    antwort.pause = 3ms;
    antworteServer(antwort);
    oeffneOnline();
    erwarteDassManHandelnKann();
}

TEST_F(LangsamerServer, DerDenKopfTropft)
{
    Serverantwort antwort;
    antwort.rumpf = "HTTP/1.1 200 OK\r\nX-Lang: " + std::string(100, 'x');
    antwort.stueck = 1;
    antwort.pause = 15ms;
    antworteServer(antwort);
    oeffneOnline();
    erwarteDassManHandelnKann();
}

TEST_F(LangsamerServer, DerKeinenKopfSchickt)
{
    Serverantwort antwort;
    antwort.bleibtOffen = true;
    antworteServer(antwort);
    oeffneOnline();
    erwarteDassManHandelnKann();
}

TEST_F(LangsamerServer, DerKeineVerbindungAnnimmt)
{
    const VollerPort voller;
    oeffneOnline();
    setze("txtSa", QString("http://127.0.0.1:%1/lotto/Salotto.dat").arg(voller.port()));
    erwarteDassManHandelnKann();
    EXPECT_TRUE(server.anfragen().empty());
}

TEST_F(LangsamerServer, DerStehenBleibtLaesstKeineAltenFiguren)
{
    const std::string da = altSa.substr(0, 14 * kChunk);
    ASSERT_EQ(da.size(), 114'688U);
    Serverantwort antwort = antworteMitKopf({"HTTP/1.1 200 OK", "Content-Length: " + std::to_string(altSa.size())}, da);
    antwort.bleibtOffen = true;
    antworteServer(antwort);
    oeffneOnline();
    QElapsedTimer seitDa;
    qint64 gezeigtNach = -1;
    buehne.pumpe.beiZug = [&] {
        if (!laeuft() || server.gesendet() < da.size())
            return;
        if (!seitDa.isValid())
            seitDa.start();
        if (lies("lblStatus(1)") == "114688 Bytes")
            gezeigtNach = seitDa.elapsed();
        if (gezeigtNach >= 0 || seitDa.elapsed() > 2000)
            klicke("Command2");
    };
    klicke("cmdStart(1)");
    buehne.pumpe.beiZug = {};
    EXPECT_GE(gezeigtNach, 0) << "the figures have frozen";
    EXPECT_LT(gezeigtNach, 1000);
}

TEST_F(LangsamerServer, WirdNachZehnMinutenAufgegebenUndDieAlteDateiBleibt)
{
    // What has come would pass the count: it is whole lines and one draw more.
    const std::string neu = mitEinerMehr(altSa);
    Serverantwort antwort =
        antworteMitKopf({"HTTP/1.1 200 OK", "Content-Length: " + std::to_string(neu.size() + 32)}, neu);
    antwort.bleibtOffen = true;
    antworteServer(antwort);
    oeffneOnline();
    lasseZehnMinutenVergehen([&] { return server.gesendet() >= neu.size(); });
    EXPECT_EQ(lies("lblStatus(6)"), kZuLange);
    EXPECT_EQ(boxen(), QStringList{kAbgewiesen});
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == altSa);
    EXPECT_EQ(zusaetzliche(), QStringList());
}

TEST_F(LangsamerServer, DerNieAntwortetWirdNachZehnMinutenAufgegeben)
{
    Serverantwort antwort;
    antwort.bleibtOffen = true;
    antworteServer(antwort);
    oeffneOnline();
    lasseZehnMinutenVergehen([this] { return !server.anfragen().empty(); });
    EXPECT_EQ(lies("lblStatus(6)"), kZuLange);
    EXPECT_EQ(boxen(), QStringList());
    EXPECT_TRUE(bedienbar("cmdStart(1)"));
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == altSa);
    EXPECT_EQ(zusaetzliche(), QStringList());
}

} // namespace

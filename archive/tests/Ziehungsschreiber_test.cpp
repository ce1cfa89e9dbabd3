#include "archive/logic/Ziehungsdatei.h"
#include "archive/logic/Ziehungsschreiber.h"
#include "testhilfen/Pruefordner.h"

#include <csignal>
#include <gtest/gtest.h>
#include <random>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const std::string kSatz1 = "1955,41,03,12,13,16,23,41,00,0";
const std::string kSatz2 = "1955,42,03,12,18,30,32,49,00,0";

class Ziehungsschreiber : public testing::Test {
protected:
    std::string inhalt() const { return inhaltVon(datei); }
    std::string alteFassung() const { return inhaltVon(ordner / "SALOTTO.DAT.alt"); }
    void schreibe(const std::string& bytes) const { ordner.lege("SALOTTO.DAT", bytes); }

    /// Runs `tue` in a child process whose files may not grow beyond `bytes`; true if it returned true.
    template <class Tat> static bool mitVollerPlatte(rlim_t bytes, Tat tue)
    {
        const pid_t kind = fork();
        if (kind == 0) {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit grenze{bytes, bytes};
            setrlimit(RLIMIT_FSIZE, &grenze);
            _exit(tue() ? 0 : 1);
        }
        int stand = 1;
        waitpid(kind, &stand, 0);
        return WIFEXITED(stand) && WEXITSTATUS(stand) == 0;
    }

    Pruefordner ordner;
    std::filesystem::path datei = ordner / "SALOTTO.DAT";
};

TEST_F(Ziehungsschreiber, HaengtEinenSatzAn)
{
    schreibe(kSatz1 + "\r\n");
    EXPECT_TRUE(haengeZeileAn(datei, kSatz2));
    EXPECT_EQ(inhalt(), kSatz1 + "\r\n" + kSatz2 + "\r\n");
}

TEST_F(Ziehungsschreiber, ErgaenztDasFehlendeZeilenende)
{
    schreibe(kSatz1);
    EXPECT_TRUE(haengeZeileAn(datei, kSatz2));
    EXPECT_EQ(inhalt(), kSatz1 + "\r\n" + kSatz2 + "\r\n");
}

TEST_F(Ziehungsschreiber, LeereUndFehlendeDatei)
{
    EXPECT_TRUE(haengeZeileAn(datei, kSatz1));
    EXPECT_EQ(inhalt(), kSatz1 + "\r\n");
    schreibe("");
    EXPECT_TRUE(haengeZeileAn(datei, kSatz1));
    EXPECT_EQ(inhalt(), kSatz1 + "\r\n");
}

TEST_F(Ziehungsschreiber, HebtDenSchreibschutzAuf)
{
    schreibe(kSatz1 + "\r\n");
    std::filesystem::permissions(datei, std::filesystem::perms::owner_read);
    EXPECT_TRUE(haengeZeileAn(datei, kSatz2));
    EXPECT_EQ(inhalt(), kSatz1 + "\r\n" + kSatz2 + "\r\n");
}

TEST_F(Ziehungsschreiber, EinVerzeichnisAnIhrerStelleIstEinFehler)
{
    std::filesystem::create_directory(datei);
    EXPECT_FALSE(haengeZeileAn(datei, kSatz2));
    EXPECT_FALSE(schreibeZiehungsdatei(datei, ZiehungsArchiv()));
    EXPECT_TRUE(std::filesystem::is_directory(datei));
}

TEST_F(Ziehungsschreiber, VollePlatteLaesstJedesByteStehen)
{
    const std::string alt = kSatz1 + "\r\n" + kSatz2;
    for (const rlim_t mehr : {0u, 1u, 2u, 15u, 33u}) {
        schreibe(alt);
        EXPECT_FALSE(mitVollerPlatte(alt.size() + mehr, [this] { return haengeZeileAn(datei, kSatz1).gut(); })) << mehr;
        EXPECT_EQ(inhalt(), alt) << mehr;
    }
}

TEST_F(Ziehungsschreiber, NeuGeschriebenIstDieDateiGenormtUndDieAlteBleibt)
{
    const std::string vonHand = "1955,41, 3,12,13,16,23,41,0,0\n1955,42,03,12,18,30,32,49,00,0";
    schreibe(vonHand);
    ZiehungsArchiv archiv;
    archiv.ProgrammVerzeichnis = ordner.pfad().string();
    archiv.Spielart = Samstagslotto;
    LadeZiehungsdatei(archiv, {});
    ASSERT_EQ(archiv.AnzahlZiehungen, 2);
    EXPECT_TRUE(schreibeZiehungsdatei(datei, archiv));
    EXPECT_EQ(inhalt(), kSatz1 + "\r\n" + kSatz2 + "\r\n");
    EXPECT_EQ(alteFassung(), vonHand);
}

TEST_F(Ziehungsschreiber, EinLeeresArchivSchreibtEineLeereDateiUndDieAlteBleibtAuchBeimZweitenMal)
{
    schreibe(kSatz1 + "\r\n");
    EXPECT_TRUE(schreibeZiehungsdatei(datei, ZiehungsArchiv()));
    EXPECT_EQ(inhalt(), "");
    EXPECT_TRUE(schreibeZiehungsdatei(datei, ZiehungsArchiv()));
    EXPECT_EQ(alteFassung(), kSatz1 + "\r\n");
}

TEST_F(Ziehungsschreiber, VollePlatteBeimNeuSchreibenLaesstDieAlteStehen)
{
    const std::string alt = kSatz1 + "\r\n" + kSatz2 + "\r\n";
    schreibe(alt);
    ZiehungsArchiv archiv;
    archiv.ProgrammVerzeichnis = ordner.pfad().string();
    archiv.Spielart = Samstagslotto;
    LadeZiehungsdatei(archiv, {});
    EXPECT_FALSE(mitVollerPlatte(10, [&] { return schreibeZiehungsdatei(datei, archiv).gut(); }));
    EXPECT_EQ(inhalt(), alt);
}

/// The child saves one draw after the other until it is killed; what it leaves must be whole records only.
TEST_F(Ziehungsschreiber, EinMittenInDerArbeitGetoetetesProgrammHinterlaesstGanzeSaetze)
{
    constexpr int kRunden = 500;
    std::mt19937 zufall(49);
    for (int runde = 0; runde < kRunden; ++runde) {
        schreibe(kSatz1);
        const pid_t kind = fork();
        if (kind == 0) {
            ZiehungsArchiv archiv;
            archiv.ProgrammVerzeichnis = ordner.pfad().string();
            archiv.Spielart = Samstagslotto;
            for (;;) {
                haengeZeileAn(datei, kSatz2);
                LadeZiehungsdatei(archiv, {});
                schreibeZiehungsdatei(datei, archiv);
            }
        }
        usleep(static_cast<useconds_t>(zufall() % 8000));
        kill(kind, SIGKILL);
        waitpid(kind, nullptr, 0);
        std::string rest = inhalt();
        ASSERT_TRUE(rest.starts_with(kSatz1)) << runde;
        rest.erase(0, kSatz1.size());
        while (rest.starts_with("\r\n" + kSatz2))
            rest.erase(0, kSatz2.size() + 2);
        ASSERT_TRUE(rest.empty() || rest == "\r\n") << runde << ": " << rest;
    }
}

} // namespace

#include "shell/logic/Dateien.h"
#include "shell/logic/Dateisperre.h"
#include "testhilfen/Kindprozess.h"
#include "testhilfen/Pruefordner.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

/// Another program that holds the lock until it is asked to end, or killed.
class FremderHalter {
public:
    explicit FremderHalter(const fs::path& datei)
    {
        int genommen[2]{};
        if (::pipe(genommen) != 0 || ::pipe(bleibt_) != 0)
            return;
        kind_ = ::fork();
        if (kind_ == 0) {
            const auto sperre = Dateisperre::nimm(datei, 0ms);
            ::close(bleibt_[1]);
            char zeichen = sperre ? 'j' : 'n';
            if (::write(genommen[1], &zeichen, 1) == 1)
                while (::read(bleibt_[0], &zeichen, 1) > 0) {
                }
            ::_exit(0);
        }
        char zeichen = 'n';
        hat_ = ::read(genommen[0], &zeichen, 1) == 1 && zeichen == 'j';
        ::close(genommen[0]);
        ::close(genommen[1]);
        ::close(bleibt_[0]);
    }
    FremderHalter(const FremderHalter&) = delete;
    FremderHalter& operator=(const FremderHalter&) = delete;
    ~FremderHalter() { ende(); }

    bool hat() const { return hat_; }
    void wirdGetoetet()
    {
        ::kill(kind_, SIGKILL);
        ende();
    }
    void ende()
    {
        if (kind_ <= 0)
            return;
        ::close(bleibt_[1]);
        ::waitpid(kind_, nullptr, 0);
        kind_ = -1;
    }

private:
    int bleibt_[2]{};
    pid_t kind_ = -1;
    bool hat_ = false;
};

bool frei(const fs::path& datei)
{
    return Dateisperre::nimm(datei, 0ms).has_value();
}

TEST(Dateisperre, HatEinerZurZeitUndLaesstNichtsLiegen)
{
    const Pruefordner ordner;
    const fs::path datei = ordner.lege("SALOTTO.DAT", "x");
    {
        const auto sperre = Dateisperre::nimm(datei, 0ms);
        ASSERT_TRUE(sperre);
        EXPECT_FALSE(frei(datei));
        EXPECT_EQ(ordner.eintraege(), 1U);
    }
    EXPECT_TRUE(frei(datei));
    EXPECT_EQ(ordner.eintraege(), 1U);
    EXPECT_EQ(inhaltVon(datei), "x");
}

TEST(Dateisperre, HaeltEinAnderesProgrammFernBisEsLoslaesst)
{
    const Pruefordner ordner;
    FremderHalter fremder(ordner / "SALOTTO.DAT");
    ASSERT_TRUE(fremder.hat());
    EXPECT_FALSE(frei(ordner / "SALOTTO.DAT"));
    fremder.ende();
    EXPECT_TRUE(frei(ordner / "SALOTTO.DAT"));
}

TEST(Dateisperre, StirbtMitIhremHalter)
{
    const Pruefordner ordner;
    FremderHalter fremder(ordner / "SALOTTO.DAT");
    ASSERT_TRUE(fremder.hat());
    fremder.wirdGetoetet();
    EXPECT_TRUE(frei(ordner / "SALOTTO.DAT"));
    EXPECT_EQ(ordner.eintraege(), 0U);
}

TEST(Dateisperre, HaeltAuchWennDieDateiErsetztUndAndersGeschriebenWird)
{
    const Pruefordner ordner;
    const fs::path datei = ordner.lege("Salotto.dat", "alt");
    const FremderHalter fremder(datei);
    ASSERT_TRUE(fremder.hat());
    ASSERT_TRUE(schreibeDatei(datei, "neu"));
    EXPECT_FALSE(frei(datei));
    fs::rename(datei, ordner / "SALOTTO.DAT");
    EXPECT_FALSE(frei(ordner / "SALOTTO.DAT"));
}

TEST(Dateisperre, GiltFuerDasZielEinesVerweises)
{
    const Pruefordner hier;
    const Pruefordner dort;
    dort.lege("SALOTTO.DAT", "x");
    fs::create_symlink(dort / "SALOTTO.DAT", hier / "SALOTTO.DAT");
    const auto sperre = Dateisperre::nimm(hier / "SALOTTO.DAT", 0ms);
    EXPECT_FALSE(frei(dort / "SALOTTO.DAT"));
    EXPECT_TRUE(frei(hier / "MALOTTO.DAT"));
}

TEST(Dateisperre, WartetUndGibtDanachAuf)
{
    const Pruefordner ordner;
    const auto sperre = Dateisperre::nimm(ordner / "x", 0ms);
    int runden = 0;
    const auto beginn = std::chrono::steady_clock::now();
    EXPECT_FALSE(Dateisperre::nimm(ordner / "x", 60ms, [&] { return ++runden > 0; }));
    const auto gewartet = std::chrono::steady_clock::now() - beginn;
    EXPECT_GE(gewartet, 60ms);
    EXPECT_LT(gewartet, 2s);
    EXPECT_GE(runden, 2);
}

TEST(Dateisperre, BekommtDieWaehrendDesWartensFreigegebene)
{
    const Pruefordner ordner;
    auto sperre = Dateisperre::nimm(ordner / "x", 0ms);
    EXPECT_TRUE(Dateisperre::nimm(ordner / "x", 10s, [&] {
        sperre.reset();
        return true;
    }));
}

TEST(Dateisperre, GibtAufWennDieZwischenzeitEsVerlangt)
{
    const Pruefordner ordner;
    const auto sperre = Dateisperre::nimm(ordner / "x", 0ms);
    const auto beginn = std::chrono::steady_clock::now();
    EXPECT_FALSE(Dateisperre::nimm(ordner / "x", 10s, [] { return false; }));
    EXPECT_LT(std::chrono::steady_clock::now() - beginn, 5s);
}

TEST(Dateisperre, OhneOrdnerGibtEsKeine)
{
    EXPECT_FALSE(Dateisperre::nimm("/gibt/es/nicht/SALOTTO.DAT", 10s));
}

TEST(Dateisperre, WoDerOrdnerNichtGelesenWerdenDarfLiegtSieAufEinerDatei)
{
    const Pruefordner ordner;
    fs::permissions(ordner.pfad(), fs::perms(0333));
    const int ergebnis = imKindprozess([&] {
        if (!werdeGewoehnlich())
            return 2;
        const auto sperre = Dateisperre::nimm(ordner / "SALOTTO.DAT", 0ms);
        return sperre && !frei(ordner / "SALOTTO.DAT") && fs::exists(ordner / ".tombrix-sperre") ? 0 : 1;
    });
    EXPECT_EQ(ergebnis, 0);
}

/// Adds one to the number in a file, again and again.
int zaehleHoch(const fs::path& datei, int male)
{
    for (int i = 0; i < male; ++i) {
        const auto sperre = Dateisperre::nimm(datei, 60s);
        if (!sperre || !schreibeDatei(datei, std::to_string(std::stoi(inhaltVon(datei)) + 1)))
            return 1;
    }
    return 0;
}

TEST(Dateisperre, ZweiProgrammeVerlierenNichts)
{
    constexpr int kMale = 80;
    const Pruefordner ordner;
    const fs::path datei = ordner.lege("zahl", "0");
    const pid_t kind = ::fork();
    if (kind == 0)
        ::_exit(zaehleHoch(datei, kMale));
    EXPECT_EQ(zaehleHoch(datei, kMale), 0);
    int zustand = -1;
    ASSERT_EQ(::waitpid(kind, &zustand, 0), kind);
    EXPECT_EQ(zustand, 0);
    EXPECT_EQ(inhaltVon(datei), std::to_string(2 * kMale));
}

} // namespace

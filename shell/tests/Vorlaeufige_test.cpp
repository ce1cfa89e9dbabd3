#include "shell/logic/Vorlaeufige.h"
#include "testhilfen/Pruefordner.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

/// Number of a process that has just ended.
pid_t beendeterProzess()
{
    const pid_t kind = ::fork();
    if (kind == 0)
        ::_exit(0);
    ::waitpid(kind, nullptr, 0);
    return kind;
}

TEST(VorlaeufigerOrdner, TraegtDenEigenenProzessImNamenUndIstNeu)
{
    const Pruefordner ordner;
    const auto erster = legeVorlaeufigenOrdnerAn(ordner.pfad());
    const auto zweiter = legeVorlaeufigenOrdnerAn(ordner.pfad());
    ASSERT_TRUE(erster && zweiter);
    EXPECT_NE(*erster, *zweiter);
    EXPECT_TRUE(erster->filename().string().starts_with(".neu-" + std::to_string(::getpid()) + "-"));
    EXPECT_TRUE(fs::is_empty(*erster));
}

TEST(VorlaeufigerOrdner, WoNichtsLiegenKannGibtEsKeinen)
{
    const Pruefordner ordner;
    EXPECT_FALSE(legeVorlaeufigenOrdnerAn(ordner / "fehlt"));
    EXPECT_FALSE(legeVorlaeufigenOrdnerAn(ordner.lege("datei", "")));
}

TEST(RaeumeVorlaeufigeAuf, NimmtNurWasBeendetenProzessenGehoert)
{
    const Pruefordner ordner;
    const std::string tot = ".neu-" + std::to_string(beendeterProzess());
    const std::string eigen = ".neu-" + std::to_string(::getpid());
    ordner.lege(tot + "-0.tmp", "x");
    fs::create_directory(ordner / (tot + "-1"));
    ordner.lege(tot + "-1/Salotto.dat", "x");
    for (const std::string& name : {eigen + "-0.tmp", tot, tot + "x", std::string(".neu-"), std::string(".neu-a-1"),
                                    std::string(".neu--1-0"), std::string(".neu-0-1"), std::string("neu-1-0"),
                                    std::string(".neu-99999999999999-0"), std::string("SALOTTO.DAT")})
        ordner.lege(name, "bleibt");
    raeumeVorlaeufigeAuf(ordner.pfad());
    EXPECT_EQ(ordner.eintraege(), 10U);
    EXPECT_FALSE(fs::exists(ordner / (tot + "-0.tmp")));
    EXPECT_FALSE(fs::exists(ordner / (tot + "-1")));
}

TEST(RaeumeVorlaeufigeAuf, OhneOrdnerTutNichts)
{
    raeumeVorlaeufigeAuf("/gibt/es/nicht");
    SUCCEED();
}

} // namespace

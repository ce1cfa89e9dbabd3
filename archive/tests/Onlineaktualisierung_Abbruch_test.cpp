// The end of the process at every possible place of an update: before each of its system calls, one after the other.

#include "archive/logic/Onlineaktualisierung.h"
#include "archive/logic/clsDownload.h"
#include "archive/tests/Probeinternet.h"
#include "archive/tests/Testsaetze.h"
#include "testhilfen/Pruefordner.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

const std::string kAlt = testsaetze(100);
const std::string kNeu = testsaetze(1000);

void aktualisiere(const fs::path& ordner)
{
    Onlineaktualisierung aktualisierung(Onlineaufgabe::Samstag, ordner, ordner);
    if (!aktualisierung.beginne())
        return;
    Probeinternet netz;
    netz.rumpf = kNeu;
    clsDownload dl(netz, {[] { return 0; }, [] { return false; }, [] {}});
    dl.Download("http://h/lotto/Salotto.dat", aktualisierung.empfangsordner());
    aktualisierung.schliesseAb(dl.ReceivedBytes());
}

enum class Ende { Getoetet, Fertig, OhneAufsicht };

/// Runs an update in a child process and kills that one before its system call number `aufruf`.
Ende toeteVor(int aufruf, const fs::path& ordner)
{
    const pid_t kind = ::fork();
    if (kind == 0) {
        if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
            ::_exit(1);
        ::raise(SIGSTOP);
        aktualisiere(ordner);
        ::_exit(0);
    }
    int zustand = 0;
    ::waitpid(kind, &zustand, 0);
    if (WIFEXITED(zustand))
        return Ende::OhneAufsicht;
    // A child stops at the beginning and at the end of each call.
    for (int halt = 0; WIFSTOPPED(zustand) && halt < 2 * aufruf + 1; ++halt) {
        ::ptrace(PTRACE_SYSCALL, kind, nullptr, nullptr);
        ::waitpid(kind, &zustand, 0);
    }
    if (!WIFSTOPPED(zustand))
        return Ende::Fertig;
    ::kill(kind, SIGKILL);
    ::waitpid(kind, &zustand, 0);
    return Ende::Getoetet;
}

void pruefe(const Pruefordner& ordner)
{
    const std::string datei = inhaltVon(ordner / "SALOTTO.DAT");
    ASSERT_TRUE(datei == kAlt || datei == kNeu) << "neither the old file nor the new one";
    ASSERT_TRUE(datei == kAlt || inhaltVon(ordner / "SALOTTO.DAT.alt") == kAlt) << "the old content is lost";
    const std::string kopie = inhaltVon(ordner / "Salotto-kopie.dat");
    ASSERT_TRUE(kopie.empty() || kopie == kAlt) << "half a copy";
}

TEST(AktualisierungAbbruch, VorJedemSystemaufrufBleibtDieAlteOderDieNeueDatei)
{
    // The whole of it takes some hundred updates; in memory they need no disk.
    if (fs::is_directory("/dev/shm"))
        ::setenv("TMPDIR", "/dev/shm", 0);
    int alte = 0;
    int neue = 0;
    Ende ende = Ende::Getoetet;
    for (int aufruf = 0; ende == Ende::Getoetet; ++aufruf) {
        SCOPED_TRACE(aufruf);
        const Pruefordner ordner;
        ordner.lege("SALOTTO.DAT", kAlt);
        ende = toeteVor(aufruf, ordner.pfad());
        if (ende == Ende::OhneAufsicht)
            GTEST_SKIP() << "this system lets no process watch another one";
        ASSERT_NO_FATAL_FAILURE(pruefe(ordner));
        (inhaltVon(ordner / "SALOTTO.DAT") == kAlt ? alte : neue) += 1;

        aktualisiere(ordner.pfad());
        ASSERT_TRUE(inhaltVon(ordner / "SALOTTO.DAT") == kNeu);
        ASSERT_TRUE(inhaltVon(ordner / "SALOTTO.DAT.alt") == kAlt);
        ASSERT_EQ(ordner.eintraege(), 2U) << "the next update leaves nothing behind";
    }
    EXPECT_GT(alte, 20);
    EXPECT_GT(neue, 3);
    RecordProperty("alte", alte);
    RecordProperty("neue", neue);
}

} // namespace

// The whole program, killed in the middle of online updates: the Ziehungsdatei is always there, old or new.

#include "archive/tests/Onlinetest.h"
#include "testhilfen/Kindprozess.h"

#include <fcntl.h>
#include <random>
#include <vector>

namespace {

using namespace std::chrono_literals;

constexpr const char* kSkript = "open frmOnline\nset txtSa %1\nclick cmdStart(1)\nwait-idle\n";

/// tombrix-drive as a process of its own.
class Programmlauf {
public:
    /// `vorher` runs in the new process before the program.
    template <class Vorher> Programmlauf(const QString& verzeichnis, const QString& url, Vorher vorher)
    {
        const std::string ordner = verzeichnis.toStdString();
        int roehre[2];
        if (::pipe2(roehre, O_CLOEXEC) != 0)
            return;
        kind_ = ::fork();
        if (kind_ == 0) {
            ::dup2(roehre[0], STDIN_FILENO);
            const int nichts = ::open("/dev/null", O_WRONLY);
            ::dup2(nichts, STDOUT_FILENO);
            ::dup2(nichts, STDERR_FILENO);
            if (vorher())
                ::execl(TOMBRIX_DRIVE, TOMBRIX_DRIVE, "--dir", ordner.c_str(), static_cast<char*>(nullptr));
            ::_exit(127);
        }
        ::close(roehre[0]);
        const std::string skript = QString(kSkript).arg(url).toStdString();
        const ssize_t geschrieben = ::write(roehre[1], skript.data(), skript.size());
        ::close(roehre[1]);
        EXPECT_EQ(geschrieben, static_cast<ssize_t>(skript.size()));
    }
    ~Programmlauf() { warte(); }
    Programmlauf(const Programmlauf&) = delete;
    Programmlauf& operator=(const Programmlauf&) = delete;

    void toete() const { ::kill(kind_, SIGKILL); }
    /// The exit status; -1 if it was killed.
    int warte()
    {
        int zustand = 0;
        if (kind_ > 0 && ::waitpid(kind_, &zustand, 0) == kind_)
            status_ = WIFEXITED(zustand) ? WEXITSTATUS(zustand) : -1;
        kind_ = 0;
        return status_;
    }

private:
    pid_t kind_ = 0;
    int status_ = -1;
};

bool nichts()
{
    return true;
}

class OnlineAbbruch : public Onlinetest {
protected:
    void SetUp() override
    {
        alt = inhalt("SALOTTO.DAT");
        neu = mitEinerMehr(alt);
        Serverantwort antwort = antworte(neu);
        antwort.stueck = 8192;
        antwort.pause = 1ms;
        server.setze("/lotto/Salotto.dat", antwort);
    }
    QString url() const { return adresse("/lotto/Salotto.dat"); }

    /// One update that is killed so long after its request has come, or after all of the file has gone out.
    void toete(std::chrono::microseconds nach, bool hinterDerUebertragung)
    {
        const std::size_t bisher = server.gesendet();
        const std::size_t anfragen = server.anfragen().size();
        const Programmlauf lauf(ordner.path(), url(), nichts);
        ASSERT_TRUE(server.warteBisAnfragen(anfragen + 1));
        ASSERT_TRUE(!hinterDerUebertragung || server.warteBisGesendet(bisher + neu.size()));
        std::this_thread::sleep_for(nach);
        lauf.toete();
    }
    void pruefe()
    {
        const std::string datei = inhalt("SALOTTO.DAT");
        ASSERT_TRUE(datei == alt || datei == neu) << "neither the old file nor the new one";
        ASSERT_TRUE(datei == alt || inhalt("SALOTTO.DAT.alt") == alt) << "the old content is lost";
    }

    std::string alt;
    std::string neu;
};

/// More rounds: TOMBRIX_RUNDEN=200.
int runden()
{
    bool zahl = false;
    const int gewuenscht = qEnvironmentVariableIntValue("TOMBRIX_RUNDEN", &zahl);
    return zahl ? gewuenscht : 20;
}

TEST_F(OnlineAbbruch, EinGetoetetesProgrammHinterlaesstDieAlteOderDieNeueDateiGanz)
{
    std::mt19937 zufall(std::random_device{}());
    int alte = 0;
    int neue = 0;
    for (int runde = 0; runde < runden(); ++runde) {
        // A third at any moment from the request on, the others while the new file is looked at and put in place.
        const bool danach = runde % 3 != 0;
        const std::chrono::microseconds nach(std::uniform_int_distribution(0, danach ? 12'000 : 25'000)(zufall));
        SCOPED_TRACE(testing::Message() << "round " << runde << ", " << nach.count() << " us, " << danach);
        schreibeBytes("SALOTTO.DAT", alt);
        QFile::remove(ordner.filePath("SALOTTO.DAT.alt"));
        ASSERT_NO_FATAL_FAILURE(toete(nach, danach));
        ASSERT_NO_FATAL_FAILURE(pruefe());
        (inhalt("SALOTTO.DAT") == alt ? alte : neue) += 1;
    }
    EXPECT_GT(alte, 0);
    RecordProperty("alte", alte);
    RecordProperty("neue", neue);
    std::cout << "old " << alte << ", new " << neue << '\n';

    EXPECT_EQ(Programmlauf(ordner.path(), url(), nichts).warte(), 0);
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == neu);
    EXPECT_EQ(zusaetzliche(), QStringList{"SALOTTO.DAT.alt"}) << "what the killed ones have left is gone";
}

TEST_F(OnlineAbbruch, EineVolleFestplatteLaesstDieAlteDatei)
{
    for (const rlim_t grenze : {0UL, 8192UL, static_cast<rlim_t>(alt.size())}) {
        EXPECT_EQ(Programmlauf(ordner.path(), url(), [grenze] { return begrenzeDateien(grenze); }).warte(), 0);
        EXPECT_TRUE(inhalt("SALOTTO.DAT") == alt);
        EXPECT_EQ(zusaetzliche(), QStringList());
    }
    EXPECT_EQ(server.anfragen().size(), 3U);
}

TEST_F(OnlineAbbruch, EinSchreibgeschuetzterOrdnerBleibtWieErIst)
{
    const QFile::Permissions rechte = QFile::permissions(ordner.path());
    const auto nurLesen = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
    ASSERT_TRUE(QFile::setPermissions(ordner.path(), nurLesen));
    EXPECT_EQ(Programmlauf(ordner.path(), url(), werdeGewoehnlich).warte(), 0);
    QFile::setPermissions(ordner.path(), rechte);
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == alt);
    EXPECT_EQ(zusaetzliche(), QStringList());
    EXPECT_TRUE(server.anfragen().empty());
}

TEST_F(OnlineAbbruch, EineSchreibgeschuetzteDateiWirdErsetzt)
{
    ASSERT_TRUE(QFile::setPermissions(ordner.filePath("SALOTTO.DAT"), QFile::ReadOwner | QFile::ReadOther));
    EXPECT_EQ(Programmlauf(ordner.path(), url(), nichts).warte(), 0);
    EXPECT_TRUE(inhalt("SALOTTO.DAT") == neu);
    EXPECT_TRUE(inhalt("SALOTTO.DAT.alt") == alt);
}

} // namespace

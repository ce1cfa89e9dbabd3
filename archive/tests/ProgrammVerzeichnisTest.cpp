#include "archive/logic/ProgrammVerzeichnis.h"

#include "archive/tests/Testordner.h"

#include <gtest/gtest.h>

TEST(ProgrammVerzeichnis, HaengtEinenFehlendenTrennerAn)
{
    const std::string trenner(1, static_cast<char>(std::filesystem::path::preferred_separator));
    EXPECT_EQ(programmVerzeichnis("/opt/tombrix"), "/opt/tombrix" + trenner);
    EXPECT_EQ(programmVerzeichnis("/opt/tombrix" + trenner), "/opt/tombrix" + trenner);
    EXPECT_EQ(programmVerzeichnis("/opt/tombrix/"), "/opt/tombrix/");
    EXPECT_EQ(programmVerzeichnis("/"), "/");
}

TEST(ProgrammVerzeichnis, LeererPfadIstDasAktuelleVerzeichnisUndNichtDieWurzel)
{
    EXPECT_EQ(programmVerzeichnis("").front(), '.');
    EXPECT_EQ(programmVerzeichnis("").size(), 2U);
}

TEST(SucheDatei, NimmtDenGenauenNamenVorJederAnderenSchreibweise)
{
    const Testordner ordner;
    ordner.schreibe("SALOTTO.DAT", "");
    ordner.schreibe("Salotto.dat", "");
    EXPECT_EQ(sucheDatei(ordner.text(), "SALOTTO.DAT"), ordner.pfad() / "SALOTTO.DAT");
    EXPECT_EQ(sucheDatei(ordner.text(), "Salotto.dat"), ordner.pfad() / "Salotto.dat");
}

TEST(SucheDatei, SiehtUeberGrossUndKleinschreibungHinweg)
{
    const Testordner ordner;
    ordner.schreibe("sALOTTO.dat", "");
    ordner.schreibe("SALOTTO.DATX", "");
    EXPECT_EQ(sucheDatei(ordner.text(), "SALOTTO.DAT"), ordner.pfad() / "sALOTTO.dat");
}

TEST(SucheDatei, NimmtUnterMehrerenSchreibweisenDieErste)
{
    const Testordner ordner;
    ordner.schreibe("salotto.dat", "");
    ordner.schreibe("Salotto.DAT", "");
    ordner.schreibe("Salotto.dat", "");
    EXPECT_EQ(sucheDatei(ordner.text(), "SALOTTO.DAT"), ordner.pfad() / "Salotto.DAT");
}

TEST(SucheDatei, GibtOhneFundDenGenauenNamen)
{
    const Testordner ordner;
    EXPECT_EQ(sucheDatei(ordner.text(), "SALOTTO.DAT"), ordner.pfad() / "SALOTTO.DAT");
    EXPECT_EQ(sucheDatei(ordner.text() + "/fehlt", "SALOTTO.DAT"), ordner.pfad() / "fehlt/SALOTTO.DAT");
}

TEST(LeseDatei, LiestAlleBytesUnveraendert)
{
    const Testordner ordner;
    const std::string bytes("a\r\n\0\x1A\xFF\n", 7);
    ordner.schreibe("x", bytes);
    const Dateiinhalt inhalt = leseDatei(ordner.text(), "x", 100);
    EXPECT_EQ(inhalt.stand, Dateistand::Gelesen);
    EXPECT_EQ(inhalt.bytes, bytes);
    EXPECT_TRUE(inhalt.vollstaendig);
}

TEST(LeseDatei, HaeltDieGrenzeEin)
{
    const Testordner ordner;
    ordner.schreibe("x", "12345");
    EXPECT_EQ(leseDatei(ordner.text(), "x", 4).bytes, "1234");
    EXPECT_FALSE(leseDatei(ordner.text(), "x", 4).vollstaendig);
    EXPECT_EQ(leseDatei(ordner.text(), "x", 5).bytes, "12345");
    EXPECT_TRUE(leseDatei(ordner.text(), "x", 5).vollstaendig);
}

TEST(LeseDatei, UnterscheidetFehlendUndUnlesbar)
{
    const Testordner ordner;
    ordner.legeOrdnerAn("ordner");
    ordner.schreibe("datei", "");
    EXPECT_EQ(leseDatei(ordner.text(), "fehlt", 10).stand, Dateistand::Fehlt);
    EXPECT_EQ(leseDatei(ordner.text() + "/fehlt", "x", 10).stand, Dateistand::Fehlt);
    EXPECT_EQ(leseDatei(ordner.text() + "/datei", "x", 10).stand, Dateistand::Fehlt);
    EXPECT_EQ(leseDatei(ordner.text(), "ordner", 10).stand, Dateistand::Unlesbar);
    EXPECT_EQ(leseDatei(ordner.text(), "datei", 10).stand, Dateistand::Gelesen);
}

#ifndef _WIN32

#include <sys/stat.h>
#include <unistd.h>

TEST(LeseDatei, WartetNichtAnEinerRoehre)
{
    const Testordner ordner;
    ASSERT_EQ(mkfifo((ordner.pfad() / "SALOTTO.DAT").c_str(), 0600), 0);
    EXPECT_EQ(leseDatei(ordner.text(), "SALOTTO.DAT", 10).stand, Dateistand::Unlesbar);
}

TEST(LeseDatei, LiestKeinGeraet)
{
    const Testordner ordner;
    std::filesystem::create_symlink("/dev/zero", ordner.pfad() / "SALOTTO.DAT");
    EXPECT_EQ(leseDatei(ordner.text(), "SALOTTO.DAT", 10).stand, Dateistand::Unlesbar);
}

TEST(LeseDatei, FolgtEinemVerweis)
{
    const Testordner ordner;
    ordner.schreibe("echt", "1");
    std::filesystem::create_symlink("echt", ordner.pfad() / "gut");
    std::filesystem::create_symlink("nirgends", ordner.pfad() / "tot");
    std::filesystem::create_symlink("kreis", ordner.pfad() / "kreis");
    EXPECT_EQ(leseDatei(ordner.text(), "gut", 10).bytes, "1");
    EXPECT_EQ(leseDatei(ordner.text(), "tot", 10).stand, Dateistand::Fehlt);
    EXPECT_EQ(leseDatei(ordner.text(), "kreis", 10).stand, Dateistand::Unlesbar);
}

TEST(LeseDatei, OhneRechteIstUnlesbar)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "root may read everything";
    const Testordner ordner;
    ordner.schreibe("x", "1");
    std::filesystem::permissions(ordner.pfad() / "x", std::filesystem::perms::none);
    EXPECT_EQ(leseDatei(ordner.text(), "x", 10).stand, Dateistand::Unlesbar);
}

#endif

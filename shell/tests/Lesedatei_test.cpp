#include "shell/logic/Lesedatei.h"
#include "testhilfen/Kindprozess.h"
#include "testhilfen/Pruefordner.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

TEST(LeseDatei, SindAlleBytesUnveraendert)
{
    const Pruefordner ordner;
    const std::string bytes("a\r\n\0\x1A\xFF\n", 7);
    const Dateiinhalt inhalt = leseDatei(ordner.lege("x", bytes), 100);
    EXPECT_EQ(inhalt.stand, Dateistand::Gelesen);
    EXPECT_EQ(inhalt.bytes, bytes);
    EXPECT_TRUE(inhalt.vollstaendig);
}

TEST(LeseDatei, HaeltDieGrenzeEin)
{
    const Pruefordner ordner;
    const auto datei = ordner.lege("x", "12345");
    EXPECT_EQ(leseDatei(datei, 4).bytes, "1234");
    EXPECT_FALSE(leseDatei(datei, 4).vollstaendig);
    EXPECT_EQ(leseDatei(datei, 5).bytes, "12345");
    EXPECT_TRUE(leseDatei(datei, 5).vollstaendig);
}

TEST(LeseDatei, UnterscheidetFehlendUndUnlesbar)
{
    const Pruefordner ordner;
    ordner.lege("datei", "");
    EXPECT_EQ(leseDatei(ordner / "fehlt", 10).stand, Dateistand::Fehlt);
    EXPECT_EQ(leseDatei(ordner / "fehlt/x", 10).stand, Dateistand::Fehlt);
    EXPECT_EQ(leseDatei(ordner / "datei/x", 10).stand, Dateistand::Fehlt);
    EXPECT_EQ(leseDatei(ordner.pfad(), 10).stand, Dateistand::Unlesbar);
    EXPECT_EQ(leseDatei(ordner / "datei", 10).stand, Dateistand::Gelesen);
}

TEST(LeseDatei, WartetNichtAnEinerRoehre)
{
    const Pruefordner ordner;
    ASSERT_EQ(mkfifo((ordner / "x").c_str(), 0600), 0);
    EXPECT_EQ(leseDatei(ordner / "x", 10).stand, Dateistand::Unlesbar);
}

TEST(LeseDatei, LiestKeinGeraet)
{
    EXPECT_EQ(leseDatei("/dev/zero", 10).stand, Dateistand::Unlesbar);
}

TEST(LeseDatei, FolgtEinemVerweis)
{
    const Pruefordner ordner;
    ordner.lege("echt", "1");
    std::filesystem::create_symlink("echt", ordner / "gut");
    std::filesystem::create_symlink("nirgends", ordner / "tot");
    std::filesystem::create_symlink("kreis", ordner / "kreis");
    EXPECT_EQ(leseDatei(ordner / "gut", 10).bytes, "1");
    EXPECT_EQ(leseDatei(ordner / "tot", 10).stand, Dateistand::Fehlt);
    EXPECT_EQ(leseDatei(ordner / "kreis", 10).stand, Dateistand::Unlesbar);
}

TEST(LeseDatei, OhneRechteIstUnlesbar)
{
    const Pruefordner ordner;
    const auto datei = ordner.lege("x", "1");
    std::filesystem::permissions(ordner.pfad(), std::filesystem::perms(0755));
    std::filesystem::permissions(datei, std::filesystem::perms::none);
    EXPECT_EQ(imKindprozess([&datei] {
                  if (!werdeGewoehnlich())
                      return -1;
                  const Dateiinhalt inhalt = leseDatei(datei, 10);
                  return inhalt.stand == Dateistand::Unlesbar ? inhalt.fehler : 0;
              }),
              EACCES);
}

TEST(LeseDatei, NenntDenGrund)
{
    const Pruefordner ordner;
    EXPECT_EQ(leseDatei(ordner / "fehlt", 10).fehler, ENOENT);
    EXPECT_EQ(leseDatei(ordner.pfad(), 10).fehler, EISDIR);
    EXPECT_EQ(leseDatei("/dev/zero", 10).fehler, EINVAL);
    EXPECT_EQ(leseDatei(ordner.lege("x", ""), 10).fehler, 0);
}

TEST(LeseDatei, IstNurGanzMitAllenBytes)
{
    const Pruefordner ordner;
    const auto datei = ordner.lege("x", "12345");
    EXPECT_TRUE(leseDatei(datei, 5).ganz());
    EXPECT_FALSE(leseDatei(datei, 4).ganz());
    EXPECT_FALSE(leseDatei(datei, 0).ganz());
    EXPECT_FALSE(leseDatei(ordner / "fehlt", 5).ganz());
    EXPECT_FALSE(leseDatei(ordner.pfad(), 5).ganz());
}

TEST(LeseDatei, UeberMehrereBloecke)
{
    const Pruefordner ordner;
    std::string bytes;
    while (bytes.size() < 300'000)
        bytes += std::to_string(bytes.size()) + "\n";
    EXPECT_TRUE(leseDatei(ordner.lege("x", bytes), 1'000'000).bytes == bytes);
    EXPECT_TRUE(leseDatei(ordner / "x", 200'000).bytes == bytes.substr(0, 200'000));
}

/// Files of the system whose length reads 0 are there to their end all the same.
TEST(LeseDatei, VertrautDerLaengeNicht)
{
    EXPECT_NE(leseDatei("/proc/self/status", 100'000).bytes.find("Pid:"), std::string::npos);
}

TEST(Lesedatei, LiestDerReiheNach)
{
    const Pruefordner ordner;
    Lesedatei datei(ordner.lege("x", "12345"));
    EXPECT_EQ(datei.laenge(), 5U);
    std::string bytes = "0";
    EXPECT_EQ(datei.lies(bytes, 2), 2U);
    EXPECT_EQ(datei.lies(bytes, 2), 2U);
    EXPECT_EQ(datei.lies(bytes, 2), 1U);
    EXPECT_EQ(datei.lies(bytes, 2), 0U);
    EXPECT_EQ(bytes, "012345");
    EXPECT_EQ(datei.stand(), Dateistand::Gelesen);
}

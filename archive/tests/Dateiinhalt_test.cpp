#include "archive/logic/Dateiinhalt.h"
#include "testhilfen/Pruefordner.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

TEST(Dateiinhalt, SindAlleBytesUnveraendert)
{
    const Pruefordner ordner;
    const std::string bytes("a\r\n\0\x1A\xFF\n", 7);
    const Dateiinhalt inhalt = leseDateiinhalt(ordner.lege("x", bytes), 100);
    EXPECT_EQ(inhalt.stand, Dateistand::Gelesen);
    EXPECT_EQ(inhalt.bytes, bytes);
    EXPECT_TRUE(inhalt.vollstaendig);
}

TEST(Dateiinhalt, HaeltDieGrenzeEin)
{
    const Pruefordner ordner;
    const auto datei = ordner.lege("x", "12345");
    EXPECT_EQ(leseDateiinhalt(datei, 4).bytes, "1234");
    EXPECT_FALSE(leseDateiinhalt(datei, 4).vollstaendig);
    EXPECT_EQ(leseDateiinhalt(datei, 5).bytes, "12345");
    EXPECT_TRUE(leseDateiinhalt(datei, 5).vollstaendig);
}

TEST(Dateiinhalt, UnterscheidetFehlendUndUnlesbar)
{
    const Pruefordner ordner;
    ordner.lege("datei", "");
    EXPECT_EQ(leseDateiinhalt(ordner / "fehlt", 10).stand, Dateistand::Fehlt);
    EXPECT_EQ(leseDateiinhalt(ordner / "fehlt/x", 10).stand, Dateistand::Fehlt);
    EXPECT_EQ(leseDateiinhalt(ordner / "datei/x", 10).stand, Dateistand::Fehlt);
    EXPECT_EQ(leseDateiinhalt(ordner.pfad(), 10).stand, Dateistand::Unlesbar);
    EXPECT_EQ(leseDateiinhalt(ordner / "datei", 10).stand, Dateistand::Gelesen);
}

TEST(Dateiinhalt, WartetNichtAnEinerRoehre)
{
    const Pruefordner ordner;
    ASSERT_EQ(mkfifo((ordner / "x").c_str(), 0600), 0);
    EXPECT_EQ(leseDateiinhalt(ordner / "x", 10).stand, Dateistand::Unlesbar);
}

TEST(Dateiinhalt, LiestKeinGeraet)
{
    EXPECT_EQ(leseDateiinhalt("/dev/zero", 10).stand, Dateistand::Unlesbar);
}

TEST(Dateiinhalt, FolgtEinemVerweis)
{
    const Pruefordner ordner;
    ordner.lege("echt", "1");
    std::filesystem::create_symlink("echt", ordner / "gut");
    std::filesystem::create_symlink("nirgends", ordner / "tot");
    std::filesystem::create_symlink("kreis", ordner / "kreis");
    EXPECT_EQ(leseDateiinhalt(ordner / "gut", 10).bytes, "1");
    EXPECT_EQ(leseDateiinhalt(ordner / "tot", 10).stand, Dateistand::Fehlt);
    EXPECT_EQ(leseDateiinhalt(ordner / "kreis", 10).stand, Dateistand::Unlesbar);
}

TEST(Dateiinhalt, OhneRechteIstUnlesbar)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "root may read everything";
    const Pruefordner ordner;
    const auto datei = ordner.lege("x", "1");
    std::filesystem::permissions(datei, std::filesystem::perms::none);
    EXPECT_EQ(leseDateiinhalt(datei, 10).stand, Dateistand::Unlesbar);
}

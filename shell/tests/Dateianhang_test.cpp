#include "shell/logic/Dateianhang.h"
#include "testhilfen/Kindprozess.h"
#include "testhilfen/Pruefordner.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

class Dateianhang : public testing::Test {
protected:
    std::string inhalt() const { return inhaltVon(datei); }
    void schreibe(const std::string& bytes) const { ordner.lege("x", bytes); }

    Pruefordner ordner;
    fs::path datei = ordner / "x";
};

TEST_F(Dateianhang, ErsetztAllesVonDerStelleAn)
{
    schreibe("abcdef");
    EXPECT_TRUE(ersetzeDateiende(datei, 6, "g"));
    EXPECT_EQ(inhalt(), "abcdefg");
    EXPECT_TRUE(ersetzeDateiende(datei, 2, "XY"));
    EXPECT_EQ(inhalt(), "abXY");
    EXPECT_TRUE(ersetzeDateiende(datei, 99, "Z"));
    EXPECT_EQ(inhalt(), "abXYZ");
    EXPECT_TRUE(ersetzeDateiende(datei, 0, ""));
    EXPECT_EQ(inhalt(), "");
    EXPECT_EQ(ordner.eintraege(), 1U);
}

TEST_F(Dateianhang, LegtEineFehlendeAn)
{
    EXPECT_TRUE(ersetzeDateiende(datei, 5, "neu"));
    EXPECT_EQ(inhalt(), "neu");
    fs::remove(datei);
    EXPECT_TRUE(haengeZeileAn(datei, "neu"));
    EXPECT_EQ(inhalt(), "neu\r\n");
}

TEST_F(Dateianhang, EineZeileBekommtIhrZeilenende)
{
    for (const std::string davor : {"", "a\r\n", "a\n", "a\r"}) {
        schreibe(davor);
        EXPECT_TRUE(haengeZeileAn(datei, "neu"));
        EXPECT_EQ(inhalt(), davor + "neu\r\n");
    }
    schreibe("a");
    EXPECT_TRUE(haengeZeileAn(datei, "neu"));
    EXPECT_EQ(inhalt(), "a\r\nneu\r\n");
}

TEST_F(Dateianhang, HebtDenSchreibschutzAuf)
{
    schreibe("a\r\n");
    fs::permissions(datei, fs::perms(0444));
    fs::permissions(ordner.pfad(), fs::perms(0777));
    ASSERT_EQ(::chown(datei.c_str(), 65534, 65534), ::geteuid() == 0 ? 0 : -1);
    EXPECT_EQ(imKindprozess([this] { return werdeGewoehnlich() && haengeZeileAn(datei, "neu") ? 0 : 1; }), 0);
    EXPECT_EQ(inhalt(), "a\r\nneu\r\n");
}

TEST_F(Dateianhang, WasKeineDateiIstBleibt)
{
    EXPECT_FALSE(haengeZeileAn(ordner.pfad(), "neu"));
    EXPECT_FALSE(ersetzeDateiende(ordner.pfad(), 0, "neu"));
    ASSERT_EQ(::mkfifo((ordner / "rohr").c_str(), 0600), 0);
    EXPECT_FALSE(haengeZeileAn(ordner / "rohr", "neu"));
    EXPECT_FALSE(haengeZeileAn(ordner / "fehlt/x", "neu"));
    EXPECT_EQ(ordner.eintraege(), 1U);
}

TEST_F(Dateianhang, OhneRechteBleibtDieDatei)
{
    schreibe("a\r\n");
    fs::permissions(datei, fs::perms(0444));
    fs::permissions(ordner.pfad(), fs::perms(0755));
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs a file of somebody else";
    EXPECT_EQ(imKindprozess([this] { return werdeGewoehnlich() && !haengeZeileAn(datei, "neu") ? 0 : 1; }), 0);
    EXPECT_EQ(inhalt(), "a\r\n");
}

TEST_F(Dateianhang, VolleScheibeLaesstJedesByteStehen)
{
    const std::string alt = "erste Zeile\r\nzweite";
    for (const rlim_t mehr : {0U, 1U, 2U, 4U, 6U}) {
        schreibe(alt);
        const rlim_t grenze = alt.size() + mehr;
        EXPECT_EQ(imKindprozess([&] { return begrenzeDateien(grenze) && !haengeZeileAn(datei, "dritte") ? 0 : 1; }), 0)
            << mehr;
        EXPECT_EQ(inhalt(), alt) << mehr;
    }
}

TEST_F(Dateianhang, VolleScheibeGibtAuchDasAbgeschnitteneZurueck)
{
    const std::string alt = "erste Zeile\r\n   \r\n";
    schreibe(alt);
    const rlim_t grenze = alt.size();
    EXPECT_EQ(imKindprozess([&] {
                  return begrenzeDateien(grenze) && !ersetzeDateiende(datei, 13, "viel mehr als vorher") ? 0 : 1;
              }),
              0);
    EXPECT_EQ(inhalt(), alt);
}

TEST_F(Dateianhang, VolleScheibeLegtKeineHalbeDateiAn)
{
    EXPECT_EQ(imKindprozess([this] { return begrenzeDateien(3) && !haengeZeileAn(datei, "dritte") ? 0 : 1; }), 0);
    EXPECT_EQ(ordner.eintraege(), 0U);
}

} // namespace

#include "reports/frame/Seitenablage.h"
#include "testhilfen/Pruefordner.h"
#include "testhilfen/Schreibhindernisse.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace {

namespace fs = std::filesystem;

TEST(Seitenablage, MachtDenOrdnerUndSchreibtDieSeite)
{
    const Pruefordner ordner;
    EXPECT_EQ(legeSeiteAb(ordner / "seiten", "a.htm", "<html>"), std::nullopt);
    EXPECT_EQ(inhaltVon(ordner / "seiten/a.htm"), "<html>");
}

TEST(Seitenablage, EinVorhandenerOrdnerWirdGenommenWieErIst)
{
    const Pruefordner ordner;
    fs::create_directory(ordner / "seiten");
    ordner.lege("seiten/fremd.txt", "fremd");
    EXPECT_TRUE(macheSeitenordner(ordner / "seiten"));
    EXPECT_EQ(legeSeiteAb(ordner / "seiten", "a.htm", "neu"), std::nullopt);
    EXPECT_EQ(inhaltVon(ordner / "seiten/fremd.txt"), "fremd");
}

TEST(Seitenablage, EineAeltereSeiteWirdErsetztAuchWennSieGeschuetztIst)
{
    const Pruefordner ordner;
    fs::create_directory(ordner / "seiten");
    const fs::path seite = ordner.lege("seiten/a.htm", "eine alte, laengere Seite");
    fs::permissions(seite, fs::perms(0444));
    EXPECT_EQ(legeSeiteAb(ordner / "seiten", "a.htm", "neu"), std::nullopt);
    EXPECT_EQ(inhaltVon(seite), "neu");
}

TEST(Seitenablage, EineDateiAnStelleDesOrdnersBleibtUndWirdGemeldet)
{
    const Pruefordner ordner;
    const fs::path datei = ordner.lege("seiten", "eine Datei");
    EXPECT_FALSE(macheSeitenordner(datei));
    EXPECT_EQ(legeSeiteAb(datei, "a.htm", "neu"), ordnerfehler());
    EXPECT_EQ(inhaltVon(datei), "eine Datei");
    EXPECT_EQ(ordnerfehler(), (Meldung{"FEHLER", "Der Html-Ziel-Ordner kann nicht erstellt werden!"}));
}

TEST(Seitenablage, EinFehlenderElternordnerIstEinOrdnerfehler)
{
    const Pruefordner ordner;
    EXPECT_EQ(legeSeiteAb(ordner / "fehlt/seiten", "a.htm", "neu"), ordnerfehler());
    EXPECT_EQ(legeSeiteAb("", "a.htm", "neu"), ordnerfehler());
    EXPECT_EQ(ordner.eintraege(), 0U);
}

TEST(Seitenablage, EinOrdnerAnStelleDerSeiteIstEinSchreibfehler)
{
    const Pruefordner ordner;
    fs::create_directories(ordner / "seiten/a.htm");
    EXPECT_EQ(legeSeiteAb(ordner / "seiten", "a.htm", "neu"), schreibfehler());
    EXPECT_TRUE(fs::is_directory(ordner / "seiten/a.htm"));
}

TEST(Seitenablage, OhneSchreibrechtBleibtDieAlteSeite)
{
    const Pruefordner ordner;
    fs::permissions(ordner.pfad(), fs::perms(0755));
    fs::create_directory(ordner / "seiten");
    const fs::path seite = ordner.lege("seiten/a.htm", "alt");
    fs::permissions(ordner / "seiten", fs::perms(0555));
    {
        const OhneSonderrechte ohne;
        if (!ohne.gilt())
            GTEST_SKIP() << "root may write everywhere";
        EXPECT_EQ(legeSeiteAb(ordner / "seiten", "a.htm", "neu"), schreibfehler());
    }
    EXPECT_EQ(inhaltVon(seite), "alt");
    fs::permissions(ordner / "seiten", fs::perms(0755));
}

TEST(Seitenablage, AufVollerScheibeBleibtDieAlteSeiteUndNichtsSonst)
{
    const Pruefordner ordner;
    fs::create_directory(ordner / "seiten");
    const fs::path seite = ordner.lege("seiten/a.htm", "alt");
    {
        const VolleScheibe voll(4096);
        EXPECT_EQ(legeSeiteAb(ordner / "seiten", "a.htm", std::string(100'000, 'n')), schreibfehler());
        EXPECT_EQ(legeSeiteAb(ordner / "seiten", "b.htm", std::string(100'000, 'n')), schreibfehler());
    }
    EXPECT_EQ(inhaltVon(seite), "alt");
    EXPECT_EQ(std::distance(fs::directory_iterator(ordner / "seiten"), fs::directory_iterator()), 1);
}

} // namespace

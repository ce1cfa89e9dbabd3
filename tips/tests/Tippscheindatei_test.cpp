#include "fuzz/PruefeTippschein.h"
#include "testhilfen/Kindprozess.h"
#include "testhilfen/Pruefordner.h"
#include "testhilfen/Schreibhindernisse.h"
#include "testhilfen/Zufallseingaben.h"
#include "tips/logic/Tippscheindatei.h"

#include <csignal>
#include <gmock/gmock.h>
#include <random>

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const Tippreihe kTip{{"3", "7", "12", "23", "34", "45"}, "5"};
const std::string kZeile = "202418. 3. 7.12.23.34.45:5\r\n";

std::string wiederhole(const std::string& text, std::size_t mal)
{
    std::string alle;
    for (std::size_t i = 0; i < mal; ++i)
        alle += text;
    return alle;
}

/// Six numbers of 1..49 in rising order.
Kombination wuerfle(std::mt19937& zufall)
{
    std::array<std::int32_t, 49> alle{};
    std::iota(alle.begin(), alle.end(), 1);
    std::shuffle(alle.begin(), alle.end(), zufall);
    Kombination zahlen{};
    std::copy_n(alle.begin(), zahlen.size(), zahlen.begin());
    std::sort(zahlen.begin(), zahlen.end());
    return zahlen;
}

TEST(Tippscheindatei, EineZeileHatSechsundzwanzigZeichen)
{
    EXPECT_EQ(tippscheinBytes("202418", {kTip}), kZeile);
    EXPECT_EQ(kZeile.size(), 28U);
    EXPECT_EQ(tippscheinBytes("202418", {{kTip.zahlen, ""}}), "202418. 3. 7.12.23.34.45:\r\n");
    EXPECT_EQ(tippscheinBytes("202418", {{{" 1", "002", "3", "4", "5", " 6 "}, "0"}}),
              "202418. 1. 2. 3. 4. 5. 6:0\r\n");
    EXPECT_EQ(tippscheinBytes("Größ12", {kTip}), "Gr\xf6\xdf" + std::string("12. 3. 7.12.23.34.45:5\r\n"));
}

TEST(Tippscheindatei, WasKeineZifferIstBleibtAlsSuperzahlWeg)
{
    for (const char* superzahl : {"x", "10", "-1", " ", "ä"})
        EXPECT_EQ(tippscheinBytes("202418", {{kTip.zahlen, superzahl}}), "202418. 3. 7.12.23.34.45:\r\n") << superzahl;
}

TEST(Tippscheindatei, LeereUndFalscheReihenFehlenWeitereRueckenNach)
{
    const std::vector<Tippreihe> reihen{{},
                                        {{"5", "3", "7", "8", "9", "10"}, "1"},
                                        {{"1", "2", "3", "4", "5", "50"}, "1"},
                                        {{"1", "2", "3", "4", "5", ""}, "1"},
                                        kTip};
    EXPECT_EQ(tippscheinBytes("202418", reihen), kZeile);
    EXPECT_EQ(tippscheinBytes("202418", {}), "");
    EXPECT_EQ(tippscheinBytes("202418", std::vector<Tippreihe>(13, kTip)), wiederhole(kZeile, 12));
}

TEST(Tippscheindatei, LiestNachSpaltenUndBehaeltDasLeerzeichen)
{
    const Tippreihe reihe = tippreiheAus("202418. 3. 7.12.23.34.45:5");
    EXPECT_THAT(reihe.zahlen, ElementsAre(" 3", " 7", "12", "23", "34", "45"));
    EXPECT_EQ(reihe.superzahl, "5");
    EXPECT_EQ(tippreiheAus("202418. 3. 7.12.23.34.45:").superzahl, "");
    EXPECT_THAT(tippreiheAus("202418x12y13").zahlen, ElementsAre("12", "13", "", "", "", ""));
    EXPECT_EQ(tippreiheAus(""), Tippreihe{});
    EXPECT_EQ(tippreiheAus("202"), Tippreihe{});
    EXPECT_EQ(checkRow(tippreiheAus("202418. 3. 7.12")), Reihenstand::Fehler);
}

TEST(Tippscheindatei, JedesZeilenendeTrenntUndDasLetzteBeginntKeineZeile)
{
    EXPECT_THAT(tippscheinzeilen("a\r\nb\nc\rd").zeilen, ElementsAre("a", "b", "c", "d"));
    EXPECT_THAT(tippscheinzeilen("a\r\n").zeilen, ElementsAre("a"));
    EXPECT_THAT(tippscheinzeilen("a\n\n\r\rb\n").zeilen, ElementsAre("a", "", "", "", "b"));
    EXPECT_THAT(tippscheinzeilen("").zeilen, IsEmpty());
    EXPECT_TRUE(tippscheinzeilen("").gelesen());
}

TEST(Tippscheindatei, UmlauteUndNullbytesBleibenInIhrerSpalte)
{
    EXPECT_THAT(tippreihenAus(tippscheinzeilen("\xe4\xf6\xfc"
                                               "418. 3. 7.12.23.34.45:\xdf")),
                ElementsAre(Tippreihe{{" 3", " 7", "12", "23", "34", "45"}, "ß"}));
    const std::string mitNull("20241\0. 3. 7.12.23.34.45:5", 26);
    EXPECT_THAT(tippreihenAus(tippscheinzeilen(mitNull)),
                ElementsAre(Tippreihe{{" 3", " 7", "12", "23", "34", "45"}, "5"}));
}

TEST(Tippscheindatei, ZwoelfReihenWerdenGelesenEineDreizehnteNicht)
{
    const Pruefordner ordner;
    const Tippschein schein = loadSlip(ordner.lege("S_202418.dat", wiederhole(kZeile, 13)));
    EXPECT_TRUE(schein.gelesen());
    EXPECT_THAT(schein.reihen, SizeIs(12));
}

TEST(Tippscheindatei, EineZeileOhneEndeWirdGekuerzt)
{
    const Pruefordner ordner;
    const fs::path datei =
        ordner.lege("S_202418.dat", kZeile.substr(0, 26) + std::string(kGroessterTippschein - 26, '9'));
    const Tippscheinzeilen zeilen = liesTippscheinzeilen(datei);
    ASSERT_TRUE(zeilen.gelesen());
    ASSERT_THAT(zeilen.zeilen, ElementsAre(SizeIs(kMaxTippzeile)));
    EXPECT_EQ(tippreiheAus(zeilen.zeilen[0]), tippreiheAus(kZeile.substr(0, 26)));
    const Tippschein dreihundert = loadSlip(ordner.lege("S_202419.dat", std::string(300, '7') + "\r\n" + kZeile));
    EXPECT_THAT(dreihundert.reihen, SizeIs(2));
}

TEST(Tippscheindatei, EineRiesigeDateiWirdNichtGelesen)
{
    const Pruefordner ordner;
    const fs::path datei = ordner.lege("S_202418.dat", kZeile);
    fs::resize_file(datei, 100'000'000);
    const Tippschein schein = loadSlip(datei);
    EXPECT_EQ(schein.stand, Dateistand::Gelesen);
    EXPECT_TRUE(schein.zuGross);
    EXPECT_FALSE(schein.gelesen());
    EXPECT_THAT(schein.reihen, IsEmpty());
    EXPECT_FALSE(tippscheinzeilen(std::string(kMaxTippzeilen, '\n')).zuGross);
    EXPECT_TRUE(tippscheinzeilen(std::string(kMaxTippzeilen + 1, '\n')).zuGross);
}

TEST(Tippscheindatei, WasFehltOderKeineDateiIst)
{
    const Pruefordner ordner;
    EXPECT_EQ(loadSlip(ordner / "S_202418.dat").stand, Dateistand::Fehlt);
    EXPECT_EQ(loadSlip(ordner.pfad()).stand, Dateistand::Unlesbar);
    const Tippschein leer = loadSlip(ordner.lege("leer.dat", ""));
    EXPECT_TRUE(leer.gelesen());
    EXPECT_THAT(leer.reihen, IsEmpty());
}

TEST(Tippscheindatei, WasGespeichertWurdeWirdGleichGelesen)
{
    const Pruefordner ordner;
    std::mt19937 zufall(49);
    for (int runde = 0; runde < 200; ++runde) {
        std::vector<Tippreihe> reihen(1 + zufall() % kTippsJeSchein);
        std::vector<Kombination> zahlen;
        for (Tippreihe& reihe : reihen) {
            zahlen.push_back(wuerfle(zufall));
            for (std::size_t i = 0; i < 6; ++i)
                reihe.zahlen[i] = std::to_string(zahlen.back()[i]);
            reihe.superzahl = zufall() % 3 == 0 ? "" : std::to_string(zufall() % 10);
        }
        ASSERT_TRUE(saveSlip(ordner.pfad(), 2, "202653", reihen));
        const Tippschein schein = loadSlip(ordner / "M_202653.dat");
        ASSERT_THAT(schein.reihen, SizeIs(reihen.size()));
        for (std::size_t i = 0; i < reihen.size(); ++i) {
            EXPECT_EQ(kombinationVon(schein.reihen[i]), zahlen[i]);
            EXPECT_EQ(schein.reihen[i].superzahl, reihen[i].superzahl);
        }
    }
}

TEST(Tippscheindatei, VerdorbeneScheineBringenDenLeserNichtDurcheinander)
{
    pruefeViele("tippschein", pruefeTippschein);
}

TEST(Tippscheindatei, EinScheinMitWenigerTippsLaesstDenAltenDaneben)
{
    const Pruefordner ordner;
    ASSERT_TRUE(saveSlip(ordner.pfad(), 1, "202418", {kTip, kTip}));
    ASSERT_TRUE(saveSlip(ordner.pfad(), 1, "202418", {kTip, kTip}));
    EXPECT_EQ(ordner.eintraege(), 1U);
    ASSERT_TRUE(saveSlip(ordner.pfad(), 1, "202418", {kTip}));
    EXPECT_EQ(inhaltVon(ordner / "S_202418.dat"), kZeile);
    EXPECT_EQ(inhaltVon(ordner / "S_202418.dat.bak"), kZeile + kZeile);
    ASSERT_TRUE(saveSlip(ordner.pfad(), 1, "202418", {kTip, kTip, kTip}));
    EXPECT_EQ(inhaltVon(ordner / "S_202418.dat.bak"), kZeile + kZeile);
    ASSERT_TRUE(saveSlip(ordner.pfad(), 1, "202418", {}));
    EXPECT_EQ(inhaltVon(ordner / "S_202418.dat"), "");
    EXPECT_EQ(inhaltVon(ordner / "S_202418.dat.bak"), wiederhole(kZeile, 3));
}

TEST(Tippscheindatei, WasAlsScheinNichtZuLesenIstBleibtDaneben)
{
    const Pruefordner ordner;
    const std::string riese(kGroessterTippschein + 1, 'x');
    ordner.lege("S_202418.dat", riese);
    ASSERT_TRUE(saveSlip(ordner.pfad(), 1, "202418", std::vector<Tippreihe>(12, kTip)));
    EXPECT_EQ(inhaltVon(ordner / "S_202418.dat.bak"), riese);
}

TEST(Tippscheindatei, EinAndersGeschriebenerNameIstDieselbeDatei)
{
    const Pruefordner ordner;
    ordner.lege("s_202418.DAT", "alt");
    ASSERT_TRUE(saveSlip(ordner.pfad(), 1, "202418", {kTip}));
    EXPECT_EQ(inhaltVon(ordner / "s_202418.DAT"), kZeile);
    EXPECT_FALSE(fs::exists(ordner / "S_202418.dat"));
}

TEST(Tippscheindatei, EinVerzeichnisAnSeinerStelleBleibt)
{
    const Pruefordner ordner;
    fs::create_directory(ordner / "S_202418.dat");
    EXPECT_FALSE(saveSlip(ordner.pfad(), 1, "202418", {kTip}));
    EXPECT_TRUE(fs::is_directory(ordner / "S_202418.dat"));
}

TEST(Tippscheindatei, EinSchreibgeschuetzterOrdner)
{
    const Pruefordner ordner;
    ordner.lege("S_202418.dat", "alt");
    fs::permissions(ordner.pfad(), fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_all);
    fs::permissions(ordner.pfad(), fs::perms::others_write, fs::perm_options::remove);
    {
        const OhneSonderrechte gewoehnlich;
        if (!gewoehnlich.gilt())
            GTEST_SKIP() << "root behält seine Rechte";
        EXPECT_FALSE(saveSlip(ordner.pfad(), 1, "202418", {kTip}));
        EXPECT_FALSE(saveSlip(ordner.pfad(), 1, "202419", {kTip}));
    }
    EXPECT_EQ(inhaltVon(ordner / "S_202418.dat"), "alt");
    EXPECT_EQ(ordner.eintraege(), 1U);
}

TEST(Tippscheindatei, EineVolleScheibeMittenImSpeichernLaesstDenAlten)
{
    const Pruefordner ordner;
    const std::string alt = wiederhole(kZeile, 2);
    ordner.lege("S_202418.dat", alt);
    {
        const VolleScheibe voll(100);
        EXPECT_FALSE(saveSlip(ordner.pfad(), 1, "202418", std::vector<Tippreihe>(12, kTip)));
    }
    EXPECT_EQ(inhaltVon(ordner / "S_202418.dat"), alt);
    ordner.lege("S_202419.dat", wiederhole(kZeile, 12));
    {
        const VolleScheibe voll(100);
        EXPECT_FALSE(saveSlip(ordner.pfad(), 1, "202419", {kTip})) << "die Kopie des alten misslingt";
    }
    EXPECT_EQ(inhaltVon(ordner / "S_202419.dat"), wiederhole(kZeile, 12));
    EXPECT_EQ(ordner.eintraege(), 2U);
}

// A child saves two slips in turn until it is killed: a whole one of them must lie there.
TEST(Tippscheindatei, EinGetoetetesProgrammHinterlaesstDenAltenOderDenNeuen)
{
    constexpr int kRunden = 500;
    const Tippreihe anderer{{"1", "2", "3", "4", "5", "6"}, "0"};
    const std::string lang = wiederhole(kZeile, 12);
    const std::string kurz = wiederhole("202418. 1. 2. 3. 4. 5. 6:0\r\n", 3);
    std::mt19937 zufall(49);
    for (int runde = 0; runde < kRunden; ++runde) {
        const Pruefordner ordner;
        ordner.lege("S_202418.dat", lang);
        const pid_t kind = ::fork();
        if (kind == 0)
            for (;;) {
                saveSlip(ordner.pfad(), 1, "202418", std::vector<Tippreihe>(3, anderer));
                saveSlip(ordner.pfad(), 1, "202418", std::vector<Tippreihe>(12, kTip));
            }
        ::usleep(static_cast<useconds_t>(zufall() % 4000));
        ::kill(kind, SIGKILL);
        ::waitpid(kind, nullptr, 0);
        const std::string schein = inhaltVon(ordner / "S_202418.dat");
        ASSERT_TRUE(schein == lang || schein == kurz) << runde << ": " << schein;
        const fs::path daneben = ordner / "S_202418.dat.bak";
        ASSERT_TRUE(!fs::exists(daneben) || inhaltVon(daneben) == lang) << runde;
    }
}

} // namespace

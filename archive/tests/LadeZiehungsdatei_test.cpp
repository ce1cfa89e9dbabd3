#include "archive/logic/Ziehungsdatei.h"
#include "archive/tests/Testsaetze.h"
#include "testhilfen/Pruefordner.h"

#include <chrono>
#include <gtest/gtest.h>
#include <vector>

namespace {

const std::string kFehltSamstag =
    "ERROR 53: Die Ziehungsdatei SALOTTO.DAT wurde nicht gefunden. Die Datei SALOTTO.DAT muß sich im gleichen "
    "Verzeichnis wie das Programm TOMBRIX.EXE befinden.";

/// A folder for the Ziehungsdateien, an archive on it, and the texts of the boxes. A box gives up unless a test says
/// otherwise.
class LadeZiehungsdateiTest : public testing::Test {
protected:
    void lade(std::int16_t spielart = Samstagslotto)
    {
        archiv.ProgrammVerzeichnis = ordner.pfad().string();
        archiv.Spielart = spielart;
        LadeZiehungsdatei(archiv, [this](const std::string& text) {
            boxen.push_back(text);
            return weiterNachBox();
        });
    }

    void ladeInhalt(const std::string& inhalt, std::int16_t spielart = Samstagslotto)
    {
        ordner.lege(ziehungsdateiName(spielart), inhalt);
        lade(spielart);
    }

    /// A failure without a box: no draws, and the dates are still those of before.
    void erwarteStummenFehlschlag(const std::string& inhalt)
    {
        archiv.AnzahlZiehungen = 99;
        archiv.Datum = {"", "vorher"};
        ladeInhalt(inhalt);
        EXPECT_EQ(archiv.AnzahlZiehungen, 0);
        EXPECT_EQ(archiv.Datum, (std::vector<std::string>{"", "vorher"}));
        EXPECT_TRUE(spaltenGleichLang(archiv));
        EXPECT_TRUE(boxen.empty());
    }

    Pruefordner ordner;
    ZiehungsArchiv archiv;
    std::vector<std::string> boxen;
    std::function<bool()> weiterNachBox = [] { return false; };
};

} // namespace

TEST(ProgrammVerzeichnis, HatEinenTrennerAmEnde)
{
    EXPECT_EQ(programmVerzeichnis("/opt/tombrix"), "/opt/tombrix/");
    EXPECT_EQ(programmVerzeichnis("/opt/tombrix/"), "/opt/tombrix/");
    EXPECT_EQ(programmVerzeichnis("/"), "/");
}

TEST(ProgrammVerzeichnis, LeererPfadIstDasAktuelleVerzeichnisUndNichtDieWurzel)
{
    EXPECT_EQ(programmVerzeichnis(""), "./");
}

TEST_F(LadeZiehungsdateiTest, FuelltJedeSpalte)
{
    ladeInhalt("1998,13,02,08,10,12,22,35,46,3\r\n1998,14,01,09,11,13,23,36,00,0\r\n");
    using Spalte = ZiehungsArchiv::Spalte;
    EXPECT_EQ(archiv.AnzahlZiehungen, 2);
    EXPECT_EQ(archiv.jjjj, (Spalte{0, 1998, 1998}));
    EXPECT_EQ(archiv.sw, (Spalte{0, 13, 14}));
    EXPECT_EQ(archiv.z1, (Spalte{0, 2, 1}));
    EXPECT_EQ(archiv.z2, (Spalte{0, 8, 9}));
    EXPECT_EQ(archiv.z3, (Spalte{0, 10, 11}));
    EXPECT_EQ(archiv.z4, (Spalte{0, 12, 13}));
    EXPECT_EQ(archiv.z5, (Spalte{0, 22, 23}));
    EXPECT_EQ(archiv.z6, (Spalte{0, 35, 36}));
    EXPECT_EQ(archiv.zz, (Spalte{0, 46, 0}));
    EXPECT_EQ(archiv.s, (Spalte{0, 3, 0}));
}

TEST_F(LadeZiehungsdateiTest, EinEinzigerSatz)
{
    ladeInhalt(testsaetze(1));
    EXPECT_EQ(archiv.AnzahlZiehungen, 1);
    EXPECT_EQ(archiv.z1.size(), 2U);
}

TEST_F(LadeZiehungsdateiTest, JedeSpielartHatIhreDatei)
{
    ordner.lege("SALOTTO.DAT", testsaetze(3));
    ordner.lege("MALOTTO.DAT", testsaetze(4));
    ordner.lege("MBLOTTO.DAT", testsaetze(5));
    const std::vector<std::pair<std::int16_t, int>> erwartet{{0, 3}, {1, 3}, {2, 4}, {3, 5}};
    for (const auto& [spielart, anzahl] : erwartet) {
        lade(spielart);
        EXPECT_EQ(archiv.AnzahlZiehungen, anzahl) << spielart;
        EXPECT_EQ(archiv.Spielart, spielart);
    }
}

TEST_F(LadeZiehungsdateiTest, SamstagsdatenFuerSpielart0Und1)
{
    for (const std::int16_t spielart : {SpielartStart, Samstagslotto}) {
        ladeInhalt(testsaetze(3), spielart);
        EXPECT_EQ(archiv.Datum.size(), 956U);
        EXPECT_EQ(archiv.Datum[1], "So, 09.10.1955");
    }
}

TEST_F(LadeZiehungsdateiTest, MittwochsdatenFuerSpielart2Und3)
{
    for (const std::int16_t spielart : {Mittwochslotto, MittwochslottoB}) {
        ladeInhalt(testsaetze(757, 1986), spielart);
        EXPECT_EQ(archiv.Datum.size(), 758U);
        EXPECT_EQ(archiv.Datum[1], "Mi, 04.06.1986");
        EXPECT_EQ(archiv.Datum[757], "Mi, 29.11.2000");
    }
}

TEST_F(LadeZiehungsdateiTest, SuperzahlBleibtWieSieInDerDateiSteht)
{
    ladeInhalt(testsaetze(20));
    for (std::size_t nr = 1; nr <= 20; ++nr)
        EXPECT_EQ(archiv.s[nr], static_cast<int>(nr % 10));
}

TEST_F(LadeZiehungsdateiTest, ErsetztWasVorherGeladenWar)
{
    ladeInhalt(testsaetze(2000));
    ladeInhalt(testsaetze(7, 1986), Mittwochslotto);
    EXPECT_EQ(archiv.AnzahlZiehungen, 7);
    EXPECT_EQ(archiv.z6.size(), 8U);
    EXPECT_EQ(archiv.jjjj[1], 1986);
    EXPECT_EQ(archiv.Datum.size(), 8U);
}

TEST_F(LadeZiehungsdateiTest, ErgaenztDenTrennerAmProgrammVerzeichnis)
{
    ladeInhalt(testsaetze(1));
    EXPECT_EQ(archiv.ProgrammVerzeichnis, ordner.pfad().string() + "/");
    lade();
    EXPECT_EQ(archiv.AnzahlZiehungen, 1);
}

TEST_F(LadeZiehungsdateiTest, FindetDieDateiInAndererSchreibweise)
{
    ordner.lege("Salotto.dat", testsaetze(5));
    lade();
    EXPECT_EQ(archiv.AnzahlZiehungen, 5);
    EXPECT_TRUE(boxen.empty());
}

TEST_F(LadeZiehungsdateiTest, FehlendeDateiWirdGemeldetBisSieDaIst)
{
    weiterNachBox = [this] {
        if (boxen.size() == 3)
            ordner.lege("SALOTTO.DAT", testsaetze(2));
        return true;
    };
    lade();
    EXPECT_EQ(boxen, std::vector(3, kFehltSamstag));
    EXPECT_EQ(archiv.AnzahlZiehungen, 2);
    EXPECT_EQ(archiv.Datum[1], "So, 09.10.1955");
}

TEST_F(LadeZiehungsdateiTest, FehlendeDateiEndetMitDemProgramm)
{
    archiv.AnzahlZiehungen = 99;
    archiv.Datum = {"", "vorher"};
    lade();
    EXPECT_EQ(boxen, std::vector{kFehltSamstag});
    EXPECT_EQ(archiv.AnzahlZiehungen, 0);
    EXPECT_EQ(archiv.Datum, (std::vector<std::string>{"", "vorher"}));
}

TEST_F(LadeZiehungsdateiTest, MeldungNenntDieDateiDesSpiels)
{
    lade(MittwochslottoB);
    ASSERT_EQ(boxen.size(), 1U);
    EXPECT_EQ(boxen[0],
              "ERROR 53: Die Ziehungsdatei MBLOTTO.DAT wurde nicht gefunden. Die Datei MBLOTTO.DAT muß sich im "
              "gleichen Verzeichnis wie das Programm TOMBRIX.EXE befinden.");
}

TEST_F(LadeZiehungsdateiTest, OhneMelderWirdAufgegeben)
{
    archiv.ProgrammVerzeichnis = ordner.pfad().string();
    LadeZiehungsdatei(archiv, {});
    EXPECT_EQ(archiv.AnzahlZiehungen, 0);
}

TEST_F(LadeZiehungsdateiTest, TextInEinerZahlEndetStumm)
{
    erwarteStummenFehlschlag(testsaetze(3) + "1956,04,0x,02,03,04,05,06,00,1\r\n" + testsaetze(3));
}

TEST_F(LadeZiehungsdateiTest, SpaltenSindNachEinemFehlerTeilweiseGefuellt)
{
    erwarteStummenFehlschlag(testsaetze(3) + "1956,04,07,xx,03,04,05,06,00,1\r\n");
    ASSERT_EQ(archiv.jjjj.size(), 5U);
    EXPECT_EQ(archiv.jjjj[3], 1955);
    EXPECT_EQ(archiv.jjjj[4], 1956);
    EXPECT_EQ(archiv.sw[4], 4);
    EXPECT_EQ(archiv.z1[4], 7);
    EXPECT_EQ(archiv.z2[4], 0);
}

TEST_F(LadeZiehungsdateiTest, DateiendeImSatzEndetStumm)
{
    erwarteStummenFehlschlag(testsaetze(2) + "1955,03,01,02");
}

TEST_F(LadeZiehungsdateiTest, ZuGrosserWertEndetStumm)
{
    erwarteStummenFehlschlag("1955,2147483648,01,02,03,04,05,06,00,1\r\n");
}

TEST_F(LadeZiehungsdateiTest, NullbytesEndenStumm)
{
    erwarteStummenFehlschlag(std::string(100, '\0'));
    erwarteStummenFehlschlag(testsaetze(2) + std::string(100, '\0'));
}

TEST_F(LadeZiehungsdateiTest, RestHinterDemLetztenSatzStoertNicht)
{
    for (const std::string rest : {"\r\n\r\n", "   ", "\x1A", "\r\n \x1A"}) {
        ladeInhalt(testsaetze(4) + rest);
        EXPECT_EQ(archiv.AnzahlZiehungen, 4) << testing::PrintToString(rest);
    }
}

TEST_F(LadeZiehungsdateiTest, LeereDateiIstEinLeeresArchiv)
{
    ladeInhalt(testsaetze(1000));
    ladeInhalt("");
    EXPECT_EQ(archiv.AnzahlZiehungen, 0);
    for (const ZiehungsArchiv::Spalte* spalte : archiv.spalten())
        EXPECT_EQ(*spalte, ZiehungsArchiv::Spalte{0});
    EXPECT_EQ(archiv.Datum.size(), 956U);
    EXPECT_TRUE(boxen.empty());
}

TEST_F(LadeZiehungsdateiTest, VerzeichnisAnStelleDerDateiEndetStumm)
{
    ladeInhalt(testsaetze(5));
    std::filesystem::remove(ordner / "SALOTTO.DAT");
    std::filesystem::create_directory(ordner / "SALOTTO.DAT");
    archiv.Datum = {"", "vorher"};
    lade();
    EXPECT_EQ(archiv.AnzahlZiehungen, 0);
    EXPECT_EQ(archiv.Datum, (std::vector<std::string>{"", "vorher"}));
    EXPECT_TRUE(boxen.empty());
}

TEST_F(LadeZiehungsdateiTest, SpielartAusserhalbEndetStumm)
{
    for (const std::int16_t spielart :
         {std::int16_t{4}, std::int16_t{-1}, std::int16_t{INT16_MIN}, std::int16_t{256}}) {
        archiv.AnzahlZiehungen = 99;
        archiv.Datum = {"", "vorher"};
        lade(spielart);
        EXPECT_EQ(archiv.AnzahlZiehungen, 0);
        EXPECT_EQ(archiv.Datum.size(), 2U);
        EXPECT_TRUE(boxen.empty());
    }
}

TEST_F(LadeZiehungsdateiTest, Fasst32767Ziehungen)
{
    ladeInhalt(testsaetze(32767, 1000));
    EXPECT_EQ(archiv.AnzahlZiehungen, 32767);
    EXPECT_EQ(archiv.Datum.size(), 32768U);
    EXPECT_EQ(archiv.jjjj.back(), 1000 + 32766 / 50);
}

TEST_F(LadeZiehungsdateiTest, Fasst32767ZiehungenMitLeerzeilenDahinter)
{
    ladeInhalt(testsaetze(32767, 1000) + "\r\n\r\n\x1A");
    EXPECT_EQ(archiv.AnzahlZiehungen, 32767);
}

TEST_F(LadeZiehungsdateiTest, Der32768teSatzEndetStumm)
{
    erwarteStummenFehlschlag(testsaetze(32768, 1000));
    EXPECT_EQ(archiv.jjjj.size(), 32768U);
}

TEST_F(LadeZiehungsdateiTest, VierzigtausendSaetzeEndenStumm)
{
    erwarteStummenFehlschlag(testsaetze(40000, 1000));
}

TEST_F(LadeZiehungsdateiTest, NimmtDieWerteOhneSieZuBeurteilen)
{
    ladeInhalt("0,99,49,-7,1000000,1,1,1,77,12\n");
    EXPECT_EQ(archiv.AnzahlZiehungen, 1);
    EXPECT_EQ(archiv.gewinnzahlen(1), (std::array<std::int32_t, 6>{49, -7, 1000000, 1, 1, 1}));
}

namespace {

/// Makes the file as long as `groesse`; what is added are zero bytes that take no room.
void dehne(const Pruefordner& ordner, std::uintmax_t groesse)
{
    std::filesystem::resize_file(ordner / "SALOTTO.DAT", groesse);
}

} // namespace

TEST_F(LadeZiehungsdateiTest, HundertMegabyteEndenStummUndSchnell)
{
    ordner.lege("SALOTTO.DAT", testsaetze(100));
    dehne(ordner, 100'000'000);
    const auto beginn = std::chrono::steady_clock::now();
    lade();
    EXPECT_LT(std::chrono::steady_clock::now() - beginn, std::chrono::seconds{1});
    EXPECT_EQ(archiv.AnzahlZiehungen, 0);
    EXPECT_TRUE(boxen.empty());
    for (const ZiehungsArchiv::Spalte* spalte : archiv.spalten())
        EXPECT_LE(spalte->capacity(), 65536U);
}

TEST_F(LadeZiehungsdateiTest, HundertMegabyteSaetzeEndenStumm)
{
    {
        const std::string block = testsaetze(32767, 1000);
        std::ofstream datei(ordner / "SALOTTO.DAT", std::ios::binary);
        for (int i = 0; i < 96; ++i)
            datei << block;
    }
    lade();
    EXPECT_EQ(archiv.AnzahlZiehungen, 0);
    EXPECT_EQ(archiv.jjjj.size(), 32768U);
    EXPECT_TRUE(boxen.empty());
}

TEST_F(LadeZiehungsdateiTest, HundertMegabyteLeerzeichenHinterEinemSatzEndenStumm)
{
    {
        const std::string block(1'000'000, ' ');
        std::ofstream datei(ordner / "SALOTTO.DAT", std::ios::binary);
        datei << testsaetze(1);
        for (int i = 0; i < 100; ++i)
            datei << block;
    }
    lade();
    EXPECT_EQ(archiv.AnzahlZiehungen, 0);
    EXPECT_TRUE(boxen.empty());
}

#include "archive/logic/Ziehungsdatei.h"
#include "archive/tests/Testsaetze.h"
#include "testhilfen/Pruefordner.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

constexpr int kSamstag = 1;
constexpr int kMittwoch = 2;
constexpr int kMittwochB = 4;
constexpr int kAlle = 7;

/// A folder for the Ziehungsdateien, an archive on it, and the texts of the boxes.
class LadeAlleZiehungenTest : public testing::Test {
protected:
    LadeAlleZiehungenTest() { archiv.ProgrammVerzeichnis = ordner.pfad().string() + "/"; }

    std::string lade(int maske)
    {
        return LadeAlleZiehungen(archiv, maske, [this](const std::string& text) {
            boxen.push_back(text);
            return true;
        });
    }

    void schreibeAlle(int samstag, int mittwoch, int mittwochB) const
    {
        ordner.lege("SALOTTO.DAT", testsaetze(samstag, 1955));
        ordner.lege("MALOTTO.DAT", testsaetze(mittwoch, 1986));
        ordner.lege("MBLOTTO.DAT", testsaetze(mittwochB, 1996));
    }

    /// What column `s` holds for row `nr` of a file: 11 below `beginn`, the file's digit from there on.
    void erwarteSuperzahlen(std::size_t vorher, std::size_t anzahl, std::size_t beginn) const
    {
        for (std::size_t nr = 1; nr <= anzahl; ++nr)
            ASSERT_EQ(archiv.s[vorher + nr], nr < beginn ? 11 : static_cast<int>(nr % 10)) << nr;
    }

    Pruefordner ordner;
    ZiehungsArchiv archiv;
    std::vector<std::string> boxen;
};

} // namespace

TEST_F(LadeAlleZiehungenTest, HaengtDieDateienAneinander)
{
    schreibeAlle(3, 2, 1);
    EXPECT_EQ(lade(kAlle), "3  [1955/03]:2  [1986/02]:1  [1996/01]");
    EXPECT_EQ(archiv.AnzahlZiehungen, 6);
    EXPECT_EQ(archiv.jjjj, (ZiehungsArchiv::Spalte{0, 1955, 1955, 1955, 1986, 1986, 1996}));
    EXPECT_TRUE(spaltenGleichLang(archiv));
    EXPECT_TRUE(boxen.empty());
}

TEST_F(LadeAlleZiehungenTest, DatumAlleFolgtDenSpaltenUndKennzeichnetDasBSpiel)
{
    schreibeAlle(3, 2, 1);
    lade(kAlle);
    EXPECT_EQ(archiv.DatumAlle, (std::vector<std::string>{"", "So, 09.10.1955", "So, 16.10.1955", "So, 23.10.1955",
                                                          "Mi, 04.06.1986", "Mi, 11.06.1986", "Mi, 04.06.1986 (B)"}));
}

TEST_F(LadeAlleZiehungenTest, DatumHatDieTabelleDerLetztenDatei)
{
    schreibeAlle(3, 2, 1);
    lade(kAlle);
    EXPECT_EQ(archiv.Datum, (std::vector<std::string>{"", "Mi, 04.06.1986"}));
    lade(kSamstag);
    EXPECT_EQ(archiv.Datum.size(), 956U);
}

TEST_F(LadeAlleZiehungenTest, JedeAuswahlHatIhreFelder)
{
    schreibeAlle(3, 2, 1);
    EXPECT_EQ(lade(kSamstag), "3  [1955/03]:-:-");
    EXPECT_EQ(lade(kMittwoch), "-:2  [1986/02]:-");
    EXPECT_EQ(lade(kMittwochB), "-:-:1  [1996/01]");
    EXPECT_EQ(lade(kSamstag | kMittwochB), "3  [1955/03]:-:1  [1996/01]");
    EXPECT_EQ(archiv.AnzahlZiehungen, 4);
    EXPECT_EQ(archiv.DatumAlle.back(), "Mi, 04.06.1986 (B)");
}

TEST_F(LadeAlleZiehungenTest, NurDieDreiBitsZaehlen)
{
    schreibeAlle(3, 2, 1);
    EXPECT_EQ(lade(-1), "3  [1955/03]:2  [1986/02]:1  [1996/01]");
    EXPECT_EQ(lade(8 | kMittwoch), "-:2  [1986/02]:-");
}

TEST_F(LadeAlleZiehungenTest, MaskeNullLaesstDieSpaltenWieSieSind)
{
    schreibeAlle(30, 2, 1);
    lade(kSamstag);
    archiv.AnzahlZiehungen = 5;
    EXPECT_EQ(lade(0), "-:-:-");
    EXPECT_EQ(archiv.AnzahlZiehungen, 30);
    EXPECT_EQ(archiv.jjjj.size(), 31U);
    EXPECT_EQ(archiv.jjjj[30], 1955);
}

TEST_F(LadeAlleZiehungenTest, MaskeNullAufLeeremArchiv)
{
    EXPECT_EQ(lade(0), "-:-:-");
    EXPECT_EQ(archiv.AnzahlZiehungen, 0);
    EXPECT_TRUE(boxen.empty());
}

TEST_F(LadeAlleZiehungenTest, DatumAlleIstNieKuerzerAlsDieSpalten)
{
    schreibeAlle(30, 2, 1);
    LadeZiehungsdatei(archiv, {});
    lade(0);
    EXPECT_EQ(archiv.AnzahlZiehungen, 30);
    EXPECT_EQ(archiv.DatumAlle.size(), 31U);
}

TEST_F(LadeAlleZiehungenTest, BeginntDieSpaltenNeu)
{
    schreibeAlle(3, 2, 1);
    lade(kAlle);
    lade(kAlle);
    EXPECT_EQ(archiv.AnzahlZiehungen, 6);
    lade(kMittwoch);
    EXPECT_EQ(archiv.AnzahlZiehungen, 2);
    EXPECT_EQ(archiv.DatumAlle.size(), 3U);
}

TEST_F(LadeAlleZiehungenTest, SuperzahlDesSamstagsBeginntMit1887)
{
    schreibeAlle(1900, 1, 1);
    lade(kSamstag);
    erwarteSuperzahlen(0, 1900, 1887);
}

TEST_F(LadeAlleZiehungenTest, MittwochAlleinHatDieGrenzeBei497)
{
    schreibeAlle(1, 600, 1);
    lade(kMittwoch);
    erwarteSuperzahlen(0, 600, 497);
}

TEST_F(LadeAlleZiehungenTest, GrenzenLiegenHinterDenDateienDavor)
{
    schreibeAlle(1890, 510, 520);
    lade(kAlle);
    erwarteSuperzahlen(0, 1890, 1887);
    erwarteSuperzahlen(1890, 510, 497);
    erwarteSuperzahlen(1890 + 510, 520, 497);
}

TEST_F(LadeAlleZiehungenTest, KurzeSamstagsdateiHatKeineSuperzahl)
{
    schreibeAlle(1886, 1, 1);
    lade(kSamstag);
    erwarteSuperzahlen(0, 1886, 1887);
    EXPECT_EQ(archiv.s[1886], 11);
}

TEST_F(LadeAlleZiehungenTest, SuperzahlGrenzeGenauAmDateiende)
{
    schreibeAlle(1887, 1, 1);
    lade(kSamstag | kMittwoch);
    EXPECT_EQ(archiv.s[1886], 11);
    EXPECT_EQ(archiv.s[1887], 7);
    EXPECT_EQ(archiv.s[1888], 11);
}

TEST_F(LadeAlleZiehungenTest, FehlendeDateiWirdEinmalGemeldetUndBrichtAb)
{
    ordner.lege("SALOTTO.DAT", testsaetze(3));
    EXPECT_EQ(lade(kAlle), "False");
    EXPECT_EQ(boxen, std::vector{"Die Datei " + ordner.pfad().string() + "/MALOTTO.DAT wurde nicht gefunden!"});
    EXPECT_EQ(archiv.jjjj.size(), 4U);
    EXPECT_EQ(archiv.AnzahlZiehungen, 3);
    EXPECT_EQ(archiv.DatumAlle.size(), 4U);
}

TEST_F(LadeAlleZiehungenTest, FehltDieErsteDateiBleibenDieSpalten)
{
    ordner.lege("MALOTTO.DAT", testsaetze(3, 1986));
    lade(kMittwoch);
    EXPECT_EQ(lade(kSamstag), "False");
    EXPECT_EQ(archiv.AnzahlZiehungen, 0);
    EXPECT_EQ(archiv.jjjj, (ZiehungsArchiv::Spalte{0, 1986, 1986, 1986}));
}

TEST_F(LadeAlleZiehungenTest, NichtGewaehlteDateiDarfFehlen)
{
    ordner.lege("MBLOTTO.DAT", testsaetze(3));
    EXPECT_EQ(lade(kMittwochB), "-:-:3  [1955/03]");
    EXPECT_TRUE(boxen.empty());
}

TEST_F(LadeAlleZiehungenTest, FehlendeDateiOhneMelder)
{
    EXPECT_EQ(LadeAlleZiehungen(archiv, kAlle, {}), "False");
}

TEST_F(LadeAlleZiehungenTest, FindetDateienInAndererSchreibweise)
{
    ordner.lege("Salotto.dat", testsaetze(3));
    ordner.lege("malotto.dat", testsaetze(2, 1986));
    EXPECT_EQ(lade(kSamstag | kMittwoch), "3  [1955/03]:2  [1986/02]:-");
}

TEST_F(LadeAlleZiehungenTest, ProgrammVerzeichnisBleibtWieEsWar)
{
    schreibeAlle(3, 2, 1);
    archiv.ProgrammVerzeichnis = ordner.pfad().string();
    EXPECT_EQ(lade(kSamstag), "3  [1955/03]:-:-");
    EXPECT_EQ(archiv.ProgrammVerzeichnis, ordner.pfad().string());
}

TEST_F(LadeAlleZiehungenTest, SpielartBleibtWieSieWar)
{
    schreibeAlle(3, 2, 1);
    archiv.Spielart = MittwochslottoB;
    lade(kAlle);
    EXPECT_EQ(archiv.Spielart, MittwochslottoB);
}

TEST_F(LadeAlleZiehungenTest, KaputteDateiEndetVorDemKaputtenSatz)
{
    schreibeAlle(0, 2, 1);
    ordner.lege("SALOTTO.DAT", testsaetze(3) + "1955,04,01,xx,03,04,05,06,00,1\r\n" + testsaetze(9));
    EXPECT_EQ(lade(kAlle), "3  [1955/03]:2  [1986/02]:1  [1996/01]");
    EXPECT_EQ(archiv.AnzahlZiehungen, 6);
    EXPECT_TRUE(spaltenGleichLang(archiv));
    EXPECT_EQ(archiv.jjjj[4], 1986);
    EXPECT_EQ(archiv.DatumAlle[4], "Mi, 04.06.1986");
}

TEST_F(LadeAlleZiehungenTest, LeereDateiHatKeineZiehungen)
{
    schreibeAlle(0, 2, 0);
    EXPECT_EQ(lade(kAlle), "-:2  [1986/02]:-");
    EXPECT_EQ(archiv.AnzahlZiehungen, 2);
    EXPECT_EQ(archiv.DatumAlle, (std::vector<std::string>{"", "Mi, 04.06.1986", "Mi, 11.06.1986"}));
}

TEST_F(LadeAlleZiehungenTest, VerzeichnisAnStelleEinerDateiHatKeineZiehungen)
{
    schreibeAlle(3, 2, 1);
    std::filesystem::remove(ordner / "MALOTTO.DAT");
    std::filesystem::create_directory(ordner / "MALOTTO.DAT");
    EXPECT_EQ(lade(kAlle), "3  [1955/03]:-:1  [1996/01]");
    EXPECT_EQ(archiv.AnzahlZiehungen, 4);
    EXPECT_TRUE(boxen.empty());
}

TEST_F(LadeAlleZiehungenTest, OhneEinenSatzBleibtNichtsVomVorigenLaden)
{
    schreibeAlle(30, 0, 0);
    lade(kSamstag);
    EXPECT_EQ(lade(kMittwoch | kMittwochB), "-:-:-");
    EXPECT_EQ(archiv.AnzahlZiehungen, 0);
    EXPECT_EQ(archiv.jjjj.size(), 1U);
    EXPECT_EQ(archiv.DatumAlle.size(), 1U);
}

TEST_F(LadeAlleZiehungenTest, FasstDreimal32767Ziehungen)
{
    const std::string voll = testsaetze(32767, 1000);
    for (const char* name : {"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"})
        ordner.lege(name, voll);
    EXPECT_EQ(lade(kAlle), "32767  [1655/17]:32767  [1655/17]:32767  [1655/17]");
    EXPECT_EQ(archiv.AnzahlZiehungen, 3 * 32767);
    EXPECT_EQ(archiv.DatumAlle.size(), 3U * 32767U + 1U);
    EXPECT_EQ(archiv.s[32768], 11);
}

TEST_F(LadeAlleZiehungenTest, VonVierzigtausendSaetzenZaehlen32767)
{
    schreibeAlle(1, 2, 1);
    ordner.lege("SALOTTO.DAT", testsaetze(40000, 1000));
    EXPECT_EQ(lade(kSamstag | kMittwoch), "32767  [1655/17]:2  [1986/02]:-");
    EXPECT_TRUE(spaltenGleichLang(archiv));
}

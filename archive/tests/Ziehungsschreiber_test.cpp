#include "archive/logic/Ziehungsdatei.h"
#include "archive/logic/Ziehungssaetze.h"
#include "archive/logic/Ziehungsschreiber.h"
#include "archive/tests/Testsaetze.h"
#include "shell/logic/Dateisperre.h"
#include "testhilfen/Kindprozess.h"
#include "testhilfen/Pruefordner.h"

#include <csignal>
#include <gtest/gtest.h>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using enum Schreibausgang;

const std::string kSatz1 = "1955,41,03,12,13,16,23,41,00,0";
const std::string kSatz2 = "1955,42,03,12,18,30,32,49,00,0";
const std::string kBeide = kSatz1 + "\r\n" + kSatz2 + "\r\n";

class Ziehungsschreiber : public testing::Test {
protected:
    std::string inhalt() const { return inhaltVon(datei); }
    std::string alteFassung() const { return inhaltVon(ordner / "SALOTTO.DAT.alt"); }
    bool gibtAlteFassung() const { return fs::exists(ordner / "SALOTTO.DAT.alt"); }
    void schreibe(const std::string& bytes) const { ordner.lege("SALOTTO.DAT", bytes); }

    /// The archive as it was loaded from the file.
    ZiehungsArchiv geladen() const
    {
        ZiehungsArchiv archiv;
        archiv.ProgrammVerzeichnis = ordner.pfad().string();
        archiv.Spielart = Samstagslotto;
        LadeZiehungsdatei(archiv, {});
        return archiv;
    }
    Schreibausgang haengeAn(const std::string& satz) const { return haengeZiehungAn(datei, satz).ausgang; }
    Schreibausgang erzeuge() const { return erzeugeZiehungsdatei(geladen()).ausgang; }

    /// Does it in a process whose files may not grow beyond `bytes`.
    template <class Tat> static Schreibausgang mitVollerPlatte(rlim_t bytes, Tat tue)
    {
        return static_cast<Schreibausgang>(
            imKindprozess([&] { return begrenzeDateien(bytes) ? static_cast<int>(tue()) : -1; }));
    }

    Pruefordner ordner;
    fs::path datei = ordner / "SALOTTO.DAT";
};

TEST_F(Ziehungsschreiber, HaengtEinenSatzAnUndNenntSeineNummer)
{
    schreibe(kSatz1 + "\r\n");
    const Schreibergebnis ergebnis = haengeZiehungAn(datei, kSatz2);
    EXPECT_EQ(ergebnis.ausgang, Gut);
    EXPECT_EQ(ergebnis.nr, 2);
    EXPECT_EQ(inhalt(), kBeide);
    EXPECT_EQ(ordner.eintraege(), 1U);
}

TEST_F(Ziehungsschreiber, BehaeltDasZeilenendeDesLetztenSatzesUndErgaenztEinFehlendes)
{
    for (const std::string ende : {"\r\n", "\n", "\r"}) {
        schreibe(kSatz1 + ende);
        EXPECT_EQ(haengeAn(kSatz2), Gut);
        EXPECT_EQ(inhalt(), std::string(kSatz1).append(ende).append(kSatz2).append("\r\n"));
    }
    schreibe(kSatz1);
    EXPECT_EQ(haengeAn(kSatz2), Gut);
    EXPECT_EQ(inhalt(), kBeide);
}

TEST_F(Ziehungsschreiber, SchneidetAbWasDasLadenHinterDemLetztenSatzDuldet)
{
    for (const std::string rest : {"\r\n\r\n\r\n", "\r\n   ", "   ", " \r\n", "\r\n \r\n\t", "\x1A", "\r\n\x1A",
                                   "\r\n\r\n\x1A\r\n", ",", ",\r\n", "\n\n", "\r\r"}) {
        schreibe(kSatz1 + rest);
        ASSERT_EQ(geladen().AnzahlZiehungen, 1) << testing::PrintToString(rest);
        EXPECT_EQ(haengeAn(kSatz2), Gut) << testing::PrintToString(rest);
        const ZiehungsArchiv danach = geladen();
        ASSERT_EQ(danach.AnzahlZiehungen, 2) << testing::PrintToString(rest);
        EXPECT_EQ(danach.sw[2], 42);
        EXPECT_TRUE(inhalt().ends_with(kSatz2 + "\r\n"));
        EXPECT_LE(inhalt().size(), 64U) << "nothing but two records is left";
        EXPECT_FALSE(gibtAlteFassung()) << "nothing that anybody would miss was cut off";
    }
}

TEST_F(Ziehungsschreiber, WasHinterStrgZStehtBleibtAlsAlteFassung)
{
    const std::string alt = kSatz1 + "\r\n\x1A" + kSatz2 + "\r\n";
    schreibe(alt);
    EXPECT_EQ(haengeAn(kSatz2), Gut);
    EXPECT_EQ(inhalt(), kBeide);
    EXPECT_EQ(alteFassung(), alt);
}

TEST_F(Ziehungsschreiber, LeereUndFehlendeDatei)
{
    EXPECT_EQ(haengeAn(kSatz1), Gut);
    EXPECT_EQ(inhalt(), kSatz1 + "\r\n");
    for (const std::string leer : {"", "\r\n", " \r\n\r\n", "\x1A"}) {
        schreibe(leer);
        EXPECT_EQ(haengeAn(kSatz1), Gut);
        EXPECT_EQ(inhalt(), kSatz1 + "\r\n");
    }
}

TEST_F(Ziehungsschreiber, EineKaputteDateiBleibtWieSieIst)
{
    for (const std::string& alt :
         {kSatz1 + "\r\nkaputt\r\n", kSatz1 + "\r\n1955,42", std::string(kSatz1).append("\r\n\r\n").append(kSatz2)}) {
        schreibe(alt);
        const Schreibergebnis ergebnis = haengeZiehungAn(datei, kSatz2);
        EXPECT_EQ(ergebnis.ausgang, Unlesbar);
        EXPECT_EQ(ergebnis.nr, 1);
        EXPECT_EQ(erzeugeZiehungsdatei(geladen()).ausgang, Unlesbar);
        EXPECT_EQ(inhalt(), alt);
    }
    EXPECT_EQ(ordner.eintraege(), 1U);
}

TEST_F(Ziehungsschreiber, EineUeberlangeDateiBleibtWieSieIst)
{
    const std::string alt = testsaetze(10) + std::string(kGroessteZiehungsdatei, '\n');
    schreibe(alt);
    EXPECT_EQ(haengeAn(kSatz2), Unlesbar);
    EXPECT_EQ(erzeuge(), Unlesbar);
    EXPECT_TRUE(inhalt() == alt);
}

TEST_F(Ziehungsschreiber, WasNichtAlsEinSatzZurueckkaemeWirdNichtGeschrieben)
{
    schreibe(kSatz1 + "\r\n");
    for (const std::string satz : {"", "1955,42", "kaputt", "1955,42,03,12,18,30,32,49,00,x"})
        EXPECT_EQ(haengeAn(satz), Schreibfehler) << satz;
    EXPECT_EQ(inhalt(), kSatz1 + "\r\n");
    schreibe(testsaetze(kMaxZiehungenJeDatei));
    EXPECT_EQ(haengeAn(kSatz2), Schreibfehler) << "one draw more than can be loaded";
    EXPECT_EQ(geladen().AnzahlZiehungen, kMaxZiehungenJeDatei);
}

TEST_F(Ziehungsschreiber, HebtDenSchreibschutzAuf)
{
    schreibe(kSatz1 + "\r\n");
    fs::permissions(datei, fs::perms::owner_read);
    EXPECT_EQ(haengeAn(kSatz2), Gut);
    EXPECT_EQ(inhalt(), kBeide);
}

TEST_F(Ziehungsschreiber, EinVerzeichnisAnIhrerStelleBleibt)
{
    fs::create_directory(datei);
    EXPECT_EQ(haengeAn(kSatz2), Schreibfehler);
    EXPECT_EQ(erzeuge(), Unlesbar);
    EXPECT_TRUE(fs::is_directory(datei));
}

TEST_F(Ziehungsschreiber, OhneOrdnerIstEsEinSchreibfehler)
{
    EXPECT_EQ(haengeZiehungAn(ordner / "fehlt/SALOTTO.DAT", kSatz1).ausgang, Schreibfehler);
}

TEST_F(Ziehungsschreiber, VollePlatteLaesstJedesByteStehen)
{
    for (const std::string& alt : {kBeide, kSatz1, kSatz1 + "\r\n\r\n  \x1A"})
        for (const rlim_t mehr : {0U, 1U, 2U, 15U, 25U}) {
            schreibe(alt);
            EXPECT_EQ(mitVollerPlatte(alt.size() + mehr, [this] { return haengeAn(kSatz1); }), Schreibfehler) << mehr;
            EXPECT_EQ(inhalt(), alt) << mehr;
        }
}

TEST_F(Ziehungsschreiber, NeuGeschriebenIstDieDateiGenormtUndDieAlteBleibt)
{
    const std::string vonHand = "1955,41, 3,12,13,16,23,41,0,0\n1955,42,03,12,18,30,32,49,00,0\r\n\r\n";
    schreibe(vonHand);
    const Schreibergebnis ergebnis = erzeugeZiehungsdatei(geladen());
    EXPECT_EQ(ergebnis.ausgang, Gut);
    EXPECT_EQ(ergebnis.nr, 2);
    EXPECT_EQ(inhalt(), kBeide);
    EXPECT_EQ(alteFassung(), vonHand);
}

TEST_F(Ziehungsschreiber, NeuGeschriebenWirdWasInDerDateiStehtUndNichtWasGeladenWar)
{
    schreibe(kSatz1 + "\n");
    const ZiehungsArchiv alter = geladen();
    schreibe(kSatz1 + "\n" + kSatz2 + "\n");
    EXPECT_EQ(erzeugeZiehungsdatei(alter).ausgang, Gut);
    EXPECT_EQ(inhalt(), kBeide);
    schreibe("");
    EXPECT_EQ(erzeugeZiehungsdatei(alter).ausgang, Gut);
    EXPECT_EQ(inhalt(), "");
    EXPECT_EQ(alteFassung(), kSatz1 + "\n" + kSatz2 + "\n") << "an empty file has nothing to keep";
}

TEST_F(Ziehungsschreiber, EineFehlendeEntstehtAusDemWasGeladenIst)
{
    schreibe(kBeide);
    const ZiehungsArchiv archiv = geladen();
    fs::remove(datei);
    EXPECT_EQ(erzeugeZiehungsdatei(archiv).ausgang, Gut);
    EXPECT_EQ(inhalt(), kBeide);
    fs::remove(datei);
    EXPECT_EQ(erzeuge(), Unlesbar) << "nothing is loaded";
    EXPECT_EQ(ordner.eintraege(), 0U);
}

TEST_F(Ziehungsschreiber, NeuGeschriebenHeisstSieWieImmer)
{
    ordner.lege("Salotto.dat", kSatz1 + "\n");
    EXPECT_EQ(erzeuge(), Gut);
    EXPECT_FALSE(fs::exists(ordner / "Salotto.dat"));
    EXPECT_EQ(inhalt(), kSatz1 + "\r\n");
    EXPECT_EQ(alteFassung(), kSatz1 + "\n");
    EXPECT_EQ(ordner.eintraege(), 2U);
}

TEST_F(Ziehungsschreiber, VollePlatteBeimNeuSchreibenLaesstDieAlteStehen)
{
    const std::string alt = kBeide;
    schreibe(alt);
    EXPECT_EQ(mitVollerPlatte(10, [this] { return erzeuge(); }), Schreibfehler);
    EXPECT_EQ(inhalt(), alt);
    EXPECT_EQ(ordner.eintraege(), 1U);
}

TEST_F(Ziehungsschreiber, WerDenZweitenSchreiberAbwartetKommtDanachZumZug)
{
    schreibe(kSatz1 + "\r\n");
    auto fremde = Dateisperre::nimm(datei, std::chrono::milliseconds(0));
    int pausen = 0;
    const Schreibergebnis ergebnis = haengeZiehungAn(datei, kSatz2, [&] {
        if (++pausen == 3)
            fremde.reset();
        return true;
    });
    EXPECT_EQ(ergebnis.ausgang, Gut);
    EXPECT_EQ(inhalt(), kBeide);
}

TEST_F(Ziehungsschreiber, SolangeEinAndererSchreibtAendertSichNichts)
{
    schreibe(kSatz1 + "\n");
    const auto fremde = Dateisperre::nimm(datei, std::chrono::milliseconds(0));
    const auto nichtWarten = [] { return false; };
    EXPECT_EQ(haengeZiehungAn(datei, kSatz2, nichtWarten).ausgang, Besetzt);
    EXPECT_EQ(erzeugeZiehungsdatei(geladen(), nichtWarten).ausgang, Besetzt);
    EXPECT_EQ(inhalt(), kSatz1 + "\n");
}

/// Two programs save at once, and one of them writes the whole file anew in between.
TEST_F(Ziehungsschreiber, ZweiProgrammeVerlierenKeineZiehung)
{
    constexpr int kSaetze = 900;
    const auto speichere = [this](int jahr) {
        for (int nr = 0; nr < kSaetze; ++nr) {
            const std::string satz =
                std::to_string(jahr + nr / 50) + "," + std::to_string(nr % 50 + 1) + ",03,12,18,30,32,49,00,0";
            if (haengeAn(satz) != Gut || (nr % 300 == 0 && erzeuge() != Gut))
                return 1;
        }
        return 0;
    };
    schreibe("");
    const pid_t kind = ::fork();
    if (kind == 0)
        ::_exit(speichere(2000));
    EXPECT_EQ(speichere(1960), 0);
    int stand = -1;
    ASSERT_EQ(::waitpid(kind, &stand, 0), kind);
    EXPECT_EQ(stand, 0);
    const ZiehungsArchiv archiv = geladen();
    ASSERT_EQ(archiv.AnzahlZiehungen, 2 * kSaetze);
    for (const int jahr : {1960, 2000}) {
        int naechste = 0;
        for (std::size_t nr = 1; nr < archiv.jjjj.size(); ++nr)
            if (archiv.jjjj[nr] / 40 == jahr / 40) {
                EXPECT_EQ(archiv.jjjj[nr], jahr + naechste / 50);
                EXPECT_EQ(archiv.sw[nr], naechste % 50 + 1);
                ++naechste;
            }
        EXPECT_EQ(naechste, kSaetze);
    }
}

/// The child saves one draw after the other until it is killed; what it leaves must be whole records only.
TEST_F(Ziehungsschreiber, EinMittenInDerArbeitGetoetetesProgrammHinterlaesstGanzeSaetze)
{
    constexpr int kRunden = 500;
    std::mt19937 zufall(49);
    for (int runde = 0; runde < kRunden; ++runde) {
        schreibe(kSatz1 + "\r\n\r\n   \r\n");
        const pid_t kind = ::fork();
        if (kind == 0)
            for (;;) {
                haengeAn(kSatz2);
                erzeuge();
            }
        ::usleep(static_cast<useconds_t>(zufall() % 8000));
        ::kill(kind, SIGKILL);
        ::waitpid(kind, nullptr, 0);
        const ZiehungsArchiv archiv = geladen();
        ASSERT_GE(archiv.AnzahlZiehungen, 1) << runde << ": " << inhalt();
        std::string genormt = kSatz1 + "\r\n";
        for (int nr = 2; nr <= archiv.AnzahlZiehungen; ++nr)
            genormt += kSatz2 + "\r\n";
        ASSERT_TRUE(inhalt() == genormt || inhalt() == kSatz1 + "\r\n\r\n   \r\n") << runde << ": " << inhalt();
    }
}

} // namespace

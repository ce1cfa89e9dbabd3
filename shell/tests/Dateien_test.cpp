#include "shell/logic/Dateien.h"
#include "testhilfen/Kindprozess.h"
#include "testhilfen/Pruefordner.h"

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

fs::perms rechte(const fs::path& datei)
{
    return fs::status(datei).permissions();
}

TEST(SchreibeDatei, LegtNeueDateiAn)
{
    const Pruefordner ordner;
    EXPECT_TRUE(schreibeDatei(ordner / "neu.txt", std::string_view("a\0\r\nb", 5)));
    EXPECT_EQ(inhaltVon(ordner / "neu.txt"), std::string("a\0\r\nb", 5));
    EXPECT_EQ(ordner.eintraege(), 1U);
}

TEST(SchreibeDatei, NeueDateiFolgtDerRechtemaskeDesBenutzers)
{
    const Pruefordner ordner;
    const mode_t alte = ::umask(027);
    const DateiErgebnis ergebnis = schreibeDatei(ordner / "neu.txt", "x");
    ::umask(alte);
    ASSERT_TRUE(ergebnis);
    EXPECT_EQ(rechte(ordner / "neu.txt"), fs::perms(0640));
}

TEST(SchreibeDatei, ErsetztDieAlteUndBehaeltIhreRechte)
{
    const Pruefordner ordner;
    const fs::path datei = ordner.lege("da.txt", "ein langer alter Inhalt");
    fs::permissions(datei, fs::perms(0604));
    EXPECT_TRUE(schreibeDatei(datei, "neu"));
    EXPECT_EQ(inhaltVon(datei), "neu");
    EXPECT_EQ(rechte(datei), fs::perms(0604));
    EXPECT_EQ(ordner.eintraege(), 1U);
}

TEST(SchreibeDatei, GrosseUndKleineStueckeBleibenInIhrerFolge)
{
    const Pruefordner ordner;
    std::string soll;
    AtomareDatei datei(ordner / "stuecke.txt");
    for (const std::size_t laenge : {3U, 1'000'000U, 0U, 262'143U, 1U, 262'144U, 7U}) {
        const std::string stueck(laenge, static_cast<char>('a' + soll.size() % 26));
        EXPECT_TRUE(datei.schreibe(stueck));
        soll += stueck;
    }
    EXPECT_TRUE(datei.uebernimm());
    EXPECT_EQ(inhaltVon(ordner / "stuecke.txt"), soll);
}

TEST(SchreibeDatei, LeererInhaltGibtLeereDatei)
{
    const Pruefordner ordner;
    const fs::path datei = ordner.lege("da.txt", "alt");
    EXPECT_TRUE(schreibeDatei(datei, ""));
    EXPECT_EQ(fs::file_size(datei), 0U);
}

TEST(SchreibeDatei, SchreibgeschuetzteVerliertIhrenSchutz)
{
    const Pruefordner ordner;
    const fs::path datei = ordner.lege("fest.txt", "alt");
    fs::permissions(datei, fs::perms(0444));
    EXPECT_TRUE(schreibeDatei(datei, "neu"));
    EXPECT_EQ(inhaltVon(datei), "neu");
    EXPECT_EQ(rechte(datei), fs::perms(0644));
}

TEST(SchreibeDatei, GeachteterSchreibschutzLaesstSieStehen)
{
    const Pruefordner ordner;
    const fs::path datei = ordner.lege("fest.txt", "alt");
    fs::permissions(datei, fs::perms(0444));
    const DateiErgebnis ergebnis = schreibeDatei(datei, "neu", Schreibschutz::Achten);
    EXPECT_EQ(ergebnis.fehler, EACCES);
    EXPECT_EQ(inhaltVon(datei), "alt");
    EXPECT_EQ(ordner.eintraege(), 1U);
}

TEST(SchreibeDatei, EinOrdnerIstKeinZiel)
{
    const Pruefordner ordner;
    fs::create_directory(ordner / "unter");
    const DateiErgebnis ergebnis = schreibeDatei(ordner / "unter", "x");
    EXPECT_EQ(ergebnis.fehler, EISDIR);
    EXPECT_FALSE(ergebnis.meldung.empty());
    EXPECT_TRUE(fs::is_directory(ordner / "unter"));
    EXPECT_EQ(ordner.eintraege(), 1U);
}

TEST(SchreibeDatei, EinGeraetWirdNichtErsetzt)
{
    const DateiErgebnis ergebnis = schreibeDatei("/dev/full", "x");
    EXPECT_EQ(ergebnis.fehler, EINVAL);
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST(SchreibeDatei, FehlenderOrdnerIstEinFehler)
{
    const Pruefordner ordner;
    EXPECT_EQ(schreibeDatei(ordner / "fehlt/neu.txt", "x").fehler, ENOENT);
    EXPECT_EQ(ordner.eintraege(), 0U);
}

TEST(SchreibeDatei, LeererPfadIstEinFehler)
{
    EXPECT_FALSE(schreibeDatei("", "x"));
}

TEST(SchreibeDatei, OrdnerOhneSchreibrechtLaesstDieAlteStehen)
{
    const Pruefordner ordner;
    const fs::path datei = ordner.lege("da.txt", "alt");
    fs::permissions(ordner.pfad(), fs::perms(0555));
    const int fehler = imKindprozess([&] {
        constexpr uid_t kNiemand = 65534;
        if (::geteuid() == 0 && ::setuid(kNiemand) != 0) // root may write everywhere
            return 0;
        return schreibeDatei(datei, "neu").fehler;
    });
    EXPECT_EQ(fehler, EACCES);
    EXPECT_EQ(inhaltVon(datei), "alt");
    EXPECT_EQ(ordner.eintraege(), 1U);
}

TEST(SchreibeDatei, HinterEinerVerknuepfungWirdDasZielErsetzt)
{
    const Pruefordner ordner;
    const fs::path datei = ordner.lege("echt.txt", "alt");
    fs::create_symlink("echt.txt", ordner / "zeiger.txt");
    EXPECT_TRUE(schreibeDatei(ordner / "zeiger.txt", "neu"));
    EXPECT_TRUE(fs::is_symlink(ordner / "zeiger.txt"));
    EXPECT_EQ(inhaltVon(datei), "neu");
}

TEST(SchreibeDatei, NameOhneOrdnerLiegtImAktuellen)
{
    const Pruefordner ordner;
    const fs::path vorher = fs::current_path();
    fs::current_path(ordner.pfad());
    const DateiErgebnis ergebnis = schreibeDatei("hier.txt", "x");
    fs::current_path(vorher);
    EXPECT_TRUE(ergebnis);
    EXPECT_EQ(inhaltVon(ordner / "hier.txt"), "x");
}

TEST(SchreibeDatei, FremdeVorlaeufigeDateiWirdNichtAngeruehrt)
{
    const Pruefordner ordner;
    const fs::path fremde = ordner.lege(".neu-" + std::to_string(::getpid()) + "-0.tmp", "fremd");
    EXPECT_TRUE(schreibeDatei(ordner / "neu.txt", "x"));
    EXPECT_EQ(inhaltVon(fremde), "fremd");
    EXPECT_EQ(ordner.eintraege(), 2U);
}

/// Writes where files may not grow beyond `grenze` bytes: as on a full disk, the write fails halfway.
int schreibeMitGrenze(const fs::path& ziel, std::size_t bytes, rlim_t grenze)
{
    return imKindprozess([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit schranke{grenze, grenze};
        ::setrlimit(RLIMIT_FSIZE, &schranke);
        return schreibeDatei(ziel, std::string(bytes, 'n')).fehler;
    });
}

TEST(SchreibeDatei, VolleScheibeLaesstDieAlteStehenUndRaeumtAuf)
{
    const Pruefordner ordner;
    const fs::path datei = ordner.lege("da.txt", "alt");
    EXPECT_EQ(schreibeMitGrenze(datei, 100'000, 4096), EFBIG);
    EXPECT_EQ(inhaltVon(datei), "alt");
    EXPECT_EQ(schreibeMitGrenze(datei, 2'000'000, 500'000), EFBIG);
    EXPECT_EQ(inhaltVon(datei), "alt");
    EXPECT_EQ(ordner.eintraege(), 1U);
    EXPECT_EQ(schreibeMitGrenze(datei, 4096, 4096), 0);
    EXPECT_EQ(inhaltVon(datei), std::string(4096, 'n'));
}

TEST(AtomareDatei, StueckeWerdenEineDatei)
{
    const Pruefordner ordner;
    AtomareDatei datei(ordner / "gross.txt");
    std::string erwartet;
    for (int i = 0; i < 100'000; ++i) {
        const std::string zeile = std::to_string(i) + "\r\n";
        ASSERT_TRUE(datei.schreibe(zeile));
        erwartet += zeile;
    }
    EXPECT_FALSE(fs::exists(ordner / "gross.txt"));
    EXPECT_TRUE(datei.uebernimm());
    EXPECT_EQ(inhaltVon(ordner / "gross.txt"), erwartet);
}

TEST(AtomareDatei, OhneUebernahmeBleibtNichtsZurueck)
{
    const Pruefordner ordner;
    const fs::path ziel = ordner.lege("da.txt", "alt");
    {
        AtomareDatei datei(ziel);
        EXPECT_TRUE(datei.schreibe("halb"));
        EXPECT_EQ(ordner.eintraege(), 2U);
    }
    EXPECT_EQ(inhaltVon(ziel), "alt");
    EXPECT_EQ(ordner.eintraege(), 1U);
}

TEST(AtomareDatei, NachDerUebernahmeIstSchluss)
{
    const Pruefordner ordner;
    AtomareDatei datei(ordner / "neu.txt");
    EXPECT_TRUE(datei.schreibe("x"));
    EXPECT_TRUE(datei.uebernimm());
    EXPECT_FALSE(datei.schreibe("y"));
    EXPECT_FALSE(datei.uebernimm());
    EXPECT_EQ(inhaltVon(ordner / "neu.txt"), "x");
}

TEST(AtomareDatei, NachEinemFehlerSchreibtSieNichtsMehr)
{
    const Pruefordner ordner;
    AtomareDatei datei(ordner / "fehlt/neu.txt");
    EXPECT_FALSE(datei.schreibe("x"));
    EXPECT_EQ(datei.ergebnis().fehler, ENOENT);
    EXPECT_EQ(datei.uebernimm().fehler, ENOENT);
}

TEST(AtomareDatei, ZweiZugleichImSelbenOrdner)
{
    const Pruefordner ordner;
    AtomareDatei eins(ordner / "eins.txt");
    AtomareDatei zwei(ordner / "zwei.txt");
    eins.schreibe("1");
    zwei.schreibe("2");
    EXPECT_TRUE(zwei.uebernimm());
    EXPECT_TRUE(eins.uebernimm());
    EXPECT_EQ(inhaltVon(ordner / "eins.txt"), "1");
    EXPECT_EQ(inhaltVon(ordner / "zwei.txt"), "2");
}

TEST(KopiereDatei, ErsetztDasZielGanz)
{
    const Pruefordner ordner;
    const std::string viel(300'000, 'v');
    const fs::path ziel = ordner.lege("ziel", std::string(400'000, 'a'));
    fs::permissions(ziel, fs::perms(0400));
    EXPECT_TRUE(kopiereDatei(ordner.lege("quelle", viel), ziel));
    EXPECT_EQ(inhaltVon(ziel), viel);
    EXPECT_EQ(ordner.eintraege(), 2U);
}

TEST(KopiereDatei, OhneQuelleBleibtDasZiel)
{
    const Pruefordner ordner;
    const fs::path ziel = ordner.lege("ziel", "alt");
    EXPECT_FALSE(kopiereDatei(ordner / "fehlt", ziel));
    EXPECT_FALSE(kopiereDatei(ordner.pfad(), ziel));
    EXPECT_EQ(inhaltVon(ziel), "alt");
    EXPECT_EQ(ordner.eintraege(), 1U);
}

TEST(GleicherInhalt, VergleichtJedesByte)
{
    const Pruefordner ordner;
    const std::string viel(200'000, 'v');
    const fs::path a = ordner.lege("a", viel);
    EXPECT_TRUE(gleicherInhalt(a, ordner.lege("b", viel)));
    EXPECT_FALSE(gleicherInhalt(a, ordner.lege("c", viel + "x")));
    EXPECT_FALSE(gleicherInhalt(a, ordner.lege("d", viel.substr(1) + "x")));
    EXPECT_TRUE(gleicherInhalt(ordner.lege("e", ""), ordner.lege("f", "")));
    EXPECT_FALSE(gleicherInhalt(a, ordner / "fehlt"));
    EXPECT_FALSE(gleicherInhalt(ordner / "fehlt", ordner / "fehlt"));
}

TEST(FindeDatei, GenauerNameGehtVor)
{
    const Pruefordner ordner;
    ordner.lege("SALOTTO.DAT", "gross");
    ordner.lege("Salotto.dat", "gemischt");
    EXPECT_EQ(findeDatei(ordner.pfad(), "Salotto.dat"), ordner / "Salotto.dat");
    EXPECT_EQ(findeDatei(ordner.pfad(), "SALOTTO.DAT"), ordner / "SALOTTO.DAT");
}

TEST(FindeDatei, AndereSchreibungDesNamens)
{
    const Pruefordner ordner;
    ordner.lege("Salotto.dat", "x");
    ordner.lege("Grüße.txt", "x");
    EXPECT_EQ(findeDatei(ordner.pfad(), "SALOTTO.DAT"), ordner / "Salotto.dat");
    EXPECT_EQ(findeDatei(ordner.pfad(), "GRÜSSE.TXT"), ordner / "GRÜSSE.TXT");
    EXPECT_EQ(findeDatei(ordner.pfad(), "GRÜßE.TXT"), ordner / "Grüße.txt");
}

TEST(FindeDatei, VonMehrerenDieErsteNachBytes)
{
    const Pruefordner ordner;
    ordner.lege("salotto.dat", "x");
    ordner.lege("SaLotto.dat", "x");
    EXPECT_EQ(findeDatei(ordner.pfad(), "SALOTTO.DAT"), ordner / "SaLotto.dat");
}

TEST(FindeDatei, FehlendeBekommtIhrenNamen)
{
    const Pruefordner ordner;
    EXPECT_EQ(findeDatei(ordner.pfad(), "NEU.DAT"), ordner / "NEU.DAT");
    EXPECT_EQ(findeDatei(ordner / "fehlt", "NEU.DAT"), ordner / "fehlt/NEU.DAT");
}

TEST(MitTrenner, GenauEinTrennerAmEnde)
{
    EXPECT_EQ(mitTrenner("/home/anna"), "/home/anna/");
    EXPECT_EQ(mitTrenner("/home/anna/"), "/home/anna/");
    EXPECT_EQ(mitTrenner("/"), "/");
    EXPECT_EQ(mitTrenner(""), "");
}

} // namespace

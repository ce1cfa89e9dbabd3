#include "archive/logic/Onlineaktualisierung.h"
#include "archive/logic/Onlinetexte.h"
#include "archive/logic/Ziehungsdatei.h"
#include "archive/logic/clsDownload.h"
#include "archive/tests/Probeinternet.h"
#include "archive/tests/Testsaetze.h"
#include "shell/logic/Dateisperre.h"
#include "testhilfen/Kindprozess.h"
#include "testhilfen/Pruefordner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

namespace {

namespace fs = std::filesystem;
using testing::UnorderedElementsAre;

/// One update around a transfer from memory.
class Aktualisierung : public testing::Test {
protected:
    Onlineausgang hole(Onlineaufgabe aufgabe, const std::string& name, std::optional<std::string> inhalt)
    {
        Onlineaktualisierung aktualisierung(aufgabe, programm.pfad(), ziel());
        if (!aktualisierung.beginne())
            return Onlineausgang::KeineNeue;
        const fs::path empfang = aktualisierung.empfangsordner();
        const Onlineausgang ausgang = aktualisierung.schliesseAb(empfange(aktualisierung, name, std::move(inhalt)));
        EXPECT_FALSE(fs::exists(empfang)) << "a box may stand before the update itself is gone";
        return ausgang;
    }
    std::int32_t empfange(const Onlineaktualisierung& aktualisierung, const std::string& name,
                          std::optional<std::string> inhalt)
    {
        Probeinternet netz;
        netz.sendet = inhalt.has_value();
        netz.rumpf = inhalt.value_or("");
        clsDownload dl(netz, {[] { return 0; }, [] { return false; }, [] {}});
        dl.Download("http://h/lotto/" + name, aktualisierung.empfangsordner());
        if (beiEmpfang)
            beiEmpfang();
        return dl.ReceivedBytes();
    }
    fs::path ziel() const { return woanders.empty() ? programm.pfad() : woanders; }
    std::set<std::string> namen() const
    {
        std::set<std::string> alle;
        for (const auto& eintrag : fs::directory_iterator(programm.pfad()))
            alle.insert(eintrag.path().filename().string());
        return alle;
    }
    std::string inhalt(std::string_view name) const { return inhaltVon(programm / name); }

    Pruefordner programm;
    fs::path woanders;
    std::function<void()> beiEmpfang;
};

const std::string kAlt = testsaetze(100);
const std::string kNeu = testsaetze(101);
/// What a server sends instead of a file.
const std::string kSeite = "<html><head><title>404 Not Found</title></head><body>weg</body></html>\r\n";

/// The number of a process that is no more.
pid_t beendeterProzess()
{
    const pid_t kind = ::fork();
    if (kind == 0)
        ::_exit(0);
    ::waitpid(kind, nullptr, 0);
    return kind;
}

TEST_F(Aktualisierung, EineNeuereDateiNimmtDenPlatzDerAlten)
{
    programm.lege("SALOTTO.DAT", kAlt);
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", kNeu), Onlineausgang::Uebernommen);
    EXPECT_EQ(inhalt("SALOTTO.DAT"), kNeu);
    EXPECT_EQ(inhalt("SALOTTO.DAT.alt"), kAlt);
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT", "SALOTTO.DAT.alt"));
}

TEST_F(Aktualisierung, DerMittwochHatSeineEigenenNamen)
{
    programm.lege("SALOTTO.DAT", kAlt);
    programm.lege("MALOTTO.DAT", kAlt);
    beiEmpfang = [this] { EXPECT_EQ(inhalt("Malotto-kopie.dat"), kAlt); };
    EXPECT_EQ(hole(Onlineaufgabe::Mittwoch, "Malotto.dat", kNeu), Onlineausgang::Uebernommen);
    EXPECT_EQ(inhalt("MALOTTO.DAT"), kNeu);
    EXPECT_EQ(inhalt("SALOTTO.DAT"), kAlt);
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT", "MALOTTO.DAT", "MALOTTO.DAT.alt"));
}

TEST_F(Aktualisierung, WaehrendDesEmpfangsLiegenDateiUndKopieDa)
{
    programm.lege("SALOTTO.DAT", kAlt);
    beiEmpfang = [this] {
        EXPECT_EQ(inhalt("SALOTTO.DAT"), kAlt);
        EXPECT_EQ(inhalt("Salotto-kopie.dat"), kAlt);
    };
    hole(Onlineaufgabe::Samstag, "Salotto.dat", kNeu);
}

TEST_F(Aktualisierung, GleichVieleZiehungenGelten)
{
    programm.lege("SALOTTO.DAT", kAlt);
    const std::string andere = testsaetze(100, 1960);
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", andere), Onlineausgang::Uebernommen);
    EXPECT_EQ(inhalt("SALOTTO.DAT"), andere);
    EXPECT_FALSE(fs::exists(programm / "Salotto-kopie.dat"));
}

TEST_F(Aktualisierung, WenigerZiehungenWerdenAbgewiesen)
{
    programm.lege("SALOTTO.DAT", kAlt);
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", testsaetze(99)), Onlineausgang::Abgewiesen);
    EXPECT_EQ(inhalt("SALOTTO.DAT"), kAlt);
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT"));
}

TEST_F(Aktualisierung, UnlesbaresWirdAbgewiesen)
{
    programm.lege("SALOTTO.DAT", kAlt);
    const std::string neu = testsaetze(5000);
    for (const std::string& unsinn : {std::string("<html>Fehler</html>"), neu.substr(0, neu.size() - 5),
                                      neu + "1955,xx\r\n", std::string(100'000, '\0'), testsaetze(32'768)}) {
        EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", unsinn), Onlineausgang::Abgewiesen);
        EXPECT_EQ(inhalt("SALOTTO.DAT"), kAlt);
        EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT"));
    }
}

TEST_F(Aktualisierung, EineUnlesbareAlteDateiZaehltNull)
{
    programm.lege("SALOTTO.DAT", "kaputt");
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", testsaetze(1)), Onlineausgang::Uebernommen);
    EXPECT_EQ(inhalt("SALOTTO.DAT.alt"), "kaputt");
}

TEST_F(Aktualisierung, OhneAlteDateiWirdKeineKopieGemacht)
{
    beiEmpfang = [this] { EXPECT_FALSE(fs::exists(programm / "Salotto-kopie.dat")); };
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", std::nullopt), Onlineausgang::KeineNeue);
    EXPECT_THAT(namen(), UnorderedElementsAre());
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", "unsinn"), Onlineausgang::Abgewiesen);
    EXPECT_THAT(namen(), UnorderedElementsAre());
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", kNeu), Onlineausgang::Uebernommen);
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT"));
}

TEST_F(Aktualisierung, OhneServerBleibtDieDatei)
{
    programm.lege("SALOTTO.DAT", kAlt);
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", std::nullopt), Onlineausgang::KeineNeue);
    EXPECT_EQ(inhalt("SALOTTO.DAT"), kAlt);
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT"));
}

TEST_F(Aktualisierung, EineStehengebliebeneKopieWirdVorherErsetzt)
{
    programm.lege("SALOTTO.DAT", kAlt);
    fs::permissions(programm.lege("Salotto-kopie.dat", "uralt"), fs::perms(0400));
    beiEmpfang = [this] { EXPECT_EQ(inhalt("Salotto-kopie.dat"), kAlt); };
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", kNeu), Onlineausgang::Uebernommen);
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT", "SALOTTO.DAT.alt"));
    EXPECT_EQ(inhalt("SALOTTO.DAT.alt"), kAlt);
}

TEST_F(Aktualisierung, FehltDieDateiNimmtDieStehengebliebeneKopieIhrenPlatz)
{
    programm.lege("Salotto-kopie.dat", kAlt);
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", std::nullopt), Onlineausgang::KeineNeue);
    EXPECT_EQ(inhalt("SALOTTO.DAT"), kAlt);
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT"));
}

TEST_F(Aktualisierung, EinAnderesZielverzeichnisLaesstDieEigeneDatei)
{
    const Pruefordner anderer;
    woanders = anderer.pfad();
    programm.lege("SALOTTO.DAT", kAlt);
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", kNeu), Onlineausgang::KeineNeue);
    EXPECT_EQ(inhalt("SALOTTO.DAT"), kAlt);
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT"));
    EXPECT_EQ(inhaltVon(anderer / "Salotto.dat"), kNeu);
    EXPECT_EQ(anderer.eintraege(), 1U);
}

TEST_F(Aktualisierung, ImAnderenZielverzeichnisWirdEineZiehungsdateiNurNachDerPruefungErsetzt)
{
    const Pruefordner anderer;
    woanders = anderer.pfad();
    anderer.lege("SALOTTO.DAT", kAlt);
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", kSeite), Onlineausgang::Abgewiesen);
    EXPECT_EQ(inhaltVon(anderer / "SALOTTO.DAT"), kAlt);
    EXPECT_EQ(anderer.eintraege(), 1U);
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", kNeu), Onlineausgang::KeineNeue);
    EXPECT_EQ(inhaltVon(anderer / "SALOTTO.DAT"), kNeu);
    EXPECT_EQ(inhaltVon(anderer / "SALOTTO.DAT.alt"), kAlt);
    EXPECT_EQ(anderer.eintraege(), 2U);
}

TEST_F(Aktualisierung, ImAnderenZielverzeichnisWeichtEineUnlesbareZiehungsdateiNurEinerLesbaren)
{
    const Pruefordner anderer;
    woanders = anderer.pfad();
    anderer.lege("SALOTTO.DAT", "kaputt");
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", kSeite), Onlineausgang::Abgewiesen);
    EXPECT_EQ(inhaltVon(anderer / "SALOTTO.DAT"), "kaputt");
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", kNeu), Onlineausgang::KeineNeue);
    EXPECT_EQ(inhaltVon(anderer / "SALOTTO.DAT"), kNeu);
    EXPECT_EQ(inhaltVon(anderer / "SALOTTO.DAT.alt"), "kaputt");
}

TEST_F(Aktualisierung, NachEinemAnderenZielverzeichnisIstAufgeraeumt)
{
    const Pruefordner anderer;
    woanders = anderer.pfad();
    const std::string rest = ".neu-" + std::to_string(beendeterProzess()) + "-0";
    programm.lege("SALOTTO.DAT", kAlt);
    for (const auto& neuer : {std::optional(kNeu), std::optional<std::string>()}) {
        for (const fs::path& ordner : {programm.pfad(), anderer.pfad()}) {
            fs::create_directory(ordner / rest);
            fs::copy_file(programm / "SALOTTO.DAT", ordner / rest / "Salotto.dat");
        }
        beiEmpfang = [&] {
            EXPECT_FALSE(fs::exists(anderer / rest));
            EXPECT_FALSE(fs::exists(programm / rest));
            EXPECT_EQ(inhalt("Salotto-kopie.dat"), kAlt);
        };
        EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", neuer), Onlineausgang::KeineNeue);
        EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT"));
        EXPECT_EQ(anderer.eintraege(), 1U);
        EXPECT_EQ(inhaltVon(anderer / "Salotto.dat"), kNeu);
    }
}

TEST_F(Aktualisierung, DieDateiEinesAnderenSpielsWirdGeprueft)
{
    for (const Onlineaufgabe aufgabe : {Onlineaufgabe::Zip, Onlineaufgabe::Samstag, Onlineaufgabe::Mittwoch}) {
        for (const char* name : {"mblotto.dat", "MBLOTTO.DAT", "MbLotto.Dat", "%4dBLOTTO.dat"}) {
            SCOPED_TRACE(name);
            programm.lege("MBLOTTO.DAT", kNeu);
            programm.lege("MBLOTTO.DAT.alt", kAlt);
            for (const std::string& schlechter : {kSeite, kAlt, std::string("PK")}) {
                EXPECT_EQ(hole(aufgabe, name, schlechter), Onlineausgang::Abgewiesen);
                EXPECT_EQ(inhalt("MBLOTTO.DAT"), kNeu);
                EXPECT_EQ(inhalt("MBLOTTO.DAT.alt"), kAlt);
            }
            EXPECT_THAT(namen(), UnorderedElementsAre("MBLOTTO.DAT", "MBLOTTO.DAT.alt"));
        }
    }
}

TEST_F(Aktualisierung, DieBestandeneDateiEinesAnderenSpielsNimmtDessenPlatz)
{
    programm.lege("SALOTTO.DAT", kAlt);
    programm.lege("Malotto.dat", kAlt);
    for (int mal = 0; mal < 2; ++mal) {
        EXPECT_EQ(hole(Onlineaufgabe::Samstag, "malotto.dat", kNeu), Onlineausgang::KeineNeue);
        EXPECT_EQ(inhalt("SALOTTO.DAT"), kAlt);
        EXPECT_EQ(inhalt("MALOTTO.DAT"), kNeu);
        EXPECT_EQ(inhalt("MALOTTO.DAT.alt"), kAlt);
        EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT", "MALOTTO.DAT", "MALOTTO.DAT.alt"));
    }
}

TEST_F(Aktualisierung, AuchWoKeineLagWirdKeineUnlesbareZiehungsdateiHingelegt)
{
    programm.lege("SALOTTO.DAT", kAlt);
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "malotto.dat", kSeite), Onlineausgang::Abgewiesen);
    EXPECT_EQ(hole(Onlineaufgabe::Zip, "malotto.dat", kSeite), Onlineausgang::Abgewiesen);
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT"));
    EXPECT_EQ(hole(Onlineaufgabe::Zip, "malotto.dat", kNeu), Onlineausgang::KeineNeue);
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT", "MALOTTO.DAT"));
}

TEST_F(Aktualisierung, ZiehungenUnterAnderemNamenWerdenGeprueft)
{
    programm.lege("SALOTTO.DAT", kAlt);
    programm.lege("meine.txt", kAlt);
    fs::create_symlink(programm / "SALOTTO.DAT", programm / "verweis.txt");
    for (const char* name : {"meine.txt", "MEINE.TXT", "verweis.txt"}) {
        EXPECT_EQ(hole(Onlineaufgabe::Zip, name, kSeite), Onlineausgang::Abgewiesen);
        EXPECT_EQ(inhalt("SALOTTO.DAT"), kAlt);
        EXPECT_EQ(inhalt("meine.txt"), kAlt);
        EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT", "meine.txt", "verweis.txt"));
    }
}

TEST_F(Aktualisierung, UnterDieNamenMitDenenDasProgrammArbeitetKommtNichts)
{
    programm.lege("SALOTTO.DAT", kAlt);
    programm.lege("SALOTTO.DAT.alt", kAlt);
    for (const char* name : {"SALOTTO.DAT.alt", "salotto.dat.ALT", "malotto.dat.alt", "Salotto-kopie.dat",
                             "MALOTTO-KOPIE.DAT", "ziehungen-kopie.zip", ".tombrix-sperre", ".neu-1-0"}) {
        SCOPED_TRACE(name);
        for (const std::string& datei : {kSeite, kNeu})
            EXPECT_EQ(hole(Onlineaufgabe::Samstag, name, datei), Onlineausgang::Abgewiesen);
        EXPECT_EQ(inhalt("SALOTTO.DAT"), kAlt);
        EXPECT_EQ(inhalt("SALOTTO.DAT.alt"), kAlt);
        EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT", "SALOTTO.DAT.alt"));
    }
    fs::remove(programm / "SALOTTO.DAT");
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto-kopie.dat", kSeite), Onlineausgang::Abgewiesen);
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT.alt"));
}

TEST_F(Aktualisierung, EtwasAnderesWirdErsetztUndBleibtBeliebigOftErhalten)
{
    programm.lege("notizen.txt", "meine Notizen");
    for (const char* seite : {"eins", "eins", "zwei", "drei"}) {
        EXPECT_EQ(hole(Onlineaufgabe::Zip, "notizen.txt", seite), Onlineausgang::KeineNeue);
        EXPECT_EQ(inhalt("notizen.txt"), seite);
        EXPECT_EQ(inhalt("notizen.txt.alt"), "meine Notizen");
    }
}

TEST_F(Aktualisierung, EineUnlesbareDateiErsetztDieSicherungNicht)
{
    programm.lege("SALOTTO.DAT.alt", kAlt);
    for (const char* kaputte : {"kaputt", "\r\n \r\n"}) {
        programm.lege("SALOTTO.DAT", kaputte);
        EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", kNeu), Onlineausgang::Uebernommen);
        EXPECT_EQ(inhalt("SALOTTO.DAT"), kNeu);
        EXPECT_EQ(inhalt("SALOTTO.DAT.alt"), kAlt);
    }
}

TEST_F(Aktualisierung, EineAufgegebeneUebertragungLaesstDieAlteDatei)
{
    programm.lege("SALOTTO.DAT", kAlt);
    programm.lege("ziehungen.zip", "PK1");
    const auto gibAuf = [this](Onlineaufgabe aufgabe, const std::string& name) {
        Onlineaktualisierung aktualisierung(aufgabe, programm.pfad(), programm.pfad());
        EXPECT_TRUE(aktualisierung.beginne());
        empfange(aktualisierung, name, kNeu);
        return aktualisierung.schliesseAb(std::nullopt);
    };
    EXPECT_EQ(gibAuf(Onlineaufgabe::Samstag, "Salotto.dat"), Onlineausgang::Abgewiesen);
    EXPECT_EQ(gibAuf(Onlineaufgabe::Samstag, "Malotto.dat"), Onlineausgang::Abgewiesen);
    EXPECT_EQ(gibAuf(Onlineaufgabe::Zip, "ziehungen.zip"), Onlineausgang::KeineNeue);
    EXPECT_EQ(gibAuf(Onlineaufgabe::Zip, "sonstwas.txt"), Onlineausgang::KeineNeue);
    EXPECT_EQ(inhalt("SALOTTO.DAT"), kAlt);
    EXPECT_EQ(inhalt("ziehungen.zip"), "PK1");
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT", "ziehungen.zip"));
}

/// An update that meets another writer.
class AktualisierungZuZweit : public Aktualisierung {
protected:
    void SetUp() override { programm.lege("SALOTTO.DAT", kAlt); }

    std::optional<Dateisperre> sperre() const { return Dateisperre::nimm(programm / "SALOTTO.DAT", {}); }
    /// One update to `kNeu`; `beimWarten` is what it does while the other one writes.
    Onlineausgang hole(const std::function<bool()>& beimWarten)
    {
        Onlineaktualisierung aktualisierung(Onlineaufgabe::Samstag, programm.pfad(), programm.pfad());
        EXPECT_TRUE(aktualisierung.beginne());
        return aktualisierung.schliesseAb(empfange(aktualisierung, "Salotto.dat", kNeu), beimWarten);
    }
};

TEST_F(AktualisierungZuZweit, WaehrendDerUebertragungDarfEinAndererSchreiben)
{
    beiEmpfang = [this] { EXPECT_TRUE(sperre()); };
    EXPECT_EQ(hole({}), Onlineausgang::Uebernommen);
    EXPECT_TRUE(sperre());
}

TEST_F(AktualisierungZuZweit, SchreibtEinAndererBleibtDieDatei)
{
    const auto fremde = sperre();
    ASSERT_TRUE(fremde);
    EXPECT_EQ(hole([] { return false; }), Onlineausgang::Besetzt);
    EXPECT_EQ(inhalt("SALOTTO.DAT"), kAlt);
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT"));
}

TEST_F(AktualisierungZuZweit, SieWartetKurz)
{
    auto fremde = sperre();
    int gewartet = 0;
    EXPECT_EQ(hole([&] {
                  if (++gewartet == 3)
                      fremde.reset();
                  return true;
              }),
              Onlineausgang::Uebernommen);
    EXPECT_EQ(gewartet, 3);
    EXPECT_EQ(inhalt("SALOTTO.DAT"), kNeu);
}

TEST_F(AktualisierungZuZweit, EsZaehltWasDannInDerDateiSteht)
{
    auto fremde = sperre();
    const std::string laengere = testsaetze(102);
    EXPECT_EQ(hole([&] {
                  programm.lege("SALOTTO.DAT", laengere);
                  fremde.reset();
                  return true;
              }),
              Onlineausgang::Abgewiesen);
    EXPECT_EQ(inhalt("SALOTTO.DAT"), laengere);
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT"));
}

TEST_F(AktualisierungZuZweit, IstDieDateiInzwischenWegZaehltIhreKopie)
{
    const std::string laengere = testsaetze(102);
    programm.lege("SALOTTO.DAT", laengere);
    beiEmpfang = [this] { fs::remove(programm / "SALOTTO.DAT"); };
    EXPECT_EQ(hole({}), Onlineausgang::Abgewiesen);
    EXPECT_EQ(inhalt("SALOTTO.DAT"), laengere);
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT"));
}

TEST_F(Aktualisierung, DieselbeDateiNocheinmalLaesstDieSicherungStehen)
{
    programm.lege("SALOTTO.DAT", kNeu);
    programm.lege("SALOTTO.DAT.alt", kAlt);
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", kNeu), Onlineausgang::Uebernommen);
    EXPECT_EQ(inhalt("SALOTTO.DAT.alt"), kAlt);
}

TEST_F(Aktualisierung, DerNameStehtAmEndeInGrossbuchstaben)
{
    programm.lege("Salotto.dat", kAlt);
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "salotto.DAT", kNeu), Onlineausgang::Uebernommen);
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT", "SALOTTO.DAT.alt"));
    EXPECT_EQ(inhalt("SALOTTO.DAT"), kNeu);
}

TEST_F(Aktualisierung, HinterEinerVerknuepfungWirdDieDateiErsetztAufDieSieZeigt)
{
    const Pruefordner anderer;
    fs::create_symlink(anderer.lege("echt.dat", kAlt), programm / "SALOTTO.DAT");
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", kNeu), Onlineausgang::Uebernommen);
    EXPECT_TRUE(fs::is_symlink(programm / "SALOTTO.DAT"));
    EXPECT_EQ(inhaltVon(anderer / "echt.dat"), kNeu);
    EXPECT_EQ(inhalt("SALOTTO.DAT.alt"), kAlt);
}

TEST_F(Aktualisierung, SchreibgeschuetzteDateienWerdenErsetzt)
{
    fs::permissions(programm.lege("SALOTTO.DAT", kAlt), fs::perms(0444));
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", kNeu), Onlineausgang::Uebernommen);
    EXPECT_EQ(inhalt("SALOTTO.DAT"), kNeu);
}

TEST_F(Aktualisierung, ImSchreibgeschuetztenOrdnerBeginntSieNicht)
{
    programm.lege("SALOTTO.DAT", kAlt);
    programm.lege("Salotto-kopie.dat", "uralt");
    fs::permissions(programm.pfad(), fs::perms(0555));
    EXPECT_EQ(imKindprozess([this] {
                  Onlineaktualisierung eine(Onlineaufgabe::Samstag, programm.pfad(), programm.pfad());
                  return werdeGewoehnlich() && !eine.beginne() ? 0 : 1;
              }),
              0);
    EXPECT_EQ(inhalt("SALOTTO.DAT"), kAlt);
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT", "Salotto-kopie.dat"));
}

TEST_F(Aktualisierung, IstNurDerProgrammordnerGeschuetztKommtDieDateiWoandersAn)
{
    const Pruefordner anderer;
    programm.lege("SALOTTO.DAT", kAlt);
    fs::permissions(programm.pfad(), fs::perms(0555));
    fs::permissions(anderer.pfad(), fs::perms(0777));
    woanders = anderer.pfad();
    EXPECT_EQ(imKindprozess([this] {
                  return werdeGewoehnlich() ? static_cast<int>(hole(Onlineaufgabe::Samstag, "Salotto.dat", kNeu)) : 9;
              }),
              static_cast<int>(Onlineausgang::KeineNeue));
    EXPECT_EQ(inhalt("SALOTTO.DAT"), kAlt);
    EXPECT_EQ(inhaltVon(anderer / "Salotto.dat"), kNeu);
}

/// As on a disk that is full at every possible moment: whatever fails, the old file or the whole new one is there.
TEST_F(Aktualisierung, EineVolleFestplatteKostetKeineDatei)
{
    const std::string alt = testsaetze(300);
    const std::string neu = testsaetze(320);
    for (const rlim_t grenze : {0U, 1U, 5000U, 9599U, 9600U, 9601U, 10'000U, 10'239U, 10'240U}) {
        SCOPED_TRACE(grenze);
        programm.lege("SALOTTO.DAT", alt);
        fs::remove(programm / "SALOTTO.DAT.alt");
        const int ausgang = imKindprozess([&] {
            return begrenzeDateien(grenze) ? static_cast<int>(hole(Onlineaufgabe::Samstag, "Salotto.dat", neu)) : 9;
        });
        const bool passt = grenze >= neu.size();
        EXPECT_EQ(ausgang, static_cast<int>(passt ? Onlineausgang::Uebernommen : Onlineausgang::Abgewiesen));
        EXPECT_TRUE(inhalt("SALOTTO.DAT") == (passt ? neu : alt));
        EXPECT_EQ(fs::exists(programm / "SALOTTO.DAT.alt"), passt);
        EXPECT_FALSE(fs::exists(programm / "Salotto-kopie.dat"));
        EXPECT_EQ(programm.eintraege(), passt ? 2U : 1U);
    }
}

TEST_F(Aktualisierung, OhneSicherungWirdNichtsErsetzt)
{
    programm.lege("SALOTTO.DAT", kAlt);
    fs::create_directories(programm / "SALOTTO.DAT.alt" / "belegt");
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "Salotto.dat", kNeu), Onlineausgang::Abgewiesen);
    EXPECT_EQ(inhalt("SALOTTO.DAT"), kAlt);
}

TEST_F(Aktualisierung, DasZipWirdWederGeprueftNochEntpackt)
{
    EXPECT_EQ(hole(Onlineaufgabe::Zip, "ziehungen.zip", "PK1"), Onlineausgang::Uebernommen);
    EXPECT_THAT(namen(), UnorderedElementsAre("ziehungen.zip"));
    EXPECT_EQ(hole(Onlineaufgabe::Zip, "ziehungen.zip", "PK2"), Onlineausgang::Uebernommen);
    EXPECT_EQ(inhalt("ziehungen.zip"), "PK2");
    EXPECT_EQ(inhalt("ziehungen-kopie.zip"), "PK1");
    EXPECT_EQ(hole(Onlineaufgabe::Zip, "ziehungen.zip", "PK3"), Onlineausgang::Uebernommen);
    EXPECT_EQ(inhalt("ziehungen-kopie.zip"), "PK2");
    EXPECT_THAT(namen(), UnorderedElementsAre("ziehungen.zip", "ziehungen-kopie.zip"));
}

TEST_F(Aktualisierung, OhneNeuesZipBleibtDasAlteUndDieKopieGeht)
{
    programm.lege("ziehungen.zip", "PK2");
    programm.lege("ziehungen-kopie.zip", "PK1");
    EXPECT_EQ(hole(Onlineaufgabe::Zip, "ziehungen.zip", std::nullopt), Onlineausgang::KeineNeue);
    EXPECT_EQ(inhalt("ziehungen.zip"), "PK2");
    EXPECT_THAT(namen(), UnorderedElementsAre("ziehungen.zip"));
}

TEST_F(Aktualisierung, RestlicheEmpfangsordnerEinesAbgebrochenenLaufsGehenWeg)
{
    programm.lege("SALOTTO.DAT", kAlt);
    fs::create_directory(programm / (".neu-" + std::to_string(beendeterProzess()) + "-0"));
    hole(Onlineaufgabe::Samstag, "Salotto.dat", kNeu);
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT", "SALOTTO.DAT.alt"));
}

ZiehungsArchiv archivMit(std::int16_t spielart, const Pruefordner& ordner)
{
    ZiehungsArchiv archiv;
    archiv.Spielart = spielart;
    archiv.ProgrammVerzeichnis = ordner.pfad().string();
    LadeZiehungsdatei(archiv, {});
    return archiv;
}

TEST(Erfolgsmeldung, NenntDieLetzteSamstagsziehung)
{
    const Pruefordner ordner;
    ordner.lege("SALOTTO.DAT", "1955,41,03,12,13,16,23,41,00,5\r\n");
    EXPECT_EQ(erfolgsmeldung(archivMit(Samstagslotto, ordner)),
              (Meldung{"Lotto-Aktualisieren-Nachricht", "Letzte eingetragene Samstags-Ziehung: \nSo, "
                                                        "09.10.1955\n1955/41 ->  3, 12, 13, 16, 23, 41  SZ:  5"}));
}

TEST(Erfolgsmeldung, HatAmMittwochZweiLeerzeichenMehr)
{
    const Pruefordner ordner;
    ordner.lege("MALOTTO.DAT", "1986,23,01,02,03,04,05,49,07,0\r\n");
    EXPECT_EQ(erfolgsmeldung(archivMit(Mittwochslotto, ordner)),
              (Meldung{"Lotto-Aktualisieren-Nachricht", "Letzte eingetragene Mittwochs-Ziehung: \nMi, "
                                                        "04.06.1986\n1986/23 ->   1,  2,  3,  4,  5, 49   SZ:  0"}));
}

} // namespace

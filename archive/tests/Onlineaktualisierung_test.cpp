#include "archive/logic/Onlineaktualisierung.h"
#include "archive/logic/Ziehungsdatei.h"
#include "archive/logic/clsDownload.h"
#include "archive/tests/Probeinternet.h"
#include "archive/tests/Testsaetze.h"
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
        return aktualisierung.schliesseAb(empfange(aktualisierung, name, std::move(inhalt)));
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

TEST_F(Aktualisierung, ImAnderenZielverzeichnisBleibtWasErsetztWird)
{
    const Pruefordner anderer;
    woanders = anderer.pfad();
    anderer.lege("SALOTTO.DAT", kAlt + "ein laengerer alter Inhalt");
    hole(Onlineaufgabe::Samstag, "Salotto.dat", "kurz");
    EXPECT_EQ(inhaltVon(anderer / "SALOTTO.DAT"), "kurz");
    EXPECT_EQ(inhaltVon(anderer / "SALOTTO.DAT.alt"), kAlt + "ein laengerer alter Inhalt");
    EXPECT_EQ(anderer.eintraege(), 2U);
}

TEST_F(Aktualisierung, EinAndererNameWirdNichtGeprueftUndErsetztNichtsOhneSicherung)
{
    programm.lege("SALOTTO.DAT", kAlt);
    programm.lege("MALOTTO.DAT", kNeu);
    EXPECT_EQ(hole(Onlineaufgabe::Samstag, "malotto.dat", "verwechselt"), Onlineausgang::KeineNeue);
    EXPECT_EQ(inhalt("SALOTTO.DAT"), kAlt);
    EXPECT_EQ(inhalt("MALOTTO.DAT"), "verwechselt");
    EXPECT_EQ(inhalt("MALOTTO.DAT.alt"), kNeu);
    EXPECT_THAT(namen(), UnorderedElementsAre("SALOTTO.DAT", "MALOTTO.DAT", "MALOTTO.DAT.alt"));
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
    const int kind = ::fork();
    if (kind == 0)
        ::_exit(0);
    ::waitpid(kind, nullptr, 0);
    programm.lege("SALOTTO.DAT", kAlt);
    fs::create_directory(programm / (".neu-" + std::to_string(kind) + "-0"));
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

#include "engines/logic/Kombinationsexport.h"
#include "engines/tests/Exportreferenz.h"
#include "testhilfen/Pruefordner.h"
#include "testhilfen/Schreibhindernisse.h"

#include <cerrno>
#include <csignal>
#include <numeric>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

/// All of them are removed when it is not finished, the temporary ones too.
std::vector<std::string> namenIn(const fs::path& ordner)
{
    std::vector<std::string> namen;
    for (const fs::directory_entry& eintrag : fs::directory_iterator(ordner))
        namen.push_back(eintrag.path().filename().string());
    std::ranges::sort(namen);
    return namen;
}

void pruefe(const Exportauftrag& auftrag, const std::string& stamm, std::uint64_t jeTeil = 0)
{
    SCOPED_TRACE(stamm);
    const Pruefordner ordner;
    const Exportergebnis ergebnis = exportiereKombinationen(auftrag, ordner.pfad());
    EXPECT_EQ(ergebnis.ende, Exportende::Fertig);
    EXPECT_EQ(ergebnis.kombinationen, anzahlKombinationen(auftrag));
    EXPECT_EQ(Exportreferenz(auftrag, ordner.pfad()).vergleiche(stamm, jeTeil), ergebnis.kombinationen);
    const std::vector<Exportdatei> dateien = exportdateien(auftrag);
    EXPECT_EQ(ergebnis.fertige, dateien.size());
    EXPECT_EQ(ordner.eintraege(), dateien.size());
    for (const Exportdatei& datei : dateien)
        EXPECT_EQ(fs::file_size(ordner / datei.name), datei.bytes) << datei.name;
}

/// Every way to write the order.
void pruefeAlleFormen(Exportauftrag auftrag, const std::string& stamm)
{
    for (const bool nummeriert : {false, true}) {
        auftrag.nummeriert = nummeriert;
        for (const char trenner : kExporttrenner) {
            auftrag.trenner = trenner;
            auftrag.endung = kExportendungen[trenner == ';' ? 1 : 0];
            pruefe(auftrag, stamm);
        }
    }
}

TEST(Kombinationsexport, AlleVonZweiBisVier)
{
    for (const int k : {2, 3, 4})
        pruefeAlleFormen({.k = k}, std::to_string(k) + "aus49");
}

TEST(Kombinationsexport, MitBankzahlen)
{
    pruefeAlleFormen({.k = 2, .bankzahlen = {49}}, "2aus49_Bank_B49");
    pruefeAlleFormen({.k = 3, .bankzahlen = {30, 7}}, "3aus49_Bank_B30_B7");
    pruefeAlleFormen({.k = 4, .bankzahlen = {1, 2, 3}}, "4aus49_Bank_B1_B2_B3");
    pruefeAlleFormen({.k = 4, .bankzahlen = {48, 49}}, "4aus49_Bank_B48_B49");
    pruefeAlleFormen({.k = 3, .bankzahlen = {1, 25, 49}}, "3aus49_Bank_B1_B25_B49");
}

TEST(Kombinationsexport, AusEinemBereich)
{
    pruefeAlleFormen({.k = 3, .bereich = Zahlenbereich{10, 30}}, "3aus49_Bereich_von_10_bis_30");
    pruefeAlleFormen({.k = 4, .bereich = Zahlenbereich{46, 49}}, "4aus49_Bereich_von_46_bis_49");
    pruefeAlleFormen({.k = 2, .bereich = Zahlenbereich{1, 49}}, "2aus49_Bereich_von_1_bis_49");
}

TEST(Kombinationsexport, ZufaelligeBankzahlen)
{
    std::mt19937 zufall(49);
    std::vector<std::int32_t> topf(49);
    std::iota(topf.begin(), topf.end(), 1);
    for (int versuch = 0; versuch < 60; ++versuch) {
        Exportauftrag auftrag{.k = 2 + versuch % 3, .nummeriert = versuch % 2 == 0};
        std::ranges::shuffle(topf, zufall);
        std::string stamm = std::to_string(auftrag.k) + "aus49_Bank";
        for (std::size_t i = 0; i < 1 + zufall() % static_cast<unsigned>(auftrag.k); ++i) {
            auftrag.bankzahlen.push_back(topf[i]);
            stamm += "_B" + std::to_string(topf[i]);
        }
        pruefe(auftrag, stamm);
    }
}

TEST(Kombinationsexport, MehrBankzahlenAlsZahlenGebenNurDieLegende)
{
    pruefeAlleFormen({.k = 2, .bankzahlen = {1, 2, 3}}, "2aus49_Bank_B1_B2_B3");
    const Pruefordner ordner;
    exportiereKombinationen({.k = 3, .bankzahlen = {4, 5, 6, 7}, .nummeriert = true}, ordner.pfad());
    EXPECT_EQ(inhaltVon(ordner / "3aus49_Bank_B4_B5_B6_B7.txt"),
              "Legende:\r\nLNr = Laufende Nummer der gefilterten Kombination.\r\nGefilterte Kombinationen:          "
              "0\r\n");
}

TEST(Kombinationsexport, VierZahlenBleibenInEinerDatei)
{
    pruefe({.k = 4, .geteilt = true}, "4aus49");
}

TEST(Kombinationsexport, MeldetWieVieleEsSind)
{
    const Pruefordner ordner;
    std::vector<std::uint64_t> gemeldete;
    exportiereKombinationen({.k = 4}, ordner.pfad(), [&](std::uint64_t kombinationen) {
        gemeldete.push_back(kombinationen);
        return true;
    });
    EXPECT_GE(gemeldete.size(), 10U);
    EXPECT_TRUE(std::ranges::is_sorted(gemeldete));
    EXPECT_EQ(gemeldete.back(), 211'876U);
}

TEST(Kombinationsexport, NachEinemAbbruchBleibenDieFertigenTeile)
{
    const Pruefordner ordner;
    const Exportergebnis ergebnis = exportiereKombinationen(
        {.k = 5, .geteilt = true}, ordner.pfad(), [](std::uint64_t kombinationen) { return kombinationen < 500'000; });
    EXPECT_EQ(ergebnis.ende, Exportende::Gestoppt);
    EXPECT_EQ(ergebnis.fertige, 2U);
    EXPECT_EQ(namenIn(ordner.pfad()), (std::vector<std::string>{"5aus49_Teil_1.txt", "5aus49_Teil_2.txt"}));
}

TEST(Kombinationsexport, EineAlteDateiBleibtBisDieNeueFertigIst)
{
    const Pruefordner ordner;
    const fs::path alte = ordner.lege("4aus49.txt", "alt");
    exportiereKombinationen({.k = 4}, ordner.pfad(), [](std::uint64_t) { return false; });
    EXPECT_EQ(inhaltVon(alte), "alt");
    EXPECT_EQ(ordner.eintraege(), 1U);
    exportiereKombinationen({.k = 4}, ordner.pfad());
    EXPECT_EQ(fs::file_size(alte), 211'876U * 13);
}

TEST(Kombinationsexport, EineVolleScheibeLaesstNichtsHalbes)
{
    const Pruefordner ordner;
    const Exportergebnis ergebnis = [&] {
        const VolleScheibe voll(1'000'000);
        return exportiereKombinationen({.k = 4}, ordner.pfad());
    }();
    EXPECT_EQ(ergebnis.ende, Exportende::Gescheitert);
    EXPECT_EQ(ergebnis.datei, "4aus49.txt");
    EXPECT_EQ(ergebnis.fehler.fehler, EFBIG);
    EXPECT_EQ(ordner.eintraege(), 0U);
}

TEST(Kombinationsexport, OhneOrdnerUndOhneRechteScheitertEr)
{
    const Pruefordner ordner;
    EXPECT_EQ(exportiereKombinationen({.k = 2}, ordner / "fehlt").fehler.fehler, ENOENT);
    EXPECT_EQ(exportiereKombinationen({.k = 2}, ordner.lege("datei", "")).fehler.fehler, ENOTDIR);
    fs::permissions(ordner.pfad(), fs::perms::owner_read | fs::perms::owner_exec);
    const OhneSonderrechte ohne;
    if (!ohne.gilt())
        GTEST_SKIP() << "ohne Sonderrechte geht es hier nicht";
    EXPECT_EQ(exportiereKombinationen({.k = 2}, ordner.pfad()).fehler.fehler, EACCES);
}

TEST(Kombinationsexport, EinOrdnerDiesesNamensBleibt)
{
    const Pruefordner ordner;
    fs::create_directory(ordner / "2aus49.txt");
    EXPECT_EQ(exportiereKombinationen({.k = 2}, ordner.pfad()).fehler.fehler, EISDIR);
    EXPECT_TRUE(fs::is_directory(ordner / "2aus49.txt"));
}

TEST(Kombinationsexport, UmlauteUndLeerzeichenImPfad)
{
    const Pruefordner ordner;
    const fs::path tiefer = ordner / "Öfter gezählt, groß";
    fs::create_directory(tiefer);
    EXPECT_EQ(exportiereKombinationen({.k = 2}, tiefer).ende, Exportende::Fertig);
    EXPECT_EQ(fs::file_size(tiefer / "2aus49.txt"), 1176U * 7);
}

TEST(Kombinationsexport, WasEinGetoeteterHinterlaesstWirdWeggeraeumt)
{
    const Pruefordner ordner;
    const pid_t kind = ::fork();
    if (kind == 0) {
        exportiereKombinationen({.k = 5, .geteilt = true}, ordner.pfad(), [](std::uint64_t kombinationen) {
            if (kombinationen > 300'000)
                ::raise(SIGKILL);
            return true;
        });
        ::_exit(0);
    }
    int ende = 0;
    ASSERT_EQ(::waitpid(kind, &ende, 0), kind);
    ASSERT_TRUE(WIFSIGNALED(ende));
    EXPECT_TRUE(fs::exists(ordner / "5aus49_Teil_1.txt"));
    EXPECT_FALSE(fs::exists(ordner / "5aus49_Teil_2.txt"));
    EXPECT_EQ(ordner.eintraege(), 2U); // the unfinished one lies aside
    exportiereKombinationen({.k = 2}, ordner.pfad());
    EXPECT_EQ(namenIn(ordner.pfad()), (std::vector<std::string>{"2aus49.txt", "5aus49_Teil_1.txt"}));
}

TEST(VorhandeneDateien, NenntDieDieErsetztWuerden)
{
    const Pruefordner ordner;
    const std::vector<Exportdatei> dateien = exportdateien({.k = 5, .geteilt = true});
    EXPECT_TRUE(vorhandeneDateien(ordner.pfad(), dateien).empty());
    ordner.lege("5aus49_Teil_3.txt", "");
    ordner.lege("5aus49_Teil_10.txt", "");
    ordner.lege("5aus49_Teil_11.txt", "");
    EXPECT_EQ(vorhandeneDateien(ordner.pfad(), dateien),
              (std::vector<std::string>{"5aus49_Teil_3.txt", "5aus49_Teil_10.txt"}));
}

TEST(FehlenderPlatz, RechnetDieAltenDateienMit)
{
    const Pruefordner ordner;
    EXPECT_EQ(fehlenderPlatz(ordner.pfad(), exportdateien({})), 0U);
    const std::uint64_t frei = fs::space(ordner.pfad()).available;
    EXPECT_GT(fehlenderPlatz(ordner.pfad(), {{"riesig", 1, 3 * frei}}), frei);
    // The first file gives its place free before the second one is written.
    const fs::path alte = ordner.lege("erste", "");
    fs::resize_file(alte, 100'000'000);
    const std::vector<Exportdatei> beide{{"erste", 1, 4096}, {"zweite", 1, frei + 50'000'000}};
    EXPECT_EQ(fehlenderPlatz(ordner.pfad(), beide), 0U);
    fs::remove(alte);
    EXPECT_GT(fehlenderPlatz(ordner.pfad(), beide), 0U);
    EXPECT_EQ(fehlenderPlatz(ordner / "fehlt", beide), 0U);
}

} // namespace

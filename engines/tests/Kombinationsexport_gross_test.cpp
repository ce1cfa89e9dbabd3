#include "engines/logic/Kombinationsexport.h"
#include "engines/tests/Exportreferenz.h"
#include "testhilfen/Pruefordner.h"

// The large files, held against the plain loops byte by byte.

namespace {

constexpr std::uint64_t kJeTeil = 200'000;

struct Grossexport {
    const char* name;
    Exportauftrag auftrag;
    std::string stamm;
    std::uint64_t zeilen;
    std::uint64_t jeTeil; ///< lines of a part; 0: one file
    std::size_t dateien;
};

std::vector<Grossexport> grosse()
{
    std::vector<Grossexport> faelle;
    const auto fall = [&](const char* name, const Exportauftrag& auftrag, const char* stamm, std::uint64_t zeilen,
                          std::uint64_t jeTeil = 0, std::size_t dateien = 1) {
        faelle.push_back({name, auftrag, stamm, zeilen, jeTeil, dateien});
    };
    fall("Fuenfer", {.k = 5, .trenner = ';'}, "5aus49", 1'906'884);
    fall("FuenferGeteilt", {.k = 5, .nummeriert = true, .geteilt = true}, "5aus49", 1'906'884, kJeTeil, 10);
    fall("FuenferMitEiner", {.k = 5, .bankzahlen = {20}, .nummeriert = true}, "5aus49_Bank_B20", 194'580);
    fall("FuenferImBereich", {.k = 5, .bereich = Zahlenbereich{20, 40}, .nummeriert = true},
         "5aus49_Bereich_von_20_bis_40", 20'349);
    fall("Sechser", {.k = 6, .nummeriert = true}, "6aus49", 13'983'816);
    fall("SechserGeteilt", {.k = 6, .trenner = ',', .endung = "csv", .nummeriert = true, .geteilt = true}, "6aus49",
         13'983'816, kJeTeil, 70);
    fall("SechserMitEiner", {.k = 6, .bankzahlen = {7}}, "6aus49_Bank_B7", 1'712'304);
    fall("SechserMitEinerGeteilt", {.k = 6, .bankzahlen = {49}, .nummeriert = true, .geteilt = true}, "6aus49_Bank_B49",
         1'712'304, kJeTeil, 9);
    fall("SechserMitZweien", {.k = 6, .bankzahlen = {12, 5}, .nummeriert = true, .geteilt = true}, "6aus49_Bank_B12_B5",
         178'365);
    fall("SechserMitDreien", {.k = 6, .bankzahlen = {1, 25, 49}, .trenner = '\t', .nummeriert = true},
         "6aus49_Bank_B1_B25_B49", 15'180);
    fall("SechserMitVieren", {.k = 6, .bankzahlen = {9, 8, 7, 6}}, "6aus49_Bank_B9_B8_B7_B6", 990);
    fall("SechserMitFuenfen", {.k = 6, .bankzahlen = {45, 46, 47, 48, 49}, .nummeriert = true},
         "6aus49_Bank_B45_B46_B47_B48_B49", 44);
    fall("SechserImBereich", {.k = 6, .bereich = Zahlenbereich{3, 30}, .nummeriert = true},
         "6aus49_Bereich_von_3_bis_30", 376'740);
    fall("SechserImKleinstenBereich", {.k = 6, .bereich = Zahlenbereich{44, 49}, .nummeriert = true},
         "6aus49_Bereich_von_44_bis_49", 1);
    return faelle;
}

class GrosserExport : public testing::TestWithParam<Grossexport> {};

TEST_P(GrosserExport, WieMitSchleifen)
{
    const Grossexport& fall = GetParam();
    const Pruefordner ordner;
    const Exportergebnis ergebnis = exportiereKombinationen(fall.auftrag, ordner.pfad());
    EXPECT_EQ(ergebnis.ende, Exportende::Fertig);
    EXPECT_EQ(ergebnis.fertige, fall.dateien);
    EXPECT_EQ(ordner.eintraege(), fall.dateien);
    EXPECT_EQ(ergebnis.kombinationen, fall.zeilen);
    EXPECT_EQ(Exportreferenz(fall.auftrag, ordner.pfad()).vergleiche(fall.stamm, fall.jeTeil), fall.zeilen);
    for (const Exportdatei& datei : exportdateien(fall.auftrag))
        EXPECT_EQ(std::filesystem::file_size(ordner / datei.name), datei.bytes);
}

INSTANTIATE_TEST_SUITE_P(Alle, GrosserExport, testing::ValuesIn(grosse()),
                         [](const auto& fall) { return std::string(fall.param.name); });

} // namespace

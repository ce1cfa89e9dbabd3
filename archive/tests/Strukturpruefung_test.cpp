#include "archive/logic/Strukturpruefung.h"

#include <gtest/gtest.h>

namespace {

const std::string kRichtig = "2024,31,03,12,24,33,41,49,00,7";

/// The correct record with another text from a 1-based position on.
std::string mit(std::size_t stelle, const std::string& text)
{
    std::string satz = kRichtig;
    return satz.replace(stelle - 1, text.size(), text);
}

Strukturbericht pruefe(const std::string& bytes)
{
    return pruefeStruktur({Dateistand::Gelesen, bytes}, {});
}

std::vector<std::string> fehlerzeilen(const Strukturbericht& bericht)
{
    std::vector<std::string> zeilen;
    for (std::size_t nr = 0; nr < bericht.FalscheZiehungen; ++nr)
        zeilen.push_back(bericht.fehlerzeile(nr));
    return zeilen;
}

TEST(Datensatz, OhneFehler)
{
    EXPECT_EQ(pruefeDatensatz(kRichtig), 0);
    EXPECT_EQ(pruefeDatensatz("1998,13,02,08,10,12,22,35,46,3"), 0);
    EXPECT_EQ(pruefeDatensatz(mit(30, "0")), 0);
}

TEST(Datensatz, LeereZeileIstFehler1)
{
    EXPECT_EQ(pruefeDatensatz(""), 1);
    EXPECT_EQ(pruefeDatensatz("                              "), 1);
}

TEST(Datensatz, LaengeUnterUndUeber30)
{
    EXPECT_EQ(pruefeDatensatz(kRichtig.substr(0, 28)), 2);
    EXPECT_EQ(pruefeDatensatz(kRichtig.substr(0, 29)), 2);
    EXPECT_EQ(pruefeDatensatz(kRichtig + "0"), 3);
    EXPECT_EQ(kStrukturfehler[2], "Error 02: Datensatz hat weniger als 28 Zeichen.");
}

TEST(Datensatz, JedeGeprueefteStelleMeldetIhrenFehler)
{
    const std::vector<std::pair<std::size_t, int>> stellen{{2, 4},   {3, 4},   {4, 4},   {23, 23}, {24, 24}, {25, 25},
                                                           {26, 26}, {27, 27}, {28, 28}, {29, 26}, {30, 28}, {6, 30},
                                                           {9, 31},  {12, 32}, {15, 33}, {18, 34}, {21, 35}};
    for (const auto& [stelle, fehler] : stellen)
        EXPECT_EQ(pruefeDatensatz(mit(stelle, "x")), fehler) << stelle;
}

TEST(Datensatz, DieErsteZifferEntscheidetUeberDieGewinnzahlen)
{
    EXPECT_EQ(pruefeDatensatz(mit(9, "50")), 31);
    EXPECT_EQ(pruefeDatensatz(mit(24, "50")), 36);
    EXPECT_EQ(pruefeDatensatz(mit(27, "50")), 37);
    EXPECT_EQ(pruefeDatensatz(mit(6, "6")), 30);
}

TEST(Datensatz, NichtGepruefteKommasGehenDurch)
{
    for (const std::size_t stelle : {5u, 8u, 11u, 14u, 17u, 20u})
        EXPECT_EQ(pruefeDatensatz(mit(stelle, ";")), 0) << stelle;
}

TEST(Datensatz, Spielwoche54IstFehler38NachDenZiffernDerZahlen)
{
    EXPECT_EQ(pruefeDatensatz(mit(6, "53")), 0);
    EXPECT_EQ(pruefeDatensatz(mit(6, "54")), 38);
    std::string satz = mit(6, "54");
    satz[8] = '5';
    EXPECT_EQ(pruefeDatensatz(satz), 31);
}

TEST(Datensatz, ReihenfolgeUndDoppelte)
{
    EXPECT_EQ(pruefeDatensatz(mit(9, "12")), 39);
    EXPECT_EQ(pruefeDatensatz(mit(21, "49")), 39);
    EXPECT_EQ(pruefeDatensatz(mit(9, "49")), 39);
    EXPECT_EQ(pruefeDatensatz(mit(9, "45")), 39);
    EXPECT_EQ(pruefeDatensatz(mit(9, "00")), 40) << "the missing Zusatzzahl equals it";
    EXPECT_EQ(pruefeDatensatz("2024,31,00,12,24,33,41,49,07,7"), 0);
}

TEST(Datensatz, ZusatzzahlGleichEinerGewinnzahl)
{
    for (const char* zahl : {"03", "12", "24", "33", "41", "49"})
        EXPECT_EQ(pruefeDatensatz(mit(27, zahl)), 40) << zahl;
    EXPECT_EQ(pruefeDatensatz(mit(27, "04")), 0);
}

TEST(Struktur, FehlerzeileNenntDenSatzDavor)
{
    const Strukturbericht bericht =
        pruefe("falsch\r\n1998,13,02,08,10,12,22,35,46,3\r\nkurz\r\n1998,51,02,08,10,12,22,35,46,3\r\n1\r\n");
    EXPECT_EQ(bericht.KorrekteZiehungen, 2);
    EXPECT_EQ(fehlerzeilen(bericht), (std::vector<std::string>{"Error 01 nach Ziehung: 1955/4X >> falsch <<",
                                                               "Error 01 nach Ziehung: 1998 >> kurz <<",
                                                               "Error 02 nach Ziehung: 1999 >> 1 <<"}));
}

TEST(Struktur, DieKennungRundetHalbeZurGeradenZahl)
{
    const auto kennungNach = [](const std::string& jahrWoche) {
        return pruefe(jahrWoche + ",02,08,10,12,22,35,46,3\r\nx").fehlerzeile(0);
    };
    EXPECT_EQ(kennungNach("1998,50"), "Error 01 nach Ziehung: 1998 >> x <<");
    EXPECT_EQ(kennungNach("1999,50"), "Error 01 nach Ziehung: 2000 >> x <<");
    EXPECT_EQ(kennungNach("1998,49"), "Error 01 nach Ziehung: 1998 >> x <<");
    EXPECT_EQ(kennungNach("1998;49"), "Error 01 nach Ziehung:  >> x <<");
}

TEST(Struktur, LeereDateiUndZeilenenden)
{
    EXPECT_EQ(pruefe("").KorrekteZiehungen, 0);
    EXPECT_EQ(pruefe("").FalscheZiehungen, 0u);
    EXPECT_TRUE(pruefe("").allesRichtig());
    EXPECT_EQ(pruefe(kRichtig).KorrekteZiehungen, 1);
    EXPECT_EQ(pruefe(kRichtig + "\n" + kRichtig + "\r" + kRichtig + "\r\n").KorrekteZiehungen, 3);
    EXPECT_EQ(pruefe(kRichtig + "\r\n\r\n").FalscheZiehungen, 1u);
    EXPECT_EQ(pruefe(kRichtig + "\r\n\x1a").FalscheZiehungen, 0u);
}

TEST(Struktur, EineLangeZeileWirdBis200ZeichenGezeigt)
{
    const auto gezeigt = [](std::size_t laenge) { return pruefe(std::string(laenge, '7')).fehlerzeile(0); };
    const std::string zeile = "Error 03 nach Ziehung: 1955/4X >> " + std::string(200, '7') + " <<";
    EXPECT_EQ(gezeigt(199).size(), zeile.size() - 1);
    EXPECT_EQ(gezeigt(200), zeile);
    EXPECT_EQ(gezeigt(201), zeile);
    EXPECT_EQ(gezeigt(1 << 20), zeile);
}

/// The report finds the lines of far more faults than it keeps places.
TEST(Struktur, JedeFehlerzeileStehtAnIhremPlatz)
{
    std::string bytes;
    std::vector<std::string> erwartet;
    std::string kennung = "1955/4X";
    for (int i = 0; i < 30'000; ++i) {
        if (i % 3 == 2) {
            kennung = std::to_string(1960 + i / 1000);
            bytes += kennung + ",13,02,08,10,12,22,35,46,3\r\n";
            continue;
        }
        const std::string satz = i % 3 == 0 ? "" : std::to_string(i);
        bytes += satz + "\n";
        std::string zeile = satz.empty() ? "Error 01" : "Error 02";
        erwartet.push_back(zeile.append(" nach Ziehung: ").append(kennung).append(" >> ").append(satz).append(" <<"));
    }
    const Strukturbericht bericht = pruefe(bytes);
    EXPECT_EQ(bericht.KorrekteZiehungen, 10'000);
    EXPECT_EQ(fehlerzeilen(bericht), erwartet);
    EXPECT_EQ(bericht.fehlerzeile(20'000), "");
    EXPECT_LT(bericht.lesezeichen.size(), 300u);
}

TEST(Struktur, LauterLeerzeilenBrauchenKaumPlatz)
{
    constexpr std::size_t kViele = std::size_t{16} << 20;
    const Strukturbericht bericht = pruefe(std::string(kViele, '\n'));
    EXPECT_EQ(bericht.FalscheZiehungen, kViele);
    EXPECT_EQ(bericht.fehlerzeile(kViele - 1), "Error 01 nach Ziehung: 1955/4X >>  <<");
    EXPECT_LT(bericht.lesezeichen.size() * sizeof(Strukturbericht::Lesezeichen), std::size_t{1} << 20);
}

TEST(Struktur, VonEinerAbgeschnittenenDateiGiltDieLetzteZeileNicht)
{
    const auto pruefeAnfang = [](const std::string& bytes) {
        return pruefeStruktur({Dateistand::Gelesen, bytes, false}, {});
    };
    const Strukturbericht bericht = pruefeAnfang(kRichtig + "\r\n2024,3");
    EXPECT_EQ(bericht.KorrekteZiehungen, 1);
    EXPECT_EQ(bericht.FalscheZiehungen, 0u);
    EXPECT_FALSE(bericht.ganzeDatei);
    EXPECT_FALSE(bericht.allesRichtig());
    EXPECT_EQ(pruefeAnfang("7777").FalscheZiehungen, 0u);
    EXPECT_TRUE(pruefeAnfang(kRichtig + "\r\n\x1a" + "7777").allesRichtig()) << "the file ends in what was read";
}

TEST(Struktur, LaesstSichAnhalten)
{
    std::string bytes;
    for (int i = 0; i < 300000; ++i)
        bytes += kRichtig + "\r\n";
    const Strukturbericht bericht =
        pruefeStruktur({Dateistand::Gelesen, bytes}, [](const Strukturbericht&) { return false; });
    EXPECT_FALSE(bericht.vollstaendig);
    EXPECT_FALSE(bericht.allesRichtig());
    EXPECT_LT(bericht.KorrekteZiehungen, 300000);
    EXPECT_EQ(bericht.letzterSatz, "2024/31");
}

TEST(Fehlernummer, NurInFehlerzeilen)
{
    EXPECT_EQ(fehlernummer("Error 39 nach Ziehung: 1998 >> x <<"), 39);
    EXPECT_EQ(fehlernummer("Error 01 nach Ziehung: 1955/4X >>  <<"), 1);
    EXPECT_EQ(fehlernummer(kStrukturRichtig), 0);
    EXPECT_EQ(fehlernummer("Error 41"), 0);
    EXPECT_EQ(fehlernummer(""), 0);
}

} // namespace

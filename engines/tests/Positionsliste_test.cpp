#include "engines/logic/Positionsliste.h"
#include "testhilfen/ArchivAus.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();

TEST(GruppierteZahl, LiestMitUndOhneGruppenpunkte)
{
    EXPECT_EQ(liesGruppierteZahl("1"), 1);
    EXPECT_EQ(liesGruppierteZahl("  40000 "), 40000);
    EXPECT_EQ(liesGruppierteZahl("13.983.816"), 13'983'816);
    EXPECT_EQ(liesGruppierteZahl("    123.456"), 123'456);
    EXPECT_EQ(liesGruppierteZahl("+5"), 5);
    EXPECT_EQ(liesGruppierteZahl("-1.000"), -1000);
    EXPECT_EQ(liesGruppierteZahl("007"), 7);
    EXPECT_EQ(liesGruppierteZahl("0"), 0);
}

TEST(GruppierteZahl, WasKeineZahlIst)
{
    for (const char* text : {"", " ", "abc", "1a", "a1", ".", "1.", ".1", "-", "+", "--1", "1,5", "1 000", "0x10", "ä"})
        EXPECT_FALSE(liesGruppierteZahl(text)) << text;
}

TEST(GruppierteZahl, EineRiesigeZahlBleibtEineZahl)
{
    EXPECT_EQ(liesGruppierteZahl("999999999999999999"), 999'999'999'999'999'999);
    EXPECT_EQ(liesGruppierteZahl("99999999999999999999999999"), 1'000'000'000'000'000'000);
    EXPECT_EQ(liesGruppierteZahl("-99999999999999999999999999"), -1'000'000'000'000'000'000);
    EXPECT_EQ(liesGruppierteZahl(std::string(1000, '0') + "5"), 5);
    EXPECT_EQ(liesGruppierteZahl(std::string(100000, '9')), 1'000'000'000'000'000'000);
}

TEST(GruppierteZahl, EinePositionszahlLiegtImBereich)
{
    EXPECT_EQ(liesPositionszahl("1"), 1);
    EXPECT_EQ(liesPositionszahl("13.983.816"), 13'983'816);
    for (const char* text : {"0", "-1", "13983817", "4294967297", "x", ""})
        EXPECT_FALSE(liesPositionszahl(text)) << text;
}

TEST(Positionsbereich, PrueftInDerReihenfolge)
{
    const auto fehler = [](const char* von, const char* bis) {
        const auto pruefung = pruefePositionsbereich(von, bis);
        EXPECT_NE(pruefung.bereich.has_value(), !pruefung.fehler.empty());
        return std::string(pruefung.fehler);
    };
    const std::string vonText = "Fehler: Bereich 'von' ist nicht numerisch.";
    const std::string bisText = "Fehler: Bereich 'bis' ist nicht numerisch.";
    const std::string vonGrenze = "Fehler: 'von' muss im Bereich von 1-13.983.816 liegen";
    const std::string bisGrenze = "Fehler: 'bis' muss im Bereich von 1-13.983.816 liegen";
    EXPECT_EQ(fehler("x", "y"), vonText);
    EXPECT_EQ(fehler("", "5"), vonText);
    EXPECT_EQ(fehler("0", "y"), bisText);
    EXPECT_EQ(fehler("0", "0"), vonGrenze);
    EXPECT_EQ(fehler("13983817", "5"), vonGrenze);
    EXPECT_EQ(fehler("99999999999999999999", "5"), vonGrenze);
    EXPECT_EQ(fehler("1", "0"), bisGrenze);
    EXPECT_EQ(fehler("1", "-99999999999999999999"), bisGrenze);
    EXPECT_EQ(fehler("6", "5"), "Fehler: 'bis' muss grösser 'von' sein.");
    EXPECT_EQ(fehler("5", "5"), "");
    EXPECT_EQ(fehler("1", "13.983.816"), "");
}

TEST(Positionsliste, EineZeile)
{
    const ZiehungsArchiv archiv = archivAus(1, {{1955, 41, {5, 10, 20, 30, 40, 49}, 0},
                                                {2024, 7, {1, 2, 3, 4, 5, 6}, 0},
                                                {2024, 52, {44, 45, 46, 47, 48, 49}, 0}});
    EXPECT_EQ(positionszeile(archiv, 1), "  6.324.251  ->  1955/41  05 10 20 30 40 49");
    EXPECT_EQ(positionszeile(archiv, 2), "          1  ->  2024/07  01 02 03 04 05 06");
    EXPECT_EQ(positionszeile(archiv, 3), " 13.983.816  ->  2024/52  44 45 46 47 48 49");
    EXPECT_EQ(positionInZeile(positionszeile(archiv, 1)), 6'324'251);
    EXPECT_EQ(positionInZeile(positionszeile(archiv, 2)), 1);
    EXPECT_EQ(positionInZeile(positionszeile(archiv, 3)), 13'983'816);
    EXPECT_EQ(zahlenInZeile(positionszeile(archiv, 1)), (Kombination{5, 10, 20, 30, 40, 49}));
}

TEST(Positionsliste, EineKurzeZeileHatKeineZahlen)
{
    EXPECT_EQ(zahlenInZeile(""), Kombination{});
    EXPECT_EQ(zahlenInZeile("  6.324.251  ->  1955/41  05 1x"), (Kombination{5, 0, 0, 0, 0, 0}));
    EXPECT_FALSE(positionInZeile(""));
}

/// A draw for each of these places, all of one week.
ZiehungsArchiv mitPositionen(const std::vector<Positionszahl>& positionen)
{
    std::vector<TestZiehung> ziehungen;
    for (const Positionszahl position : positionen)
        ziehungen.push_back({2000, 1, *KombinationZaehlen(position), 0});
    return archivAus(1, ziehungen);
}

TEST(Positionsliste, AlleInDerReihenfolgeDerZiehungen)
{
    const auto liste = positionsliste(mitPositionen({500, 2, 13'983'816}), {});
    ASSERT_EQ(liste.zeilen.size(), 3U);
    EXPECT_EQ(liste.zeilen[0].substr(0, 11), "        500");
    EXPECT_EQ(liste.zeilen[1].substr(0, 11), "          2");
    EXPECT_EQ(liste.anzahlText(), "Anzahl der Ziehungen: 3");
}

TEST(Positionsliste, DieTextordnungIstDieOrdnungDerPositionszahlen)
{
    auto zeilen =
        positionsliste(mitPositionen({13'983'816, 1'000'000, 999'999, 100'000, 99'999, 1000, 999, 10, 9, 1}), {})
            .zeilen;
    std::sort(zeilen.begin(), zeilen.end());
    const std::vector<Positionszahl> erwartet{1, 9, 10, 999, 1000, 99'999, 100'000, 999'999, 1'000'000, 13'983'816};
    for (std::size_t i = 0; i < erwartet.size(); ++i)
        EXPECT_EQ(positionInZeile(zeilen[i]), erwartet[i]);
}

TEST(Positionsliste, DerBereichSchliesstBeideEndenEin)
{
    const ZiehungsArchiv archiv = mitPositionen({39'999, 40'000, 70'000, 100'000, 100'001});
    const auto liste = positionsliste(archiv, Positionsbereich{40'000, 100'000});
    ASSERT_EQ(liste.zeilen.size(), 3U);
    EXPECT_EQ(positionInZeile(liste.zeilen[0]), 40'000);
    EXPECT_EQ(positionInZeile(liste.zeilen[2]), 100'000);
    EXPECT_EQ(liste.anzahlText(), "Anzahl der Ziehungen im gewählten Bereich: 3");
    EXPECT_EQ(positionsliste(archiv, Positionsbereich{70'000, 70'000}).zeilen.size(), 1U);
    EXPECT_EQ(positionsliste(archiv, Positionsbereich{50'000, 60'000}).anzahlText(),
              "Anzahl der Ziehungen im gewählten Bereich: 0");
}

TEST(Positionsliste, LeeresArchivUndLauterGleiche)
{
    EXPECT_EQ(positionsliste(ZiehungsArchiv{}, {}).anzahlText(), "Anzahl der Ziehungen: 0");
    EXPECT_EQ(positionsliste(mitPositionen(std::vector<Positionszahl>(300, 77)), {}).zeilen.size(), 300U);
}

TEST(Positionsliste, UnsinnigeWerte)
{
    const ZiehungsArchiv archiv = archivAus(1, {{kMin, kMax, {kMin, kMax, 0, -1, 50, 49}, 0},
                                                {2000, 1, {6, 5, 4, 3, 2, 1}, 0},
                                                {2000, 1, {1, 2, 3, 4, 5, 5}, 0}});
    const auto liste = positionsliste(archiv, {});
    ASSERT_EQ(liste.zeilen.size(), 3U);
    EXPECT_EQ(liste.zeilen[0].substr(0, 17), std::string(11, ' ') + "  ->  ");
    EXPECT_FALSE(positionInZeile(liste.zeilen[0]));
    EXPECT_EQ(liste.zeilen[2], "             ->  2000/01  01 02 03 04 05 05");
    for (const std::string& zeile : liste.zeilen)
        zahlenInZeile(zeile);
    EXPECT_TRUE(positionsliste(archivAus(1, {{2000, 1, {0, 0, 0, 0, 0, 0}, 0}}), Positionsbereich{}).zeilen.empty());
}

TEST(Positionsliste, EinVollesArchivUndEinAbbruch)
{
    std::vector<Positionszahl> positionen;
    for (Positionszahl i = 0; i < kMaxZiehungenJeDatei; ++i)
        positionen.push_back(1 + i % 1000);
    const ZiehungsArchiv archiv = mitPositionen(positionen);
    EXPECT_EQ(positionsliste(archiv, {}).zeilen.size(), static_cast<std::size_t>(kMaxZiehungenJeDatei));
    int gefragt = 0;
    const auto abgebrochen = positionsliste(archiv, {}, [&](std::uint64_t) {
        ++gefragt;
        return false;
    });
    EXPECT_LE(abgebrochen.zeilen.size(), static_cast<std::size_t>(kMaxZiehungenJeDatei));
    EXPECT_LE(gefragt, 1);
}

} // namespace

#include "engines/logic/NieGezogeneDreier.h"
#include "engines/logic/WiederholungBericht.h"
#include "testhilfen/ArchivAus.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace {

using Zeilen = std::vector<std::string>;

ZiehungsArchiv beispiel()
{
    return archivAus(Samstagslotto, {{1955, 41, {3, 12, 13, 16, 23, 41}}, {2026, 9, {1, 2, 3, 4, 5, 6}}});
}

TEST(WiederholungBericht, NenntArtSpielUndStand)
{
    const ZiehungsArchiv archiv = beispiel();
    EXPECT_EQ(erfassungstand(archiv), "Erfassungstand der Ziehungen: 2026 / 09");
    EXPECT_EQ(erfassungstand(ZiehungsArchiv()), "Erfassungstand der Ziehungen: 0000 / 00");
    EXPECT_EQ(listenBericht("Zweierwiederholungen", "Samstagslotto", Zeilen{" 2 mal ->   7 19", " 9 mal ->   1  2"},
                            erfassungstand(archiv)),
              "Zweierwiederholungen(Samstagslotto):\r\n\r\n"
              " 2 mal ->   7 19\r\n"
              " 9 mal ->   1  2\r\n"
              "\r\n\r\n"
              "Erfassungstand der Ziehungen: 2026 / 09");
}

TEST(WiederholungBericht, EineLeereListeGibtNurDenSchluss)
{
    EXPECT_EQ(listenBericht("Zweierwiederholungen", "Samstagslotto", {}, "Schluss"), "Schluss");
    EXPECT_EQ(listenBericht("Zweierwiederholungen", "Samstagslotto", {}, ""), "");
    EXPECT_EQ(detailBericht("Zweierwiederholungen", "Samstagslotto", {}, "Schluss"), "Schluss");
}

TEST(WiederholungBericht, DieDetails)
{
    const ZiehungsArchiv archiv = beispiel();
    const Detailzeilen details = wiederholungDetails(archiv, 2, kEineSpielart, Zeilen{" 2 mal ->   1  2"});
    EXPECT_EQ(detailBericht("Zweierwiederholungen", "Mittwochslotto ", details, ""),
              "Die Zweierwiederholungen im Detail (Mittwochslotto ):\r\n\r\n"
              "Kombination:  1  2\r\n"
              "-------------------------------------------\r\n"
              "2026/09  01 02 03 04 05 06   \r\n"
              "-------------------------------------------\r\n"
              "\r\n\r\n");
}

TEST(WiederholungBericht, JedesLeerzeichenWirdEinStrich)
{
    EXPECT_EQ(spielartenMitStrichen("Samstagslotto "), "Samstagslotto - ");
    EXPECT_EQ(spielartenMitStrichen("Samstagslotto Mittwochslotto Mittwochslotto(B)"),
              "Samstagslotto - Mittwochslotto - Mittwochslotto(B)");
    EXPECT_EQ(spielartenMitStrichen("Mittwochslotto(B)"), "Mittwochslotto(B)");
    EXPECT_EQ(spielartenMitStrichen(""), "");
}

TEST(WiederholungBericht, NieGezogene)
{
    EXPECT_EQ(nieGezogeneBericht("Samstagslotto - ", {}), "Anzahl der nie gezogenen Dreierkombinationen: 0\r\n\r\n");
    EXPECT_EQ(nieGezogeneBericht("Samstagslotto - ", Zeilen{"   02 13 37"}),
              "Nie gezogene Dreierkombinationen (Samstagslotto - ):\r\n\r\n"
              "   02 13 37\r\n"
              "\r\n\r\n"
              "Anzahl der nie gezogenen Dreierkombinationen: 1\r\n\r\n");
}

TEST(NieGezogeneDreier, OhneZiehungAlle)
{
    const Zeilen zeilen = nieGezogeneDreier(ZiehungsArchiv());
    ASSERT_EQ(zeilen.size(), 18424U);
    EXPECT_EQ(zeilen.front(), "   01 02 03");
    EXPECT_EQ(zeilen.back(), "   47 48 49");
    EXPECT_TRUE(std::ranges::is_sorted(zeilen));
}

TEST(NieGezogeneDreier, EineZiehungNimmtZwanzig)
{
    const ZiehungsArchiv archiv = archivAus(Samstagslotto, {{1955, 41, {3, 12, 13, 16, 23, 41}}});
    const Zeilen zeilen = nieGezogeneDreier(archiv);
    EXPECT_EQ(zeilen.size(), 18424U - 20U);
    EXPECT_EQ(std::ranges::count(zeilen, "   03 12 13"), 0);
    EXPECT_EQ(std::ranges::count(zeilen, "   03 12 14"), 1);
}

TEST(NieGezogeneDreier, EineZahlZaehltWoSieSteht)
{
    const ZiehungsArchiv archiv =
        archivAus(Samstagslotto,
                  {{1955, 41, {41, 3, 3, 50, -7, 12}}, {1955, 42, {0, 0, 0, 0, 0, 0}}, {1955, 43, {1, 1, 1, 2, 2, 2}}});
    const Zeilen zeilen = nieGezogeneDreier(archiv);
    EXPECT_EQ(zeilen.size(), 18424U - 1U);
    EXPECT_EQ(std::ranges::count(zeilen, "   03 12 41"), 0);
}

TEST(NieGezogeneDreier, GibtDasselbeWieDieProbeJederZiehung)
{
    std::vector<TestZiehung> ziehungen;
    for (std::int32_t i = 0; i < 300; ++i)
        ziehungen.push_back(
            {2000, 1, {1 + i % 49, 1 + i * 7 % 49, 1 + i * 11 % 49, 1 + i * i % 49, 49 - i % 40, i % 60}});
    const ZiehungsArchiv archiv = archivAus(Samstagslotto, ziehungen);
    std::set<std::array<std::int32_t, 3>> gezogen;
    for (const TestZiehung& ziehung : ziehungen) {
        for (const std::int32_t a : ziehung.zahlen)
            for (const std::int32_t b : ziehung.zahlen)
                for (const std::int32_t c : ziehung.zahlen)
                    if (a < b && b < c && a >= 1 && c <= 49)
                        gezogen.insert({a, b, c});
    }
    EXPECT_EQ(nieGezogeneDreier(archiv).size(), 18424U - gezogen.size());
}

} // namespace

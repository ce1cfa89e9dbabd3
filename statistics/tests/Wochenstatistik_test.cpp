#include "statistics/logic/Wochenstatistik.h"
#include "testhilfen/ArchivAus.h"

#include <gmock/gmock.h>
#include <string>

namespace {

using testing::Each;
using testing::ElementsAre;

ZiehungsArchiv vierZiehungen()
{
    ZiehungsArchiv archiv = archivAus(Samstagslotto, {{1955, 41, {3, 12, 13, 16, 23, 41}, 0},
                                                      {1955, 42, {3, 12, 18, 30, 32, 49}, 0},
                                                      {1956, 41, {1, 2, 3, 4, 5, 6}, 49},
                                                      {1957, 41, {3, 12, 44, 45, 46, 47}, 12}});
    archiv.Datum = {"", "So, 09.10.1955", "So, 16.10.1955", "So, 07.10.1956", "So, 13.10.1957"};
    return archiv;
}

std::int32_t anzahl(const Wochenstatistik& statistik, int zahl)
{
    return statistik.anzahl[static_cast<std::size_t>(zahl - 1)];
}

TEST(WeekStatistics, NimmtDieZiehungenDerWoche)
{
    const Wochenstatistik statistik = weekStatistics(vierZiehungen(), 41, false);
    ASSERT_EQ(statistik.ziehungen.size(), 3U);
    EXPECT_EQ(statistik.ziehungen[1].ZiehungsNr, 3);
    EXPECT_EQ(statistik.ziehungen[1].jjjj, 1956);
    EXPECT_EQ(anzahl(statistik, 3), 3);
    EXPECT_EQ(anzahl(statistik, 12), 2);
    EXPECT_EQ(anzahl(statistik, 49), 0);
    EXPECT_EQ(anzahl(statistik, 18), 0);
}

TEST(WeekStatistics, ZaehltDieZusatzzahlWoEsEineGibt)
{
    const Wochenstatistik statistik = weekStatistics(vierZiehungen(), 41, true);
    EXPECT_EQ(anzahl(statistik, 12), 3);
    EXPECT_EQ(anzahl(statistik, 49), 1);
    EXPECT_EQ(anzahl(statistik, 3), 3);
}

TEST(WeekStatistics, EineWocheOhneZiehung)
{
    const Wochenstatistik statistik = weekStatistics(vierZiehungen(), 53, true);
    EXPECT_TRUE(statistik.ziehungen.empty());
    EXPECT_THAT(statistik.anzahl, Each(0));
    EXPECT_TRUE(ziehungszeilen(statistik).empty());
    EXPECT_EQ(zeilenNachHaeufigkeit(statistik).size(), 49U);
    EXPECT_THAT(zeilenNachHaeufigkeit(statistik), Each(testing::StartsWith("  0 mal die ")));
    EXPECT_THAT(zeilenNachZahl(statistik), Each(testing::EndsWith(" ->   0 mal")));
}

TEST(WeekStatistics, LeeresArchivUndUnmoeglicheWochen)
{
    EXPECT_TRUE(weekStatistics(archivAus(Mittwochslotto, {}), 1, true).ziehungen.empty());
    for (const std::int32_t woche : {-1, 0, 54, 2147483647})
        EXPECT_TRUE(weekStatistics(vierZiehungen(), woche, true).ziehungen.empty()) << woche;
}

TEST(WeekStatistics, ZahlenAusserhalbZaehlenNicht)
{
    const ZiehungsArchiv archiv = archivAus(Samstagslotto, {{1955, 41, {-1, 0, 50, 2147483647, 1, 49}, 99}});
    const Wochenstatistik statistik = weekStatistics(archiv, 41, true);
    EXPECT_EQ(anzahl(statistik, 1), 1);
    EXPECT_EQ(anzahl(statistik, 49), 1);
    EXPECT_THAT(statistik.anzahl, testing::Contains(1).Times(2));
}

TEST(NaechsteSpielwoche, FolgtDerLetztenZiehung)
{
    const auto nach = [](std::int32_t woche) {
        return naechsteSpielwoche(archivAus(Samstagslotto, {{2020, woche, {1, 2, 3, 4, 5, 6}, 0}}));
    };
    EXPECT_EQ(nach(1), 2);
    EXPECT_EQ(nach(52), 53);
    EXPECT_EQ(nach(53), 1);
    EXPECT_EQ(nach(2147483647), 1);
    EXPECT_EQ(nach(-7), 1);
    EXPECT_EQ(naechsteSpielwoche(archivAus(Samstagslotto, {})), 1);
}

TEST(Wochenzeilen, DieZahlenStehenAufIhrenPlaetzen)
{
    const auto ohne = ziehungszeilen(weekStatistics(vierZiehungen(), 41, false));
    EXPECT_THAT(ohne, ElementsAre("1955/41  03 12 13 16 23 41      So, 09.10.1955",
                                  "1956/41  01 02 03 04 05 06      So, 07.10.1956",
                                  "1957/41  03 12 44 45 46 47      So, 13.10.1957"));
    const auto mit = ziehungszeilen(weekStatistics(vierZiehungen(), 41, true));
    EXPECT_THAT(mit, ElementsAre("1955/41  03 12 13 16 23 41  -   So, 09.10.1955",
                                 "1956/41  01 02 03 04 05 06  49  So, 07.10.1956",
                                 "1957/41  03 12 44 45 46 47  12  So, 13.10.1957"));
    const std::array<std::string, 7> erwartet{"03", "12", "44", "45", "46", "47", "12"};
    const std::array<std::size_t, 7> stellen{10, 13, 16, 19, 22, 25, 29};
    for (std::size_t i = 0; i < stellen.size(); ++i)
        EXPECT_EQ(mit[2].substr(stellen[i] - 1, 2), erwartet[i]);
}

TEST(Wochenzeilen, NachHaeufigkeitGehtNachDemText)
{
    Wochenstatistik statistik{.sw = 1, .mitZZ = false, .ziehungen = {}};
    statistik.anzahl.fill(9);
    statistik.anzahl[0] = 10;
    statistik.anzahl[48] = 10;
    statistik.anzahl[6] = 100;
    const auto zeilen = zeilenNachHaeufigkeit(statistik);
    ASSERT_EQ(zeilen.size(), 49U);
    EXPECT_EQ(zeilen[0], "  9 mal die  2");
    EXPECT_EQ(zeilen[45], "  9 mal die 48");
    EXPECT_EQ(zeilen[46], " 10 mal die  1");
    EXPECT_EQ(zeilen[47], " 10 mal die 49");
    EXPECT_EQ(zeilen[48], "100 mal die  7");
}

TEST(Wochenzeilen, NachZahl)
{
    const auto zeilen = zeilenNachZahl(weekStatistics(vierZiehungen(), 41, false));
    ASSERT_EQ(zeilen.size(), 49U);
    EXPECT_EQ(zeilen[2], " 3 Zahl  ->   3 mal");
    EXPECT_EQ(zeilen[48], "49 Zahl  ->   0 mal");
}

} // namespace

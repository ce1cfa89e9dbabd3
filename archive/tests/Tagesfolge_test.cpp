#include "archive/logic/Tagesfolge.h"
#include "testhilfen/ArchivAus.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace {

/// Draws of these date texts, in the order of a combined load. Each holds a number lower than the draw before it.
ZiehungsArchiv gemeinsam(const std::vector<std::string>& daten)
{
    std::vector<Zahlenreihe> reihen;
    for (std::size_t i = 0; i < daten.size(); ++i)
        reihen.push_back({static_cast<int>(20 - i), 44, 45, 46, 47, 48});
    ZiehungsArchiv archiv = archivAus(reihen);
    archiv.DatumAlle.insert(archiv.DatumAlle.end(), daten.begin(), daten.end());
    return archiv;
}

using Folge = std::vector<std::int32_t>;

const std::vector<std::string> kDreiSpiele{"Sa, 25.11.2000", "Sa, 02.12.2000",     "Mi, 29.11.2000",
                                           "Mi, 06.12.2000", "Mi, 22.11.2000 (B)", "Mi, 29.11.2000 (B)"};

} // namespace

TEST(Tagesfolge, OrdnetDieSpieleNachIhrenTagen)
{
    const ZiehungsArchiv archiv = gemeinsam(kDreiSpiele);
    EXPECT_EQ(tagesfolge(archiv, Tagesordnung::NachSpielart), (Folge{5, 1, 3, 6, 2, 4}));
}

TEST(Tagesfolge, OrdnetEinenTagNachDemZeilentext)
{
    const ZiehungsArchiv archiv = gemeinsam(kDreiSpiele); // the B draw of 29.11. has the lower numbers
    EXPECT_EQ(tagesfolge(archiv, Tagesordnung::NachZeilentext), (Folge{5, 1, 6, 3, 2, 4}));
}

TEST(Tagesfolge, OrdnetAuchUnueblicheWerteNachDemZeilentext)
{
    const std::vector<TestZiehung> ziehungen{
        {2000, 8, {7, 2, 3, 4, 5, 6}, 0},  {2000, 8, {100, 2, 3, 4, 5, 6}, 0}, {2000, 8, {10, 2, 3, 4, 5, 6}, 0},
        {2000, 8, {-1, 2, 3, 4, 5, 6}, 0}, {30, 8, {1, 2, 3, 4, 5, 6}, 0},     {2000, 8, {7, 2, 3, 4, 5, 6}, 0},
        {5, 8, {1, 2, 3, 4, 5, 6}, 0},     {2000, 9, {1, 2, 3, 4, 5, 6}, 0},   {2000, 8, {7, 2, 3, 4, 5, 6}, 40}};
    ZiehungsArchiv archiv = archivAus(Samstagslotto, ziehungen);
    archiv.DatumAlle.insert(archiv.DatumAlle.end(), ziehungen.size(), "Mi, 23.02.2000");
    std::vector<std::pair<std::string, std::int32_t>> soll;
    for (std::int32_t nr = 1; nr <= archiv.AnzahlZiehungen; ++nr)
        soll.emplace_back(tageszeile(archiv, static_cast<std::size_t>(nr)), nr);
    std::ranges::sort(soll);
    const Folge ist = tagesfolge(archiv, Tagesordnung::NachZeilentext);
    ASSERT_EQ(ist.size(), soll.size());
    for (std::size_t i = 0; i < ist.size(); ++i)
        EXPECT_EQ(tageszeile(archiv, static_cast<std::size_t>(ist[i])), soll[i].first);
}

TEST(Tagesfolge, DasJahrGehtVorMonatUndTag)
{
    const ZiehungsArchiv archiv = gemeinsam({"Sa, 31.12.2011", "Sa, 01.01.2011", "Sa, 15.06.1999"});
    EXPECT_EQ(tagesfolge(archiv, Tagesordnung::NachSpielart), (Folge{3, 2, 1}));
}

TEST(Tagesfolge, EineZiehungOhneDatumStehtVorne)
{
    const ZiehungsArchiv archiv = gemeinsam({"Sa, 25.11.2000", "", "kein Datum 2000", "Mi, 22.11.2000"});
    EXPECT_EQ(tagesfolge(archiv, Tagesordnung::NachSpielart), (Folge{2, 3, 4, 1}));
}

TEST(Tagesfolge, EinLeeresArchivHatKeine)
{
    EXPECT_TRUE(tagesfolge(ZiehungsArchiv{}, Tagesordnung::NachZeilentext).empty());
}

TEST(Tagesfolge, DerTagIstEinTextDerSortiert)
{
    EXPECT_EQ(tagestext("So, 09.10.1955"), "1955-10-09 So");
    EXPECT_EQ(tagestext("Mi, 29.11.2000 (B)"), "2000-11-29 Mi");
    EXPECT_EQ(tagestext("Mi, 29-11-2000"), "");
    EXPECT_EQ(tagestext(""), "");
    EXPECT_EQ(jahrDesTages("So, 09.10.1955"), 1955);
    EXPECT_EQ(jahrDesTages("Mi, 29.11.2000 (B)"), 2000);
    EXPECT_EQ(jahrDesTages("Mi, 29-11-2000"), std::nullopt);
    EXPECT_EQ(jahrDesTages(""), std::nullopt);
}

TEST(Tagesfolge, DieZeileNenntAlleFelder)
{
    ZiehungsArchiv archiv = archivAus(Samstagslotto, {{2000, 8, {1, 2, 3, 4, 5, 49}, 7}});
    archiv.s[1] = kOhneSuperzahl;
    archiv.DatumAlle.push_back("Mi, 23.02.2000 (B)");
    EXPECT_EQ(tageszeile(archiv, 1), "2000-02-23 Mi|2000|08|01|02|03|04|05|49|07|11|Mi, 23.02.2000 (B)");
}

#include "archive/logic/Ziehungskalender.h"
#include "statistics/logic/Superzahlen.h"
#include "testhilfen/ArchivAus.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace {

using testing::Each;

/// So many draws of a game, all with Superzahl 9 but for the last ones.
ZiehungsArchiv archiv(std::int16_t spielart, std::size_t anzahl, const std::vector<std::int32_t>& letzte)
{
    ZiehungsArchiv archiv = archivAus(spielart, std::vector<TestZiehung>(anzahl, {2000, 1, {1, 2, 3, 4, 5, 6}, 0}));
    std::fill(archiv.s.begin() + 1, archiv.s.end(), 9);
    std::copy(letzte.begin(), letzte.end(), archiv.s.end() - std::ssize(letzte));
    istSamstag(spielart) ? BaueSamstagsDaten(archiv) : BaueMittwochsDaten(archiv);
    return archiv;
}

Superzahlquelle einzeln(const ZiehungsArchiv& ziehungen, bool nurAb2000 = false)
{
    Superzahlstatistik statistik{.nurAb2000 = nurAb2000, .quellen = {}};
    superzahlCounts(statistik, ziehungen);
    return statistik.quellen.at(0);
}

Superzahlstatistik zusammen(const std::vector<ZiehungsArchiv>& archive)
{
    Superzahlstatistik statistik;
    for (const ZiehungsArchiv& ziehungen : archive)
        superzahlCounts(statistik, ziehungen);
    return statistik;
}

TEST(Superzahlen, ZaehlenAbIhrerEinfuehrung)
{
    EXPECT_EQ(einzeln(archiv(Samstagslotto, 1886, {})).mitSuperzahl, 0);
    EXPECT_EQ(einzeln(archiv(Samstagslotto, 1890, {1, 2, 3, 4})).anzahl, (Ziffernzaehler{0, 1, 1, 1, 1}));
    for (const std::int16_t mittwoch : {Mittwochslotto, MittwochslottoB}) {
        EXPECT_EQ(einzeln(archiv(mittwoch, 496, {})).mitSuperzahl, 0);
        const Superzahlquelle quelle = einzeln(archiv(mittwoch, 498, {0, 7}));
        EXPECT_EQ(quelle.ziehungen, 498);
        EXPECT_EQ(quelle.mitSuperzahl, 2);
        EXPECT_EQ(quelle.anzahl, (Ziffernzaehler{1, 0, 0, 0, 0, 0, 0, 1}));
    }
}

TEST(Superzahlen, AbDezember2000ZaehltNurDerMittwochWeniger)
{
    const Superzahlquelle mittwoch = einzeln(archiv(Mittwochslotto, 760, {1, 2, 3, 4}), true);
    EXPECT_EQ(mittwoch.ziehungen, 3);
    EXPECT_EQ(mittwoch.anzahl, (Ziffernzaehler{0, 0, 1, 1, 1}));
    EXPECT_EQ(einzeln(archiv(Mittwochslotto, 757, {}), true).ziehungen, 0);
    EXPECT_EQ(einzeln(archiv(MittwochslottoB, 757, {}), true).mitSuperzahl, 261);
    EXPECT_EQ(einzeln(archiv(Samstagslotto, 1890, {}), true).mitSuperzahl, 4);
}

TEST(Superzahlen, WasKeineZifferIstZaehltNirgends)
{
    const Superzahlquelle quelle = einzeln(archiv(Mittwochslotto, 500, {10, 11, -1, 5}));
    EXPECT_EQ(quelle.mitSuperzahl, 4);
    EXPECT_EQ(quelle.anzahl, (Ziffernzaehler{0, 0, 0, 0, 0, 1}));
}

TEST(Superzahlen, DieWochenZaehlenVonDerNeuestenZiehung)
{
    const Superzahlquelle quelle = einzeln(archiv(Mittwochslotto, 500, {3, 4, 3, 5}));
    EXPECT_EQ(quelle.zuletzt[5], (LetzteSuperzahl{500, 0, "Mi, 27.12.1995"}));
    EXPECT_EQ(quelle.zuletzt[3], (LetzteSuperzahl{499, 1, "Mi, 20.12.1995"}));
    EXPECT_EQ(quelle.zuletzt[4], (LetzteSuperzahl{498, 2, "Mi, 13.12.1995"}));
    EXPECT_EQ(quelle.zuletzt[9], std::nullopt);
}

TEST(Superzahlen, AlleSpieleZaehlenZusammen)
{
    const Superzahlstatistik statistik = zusammen(
        {archiv(Samstagslotto, 1888, {1, 2}), archiv(Mittwochslotto, 498, {2, 3}), archiv(MittwochslottoB, 497, {2})});
    EXPECT_EQ(statistik.ziehungen(), 1888 + 498 + 497);
    EXPECT_EQ(statistik.mitSuperzahl(), 5);
    EXPECT_EQ(statistik.anzahl(), (Ziffernzaehler{0, 1, 3, 1}));
    EXPECT_EQ(statistik.quelle(MittwochslottoB)->anzahl, (Ziffernzaehler{0, 0, 1}));
}

TEST(Superzahlen, OhneSpielartIstAllesNull)
{
    const Superzahlstatistik statistik;
    EXPECT_EQ(statistik.ziehungen(), 0);
    EXPECT_THAT(statistik.anzahl(), Each(0));
    EXPECT_EQ(statistik.quelle(Samstagslotto), nullptr);
    EXPECT_TRUE(gemeinsameSuperzahlen(statistik).empty());
}

TEST(Superzahlen, EinLeeresArchivHatKeine)
{
    const Superzahlquelle quelle = einzeln(archiv(Samstagslotto, 0, {}));
    EXPECT_EQ(quelle.ziehungen, 0);
    EXPECT_EQ(quelle.mitSuperzahl, 0);
    EXPECT_THAT(quelle.zuletzt, Each(std::nullopt));
}

// Saturday and Wednesday together

// The last draw of Wednesday lies three days before that of Saturday.
constexpr std::size_t kSamstage = 3010;  // to 15.06.2013
constexpr std::size_t kMittwoche = 1411; // to 12.06.2013

TEST(Superzahlen, GemeinsamGewinntDieKuerzereZeit)
{
    const auto zeilen = gemeinsameSuperzahlen(
        zusammen({archiv(Samstagslotto, kSamstage, {1, 2, 3}), archiv(Mittwochslotto, kMittwoche, {3, 2, 1})}));
    const auto wochen = [&zeilen](int ziffer) {
        return std::ranges::find(zeilen, ziffer, &GemeinsameSuperzahl::ziffer)->wochen;
    };
    ASSERT_EQ(zeilen.size(), 4U);
    EXPECT_EQ(wochen(1), 0);
    EXPECT_EQ(wochen(2), 1);
    EXPECT_EQ(wochen(3), 0);
    EXPECT_EQ(wochen(9), 3);
}

TEST(Superzahlen, GemeinsamStehtDieJuengsteVorn)
{
    const auto zeilen = gemeinsameSuperzahlen(
        zusammen({archiv(Samstagslotto, kSamstage, {1, 2, 3}), archiv(Mittwochslotto, kMittwoche, {4, 5, 6})}));
    std::vector<int> ziffern;
    for (const GemeinsameSuperzahl& zeile : zeilen)
        ziffern.push_back(zeile.ziffer);
    EXPECT_EQ(ziffern, (std::vector{3, 6, 2, 5, 1, 4, 9}));
    EXPECT_EQ(zeilen[0].datum, datumText(samstagsZiehung(kSamstage)));
    EXPECT_EQ(zeilen[1].datum, datumText(mittwochsZiehung(kMittwoche)));
}

TEST(Superzahlen, GemeinsamZaehltNurWasJuengerIst)
{
    EXPECT_TRUE(
        gemeinsameSuperzahlen(zusammen({archiv(Samstagslotto, 3000, {}), archiv(Mittwochslotto, 1400, {})})).empty());
    const auto samstag = gemeinsameSuperzahlen(zusammen({archiv(Samstagslotto, 3001, {5})}));
    EXPECT_EQ(samstag, (std::vector<GemeinsameSuperzahl>{{5, 0, datumText(samstagsZiehung(3001))}}));
    const auto mittwoch = gemeinsameSuperzahlen(zusammen({archiv(Mittwochslotto, 1401, {6})}));
    EXPECT_EQ(mittwoch, (std::vector<GemeinsameSuperzahl>{{6, 0, datumText(mittwochsZiehung(1401))}}));
}

TEST(Superzahlen, BZaehltNichtZuDenGemeinsamen)
{
    EXPECT_TRUE(gemeinsameSuperzahlen(zusammen({archiv(MittwochslottoB, 1500, {5})})).empty());
}

} // namespace

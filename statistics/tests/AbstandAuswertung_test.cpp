#include "archive/logic/Ziehungskalender.h"
#include "statistics/logic/AbstandAuswertung.h"
#include "testhilfen/ArchivAus.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

/// Draws that show 1 to 6, and 49 in the draws named; the Zusatzzahl is `zz` in all of them.
ZiehungsArchiv mitNeunundvierzig(std::size_t anzahl, const std::vector<std::size_t>& nummern, std::int32_t zz = 0)
{
    std::vector<TestZiehung> ziehungen(anzahl, TestZiehung{2000, 1, {1, 2, 3, 4, 5, 6}, zz});
    for (const std::size_t nr : nummern)
        ziehungen[nr - 1].zahlen[5] = 49;
    ZiehungsArchiv archiv = archivAus(Samstagslotto, ziehungen);
    BaueSamstagsDaten(archiv);
    return archiv;
}

std::vector<std::int32_t> wochen(const AbstandAuswertung& auswertung)
{
    std::vector<std::int32_t> alle;
    for (const AbstandTreffer& treffer : auswertung.treffer)
        alle.push_back(treffer.wochen);
    return alle;
}

using Wochen = std::vector<std::int32_t>;

TEST(AbstandAuswertung, VorherRuecktNurBeiTreffernWeiter)
{
    const auto auswertung = werteAbstandAus(mitNeunundvierzig(50, {4, 10, 11, 30}), 49, ZZModus::Ohne);
    EXPECT_EQ(wochen(auswertung), (Wochen{3, 6, 1, 19}));
    EXPECT_EQ(auswertung.laengster, 3);
    EXPECT_EQ(auswertung.zahl, 49);
}

TEST(AbstandAuswertung, DieErsteZiehungGibtNullWochen)
{
    const auto auswertung = werteAbstandAus(mitNeunundvierzig(10, {1, 2}), 49, ZZModus::Ohne);
    EXPECT_EQ(wochen(auswertung), (Wochen{0, 1}));
    EXPECT_EQ(auswertung.laengster, 1);
}

TEST(AbstandAuswertung, EinEinzigerTrefferInDerErstenIstNichtMarkiert)
{
    const auto auswertung = werteAbstandAus(mitNeunundvierzig(10, {1}), 49, ZZModus::Ohne);
    EXPECT_EQ(wochen(auswertung), Wochen{0});
    EXPECT_EQ(auswertung.laengster, AbstandAuswertung::kKeine);
}

TEST(AbstandAuswertung, VonZweiGleichenBleibtDerFruehereMarkiert)
{
    const auto auswertung = werteAbstandAus(mitNeunundvierzig(30, {2, 9, 16, 20}), 49, ZZModus::Ohne);
    EXPECT_EQ(wochen(auswertung), (Wochen{1, 7, 7, 4}));
    EXPECT_EQ(auswertung.laengster, 1);
}

TEST(AbstandAuswertung, NachDemLetztenTrefferFolgtNichts)
{
    const auto auswertung = werteAbstandAus(mitNeunundvierzig(500, {20}), 49, ZZModus::Ohne);
    EXPECT_EQ(wochen(auswertung), Wochen{19});
    EXPECT_EQ(auswertung.treffer[0].ZiehungsNr, 20);
}

TEST(AbstandAuswertung, EinTrefferTraegtSeineZiehung)
{
    const auto auswertung = werteAbstandAus(mitNeunundvierzig(10, {2}, 33), 49, ZZModus::Ohne);
    ASSERT_EQ(auswertung.treffer.size(), 1U);
    const AbstandTreffer& treffer = auswertung.treffer[0];
    EXPECT_EQ(treffer.jjjj, 2000);
    EXPECT_EQ(treffer.sw, 1);
    EXPECT_EQ(treffer.datum, "So, 16.10.1955");
    EXPECT_EQ(treffer.gewinnzahlen, (std::array<std::int32_t, 6>{1, 2, 3, 4, 5, 49}));
    EXPECT_EQ(treffer.zz, 33);
}

TEST(AbstandAuswertung, DerModusSagtWasEinTrefferIst)
{
    ZiehungsArchiv archiv = mitNeunundvierzig(50, {10, 20});
    archiv.zz[15] = 49;
    EXPECT_EQ(wochen(werteAbstandAus(archiv, 49, ZZModus::Ohne)), (Wochen{9, 10}));
    EXPECT_EQ(wochen(werteAbstandAus(archiv, 49, ZZModus::Mit)), (Wochen{9, 5, 5}));
    EXPECT_EQ(wochen(werteAbstandAus(archiv, 49, ZZModus::Nur)), Wochen{14});
    EXPECT_EQ(wochen(werteAbstandAus(archiv, 7, ZZModus::Nur)), Wochen{});
}

TEST(AbstandAuswertung, NenntArchivUndStand)
{
    ZiehungsArchiv archiv = mitNeunundvierzig(10, {1});
    archiv.sw[10] = 9;
    const auto auswertung = werteAbstandAus(archiv, 49, ZZModus::Mit);
    EXPECT_EQ(auswertung.Spielart, Samstagslotto);
    EXPECT_EQ(auswertung.AnzahlZiehungen, 10);
    EXPECT_EQ(auswertung.ersteZiehung, "2000/01");
    EXPECT_EQ(auswertung.letzteZiehung, "2000/09");
    EXPECT_EQ(auswertung.letztesDatum, "So, 11.12.1955");
}

TEST(AbstandAuswertung, LeeresArchivHatKeineTreffer)
{
    const auto auswertung = werteAbstandAus(ZiehungsArchiv(), 49, ZZModus::Mit);
    EXPECT_TRUE(auswertung.treffer.empty());
    EXPECT_EQ(auswertung.laengster, AbstandAuswertung::kKeine);
    EXPECT_EQ(auswertung.ersteZiehung, "0000/00");
    EXPECT_EQ(auswertung.letztesDatum, "");
}

} // namespace

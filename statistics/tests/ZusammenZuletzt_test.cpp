#include "statistics/logic/ZusammenZuletzt.h"
#include "testhilfen/ArchivAus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::AllOf;
using testing::Each;
using testing::Field;

/// Saturday draws on four days of the week, two draws of Wednesday and one of its draw B.
ZiehungsArchiv siebenZiehungen()
{
    ZiehungsArchiv archiv = archivAus(Samstagslotto, {{1955, 41, {1, 2, 3, 4, 5, 6}, 49},
                                                      {1955, 52, {1, 7, 8, 9, 10, 11}, 0},
                                                      {1961, 52, {1, 12, 13, 14, 15, 16}, 0},
                                                      {1986, 24, {1, 17, 18, 19, 20, 21}, 0},
                                                      {1986, 23, {2, 22, 23, 24, 25, 26}, 0},
                                                      {1986, 25, {3, 27, 28, 29, 30, 31}, 0},
                                                      {1986, 23, {4, 32, 33, 34, 35, 36}, 0}});
    archiv.DatumAlle = {"",
                        "So, 09.10.1955",
                        "Mo, 26.12.1955",
                        "Di, 26.12.1961",
                        "Sa, 14.06.1986",
                        "Mi, 04.06.1986",
                        "Mi, 18.06.1986",
                        "Mi, 04.06.1986 (B)"};
    return archiv;
}

const Zuletzteintrag& fuer(const ZusammenZuletzt& zuletzt, int zahl)
{
    return zuletzt.eintraege.at(static_cast<std::size_t>(zahl - 1));
}

TEST(ZusammenZuletzt, ZaehltDieAusspielungenAllerSpieleSeither)
{
    const ZusammenZuletzt zuletzt = lastDrawn(siebenZiehungen(), 7);
    EXPECT_EQ(zuletzt.ziehungen, 7);
    EXPECT_EQ(fuer(zuletzt, 3).ausspielungen, 0);
    EXPECT_EQ(fuer(zuletzt, 3).datum, "Mi, 18.06.1986");
    EXPECT_EQ(fuer(zuletzt, 1).ausspielungen, 1);
    EXPECT_EQ(fuer(zuletzt, 1).datum, "Sa, 14.06.1986");
    EXPECT_EQ(fuer(zuletzt, 4).ausspielungen, 2); // the line of the B draw stands behind that of A
    EXPECT_EQ(fuer(zuletzt, 4).datum, "Mi, 04.06.1986 (B)");
    EXPECT_EQ(fuer(zuletzt, 2).ausspielungen, 3);
}

TEST(ZusammenZuletzt, SonntageUndMontageGehoerenZumSamstag)
{
    const ZusammenZuletzt zuletzt = lastDrawn(siebenZiehungen(), 7);
    EXPECT_EQ(fuer(zuletzt, 6).datum, "So, 09.10.1955");
    EXPECT_EQ(fuer(zuletzt, 6).ausspielungen, 6);
    EXPECT_EQ(fuer(zuletzt, 7).datum, "Mo, 26.12.1955");
}

TEST(ZusammenZuletzt, DerDienstagZaehltAlsAusspielungAberNichtMitSeinenZahlen)
{
    const ZusammenZuletzt zuletzt = lastDrawn(siebenZiehungen(), 7);
    EXPECT_EQ(fuer(zuletzt, 12).datum, "");
    EXPECT_EQ(fuer(zuletzt, 12).ausspielungen, 6);
    EXPECT_EQ(fuer(zuletzt, 7).ausspielungen, 5);
}

TEST(ZusammenZuletzt, DieZusatzzahlZaehltNicht)
{
    EXPECT_EQ(fuer(lastDrawn(siebenZiehungen(), 7), 49).datum, "");
}

TEST(ZusammenZuletzt, BFolgtDemKastenDesMittwochs)
{
    ZiehungsArchiv nurB =
        archivAus(Samstagslotto, {{1986, 23, {4, 32, 33, 34, 35, 36}, 0}, {1986, 24, {5, 32, 33, 34, 35, 36}, 0}});
    nurB.DatumAlle = {"", "Mi, 04.06.1986 (B)", "Mi, 11.06.1986 (B)"};
    const ZusammenZuletzt allein = lastDrawn(nurB, 4);
    EXPECT_EQ(allein.ziehungen, 2);
    EXPECT_THAT(allein.eintraege,
                Each(AllOf(Field(&Zuletzteintrag::ausspielungen, 1), Field(&Zuletzteintrag::datum, ""))));
    EXPECT_EQ(fuer(lastDrawn(nurB, 6), 5).ausspielungen, 0);
    EXPECT_EQ(fuer(lastDrawn(siebenZiehungen(), 5), 2).datum, "So, 09.10.1955");
}

TEST(ZusammenZuletzt, OhneZiehungenStehtUeberallNull)
{
    for (const ZusammenZuletzt& zuletzt : {lastDrawn(siebenZiehungen(), 0), lastDrawn(ZiehungsArchiv{}, 7)}) {
        EXPECT_EQ(zuletzt.ziehungen, 0);
        EXPECT_THAT(zuletzt.eintraege, Each(Field(&Zuletzteintrag::ausspielungen, 0)));
        EXPECT_TRUE(zeilenNachZahl(zuletzt).empty());
        EXPECT_TRUE(zeilenNachAusspielungen(zuletzt).empty());
    }
}

TEST(ZusammenZuletzt, ZeilenNachZahl)
{
    const auto zeilen = zeilenNachZahl(lastDrawn(siebenZiehungen(), 7));
    ASSERT_EQ(zeilen.size(), 49U);
    EXPECT_EQ(zeilen[0], " 1   1  Sa, 14.06.1986");
    EXPECT_EQ(zeilen[16], "17   1  Sa, 14.06.1986");
    EXPECT_EQ(zeilen[48], "49   6  ");
}

TEST(ZusammenZuletzt, ZeilenNachAusspielungenGleicheSteigenNachZahl)
{
    const auto zeilen = zeilenNachAusspielungen(lastDrawn(siebenZiehungen(), 7));
    ASSERT_EQ(zeilen.size(), 49U);
    EXPECT_EQ(zeilen[0], " 5   6  So, 09.10.1955");
    EXPECT_EQ(zeilen[1], " 6   6  So, 09.10.1955");
    EXPECT_EQ(zeilen[2], "12   6  ");
    EXPECT_EQ(zeilen[43], " 3   0  Mi, 18.06.1986");
    EXPECT_EQ(zeilen[48], "31   0  Mi, 18.06.1986");
}

} // namespace

#include "testhilfen/ArchivAus.h"
#include "tips/rules/Gewinntexte.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace {

constexpr Kombination kTip{3, 7, 12, 23, 34, 45};
constexpr std::int32_t kTipSZ = 5;
constexpr std::int32_t kFremdeSZ = 6;
constexpr std::int32_t kZZImTip = 45;
constexpr std::int32_t kZZDaneben = 44;

/// `anzahl` equal draws that share the first `treffer` numbers with kTip.
ZiehungsArchiv gleicheZiehungen(std::int16_t spielart, std::int32_t anzahl, std::int32_t treffer, std::int32_t sz,
                                std::int32_t zz)
{
    TestZiehung ziehung{2000, 1, {1, 2, 4, 5, 6, 8}, zz};
    for (std::size_t i = 0; i < static_cast<std::size_t>(treffer); ++i)
        ziehung.zahlen[i] = kTip[i];
    ZiehungsArchiv archiv = archivAus(spielart, std::vector<TestZiehung>(static_cast<std::size_t>(anzahl), ziehung));
    std::fill(archiv.s.begin() + 1, archiv.s.end(), sz);
    return archiv;
}

std::int32_t erste(std::int16_t spielart)
{
    return spielart <= 1 ? 1887 : 497;
}

/// The label that a draw has by the words of the plan in force.
std::string nachPlanNeu(std::int32_t treffer, bool sz)
{
    static const std::vector<std::string> namen{"", "", "Zweier", "Dreier", "Vierer", "Fünfer", "Sechser"};
    if (treffer < 2 || (treffer == 2 && !sz))
        return "";
    return namen[static_cast<std::size_t>(treffer)] + (sz ? "+SZ" : "");
}

std::string nachPlanAlt(std::int32_t treffer, bool sz, bool zz, bool mittwochB)
{
    switch (treffer) {
    case 6:
        return sz && !mittwochB ? "Sechser+SZ" : "Sechser";
    case 5:
        return zz ? "Fünfer+ZZ" : "Fünfer";
    case 4:
        return zz && !mittwochB ? "Vierer+ZZ" : "Vierer";
    case 3:
        return zz ? "Dreier+ZZ" : "Dreier";
    default:
        return "";
    }
}

TEST(Gewinnklassen, DieSuperzahlBeginntJeSpielart)
{
    EXPECT_EQ(superzahlBeginn(0), 1887);
    EXPECT_EQ(superzahlBeginn(1), 1887);
    EXPECT_EQ(superzahlBeginn(2), 497);
    EXPECT_EQ(superzahlBeginn(3), 497);
}

TEST(Gewinnklassen, JederFallBeiderPlaene)
{
    for (const std::int16_t spielart : {SpielartStart, Samstagslotto, Mittwochslotto, MittwochslottoB})
        for (std::int32_t treffer = 0; treffer <= 6; ++treffer)
            for (const bool sz : {false, true})
                for (const bool zz : {false, true}) {
                    const std::int32_t beginn = erste(spielart);
                    const ZiehungsArchiv archiv = gleicheZiehungen(spielart, beginn + 1, treffer,
                                                                   sz ? kTipSZ : kFremdeSZ, zz ? kZZImTip : kZZDaneben);
                    for (const std::int32_t nr : {1, beginn - 1, beginn, beginn + 1}) {
                        const bool mitSZ = sz && nr >= beginn;
                        SCOPED_TRACE(testing::Message() << "Spielart " << spielart << ", " << treffer << " Treffer, SZ "
                                                        << sz << ", ZZ " << zz << ", Nr " << nr);
                        ASSERT_EQ(countTreffer(archiv, kTip, nr), treffer);
                        EXPECT_EQ(gewinntextNeu(classifyNeu(archiv, treffer, nr, kTipSZ, spielart)),
                                  nachPlanNeu(treffer, mitSZ));
                        EXPECT_EQ(gewinntextAlt(classifyAlt(archiv, treffer, nr, kTip, kTipSZ, spielart)),
                                  nachPlanAlt(treffer, mitSZ, zz, spielart == 3));
                    }
                }
}

TEST(Gewinnklassen, DieKlassenSindVonObenGezaehlt)
{
    const ZiehungsArchiv sz = gleicheZiehungen(1, 1887, 6, kTipSZ, kZZImTip);
    const ZiehungsArchiv ohne = gleicheZiehungen(1, 1887, 6, kFremdeSZ, kZZDaneben);
    int klasse = 1;
    for (std::int32_t treffer = 6; treffer >= 3; --treffer) {
        const auto hoch = static_cast<Gewinnklasse>(klasse++);
        const auto tief = static_cast<Gewinnklasse>(klasse++);
        EXPECT_EQ(classifyNeu(sz, treffer, 1887, kTipSZ, 1), hoch);
        EXPECT_EQ(classifyNeu(ohne, treffer, 1887, kTipSZ, 1), tief);
        EXPECT_EQ(classifyAlt(sz, treffer, 1887, kTip, kTipSZ, 1), hoch);
        EXPECT_EQ(classifyAlt(ohne, treffer, 1887, kTip, kTipSZ, 1), tief);
    }
    EXPECT_EQ(classifyNeu(sz, 2, 1887, kTipSZ, 1), Gewinnklasse::GK9);
}

TEST(Gewinnklassen, SechserVorUndMitDerErstenSuperzahlAmSamstag)
{
    for (std::int32_t sz = -1; sz <= 11; ++sz) {
        const ZiehungsArchiv archiv = gleicheZiehungen(1, 1887, 6, sz, 0);
        for (std::int32_t tipSZ = 0; tipSZ <= 9; ++tipSZ) {
            EXPECT_EQ(gewinntextNeu(classifyNeu(archiv, 6, 1886, tipSZ, 1)), "Sechser");
            EXPECT_EQ(gewinntextAlt(classifyAlt(archiv, 6, 1886, kTip, tipSZ, 1)), "Sechser");
            EXPECT_EQ(gewinntextNeu(classifyNeu(archiv, 6, 1887, tipSZ, 1)), sz == tipSZ ? "Sechser+SZ" : "Sechser");
        }
    }
}

TEST(Gewinnklassen, ZweierMitSuperzahlErstAbIhremBeginn)
{
    const ZiehungsArchiv archiv = gleicheZiehungen(1, 1887, 2, kTipSZ, 0);
    EXPECT_EQ(classifyNeu(archiv, 2, 1886, kTipSZ, 1), Gewinnklasse::Keine);
    EXPECT_EQ(gewinntextNeu(classifyNeu(archiv, 2, 1887, kTipSZ, 1)), "Zweier+SZ");
    EXPECT_EQ(classifyAlt(archiv, 2, 1887, kTip, kTipSZ, 1), Gewinnklasse::Keine);
}

TEST(Gewinnklassen, DieZusatzzahlAlsSechsteZahl)
{
    ZiehungsArchiv archiv = gleicheZiehungen(1, 3500, 5, kFremdeSZ, kZZImTip);
    EXPECT_EQ(countTreffer(archiv, kTip, 3500), 5);
    EXPECT_EQ(gewinntextNeu(classifyNeu(archiv, 5, 3500, kTipSZ, 1)), "Fünfer");
    EXPECT_EQ(gewinntextAlt(classifyAlt(archiv, 5, 3500, kTip, kTipSZ, 1)), "Fünfer+ZZ");
}

TEST(Gewinnklassen, MittwochBTeiltVierUndSechsNicht)
{
    const ZiehungsArchiv archiv = gleicheZiehungen(3, 500, 6, kTipSZ, kZZImTip);
    EXPECT_EQ(gewinntextAlt(classifyAlt(archiv, 6, 500, kTip, kTipSZ, 3)), "Sechser");
    EXPECT_EQ(gewinntextAlt(classifyAlt(archiv, 4, 500, kTip, kTipSZ, 3)), "Vierer");
    EXPECT_EQ(gewinntextAlt(classifyAlt(archiv, 5, 500, kTip, kTipSZ, 3)), "Fünfer+ZZ");
    EXPECT_EQ(gewinntextAlt(classifyAlt(archiv, 3, 500, kTip, kTipSZ, 3)), "Dreier+ZZ");
    EXPECT_EQ(gewinntextNeu(classifyNeu(archiv, 6, 500, kTipSZ, 3)), "Sechser+SZ");
}

TEST(Gewinnklassen, DieSpielartDerZiehungZaehltNichtDieDesArchivs)
{
    const ZiehungsArchiv archiv = gleicheZiehungen(1, 600, 6, kTipSZ, 0);
    EXPECT_EQ(gewinntextNeu(classifyNeu(archiv, 6, 600, kTipSZ, 1)), "Sechser");
    EXPECT_EQ(gewinntextNeu(classifyNeu(archiv, 6, 600, kTipSZ, 2)), "Sechser+SZ");
}

TEST(Gewinnklassen, EineSuperzahlDieKeineZifferIstTrifftNie)
{
    for (const std::int32_t sz :
         {-1, 10, 11, std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()}) {
        const ZiehungsArchiv archiv = gleicheZiehungen(2, 497, 6, sz, 0);
        EXPECT_FALSE(superzahlTrifft(archiv, 497, sz, 2)) << sz;
        EXPECT_EQ(classifyNeu(archiv, 6, 497, sz, 2), Gewinnklasse::GK2) << sz;
        EXPECT_EQ(classifyNeu(archiv, 2, 497, sz, 2), Gewinnklasse::Keine) << sz;
    }
}

TEST(Gewinnklassen, EineZiehungDieEsNichtGibt)
{
    ZiehungsArchiv archiv = gleicheZiehungen(2, 500, 6, kTipSZ, kZZImTip);
    for (const std::int32_t nr :
         {0, -1, 501, std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()}) {
        EXPECT_EQ(countTreffer(archiv, kTip, nr), 0) << nr;
        EXPECT_EQ(classifyNeu(archiv, 6, nr, kTipSZ, 2), Gewinnklasse::Keine) << nr;
        EXPECT_EQ(classifyAlt(archiv, 6, nr, kTip, kTipSZ, 2), Gewinnklasse::Keine) << nr;
        EXPECT_FALSE(superzahlTrifft(archiv, nr, kTipSZ, 2)) << nr;
        EXPECT_FALSE(zusatzzahlTrifft(archiv, nr, kTip)) << nr;
    }
    archiv.AnzahlZiehungen = 1000; // more than the columns hold
    EXPECT_EQ(countTreffer(archiv, kTip, 501), 0);
    EXPECT_EQ(classifyNeu(ZiehungsArchiv{}, 6, 1, kTipSZ, 1), Gewinnklasse::Keine);
}

TEST(Gewinnklassen, EineTrefferzahlDieEsNichtGibt)
{
    const ZiehungsArchiv archiv = gleicheZiehungen(2, 500, 6, kTipSZ, kZZImTip);
    for (const std::int32_t treffer : {-1, 7, std::numeric_limits<std::int32_t>::max()}) {
        EXPECT_EQ(classifyNeu(archiv, treffer, 500, kTipSZ, 2), Gewinnklasse::Keine);
        EXPECT_EQ(classifyAlt(archiv, treffer, 500, kTip, kTipSZ, 2), Gewinnklasse::Keine);
    }
}

TEST(Gewinnklassen, UnsinnInTippOderZiehungTrifftNichts)
{
    constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
    const ZiehungsArchiv archiv = archivAus(1, {{2000, 1, {0, -3, 50, kMax, 7, 7}, 0}});
    EXPECT_EQ(countTreffer(archiv, {0, -3, 50, kMax, 8, 9}, 1), 0);
    EXPECT_EQ(countTreffer(archiv, {0, 0, 0, 0, 0, 7}, 1), 1);
    EXPECT_FALSE(zusatzzahlTrifft(archiv, 1, {0, 0, 0, 0, 0, 0}));
}

TEST(Gewinnklassen, DieTreffermengeIstDieSchnittmenge)
{
    // Each set of a draw's numbers, filled up with numbers of no draw.
    const ZiehungsArchiv archiv = archivAus(1, {{2000, 1, {1, 11, 21, 31, 41, 49}, 2}});
    const Kombination gezogen = archiv.gewinnzahlen(1);
    for (std::uint32_t menge = 0; menge < 64; ++menge) {
        Kombination tip{2, 3, 4, 5, 6, 7};
        std::int32_t erwartet = 0;
        for (std::size_t i = 0; i < 6; ++i) {
            if (menge >> i & 1U) {
                tip[i] = gezogen[i];
                ++erwartet;
            }
        }
        EXPECT_EQ(countTreffer(archiv, tip, 1), erwartet);
        const auto getroffen = getroffeneZahlen(archiv, tip, 1);
        for (std::size_t i = 0; i < 6; ++i)
            EXPECT_EQ(getroffen[i], (menge >> i & 1U) != 0);
    }
}

} // namespace

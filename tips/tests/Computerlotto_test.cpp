#include "tips/logic/Computerlotto.h"
#include "tips/logic/Zufallstipps.h"

#include <gtest/gtest.h>
#include <numeric>
#include <set>

namespace {

constexpr Kombination kTip{3, 7, 12, 23, 34, 45};
constexpr Zahlenmenge kDrei = Zahlenmenge{1} << 3 | Zahlenmenge{1} << 7 | Zahlenmenge{1} << 12;

Computerlotto gezogen(std::int32_t anzahl, std::uint64_t seed = 1)
{
    Computerlotto lotto{.tip = kTip};
    Zufall zufall(seed);
    simulateDraws(lotto, anzahl, zufall, GestellteUhr(), {});
    return lotto;
}

} // namespace

TEST(Computerlotto, DieZaehlerPassenZuDenZiehungen)
{
    const Computerlotto lotto = gezogen(5000);
    EXPECT_EQ(lotto.runden, 5000);
    ASSERT_EQ(lotto.ziehungen.size(), 5000U);
    std::array<std::int32_t, 6> haeufigkeit{};
    std::array<std::int32_t, 7> treffer{};
    std::size_t gewinne = 0;
    for (const Computerziehung& ziehung : lotto.ziehungen) {
        ASSERT_EQ(std::popcount(ziehung.zahlen), 6);
        std::size_t hits = 0;
        for (std::size_t j = 0; j < kTip.size(); ++j)
            if ((ziehung.zahlen & (Zahlenmenge{1} << kTip[j])) != 0) {
                ++haeufigkeit[j];
                ++hits;
            }
        treffer[hits] += hits > 0 ? 1 : 0;
        ASSERT_EQ(ziehung.treffer, static_cast<std::int32_t>(hits));
        if (hits >= 3) {
            ASSERT_LT(gewinne, lotto.gewinne.size());
            ASSERT_EQ(lotto.gewinne[gewinne].nr, ziehung.nr);
            ++gewinne;
        }
    }
    EXPECT_EQ(lotto.haeufigkeit, haeufigkeit);
    EXPECT_EQ(lotto.treffer, treffer);
    EXPECT_EQ(lotto.gewinne.size(), gewinne);
}

TEST(Computerlotto, DieListenEndenUndDieZaehlerNicht)
{
    const Computerlotto genau = gezogen(32735);
    EXPECT_EQ(genau.ziehungen.size(), 32735U);
    EXPECT_FALSE(genau.ziehungenVoll());
    const Computerlotto eine = gezogen(32736);
    EXPECT_EQ(eine.ziehungen.size(), 32735U);
    EXPECT_TRUE(eine.ziehungenVoll());
    EXPECT_EQ(eine.runden, 32736);
}

TEST(Computerlotto, AuchDieGewinnlisteEndet)
{
    const Computerlotto lotto = gezogen(2'000'000); // some 37,000 of them win
    EXPECT_EQ(lotto.gewinne.size(), 32735U);
    EXPECT_TRUE(lotto.gewinneVoll());
    EXPECT_GT(lotto.treffer[3] + lotto.treffer[4] + lotto.treffer[5] + lotto.treffer[6], 32735);
}

TEST(Computerlotto, EinStoppBeendetDieZiehungenUndLaesstDieZaehler)
{
    Computerlotto lotto{.tip = kTip};
    Zufall zufall(1);
    simulateDraws(lotto, 100'000'000, zufall, GestellteUhr(), [&](std::uint64_t erledigt) {
        EXPECT_EQ(static_cast<std::uint64_t>(lotto.runden), erledigt);
        return erledigt < 1000;
    });
    EXPECT_GE(lotto.runden, 1000);
    EXPECT_LT(lotto.runden, 100'000'000);
}

TEST(Computerlotto, DieAnzahlDarfPunkteHaben)
{
    EXPECT_EQ(ziehungsanzahl("10.000"), 10000);
    EXPECT_EQ(ziehungsanzahl(" 007 "), 7);
    for (const char* text : {"", "abc", "0", "-5", "4 9", "99999999999", "."})
        EXPECT_FALSE(ziehungsanzahl(text)) << text;
}

TEST(Computerlotto, DieZeilenNennenNummerUndZahlen)
{
    const Zahlenmenge zahlen = kDrei | Zahlenmenge{1} << 23 | Zahlenmenge{1} << 34 | Zahlenmenge{1} << 49;
    EXPECT_EQ(ziehungszeile({17, zahlen, 5}), "00017  03 07 12 23 34 49 ");
    EXPECT_EQ(gewinnzeile({123456, zahlen, 5}), "123456  03 07 12 23 34 49  (5-er)");
}

TEST(Computerlotto, DieZeitspanneInJahrenMonatenUndWochen)
{
    EXPECT_EQ(zeitspanne(1), (Zeitspanne{0, 0, 1}));
    EXPECT_EQ(zeitspanne(4), (Zeitspanne{0, 0, 4}));
    EXPECT_EQ(zeitspanne(5), (Zeitspanne{0, 1, 0}));
    EXPECT_EQ(zeitspanne(51), (Zeitspanne{0, 11, 3}));
    EXPECT_EQ(zeitspanne(52), (Zeitspanne{1, 0, 0}));
    EXPECT_EQ(zeitspanne(10000), (Zeitspanne{192, 3, 3}));
}

TEST(Zufallstipps, JederTippHatSechsVerschiedeneZahlen)
{
    Zufallstipps tipps;
    Zufall zufall(1);
    makeTips(tipps, zufall, 4711);
    EXPECT_EQ(tipps.ausgewertet, 6);
    for (std::size_t tip = 0; tip < kZufallstipps; ++tip) {
        EXPECT_EQ(std::set<int>(tipps.tipps[tip].begin(), tipps.tipps[tip].end()).size(), 6U);
        EXPECT_TRUE(istAufsteigend(tipps.kombination(tip)));
    }
    EXPECT_EQ(std::accumulate(tipps.haeufigkeit.begin(), tipps.haeufigkeit.end(), 0), 36);
}

TEST(Zufallstipps, DieHaeufigkeitGehtUeberAlleTipps)
{
    Zufallstipps tipps;
    Zufall zufall(1);
    makeTips(tipps, zufall, 4711);
    const auto erste = tipps.tipps;
    makeTips(tipps, zufall, 4711);
    EXPECT_NE(tipps.tipps, erste);
    EXPECT_EQ(tipps.ausgewertet, 12);
    EXPECT_EQ(std::accumulate(tipps.haeufigkeit.begin(), tipps.haeufigkeit.end(), 0), 72);
}

TEST(Zufallstipps, EineZeileNenntDieZahlenAufsteigend)
{
    Zufallstipps tipps;
    tipps.tipps[2] = {45, 3, 34, 7, 23, 12};
    EXPECT_EQ(tipreihenzeile(tipps, 2), "Tipreihe 3  ->   3  7 12 23 34 45");
}

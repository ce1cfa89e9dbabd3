#include "engines/logic/Trefferkern.h"
#include "engines/logic/Trefferreferenz.h"
#include "engines/tests/Zahlenreihen.h"
#include "shell/logic/Binomial.h"

#include <gtest/gtest.h>
#include <random>
#include <type_traits>

namespace {

using Befehlssatz = Trefferkern::Befehlssatz;

/// Every way that this machine can go.
std::vector<Befehlssatz> befehlssaetze()
{
    std::vector<Befehlssatz> alle{Befehlssatz::Einfach};
    if (Trefferkern::hat(Befehlssatz::Avx2))
        alle.push_back(Befehlssatz::Avx2);
    return alle;
}

/// The combinations of a block, in their order.
template <class Block> std::vector<Zahlenmenge> mengen(const Block& block, int n, int k)
{
    Zahlenmenge anfang = 0;
    int letzte = 0;
    for (int i = 0; i < k - 2; ++i) {
        letzte = block.anfang[static_cast<std::size_t>(i)];
        anfang |= Zahlenmenge{1} << letzte;
    }
    std::vector<Zahlenmenge> alle;
    for (const Zahlenmenge paar : alleMengen(n, 2, letzte + 1))
        alle.push_back(anfang | paar);
    return alle;
}

template <class Block>
void pruefeBlock(const Block& block, int n, int k, int ab, const std::vector<Zahlenmenge>& reihen)
{
    const auto kombinationen = mengen(block, n, k);
    ASSERT_EQ(block.anzahl, kombinationen.size());
    for (std::size_t i = 0; i < kombinationen.size(); ++i) {
        const Trefferzahlen erwartet = trefferMitMengen(kombinationen[i], reihen);
        for (auto h = static_cast<std::size_t>(ab); h <= static_cast<std::size_t>(k); ++h)
            ASSERT_EQ(block.treffer[h][i], erwartet[h]) << "n " << n << " k " << k << " h " << h << " i " << i;
    }
}

/// Walks through everything and looks at every `schritt`-th block.
void pruefe(int n, int k, int ab, const std::vector<Zahlenmenge>& reihen, Befehlssatz befehlssatz,
            std::size_t schritt = 1)
{
    const Trefferkern kern(n, reihen, befehlssatz);
    std::uint32_t nummer = 0;
    std::size_t bloecke = 0;
    EXPECT_TRUE(kern.durchlaufe(k, ab, [&](const auto& block) {
        EXPECT_EQ(block.nummer, nummer);
        nummer += static_cast<std::uint32_t>(block.anzahl);
        if (bloecke++ % schritt == 0)
            pruefeBlock(block, n, k, ab, reihen);
        return !testing::Test::HasFatalFailure();
    }));
    EXPECT_EQ(nummer, Binomial(n, k));
}

TEST(Trefferkern, ZaehltWieDerVergleichMitJederReihe)
{
    std::mt19937 zufall(6);
    for (const Befehlssatz befehlssatz : befehlssaetze()) {
        for (int n = 6; n <= 13; ++n) {
            for (const std::size_t anzahl : {0U, 1U, 2U, 17U, 300U}) {
                const auto reihen = zufallsreihen(zufall, n, anzahl);
                for (int k = 2; k <= 6; ++k)
                    for (const int ab : {2, 3})
                        pruefe(n, k, ab, reihen, befehlssatz);
            }
        }
    }
}

TEST(Trefferkern, ZaehltReihenMitWenigerZahlenUndZahlenUeberN)
{
    std::mt19937 zufall(7);
    std::vector<Zahlenmenge> reihen;
    for (int anzahl = 0; anzahl <= 6; ++anzahl)
        for (int i = 0; i < 20; ++i)
            reihen.push_back(zufallsmenge(zufall, 14, anzahl));
    for (const Befehlssatz befehlssatz : befehlssaetze())
        for (int k = 2; k <= 6; ++k)
            pruefe(10, k, 2, reihen, befehlssatz);
}

TEST(Trefferkern, HatKeineKombinationWoEsZuWenigZahlenGibt)
{
    const std::vector<Zahlenmenge> reihen{zahlenmenge(std::array{1, 2, 3})};
    for (int k = 2; k <= 6; ++k)
        pruefe(k - 1, k, 2, reihen, Befehlssatz::Bester);
}

TEST(Trefferkern, ZaehltSechsAus49AnVielenStellen)
{
    std::mt19937 zufall(1955);
    auto reihen = zufallsreihen(zufall, 49, 6'545);
    reihen.insert(reihen.end(), 3, reihen.front());
    for (const Befehlssatz befehlssatz : befehlssaetze())
        pruefe(49, 6, 2, reihen, befehlssatz, 4'999);
}

TEST(Trefferkern, BleibtMitDenMeistenReihenSchmal)
{
    std::mt19937 zufall(98'301);
    const auto reihen = zufallsreihen(zufall, 49, 98'301);
    const Trefferkern kern(49, reihen);
    EXPECT_TRUE(kern.schmal());
    EXPECT_LT(kern.tafelgroesse(), 64U << 20U);
    pruefe(49, 6, 3, reihen, Befehlssatz::Bester, 39'989);
    pruefe(49, 3, 2, reihen, Befehlssatz::Bester, 40);
}

TEST(Trefferkern, RechnetBreitWoSechzehnBitNichtReichen)
{
    const auto eine = zahlenmenge(std::array{5, 10, 20, 30, 40, 49});
    const std::vector<Zahlenmenge> reihen(98'301, eine);
    const Trefferkern kern(49, reihen);
    EXPECT_FALSE(kern.schmal());
    EXPECT_LT(kern.tafelgroesse(), 64U << 20U);
    std::array<std::uint64_t, 7> kombinationen{};
    for (const Befehlssatz befehlssatz : befehlssaetze()) {
        kombinationen.fill(0);
        Trefferkern(49, reihen, befehlssatz).durchlaufe(6, 2, [&](const auto& block) {
            for (std::size_t h = 2; h <= 6; ++h) {
                for (std::size_t i = 0; i < block.anzahl; ++i) {
                    const std::uint32_t treffer = block.treffer[h][i];
                    EXPECT_TRUE(treffer == 0 || treffer == 98'301) << treffer;
                    kombinationen[h] += treffer != 0;
                }
            }
            return true;
        });
        for (std::size_t h = 2; h <= 6; ++h) {
            const auto treffer = static_cast<int>(h);
            EXPECT_EQ(kombinationen[h], static_cast<std::uint64_t>(Binomial(6, treffer) * Binomial(43, 6 - treffer)));
        }
    }
}

TEST(Trefferkern, GrenzeZwischenSchmalUndBreit)
{
    const auto eine = zahlenmenge(std::array{1, 2, 3, 4, 5, 6});
    EXPECT_TRUE(Trefferkern(49, std::vector<Zahlenmenge>(65'535, eine)).schmal());
    EXPECT_FALSE(Trefferkern(49, std::vector<Zahlenmenge>(65'536, eine)).schmal());
    for (const std::size_t anzahl : {65'535U, 65'536U}) {
        std::uint32_t sechser = 0;
        Trefferkern(49, std::vector<Zahlenmenge>(anzahl, eine)).durchlaufe(6, 3, [&](const auto& block) {
            sechser = block.treffer[6][0];
            EXPECT_EQ(block.treffer[5][1], anzahl);
            return false;
        });
        EXPECT_EQ(sechser, anzahl);
    }
}

/// Rows of two numbers: `anzahl` times each pair.
std::vector<Zahlenmenge> paarreihen(const std::vector<std::array<int, 2>>& paare, std::size_t anzahl)
{
    std::vector<Zahlenmenge> reihen;
    for (const auto& paar : paare)
        reihen.insert(reihen.end(), anzahl, zahlenmenge(paar));
    return reihen;
}

/// Rows that share exactly two numbers with a combination, by both ways to go; the width must be found right.
void pruefeZweier(const std::vector<Zahlenmenge>& reihen, std::uint32_t nummer, std::size_t erwartet, bool schmal)
{
    for (const Befehlssatz befehlssatz : befehlssaetze()) {
        const Trefferkern kern(49, reihen, befehlssatz);
        EXPECT_EQ(kern.schmal(), schmal);
        std::size_t zweier = 0;
        kern.durchlaufe(6, 2, [&](const auto& block) {
            if (nummer - block.nummer >= block.anzahl)
                return true;
            zweier = block.treffer[2][nummer - block.nummer];
            return false;
        });
        EXPECT_EQ(zweier, erwartet);
    }
}

TEST(Trefferkern, MehrReihenAlsSechzehnBitZaehlenSolangeSieWenigTeilen)
{
    constexpr std::size_t kGrenze = 65'535;
    constexpr std::uint32_t kErste = 0; // 1 2 3 4 5 6
    auto gerade = paarreihen({{1, 2}}, kGrenze);
    gerade.push_back(zahlenmenge(std::array{3}));
    pruefeZweier(gerade, kErste, kGrenze, true);
    pruefeZweier(paarreihen({{1, 2}}, kGrenze + 1), kErste, kGrenze + 1, false);
    pruefeZweier(paarreihen({{1, 2}, {3, 4}, {5, 6}}, kGrenze / 3), kErste, kGrenze, true);
    pruefeZweier(paarreihen({{1, 2}, {3, 4}, {5, 6}}, kGrenze / 3 + 1), kErste, kGrenze + 3, false);
}

TEST(Trefferkern, DieHaeufigstenSechsZahlenBestimmenDieBreite)
{
    constexpr std::uint32_t kNummer = 43; // 1 2 3 4 5 49
    constexpr std::size_t kJedes = 21'845;
    auto reihen = paarreihen({{6, 7}, {1, 2}, {3, 4}, {5, 49}}, kJedes);
    pruefeZweier(reihen, kNummer, 3 * kJedes, true);
    const auto weitere = paarreihen({{1, 2}, {3, 4}, {5, 49}}, 1);
    reihen.insert(reihen.end(), weitere.begin(), weitere.end());
    pruefeZweier(reihen, kNummer, 3 * kJedes + 3, false);
}

TEST(Trefferkern, SoVieleGleicheReihenDassIhrVielfachesKeineGanzeZahlIst)
{
    constexpr std::size_t kGleiche = 32'778; // times a factor in 16 bits it passes 2^31
    const auto eine = zahlenmenge(std::array{1, 2, 3, 4, 5, 6});
    for (const Befehlssatz befehlssatz : befehlssaetze()) {
        Trefferkern(49, std::vector<Zahlenmenge>(kGleiche, eine), befehlssatz).durchlaufe(6, 2, [&](const auto& block) {
            EXPECT_EQ(block.treffer[6][0], kGleiche);
            for (const std::size_t h : {2U, 3U, 4U, 5U})
                EXPECT_EQ(block.treffer[h][0], 0U);
            EXPECT_EQ(block.treffer[5][1], kGleiche);
            return false;
        });
    }
}

TEST(Trefferkern, WenigeZahlen)
{
    std::mt19937 zufall(4);
    for (int n = 2; n <= 6; ++n) {
        std::vector<Zahlenmenge> reihen;
        for (int i = 0; i < 20; ++i)
            reihen.push_back(zufallsmenge(zufall, n, static_cast<int>(zufall() % static_cast<unsigned>(n)) + 1));
        for (const Befehlssatz befehlssatz : befehlssaetze())
            for (int k = 2; k <= 6; ++k)
                pruefe(n, k, 2, reihen, befehlssatz);
    }
}

/// It keeps a count of its own and cannot be copied.
class Mitzaehler {
public:
    Mitzaehler() = default;
    Mitzaehler(const Mitzaehler&) = delete;
    Mitzaehler& operator=(const Mitzaehler&) = delete;

    bool operator()(const auto& block)
    {
        kombinationen += block.anzahl;
        return true;
    }

    std::size_t kombinationen = 0;
};

TEST(Trefferkern, DerBesucherBleibtDerselbe)
{
    Mitzaehler besucher;
    EXPECT_TRUE(Trefferkern(10, {}).durchlaufe(4, 2, besucher));
    EXPECT_EQ(besucher.kombinationen, 210U);
}

TEST(Trefferkern, EndetAufWunsch)
{
    int bloecke = 0;
    EXPECT_FALSE(Trefferkern(49, {}).durchlaufe(6, 3, [&](const auto&) { return ++bloecke < 3; }));
    EXPECT_EQ(bloecke, 3);
}

TEST(Trefferkern, NenntSeinenBefehlssatz)
{
    EXPECT_EQ(Trefferkern::name(Befehlssatz::Einfach), "Einfach");
    EXPECT_EQ(Trefferkern::name(Befehlssatz::Bester), Trefferkern::name(befehlssaetze().back()));
    EXPECT_TRUE(Trefferkern::hat(Befehlssatz::Einfach));
    EXPECT_TRUE(Trefferkern::hat(Befehlssatz::Bester));
}

TEST(Trefferreferenz, BeideWegeSindGleich)
{
    const std::vector<std::array<std::int32_t, 6>> reihen{
        {1, 2, 3, 4, 5, 6}, {1, 2, 3, 47, 48, 49}, {7, 8, 9, 10, 11, 12}};
    std::vector<Zahlenmenge> alsMengen;
    for (const auto& reihe : reihen)
        alsMengen.push_back(zahlenmenge(reihe));
    const std::array<std::int32_t, 6> kombination{1, 2, 3, 4, 7, 49};
    const Trefferzahlen erwartet{0, 1, 0, 0, 2, 0, 0};
    EXPECT_EQ(trefferMitFlaggen(kombination, reihen), erwartet);
    EXPECT_EQ(trefferMitMengen(zahlenmenge(kombination), alsMengen), erwartet);
}

} // namespace

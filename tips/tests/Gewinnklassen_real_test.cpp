#include "tips/rules/Gewinntexte.h"
#include "tips/rules/Trefferbilanz.h"
#include "tips/tests/EchteGewinne.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>

namespace {

TEST_P(EchteGewinne, JedeZiehungAlsIhrEigenerTipp)
{
    for (std::size_t i = 0; i < roh_.size(); ++i) {
        const Kombination tip = roh_[i].zahlen;
        ASSERT_EQ(countTreffer(archiv_, tip, nummer(i)), 6);
        for (int tipSZ = 0; tipSZ <= 9; ++tipSZ) {
            const bool sz = spiel_.hatSuperzahl(i) && spiel_.sz[i] == tipSZ;
            EXPECT_EQ(gewinntextNeu(classifyNeu(archiv_, 6, nummer(i), tipSZ, GetParam())),
                      sz ? "Sechser+SZ" : "Sechser");
            EXPECT_EQ(gewinntextAlt(classifyAlt(archiv_, 6, nummer(i), tip, tipSZ, GetParam())),
                      sz && GetParam() != MittwochslottoB ? "Sechser+SZ" : "Sechser");
        }
    }
}

// Tips that hit often: the numbers of every 97th draw, against all draws.
TEST_P(EchteGewinne, VieleTippsGegenAlleZiehungen)
{
    for (std::size_t t = 0; t < roh_.size(); t += 97) {
        const Kombination tip = roh_[t].zahlen;
        const int tipSZ = static_cast<int>(t % 10);
        Trefferbilanz neu;
        std::map<std::string, int> erwartet;
        for (std::size_t i = 0; i < roh_.size(); ++i) {
            const Tippbewertung bewertung = bewerteNeu(archiv_, nummer(i), tip, tipSZ, GetParam());
            const std::string soll = spiel_.label(i, roh_[t].zahlen, tipSZ, false);
            ASSERT_EQ(gewinntextNeu(bewertung.klasse), soll) << roh_[i].jahrUndWoche;
            ASSERT_EQ(gewinntextAlt(bewerteAlt(archiv_, nummer(i), tip, tipSZ, GetParam()).klasse),
                      spiel_.label(i, roh_[t].zahlen, tipSZ, true))
                << roh_[i].jahrUndWoche;
            neu.zaehle(bewertung);
            ++erwartet[soll];
        }
        for (int klasse = 1; klasse <= 9; ++klasse) {
            const auto eine = static_cast<Gewinnklasse>(klasse);
            EXPECT_EQ(neu.anzahl(eine), erwartet[std::string(gewinntextNeu(eine))]);
        }
        EXPECT_EQ(neu.Null + neu.Einer + neu.Zweier(), erwartet[""]);
        for (std::size_t zahl = 0; zahl < 6; ++zahl) {
            const auto gezogen = std::count_if(roh_.begin(), roh_.end(), [&](const RohZiehung& ziehung) {
                return std::count(ziehung.zahlen.begin(), ziehung.zahlen.end(), tip[zahl]) > 0;
            });
            EXPECT_EQ(neu.haeufigkeit[zahl], gezogen);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Spielarten, EchteGewinne, testing::Values(Samstagslotto, Mittwochslotto, MittwochslottoB));

} // namespace

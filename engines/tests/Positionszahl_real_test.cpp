#include "engines/logic/Positionsliste.h"
#include "testhilfen/EchteDaten.h"

#include <algorithm>

namespace {

using EchtePositionen = EchteDaten;

/// The place of a row by comparing it, place by place, with how many rows a smaller number there would leave open.
long platz(const std::array<int, 6>& zahlen)
{
    long davor = 0;
    int vorige = 0;
    for (int stelle = 0; stelle < 6; ++stelle) {
        for (int zahl = vorige + 1; zahl < zahlen[static_cast<std::size_t>(stelle)]; ++zahl) {
            long wege = 1; // to choose the other numbers out of those above
            for (int i = 0; i < 5 - stelle; ++i)
                wege = wege * (49 - zahl - i) / (i + 1);
            davor += wege;
        }
        vorige = zahlen[static_cast<std::size_t>(stelle)];
    }
    return davor + 1;
}

TEST_P(EchtePositionen, JedeZiehungAufAllenWegen)
{
    for (std::size_t i = 0; i < roh_.size(); ++i) {
        const long erwartet = platz(roh_[i].zahlen);
        ASSERT_EQ(PositionszahlSumme(archiv_.gewinnzahlen(i + 1)), erwartet) << roh_[i].jahrUndWoche;
        if (i % 10 == 0) {
            ASSERT_EQ(PositionszahlZaehlen(roh_[i].zahlen), erwartet);
            ASSERT_EQ(KombinationZaehlen(static_cast<Positionszahl>(erwartet)), roh_[i].zahlen);
        }
    }
}

TEST_P(EchtePositionen, DieListeZeigtJedeZiehung)
{
    const auto zeilen = positionsliste(archiv_, {}).zeilen;
    ASSERT_EQ(zeilen.size(), roh_.size());
    for (std::size_t i = 0; i < roh_.size(); ++i) {
        EXPECT_EQ(zeilen[i].size(), 43U);
        EXPECT_EQ(positionInZeile(zeilen[i]), platz(roh_[i].zahlen));
        EXPECT_EQ(zeilen[i].substr(17, 7), roh_[i].jahrUndWoche);
        EXPECT_EQ(zahlenInZeile(zeilen[i]), roh_[i].zahlen);
    }
}

TEST_P(EchtePositionen, DerBereichFasstDieZiehungenDarin)
{
    for (const Positionsbereich& bereich : {Positionsbereich{40'000, 100'000},
                                            {1, 13'983'816},
                                            {5'000'000, 6'000'000},
                                            {1, 1},
                                            {13'000'000, 13'983'816}}) {
        const auto erwartet = std::count_if(roh_.begin(), roh_.end(), [&](const RohZiehung& ziehung) {
            return platz(ziehung.zahlen) >= bereich.von && platz(ziehung.zahlen) <= bereich.bis;
        });
        EXPECT_EQ(positionsliste(archiv_, bereich).zeilen.size(), static_cast<std::size_t>(erwartet));
    }
}

INSTANTIATE_TEST_SUITE_P(Spielarten, EchtePositionen, testing::Values(Samstagslotto, Mittwochslotto, MittwochslottoB));

} // namespace

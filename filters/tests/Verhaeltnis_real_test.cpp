#include "filters/logic/Verhaeltnis.h"
#include "testhilfen/EchteDaten.h"

#include <algorithm>
#include <set>

namespace {

const std::set<int> kPrim{2, 3, 5, 7, 11, 13, 17, 19, 23, 29, 31, 37, 41, 43, 47};
const std::set<int> kRand{1, 2, 3, 4, 5, 6, 7, 8, 14, 15, 21, 22, 28, 29, 35, 36, 42, 43, 44, 45, 46, 47, 48, 49};

/// The kind of a number, by lists of its own.
bool zaehlt(const Verhaeltnisart& art, int zahl)
{
    if (&art == &kGeradeUngerade)
        return zahl % 2 == 0;
    if (&art == &kTiefHoch)
        return zahl <= 24;
    return (&art == &kPrimzahlen ? kPrim : kRand).contains(zahl);
}

class EchteVerhaeltnisse : public EchteSpielarten {};

TEST_P(EchteVerhaeltnisse, StimmenMitDemTextDerDateien)
{
    for (const Verhaeltnisart* art : {&kGeradeUngerade, &kTiefHoch, &kPrimzahlen, &kRandzahlen}) {
        std::array<std::int32_t, 7> soll{};
        for (const RohZiehung& ziehung : roh_)
            ++soll[static_cast<std::size_t>(
                std::ranges::count_if(ziehung.zahlen, [art](int zahl) { return zaehlt(*art, zahl); }))];
        for (int gesucht = 0; gesucht <= 6; ++gesucht) {
            const Verhaeltnissuche suche = FiltereZiehungen(archiv_, *art, gesucht);
            EXPECT_EQ(suche.ziehungen, soll);
            EXPECT_EQ(suche.funde.size(), static_cast<std::size_t>(soll[static_cast<std::size_t>(gesucht)]));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AlleAuswahlen, EchteVerhaeltnisse, testing::Range(1, 8));

} // namespace

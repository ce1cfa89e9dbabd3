#include "tips/logic/Computerlotto.h"

#include <gtest/gtest.h>
#include <numeric>
#include <vector>

namespace {

constexpr Kombination kTip{3, 7, 12, 23, 34, 45};

/// The sum of (count - expected)^2 / expected.
double chiQuadrat(const std::vector<double>& gezaehlt, const std::vector<double>& erwartet)
{
    double summe = 0;
    for (std::size_t i = 0; i < gezaehlt.size(); ++i)
        summe += (gezaehlt[i] - erwartet[i]) * (gezaehlt[i] - erwartet[i]) / erwartet[i];
    return summe;
}

} // namespace

TEST(Computerlotto, ZahlenUndTrefferSindVerteiltWieImSpiel)
{
    constexpr int kAnzahl = 10'000'000;
    Computerlotto lotto{.tip = kTip};
    Zufall zufall(20261121);
    const GestellteUhr uhr;
    std::vector<double> zahlen(kHoechsteZahl);
    for (int i = 0; i < kAnzahl; ++i)
        for (const int zahl : zieheComputerzahlen(lotto, zufall, uhr.Timer()))
            ++zahlen[static_cast<std::size_t>(zahl - 1)];
    const std::vector<double> erwarteteZahlen(kHoechsteZahl, kAnzahl * 6.0 / kHoechsteZahl);
    EXPECT_LT(chiQuadrat(zahlen, erwarteteZahlen), 84.0); // 48 degrees of freedom, one in a thousand

    // how many of the 13,983,816 combinations share 0 to 4 numbers with a tip, and 5 or 6
    const std::vector<double> kombinationen{6096454, 5775588, 1851150, 246820, 13545, 259};
    std::vector<double> treffer{0,
                                double(lotto.treffer[1]),
                                double(lotto.treffer[2]),
                                double(lotto.treffer[3]),
                                double(lotto.treffer[4]),
                                double(lotto.treffer[5] + lotto.treffer[6])};
    treffer[0] = kAnzahl - std::accumulate(treffer.begin(), treffer.end(), 0.0);
    std::vector<double> erwartet;
    for (const double anzahl : kombinationen)
        erwartet.push_back(kAnzahl * anzahl / 13983816);
    EXPECT_LT(chiQuadrat(treffer, erwartet), 20.5); // 5 degrees of freedom, one in a thousand
}

#include "statistics/logic/AbstandAuswertung.h"
#include "statistics/logic/AbstandMaximum.h"
#include "testhilfen/AbstandReferenz.h"
#include "testhilfen/EchteDaten.h"

#include <algorithm>

namespace {

constexpr std::array kModi{ZZModus::Ohne, ZZModus::Mit, ZZModus::Nur};

/// Numbers of the records that hold a number, counted from 1.
std::vector<std::size_t> trefferImText(const std::vector<RohZiehung>& roh, int zahl, ZZModus modus)
{
    std::vector<std::size_t> nummern;
    for (std::size_t i = 0; i < roh.size(); ++i) {
        const auto& zahlen = roh[i].zahlen;
        const bool gezogen = std::find(zahlen.begin(), zahlen.end(), zahl) != zahlen.end();
        if ((modus != ZZModus::Nur && gezogen) || (modus != ZZModus::Ohne && roh[i].zz == zahl))
            nummern.push_back(i + 1);
    }
    return nummern;
}

using EchteAbstaende = EchteDaten;

TEST_P(EchteAbstaende, StehenWieImText)
{
    for (const ZZModus modus : kModi) {
        for (int zahl = 1; zahl <= 49; ++zahl) {
            const auto nummern = trefferImText(roh_, zahl, modus);
            const AbstandAuswertung auswertung = werteAbstandAus(archiv_, zahl, modus);
            ASSERT_EQ(auswertung.treffer.size(), nummern.size()) << zahl;
            int laengster = AbstandAuswertung::kKeine;
            std::size_t maximum = 0;
            for (std::size_t i = 0; i < nummern.size(); ++i) {
                const std::size_t wochen = nummern[i] - (i == 0 ? 1 : nummern[i - 1]);
                EXPECT_EQ(static_cast<std::size_t>(auswertung.treffer[i].ZiehungsNr), nummern[i]) << zahl;
                EXPECT_EQ(static_cast<std::size_t>(auswertung.treffer[i].wochen), wochen) << zahl;
                if (wochen > maximum) {
                    maximum = wochen;
                    laengster = static_cast<int>(i);
                }
            }
            EXPECT_EQ(auswertung.laengster, laengster) << zahl;
        }
    }
}

TEST_P(EchteAbstaende, NurZusatzzahlReichtVonIhrerErstenBisZuIhrerLetztenZiehung)
{
    const std::string erste = GetParam() == Samstagslotto ? "1956/25" : "1986/23";
    for (int zahl = 1; zahl <= 49; ++zahl) {
        for (const AbstandTreffer& treffer : werteAbstandAus(archiv_, zahl, ZZModus::Nur).treffer) {
            const auto nr = static_cast<std::size_t>(treffer.ZiehungsNr);
            EXPECT_GE(jahrUndWoche(archiv_, nr), erste);
            EXPECT_LE(treffer.jjjj, 2013);
        }
    }
}

TEST_P(EchteAbstaende, DerLaengsteIstDerDesEinfachenDurchlaufs)
{
    EXPECT_EQ(laengsterAbstand(archiv_, ZZModus::Ohne), laengsterAbstandEinfach(archiv_, ZZModus::Ohne));
    loescheFrueheZusatzzahlen(archiv_);
    for (const ZZModus modus : kModi)
        EXPECT_EQ(laengsterAbstand(archiv_, modus), laengsterAbstandEinfach(archiv_, modus));
}

INSTANTIATE_TEST_SUITE_P(AlleSpielarten, EchteAbstaende,
                         testing::Values(Samstagslotto, Mittwochslotto, MittwochslottoB),
                         [](const auto& fall) { return "Spielart" + std::to_string(fall.param); });

} // namespace

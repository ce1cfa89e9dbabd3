#include "engines/logic/NieGezogeneDreier.h"
#include "engines/logic/WiederholungDetails.h"
#include "shell/logic/Binomial.h"
#include "testhilfen/EchteDaten.h"

#include <algorithm>
#include <map>
#include <set>

namespace {

using Reihe = std::array<std::int32_t, 6>;
using Mengen = std::map<std::vector<std::int32_t>, std::int32_t>;

/// How often each set of `k` numbers stands in the text of the files.
Mengen zaehle(const std::vector<RohZiehung>& ziehungen, std::size_t k)
{
    Mengen mengen;
    for (const RohZiehung& ziehung : ziehungen) {
        std::vector<bool> dabei(6);
        std::fill_n(dabei.begin(), k, true);
        do {
            std::vector<std::int32_t> menge;
            for (std::size_t i = 0; i < 6; ++i)
                if (dabei[i])
                    menge.push_back(ziehung.zahlen[i]);
            ++mengen[menge];
        } while (std::prev_permutation(dabei.begin(), dabei.end()));
    }
    return mengen;
}

void vergleiche(const ZiehungsArchiv& archiv, const std::vector<RohZiehung>& roh, const Wiederholungsart& art)
{
    ASSERT_EQ(static_cast<std::size_t>(archiv.AnzahlZiehungen), roh.size());
    for (std::size_t k = 2; k <= 6; ++k) {
        SCOPED_TRACE(k);
        Mengen soll = zaehle(roh, k);
        const auto einmal = std::erase_if(soll, [](const auto& menge) { return menge.second == 1; });
        const Wiederholungen ergebnis = WiederholungsSuche(archiv, static_cast<int>(k));
        EXPECT_EQ(static_cast<std::size_t>(ergebnis.AnzahlEinmal), einmal);
        EXPECT_EQ(static_cast<std::size_t>(ergebnis.AnzahlMehrfach), soll.size());
        Mengen ist;
        std::vector<std::string> zeilen;
        for (const Wiederholung& wiederholung : ergebnis.mehrfache) {
            const std::vector<std::int32_t> zahlen(wiederholung.zahlen.begin(),
                                                   wiederholung.zahlen.begin() + static_cast<std::ptrdiff_t>(k));
            ist[zahlen] = wiederholung.anzahl;
            zeilen.push_back(ergebniszeile(wiederholung, static_cast<int>(k), art));
        }
        EXPECT_EQ(ist, soll);
        // Each line has two dash lines, a head and one row for each of its draws.
        std::size_t rows = 3 * soll.size();
        for (const auto& [menge, anzahl] : soll)
            rows += static_cast<std::size_t>(anzahl);
        EXPECT_EQ(wiederholungDetails(archiv, static_cast<int>(k), art, zeilen).anzahl(), rows);
    }
    EXPECT_EQ(nieGezogeneDreier(archiv).size(), static_cast<std::size_t>(Binomial(49, 3)) - zaehle(roh, 3).size());
}

using EchteWiederholungen = EchteDaten;

TEST_P(EchteWiederholungen, WieImTextDerDatei)
{
    vergleiche(archiv_, roh_, kEineSpielart);
}

INSTANTIATE_TEST_SUITE_P(AlleSpiele, EchteWiederholungen,
                         testing::Values(Samstagslotto, Mittwochslotto, MittwochslottoB));

TEST(EchteWiederholungenZusammen, WieImTextDerDreiDateien)
{
    if (!std::filesystem::exists(kEchteDaten / "SALOTTO.DAT"))
        GTEST_SKIP() << "keine echten Ziehungen";
    ZiehungsArchiv archiv;
    archiv.ProgrammVerzeichnis = kEchteDaten.string() + "/";
    LadeAlleZiehungen(archiv, 7, {});
    std::vector<RohZiehung> roh;
    for (const char* name : {"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"})
        std::ranges::copy(liesRoh(name), std::back_inserter(roh));
    vergleiche(archiv, roh, kAlleSpielarten);
}

// The best known pair of equal draws: Saturday 1986/51 and Wednesday 1995/25.
TEST(EchteWiederholungenZusammen, ZweiSpieleHabenDieselbenSechs)
{
    if (!std::filesystem::exists(kEchteDaten / "SALOTTO.DAT"))
        GTEST_SKIP() << "keine echten Ziehungen";
    ZiehungsArchiv archiv;
    archiv.ProgrammVerzeichnis = kEchteDaten.string() + "/";
    LadeAlleZiehungen(archiv, 7, {});
    const Wiederholungen ergebnis = WiederholungsSuche(archiv, 6);
    EXPECT_TRUE(std::ranges::any_of(ergebnis.mehrfache, [](const Wiederholung& wiederholung) {
        return wiederholung.zahlen == Reihe{15, 25, 27, 30, 42, 48};
    }));
}

} // namespace

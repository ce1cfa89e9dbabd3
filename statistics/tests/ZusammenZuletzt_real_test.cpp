#include "statistics/logic/ZusammenZuletzt.h"
#include "testhilfen/EchteDaten.h"

#include <algorithm>
#include <tuple>

namespace {

struct Reihe {
    std::string tag; ///< "20001129"
    RohZiehung ziehung;
    std::string datum;
    int bit = 0; ///< of the file
};

/// The records of the files of `maske`, oldest first; on one day those with the lower numbers first.
std::vector<Reihe> reihen(int maske)
{
    std::vector<Reihe> alle;
    for (const auto& [bit, name, spielart] : {std::tuple(1, "SALOTTO.DAT", Samstagslotto),
                                              {2, "MALOTTO.DAT", Mittwochslotto},
                                              {4, "MBLOTTO.DAT", MittwochslottoB}}) {
        if ((maske & bit) == 0)
            continue;
        const std::vector<std::string> daten = ladeEchte(spielart).Datum;
        for (std::size_t nr = 1; const RohZiehung& ziehung : liesRoh(name)) {
            const std::string& datum = daten[nr++];
            alle.push_back({datum.substr(10, 4) + datum.substr(7, 2) + datum.substr(4, 2), ziehung,
                            datum + (bit == 4 ? " (B)" : ""), bit});
        }
    }
    std::ranges::sort(alle, {}, [](const Reihe& reihe) {
        return std::tuple(reihe.tag, reihe.ziehung.jahrUndWoche, reihe.ziehung.zahlen, reihe.ziehung.zz);
    });
    return alle;
}

/// Each set of games, as the bits of its files.
class EchteZusammenZuletzt : public testing::TestWithParam<int> {};

TEST_P(EchteZusammenZuletzt, StehenWieImTextDerDateien)
{
    if (!gibtEchteDaten())
        GTEST_SKIP() << "keine echten Ziehungen";
    const int maske = GetParam();
    ZiehungsArchiv archiv;
    archiv.ProgrammVerzeichnis = kEchteDaten.string() + "/";
    LadeAlleZiehungen(archiv, maske, {});
    const ZusammenZuletzt zuletzt = lastDrawn(archiv, maske);
    const std::vector<Reihe> alle = reihen(maske);
    ASSERT_EQ(static_cast<std::size_t>(zuletzt.ziehungen), alle.size());

    for (int zahl = 1; zahl <= 49; ++zahl) {
        // from the newest draw back; B is taken together with A only, and one Tuesday not at all
        const auto gefunden = std::find_if(alle.rbegin(), alle.rend(), [&](const Reihe& reihe) {
            const bool zaehlt = reihe.bit == 4 ? (maske & 2) != 0 : reihe.tag != "19611226";
            return zaehlt && std::ranges::count(reihe.ziehung.zahlen, zahl) > 0;
        });
        const bool gibtEs = gefunden != alle.rend();
        const Zuletzteintrag& ist = zuletzt.eintraege[static_cast<std::size_t>(zahl - 1)];
        EXPECT_EQ(ist.zahl, zahl);
        EXPECT_EQ(ist.ausspielungen, gibtEs ? gefunden - alle.rbegin() : std::ssize(alle) - 1) << zahl;
        EXPECT_EQ(ist.datum, gibtEs ? gefunden->datum : "") << zahl;
        EXPECT_EQ(gibtEs, maske != 4) << zahl;
    }
}

INSTANTIATE_TEST_SUITE_P(AlleAuswahlen, EchteZusammenZuletzt, testing::Range(1, 8));

} // namespace

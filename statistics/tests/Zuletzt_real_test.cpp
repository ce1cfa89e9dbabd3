#include "statistics/logic/ZuletztAuswertung.h"
#include "testhilfen/EchteDaten.h"

#include <algorithm>

namespace {

constexpr std::array kModi{ZZModus::Ohne, ZZModus::Mit, ZZModus::Nur};

bool enthaelt(const RohZiehung& ziehung, int zahl, ZZModus modus)
{
    const bool gezogen = std::find(ziehung.zahlen.begin(), ziehung.zahlen.end(), zahl) != ziehung.zahlen.end();
    return (modus != ZZModus::Nur && gezogen) || (modus != ZZModus::Ohne && ziehung.zz == zahl);
}

/// The last record from `beginn` to `grenze` with a number, looked for from the front; 0 for none.
std::size_t letzteImText(const std::vector<RohZiehung>& roh, int zahl, std::size_t beginn, std::size_t grenze,
                         ZZModus modus)
{
    std::size_t letzte = 0;
    for (std::size_t nr = beginn; nr <= std::min(grenze, roh.size()); ++nr)
        if (enthaelt(roh[nr - 1], zahl, modus))
            letzte = nr;
    return letzte;
}

using EchteZuletzt = EchteDaten;

TEST_P(EchteZuletzt, StehenWieImText)
{
    for (const std::size_t grenze : {std::size_t{1}, std::size_t{5}, std::size_t{36}, std::size_t{37}, std::size_t{240},
                                     std::size_t{700}, roh_.size() - 1, roh_.size()}) {
        const std::size_t beginn = grenze < roh_.size() ? 1 : GetParam() == Samstagslotto ? 2000 : 241;
        for (const ZZModus modus : kModi) {
            const auto auswertung = werteZuletztAus(archiv_, static_cast<std::int32_t>(grenze), modus);
            for (int zahl = 1; zahl <= 49; ++zahl) {
                const std::size_t nr = letzteImText(roh_, zahl, beginn, grenze, modus);
                const LetztesAuftreten& auftreten = auswertung.fuer(zahl);
                EXPECT_EQ(static_cast<std::size_t>(auftreten.ZiehungsNr), nr) << grenze << ' ' << zahl;
                EXPECT_EQ(auftreten.jahrUndWoche, nr == 0 ? "0000/00" : roh_[nr - 1].jahrUndWoche) << zahl;
                EXPECT_EQ(auftreten.datum.empty(), nr == 0) << zahl;
            }
        }
    }
}

TEST_P(EchteZuletzt, DieMarkenSindDieNeuesteUndDieAeltesteWoche)
{
    const std::size_t beginn = GetParam() == Samstagslotto ? 2000 : 241;
    const auto marken = zuletztMarken(werteZuletztAus(archiv_, archiv_.AnzahlZiehungen, ZZModus::Ohne));
    std::array<std::size_t, 50> letzte{};
    for (int zahl = 1; zahl <= 49; ++zahl)
        letzte[static_cast<std::size_t>(zahl)] = letzteImText(roh_, zahl, beginn, roh_.size(), ZZModus::Ohne);
    const std::size_t aelteste = *std::min_element(letzte.begin() + 1, letzte.end());
    for (std::size_t zahl = 1; zahl <= 49; ++zahl) {
        EXPECT_EQ(marken.neueste[zahl], letzte[zahl] == roh_.size()) << zahl;
        EXPECT_EQ(marken.aelteste[zahl], letzte[zahl] == aelteste) << zahl;
    }
}

INSTANTIATE_TEST_SUITE_P(AlleSpielarten, EchteZuletzt, testing::Values(Samstagslotto, Mittwochslotto, MittwochslottoB),
                         [](const auto& fall) { return "Spielart" + std::to_string(fall.param); });

TEST(EchteMittwochAB, VonBeidenDateienGiltDieSpaetereZiehung)
{
    if (!std::filesystem::exists(kEchteDaten / "MALOTTO.DAT"))
        GTEST_SKIP() << "keine echten Ziehungen";
    const std::vector<RohZiehung> a = liesRoh("MALOTTO.DAT");
    const std::vector<RohZiehung> b = liesRoh("MBLOTTO.DAT");
    const ZiehungsArchiv archivA = ladeEchte(Mittwochslotto);
    const ZiehungsArchiv archivB = ladeEchte(MittwochslottoB);
    for (const bool vonB : {false, true}) {
        const std::size_t alle = vonB ? b.size() : a.size();
        for (const std::size_t grenze : {std::size_t{30}, std::size_t{500}, alle}) {
            const std::size_t beginn = grenze < alle ? 1 : 241;
            auto auswertung =
                werteZuletztAus(vonB ? archivB : archivA, static_cast<std::int32_t>(grenze), ZZModus::Ohne);
            ergaenzeMittwoch(auswertung, vonB ? archivA : archivB);
            for (int zahl = 1; zahl <= 49; ++zahl) {
                const std::size_t inA = letzteImText(a, zahl, beginn, grenze, ZZModus::Ohne);
                const std::size_t inB = letzteImText(b, zahl, beginn, grenze, ZZModus::Ohne);
                const std::size_t nr = std::max(inA, inB);
                const LetztesAuftreten& auftreten = auswertung.fuer(zahl);
                EXPECT_EQ(static_cast<std::size_t>(auftreten.ZiehungsNr), nr) << zahl;
                if (inA != inB) {
                    EXPECT_EQ(auftreten.jahrUndWoche, (inB > inA ? b : a)[nr - 1].jahrUndWoche) << zahl;
                    EXPECT_EQ(auftreten.Spielart, inB > inA ? MittwochslottoB : Mittwochslotto) << zahl;
                }
            }
        }
    }
}

} // namespace

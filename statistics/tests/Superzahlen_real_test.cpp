#include "statistics/logic/Superzahlen.h"
#include "testhilfen/EchteDaten.h"

#include <algorithm>

namespace {

struct Datei {
    int bit;
    const char* name;
    Spielart spielart;
    std::string erste; ///< week of its first draw with a Superzahl
};
const std::array<Datei, 3> kDateien{{{1, "SALOTTO.DAT", Samstagslotto, "1991/49"},
                                     {2, "MALOTTO.DAT", Mittwochslotto, "1995/49"},
                                     {4, "MBLOTTO.DAT", MittwochslottoB, "1995/49"}}};

/// The records of a file that count; of Wednesday A on demand only those from week 2000/49 on.
std::vector<RohZiehung> gezaehlte(const Datei& datei, bool nurAb2000)
{
    std::vector<RohZiehung> ziehungen = liesRoh(datei.name);
    const std::string ab = nurAb2000 && datei.bit == 2 ? "2000/49" : datei.erste;
    std::erase_if(ziehungen, [&ab](const RohZiehung& ziehung) { return ziehung.jahrUndWoche < ab; });
    return ziehungen;
}

/// Each set of games, as the bits of its files.
class EchteSuperzahlen : public testing::TestWithParam<int> {
protected:
    void SetUp() override
    {
        if (!gibtEchteDaten())
            GTEST_SKIP() << "keine echten Ziehungen";
    }

    Superzahlstatistik zaehle(bool nurAb2000) const
    {
        Superzahlstatistik statistik{.nurAb2000 = nurAb2000, .quellen = {}};
        for (const Datei& datei : kDateien)
            if ((GetParam() & datei.bit) != 0)
                superzahlCounts(statistik, ladeEchte(datei.spielart));
        return statistik;
    }
};

TEST_P(EchteSuperzahlen, StimmenMitDemTextDerDateien)
{
    for (const bool nurAb2000 : {false, true}) {
        const Superzahlstatistik ist = zaehle(nurAb2000);
        Ziffernzaehler summe{};
        std::int32_t mitSuperzahl = 0;
        for (const Datei& datei : kDateien) {
            const Superzahlquelle* quelle = ist.quelle(datei.spielart);
            ASSERT_EQ(quelle != nullptr, (GetParam() & datei.bit) != 0);
            if (!quelle)
                continue;
            const std::vector<RohZiehung> ziehungen = gezaehlte(datei, nurAb2000);
            for (int ziffer = 0; ziffer < 10; ++ziffer) {
                const auto stelle = static_cast<std::size_t>(ziffer);
                const auto anzahl = std::ranges::count(ziehungen, ziffer, &RohZiehung::sz);
                const auto letzte = std::ranges::find(ziehungen.rbegin(), ziehungen.rend(), ziffer, &RohZiehung::sz);
                EXPECT_EQ(quelle->anzahl[stelle], anzahl) << datei.name << ' ' << ziffer;
                ASSERT_TRUE(quelle->zuletzt[stelle]) << datei.name << ' ' << ziffer;
                EXPECT_EQ(quelle->zuletzt[stelle]->wochen, letzte - ziehungen.rbegin()) << datei.name << ' ' << ziffer;
                summe[stelle] += static_cast<std::int32_t>(anzahl);
            }
            EXPECT_EQ(static_cast<std::size_t>(quelle->mitSuperzahl), ziehungen.size());
            const bool gekuerzt = nurAb2000 && datei.bit == 2;
            EXPECT_EQ(static_cast<std::size_t>(quelle->ziehungen),
                      gekuerzt ? ziehungen.size() : liesRoh(datei.name).size());
            mitSuperzahl += quelle->mitSuperzahl;
        }
        EXPECT_EQ(ist.anzahl(), summe);
        EXPECT_EQ(ist.mitSuperzahl(), mitSuperzahl);
    }
}

TEST_P(EchteSuperzahlen, GemeinsamStehenSieInDerFolgeDerTage)
{
    struct Auftreten {
        std::string tag;
        int ziffer;
        std::string datum;
        std::ptrdiff_t wochen;
    };
    std::vector<Auftreten> alle;
    for (const Datei& datei : kDateien) {
        if ((GetParam() & datei.bit & 3) == 0)
            continue;
        const std::vector<std::string> daten = ladeEchte(datei.spielart).Datum;
        const std::vector<RohZiehung> roh = liesRoh(datei.name);
        for (std::size_t nr = datei.bit == 1 ? 3001 : 1401; nr <= roh.size(); ++nr)
            alle.push_back({daten[nr].substr(10, 4) + daten[nr].substr(7, 2) + daten[nr].substr(4, 2), roh[nr - 1].sz,
                            daten[nr], std::ssize(roh) - static_cast<std::ptrdiff_t>(nr)});
    }
    std::ranges::sort(alle, std::greater{}, &Auftreten::tag);
    const std::vector<GemeinsameSuperzahl> ist = gemeinsameSuperzahlen(zaehle(false));
    std::vector<int> gesehen;
    for (const Auftreten& auftreten : alle) {
        if (std::ranges::count(gesehen, auftreten.ziffer) > 0)
            continue;
        const std::size_t reihe = gesehen.size();
        gesehen.push_back(auftreten.ziffer);
        ASSERT_LT(reihe, ist.size());
        std::ptrdiff_t wochen = auftreten.wochen;
        for (const Auftreten& anderes : alle)
            if (anderes.ziffer == auftreten.ziffer)
                wochen = std::min(wochen, anderes.wochen);
        EXPECT_EQ(ist[reihe].ziffer, auftreten.ziffer);
        EXPECT_EQ(ist[reihe].datum, auftreten.datum);
        EXPECT_EQ(ist[reihe].wochen, wochen);
    }
    EXPECT_EQ(ist.size(), gesehen.size());
    EXPECT_EQ(ist.size(), (GetParam() & 3) != 0 ? 10U : 0U);
}

INSTANTIATE_TEST_SUITE_P(AlleAuswahlen, EchteSuperzahlen, testing::Range(0, 8));

} // namespace

#include "engines/logic/Zerlegung.h"
#include "engines/logic/Zusammengezogene.h"
#include "testhilfen/EchteDaten.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <random>

namespace {

/// The chosen lines of the file, cut up text by text.
std::map<std::string, int> zerlegeRoh(const std::vector<RohZiehung>& ziehungen, std::size_t k)
{
    std::map<std::string, int> anzahlen;
    for (const RohZiehung& ziehung : ziehungen) {
        std::vector<bool> dabei(6);
        std::fill_n(dabei.begin(), k, true);
        do {
            std::string schluessel;
            for (std::size_t i = 0; i < 6; ++i)
                if (dabei[i])
                    schluessel += (schluessel.empty() ? "" : ",") + std::to_string(ziehung.zahlen[i]);
            ++anzahlen[schluessel];
        } while (std::prev_permutation(dabei.begin(), dabei.end()));
    }
    return anzahlen;
}

std::string zweistellig(int anzahl)
{
    return (anzahl < 10 ? " " : "") + std::to_string(anzahl);
}

class EchteZerlegung : public EchteDaten {
protected:
    void pruefe(const std::vector<std::size_t>& nummern) const
    {
        std::vector<RohZiehung> gewaehlte;
        for (const std::size_t nr : nummern)
            gewaehlte.push_back(roh_[nr - 1]);
        const Ziehungsauswahl auswahl = waehleAus(archiv_, nummern);
        for (int k = 2; k <= 5; ++k) {
            const Zerlegung zerlegung = zerlege(auswahl, k);
            std::vector<std::string> soll;
            std::size_t rows = 0;
            for (const auto& [schluessel, anzahl] : zerlegeRoh(gewaehlte, static_cast<std::size_t>(k))) {
                soll.push_back(zweistellig(anzahl) + " mal -> " + schluessel);
                rows += static_cast<std::size_t>(anzahl) + 2;
            }
            std::vector<std::string> ist;
            for (const Wiederholung& menge : zerlegung.mengen)
                ist.push_back(zerlegungszeile(menge, k));
            EXPECT_EQ(ist, soll) << k;
            EXPECT_EQ(zerlegungsdetails(zerlegung).anzahl(), rows) << k; // a head and a dash line for each set
        }
    }
};

TEST_P(EchteZerlegung, AllerZiehungen)
{
    std::vector<std::size_t> alle(roh_.size());
    std::iota(alle.begin(), alle.end(), 1U);
    pruefe(alle);
}

TEST_P(EchteZerlegung, ZufaelligerZiehungen)
{
    std::vector<std::size_t> alle(roh_.size());
    std::iota(alle.begin(), alle.end(), 1U);
    std::mt19937 zufall(17);
    for (const std::size_t anzahl : {1U, 2U, 7U, 60U, 400U}) {
        SCOPED_TRACE(anzahl);
        std::vector<std::size_t> nummern;
        std::ranges::sample(alle, std::back_inserter(nummern), static_cast<std::ptrdiff_t>(anzahl), zufall);
        pruefe(nummern);
    }
}

TEST_P(EchteZerlegung, DieDetailsEinerMengeSindIhreZiehungen)
{
    std::vector<std::size_t> alle(roh_.size());
    std::iota(alle.begin(), alle.end(), 1U);
    const Zerlegung zerlegung = zerlege(waehleAus(archiv_, alle), 3);
    std::mt19937 zufall(3);
    for (int versuch = 0; versuch < 50; ++versuch) {
        const Wiederholung& menge = zerlegung.mengen[zufall() % zerlegung.mengen.size()];
        std::vector<std::string> soll;
        for (const RohZiehung& ziehung : roh_) {
            const auto hat = [&](std::int32_t zahl) { return std::ranges::count(ziehung.zahlen, zahl) > 0; };
            if (!hat(menge.zahlen[0]) || !hat(menge.zahlen[1]) || !hat(menge.zahlen[2]))
                continue;
            std::string zeile = ziehung.jahrUndWoche + "  ";
            for (const int zahl : ziehung.zahlen)
                zeile += (zahl < 10 ? " 0" : " ") + std::to_string(zahl);
            soll.push_back(zeile);
        }
        std::vector<std::string> ist;
        for (const std::size_t nr : ziehungenMit(zerlegung, menge))
            ist.push_back(ziehungszeile(*zerlegung.ziehungen, nr));
        EXPECT_EQ(ist, soll);
        EXPECT_EQ(ist.size(), static_cast<std::size_t>(menge.anzahl));
    }
}

INSTANTIATE_TEST_SUITE_P(AlleSpiele, EchteZerlegung, testing::Values(Samstagslotto, Mittwochslotto, MittwochslottoB));

/// The draws of the ticked games, as text of the files and as the program loads them.
class EchteZusammengezogene : public testing::TestWithParam<int> {
protected:
    void SetUp() override
    {
        if (!gibtEchteDaten())
            GTEST_SKIP() << "keine echten Ziehungen";
        constexpr std::array kNamen{"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"};
        for (std::size_t i = 0; i < kNamen.size(); ++i)
            if ((GetParam() >> i & 1) != 0)
                std::ranges::copy(liesRoh(kNamen[i]), std::back_inserter(roh_));
        archiv_.ProgrammVerzeichnis = kEchteDaten.string() + "/";
        LadeAlleZiehungen(archiv_, GetParam(), {});
    }

    /// Counts draw by draw and number by number.
    int zaehle(const std::vector<std::int32_t>& zahlen) const
    {
        return static_cast<int>(std::ranges::count_if(roh_, [&](const RohZiehung& ziehung) {
            return std::ranges::all_of(zahlen,
                                       [&](std::int32_t zahl) { return std::ranges::count(ziehung.zahlen, zahl) > 0; });
        }));
    }

    void pruefe(const std::vector<std::int32_t>& gewaehlte) const
    {
        const Zusammengezogene ergebnis = zaehleZusammengezogene(archiv_, gewaehlte);
        for (std::int32_t n = 1; n <= 49; ++n) {
            std::vector<std::int32_t> alle = gewaehlte;
            alle.push_back(n);
            ASSERT_EQ(ergebnis.anzahlen[static_cast<std::size_t>(n)], zaehle(alle)) << n;
        }
    }

    std::vector<RohZiehung> roh_;
    ZiehungsArchiv archiv_;
};

TEST_P(EchteZusammengezogene, ZuJederZahl)
{
    for (std::int32_t zahl = 1; zahl <= 49; ++zahl)
        pruefe({zahl});
}

TEST_P(EchteZusammengezogene, ZuJedemPaar)
{
    // Counted once for all pairs, by the ordered triples of the texts; the third may be one of the pair.
    const auto platz = [](int a, int b, int c) { return static_cast<std::size_t>((a * 50 + b) * 50 + c); };
    std::vector<int> soll(50 * 50 * 50);
    for (const RohZiehung& ziehung : roh_)
        for (const int a : ziehung.zahlen)
            for (const int b : ziehung.zahlen)
                for (const int c : ziehung.zahlen)
                    ++soll[platz(a, b, c)];
    for (int a = 1; a < 49; ++a)
        for (int b = a + 1; b <= 49; ++b) {
            const Zusammengezogene ergebnis = zaehleZusammengezogene(archiv_, {a, b});
            for (int n = 1; n <= 49; ++n)
                ASSERT_EQ(ergebnis.anzahlen[static_cast<std::size_t>(n)], soll[platz(a, b, n)])
                    << a << " " << b << " " << n;
        }
}

INSTANTIATE_TEST_SUITE_P(AlleMasken, EchteZusammengezogene, testing::Range(1, 8));

} // namespace

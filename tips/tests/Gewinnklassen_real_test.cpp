#include "testhilfen/EchteDaten.h"
#include "tips/rules/Gewinntexte.h"
#include "tips/rules/Trefferbilanz.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>

namespace {

/// The column behind the Zusatzzahl of each record.
std::vector<int> superzahlen(const std::string& name)
{
    std::ifstream datei(kEchteDaten / name);
    std::vector<int> werte;
    for (std::string zeile; std::getline(datei, zeile);)
        werte.push_back(std::stoi(zeile.substr(29)));
    return werte;
}

class EchteGewinne : public EchteDaten {
protected:
    void SetUp() override
    {
        EchteDaten::SetUp();
        if (!IsSkipped())
            sz_ = superzahlen(std::string(ziehungsdateiName(GetParam())));
    }

    bool hatSuperzahl(std::size_t i) const { return i + 1 >= (GetParam() == Samstagslotto ? 1887U : 497U); }
    static std::int32_t nummer(std::size_t i) { return static_cast<std::int32_t>(i + 1); }

    /// The label by the words of the plans, from sets of the raw records; empty without a class.
    std::string label(std::size_t i, const std::array<int, 6>& tip, int tipSZ, bool alt) const
    {
        static const std::vector<std::string> namen{"", "", "Zweier", "Dreier", "Vierer", "Fünfer", "Sechser"};
        const std::set<int> gezogen(roh_[i].zahlen.begin(), roh_[i].zahlen.end());
        const auto treffer = std::count_if(tip.begin(), tip.end(), [&](int zahl) { return gezogen.contains(zahl); });
        const bool sz = hatSuperzahl(i) && sz_[i] == tipSZ;
        const bool zz = std::find(tip.begin(), tip.end(), roh_[i].zz) != tip.end();
        const bool b = GetParam() == MittwochslottoB;
        const std::string name = namen[static_cast<std::size_t>(treffer)];
        if (!alt)
            return treffer >= 3 || (treffer == 2 && sz) ? name + (sz ? "+SZ" : "") : "";
        if (treffer < 3)
            return "";
        if (treffer == 6)
            return name + (sz && !b ? "+SZ" : "");
        return name + (zz && !(b && treffer == 4) ? "+ZZ" : "");
    }

    std::vector<int> sz_;
};

TEST_P(EchteGewinne, JedeZiehungAlsIhrEigenerTipp)
{
    for (std::size_t i = 0; i < roh_.size(); ++i) {
        const Kombination tip = roh_[i].zahlen;
        ASSERT_EQ(countTreffer(archiv_, tip, nummer(i)), 6);
        for (int tipSZ = 0; tipSZ <= 9; ++tipSZ) {
            const bool sz = hatSuperzahl(i) && sz_[i] == tipSZ;
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
            const std::string soll = label(i, roh_[t].zahlen, tipSZ, false);
            ASSERT_EQ(gewinntextNeu(bewertung.klasse), soll) << roh_[i].jahrUndWoche;
            ASSERT_EQ(gewinntextAlt(bewerteAlt(archiv_, nummer(i), tip, tipSZ, GetParam()).klasse),
                      label(i, roh_[t].zahlen, tipSZ, true))
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

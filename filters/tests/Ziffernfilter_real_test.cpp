#include "filters/logic/Dekaden.h"
#include "filters/logic/Endziffern.h"
#include "testhilfen/EchteDaten.h"

#include <algorithm>
#include <cstdio>
#include <set>

namespace {

/// First and last number of each decade.
constexpr std::array<std::pair<int, int>, 5> kGrenzen{{{1, 9}, {10, 19}, {20, 29}, {30, 39}, {40, 49}}};

/// How often each last digit occurs, the most frequent first: "2,1,1,1,1".
std::string endziffernmuster(const std::array<int, 6>& zahlen)
{
    std::array<int, 10> ziffern{};
    for (const int zahl : zahlen)
        ++ziffern[static_cast<std::size_t>(zahl % 10)];
    std::ranges::sort(ziffern, std::greater());
    std::string muster;
    for (const int anzahl : ziffern)
        if (anzahl > 0)
            muster += (muster.empty() ? "" : ",") + std::to_string(anzahl);
    return muster;
}

/// In the order of the choice.
const std::vector<std::string> kMuster{"1,1,1,1,1,1", "2,1,1,1,1", "3,1,1,1", "2,2,1,1", "4,1,1",
                                       "3,2,1",       "5,1",       "2,2,2",   "4,2",     "3,3"};

class EchteZiffernfilter : public EchteDaten {
protected:
    void SetUp() override
    {
        EchteDaten::SetUp();
        if (!IsSkipped())
            ziehungen_ = alleZiehungen(archiv_, datumVon);
    }

    std::vector<Ziehungsfund> ziehungen_;
};

TEST_P(EchteZiffernfilter, JedeAnzahlInJederDekade)
{
    for (int gesucht = 0; gesucht <= 6; ++gesucht) {
        const Dekadensuche suche = sucheDekaden(ziehungen_, gesucht);
        for (std::size_t dekade = 0; dekade < kGrenzen.size(); ++dekade) {
            const auto [von, bis] = kGrenzen[dekade];
            std::vector<std::size_t> soll;
            for (std::size_t i = 0; i < roh_.size(); ++i) {
                int anzahl = 0;
                for (const int zahl : roh_[i].zahlen)
                    anzahl += zahl >= von && zahl <= bis ? 1 : 0;
                if (anzahl == gesucht)
                    soll.push_back(i);
            }
            EXPECT_EQ(suche.stellen[dekade], soll) << gesucht << " " << dekade;
        }
    }
}

TEST_P(EchteZiffernfilter, Alle31Konstellationen)
{
    const Dekadenverteilung verteilung = zaehleKonstellationen(ziehungen_);
    for (std::size_t code = 1; code <= 31; ++code) {
        std::set<int> gewuenscht;
        for (int dekade = 0; dekade < 5; ++dekade)
            if ((code & (16U >> dekade)) != 0)
                gewuenscht.insert(dekade);
        std::vector<std::size_t> soll;
        for (std::size_t i = 0; i < roh_.size(); ++i) {
            std::set<int> besetzt;
            for (const int zahl : roh_[i].zahlen)
                besetzt.insert(zahl / 10);
            if (besetzt == gewuenscht)
                soll.push_back(i);
        }
        EXPECT_EQ(sucheKonstellation(ziehungen_, code).stellen, soll) << code;
        EXPECT_EQ(static_cast<std::size_t>(verteilung[code]), soll.size()) << code;
    }
    EXPECT_EQ(verteilung[0], 0);
}

TEST_P(EchteZiffernfilter, AlleZehnKonstellationenDerEndziffern)
{
    const Endziffernverteilung verteilung = zaehleEndziffern(ziehungen_);
    std::size_t summe = 0;
    for (std::size_t nummer = 0; nummer < kMuster.size(); ++nummer) {
        std::vector<std::string> soll;
        for (const RohZiehung& ziehung : roh_)
            if (endziffernmuster(ziehung.zahlen) == kMuster[nummer])
                soll.push_back(ziehung.jahrUndWoche);
        std::vector<std::string> gefunden;
        for (const Ziehungsfund& fund : sucheEndziffern(ziehungen_, nummer).funde)
            gefunden.push_back(ziehungszeile(fund).substr(0, 7));
        EXPECT_EQ(gefunden, soll) << nummer;
        EXPECT_EQ(static_cast<std::size_t>(verteilung.ziehungen[nummer]), soll.size()) << nummer;
        summe += soll.size();
    }
    EXPECT_EQ(summe, roh_.size());
}

INSTANTIATE_TEST_SUITE_P(AlleSpielarten, EchteZiffernfilter,
                         testing::Values(Samstagslotto, Mittwochslotto, MittwochslottoB));

/// "13.983.816".
std::string mitPunkten(int anzahl)
{
    std::string text = std::to_string(anzahl);
    for (int stelle = static_cast<int>(text.size()) - 3; stelle > 0; stelle -= 3)
        text.insert(static_cast<std::size_t>(stelle), ".");
    return text;
}

TEST(Endziffernfaelle, StehenSoInDerTafelWieSieUnterAllenKombinationenVorkommen)
{
    // The five counts of a pattern as one number in base 7, so that nearly 14 million combinations take no maps.
    const auto nummerVon = [](int a, int b, int c, int d, int e, int f) {
        std::array<int, 10> ziffern{};
        for (const int zahl : {a, b, c, d, e, f})
            ++ziffern[static_cast<std::size_t>(zahl % 10)];
        std::array<int, 7> wieOft{};
        for (const int anzahl : ziffern)
            ++wieOft[static_cast<std::size_t>(anzahl)];
        return (((wieOft[5] * 7 + wieOft[4]) * 7 + wieOft[3]) * 7 + wieOft[2]) * 7 + wieOft[1];
    };
    std::vector<int> faelle(7 * 7 * 7 * 7 * 7);
    for (int a = 1; a <= 44; ++a)
        for (int b = a + 1; b <= 45; ++b)
            for (int c = b + 1; c <= 46; ++c)
                for (int d = c + 1; d <= 47; ++d)
                    for (int e = d + 1; e <= 48; ++e)
                        for (int f = e + 1; f <= 49; ++f)
                            ++faelle[static_cast<std::size_t>(nummerVon(a, b, c, d, e, f))];

    const std::array<int, 10> schluessel{nummerVon(1, 2, 3, 4, 5, 6),     nummerVon(1, 11, 2, 3, 4, 5),
                                         nummerVon(1, 11, 21, 2, 3, 4),   nummerVon(1, 11, 2, 12, 3, 4),
                                         nummerVon(1, 11, 21, 31, 2, 3),  nummerVon(1, 11, 21, 2, 12, 3),
                                         nummerVon(1, 11, 21, 31, 41, 2), nummerVon(1, 11, 2, 12, 3, 13),
                                         nummerVon(1, 11, 21, 31, 2, 12), nummerVon(1, 11, 21, 2, 12, 22)};
    int summe = 0;
    for (std::size_t nummer = 0; nummer < schluessel.size(); ++nummer) {
        const int anzahl = faelle[static_cast<std::size_t>(schluessel[nummer])];
        summe += anzahl;
        std::array<char, 16> anteil{};
        std::snprintf(anteil.data(), anteil.size(), "%.3f%%", 100.0 * anzahl / 13983816);
        std::string prozent = anteil.data();
        prozent[prozent.find('.')] = ',';
        std::array<char, 64> soll{};
        std::snprintf(soll.data(), soll.size(), "%29s%9s", mitPunkten(anzahl).c_str(), prozent.c_str());
        EXPECT_EQ(moeglicheFaelle(nummer), soll.data()) << nummer;
    }
    EXPECT_EQ(summe, 13983816);
}

} // namespace

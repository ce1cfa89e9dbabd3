// Slips against all real draws, beside a count over the text of the files with the prize classes written down anew.

#include "testhilfen/EchteDaten.h"
#include "testhilfen/Pruefordner.h"
#include "tips/logic/Scheinvergleich.h"

#include <algorithm>
#include <map>
#include <random>

namespace {

struct Tippzeile {
    std::array<int, 6> zahlen{};
    int superzahl = -1;
};

class EchteScheine : public EchteDaten {
protected:
    void SetUp() override
    {
        EchteDaten::SetUp();
        if (IsSkipped())
            return;
        std::ifstream datei(kEchteDaten / std::string(ziehungsdateiName(GetParam())));
        for (std::string zeile; std::getline(datei, zeile);)
            superzahlen_.push_back(zeile[29]);
    }

    /// Sixty tips: draws of the archive, draws with a number moved, and tips by chance; every fourth without Superzahl.
    std::vector<Tippzeile> tipps() const
    {
        std::mt19937 zufall(11);
        std::vector<Tippzeile> alle;
        for (int i = 0; i < 60; ++i) {
            std::array<int, 49> zahlen{};
            std::iota(zahlen.begin(), zahlen.end(), 1);
            std::shuffle(zahlen.begin(), zahlen.end(), zufall);
            Tippzeile tipp;
            std::copy_n(zahlen.begin(), 6, tipp.zahlen.begin());
            if (i % 3 != 0)
                tipp.zahlen = roh_[zufall() % roh_.size()].zahlen;
            if (i % 3 == 2)
                *tipp.zahlen.begin() = *std::ranges::find_if(
                    zahlen, [&](int zahl) { return std::ranges::find(tipp.zahlen, zahl) == tipp.zahlen.end(); });
            std::sort(tipp.zahlen.begin(), tipp.zahlen.end());
            tipp.superzahl = i % 4 == 0 ? -1 : static_cast<int>(zufall() % 10);
            alle.push_back(tipp);
        }
        return alle;
    }

    /// What the prize plan calls a draw for a tip: "(4er+SZ)", "" without a prize.
    std::string gewinn(std::size_t i, const Tippzeile& tipp, int treffer) const
    {
        const bool hatSuperzahl = i + 1 >= (GetParam() == Samstagslotto ? 1887U : 497U);
        const bool mit = hatSuperzahl && superzahlen_[i] == '0' + tipp.superzahl;
        if (treffer < 2 || (treffer == 2 && !mit))
            return "";
        return "(" + std::to_string(treffer) + (mit ? "er+SZ)" : "er)");
    }

    /// The row of a win from the columns of the file.
    std::string zeile(std::size_t i, const std::string& klasse) const
    {
        std::string text = roh_[i].jahrUndWoche + " ";
        for (const int zahl : roh_[i].zahlen)
            text += std::string(zahl < 10 ? " 0" : " ") + std::to_string(zahl);
        const bool hatSuperzahl = i + 1 >= (GetParam() == Samstagslotto ? 1887U : 497U);
        return text + "   " + (hatSuperzahl ? superzahlen_[i] : '-') + " " + klasse;
    }

    std::vector<char> superzahlen_;
};

std::string slipzeile(const Tippzeile& tipp)
{
    std::string text = "202418";
    for (const int zahl : tipp.zahlen)
        text += std::string(zahl < 10 ? ". " : ".") + std::to_string(zahl);
    return text + ":" + (tipp.superzahl < 0 ? "" : std::to_string(tipp.superzahl)) + "\r\n";
}

TEST_P(EchteScheine, JedeZeileUndJederZaehler)
{
    const Pruefordner ordner;
    const std::vector<Tippzeile> alle = tipps();
    std::vector<std::string> namen;
    std::vector<std::string> erwartet;
    std::map<std::string, int> zaehler;
    for (std::size_t schein = 0; schein < 5; ++schein) {
        namen.push_back("S_20240" + std::to_string(schein) + ".dat");
        std::string bytes;
        for (std::size_t t = 12 * schein; t < 12 * schein + 12; ++t) {
            bytes += slipzeile(alle[t]);
            for (std::size_t i = 0; i < roh_.size(); ++i) {
                int treffer = 0;
                for (const int zahl : alle[t].zahlen)
                    for (const int gezogen : roh_[i].zahlen)
                        treffer += zahl == gezogen;
                const std::string klasse = gewinn(i, alle[t], treffer);
                ++zaehler[klasse.empty() ? std::to_string(treffer) : klasse];
                if (!klasse.empty())
                    erwartet.push_back(zeile(i, klasse));
            }
        }
        ordner.lege(namen.back(), bytes);
    }

    Scheinvergleich vergleich(archiv_, kLinieAlleScheine);
    ASSERT_TRUE(compareAllSlips(vergleich, ordner.pfad(), namen).fehler.empty());
    std::vector<std::string> gewinne;
    std::vector<std::size_t> groessere;
    for (std::size_t i = 0; i < vergleich.zeilenzahl(); ++i) {
        const std::string text = vergleich.zeile(i);
        if (text[0] < '0' || text[0] > '9')
            continue;
        gewinne.push_back(text);
        if (text[text.find('(') + 1] >= '4')
            groessere.push_back(i);
    }
    EXPECT_EQ(gewinne, erwartet);
    EXPECT_EQ(vergleich.groessere(), groessere);
    const Trefferbilanz& bilanz = vergleich.bilanz();
    EXPECT_EQ(bilanz.Null, zaehler["0"]);
    EXPECT_EQ(bilanz.Einer, zaehler["1"]);
    EXPECT_EQ(bilanz.Zweier(), zaehler["2"]);
    const std::array<std::string, 9> klassen{"(6er+SZ)", "(6er)",    "(5er+SZ)", "(5er)",   "(4er+SZ)",
                                             "(4er)",    "(3er+SZ)", "(3er)",    "(2er+SZ)"};
    for (std::size_t i = 0; i < klassen.size(); ++i)
        EXPECT_EQ(bilanz.klassen[i + 1], zaehler[klassen[i]]) << klassen[i];
    EXPECT_GT(zaehler["(6er)"] + zaehler["(6er+SZ)"], 15);
}

INSTANTIATE_TEST_SUITE_P(Spielarten, EchteScheine, testing::Values(Samstagslotto, Mittwochslotto, MittwochslottoB));

} // namespace

#include "statistics/logic/Matrix.h"
#include "testhilfen/EchteDaten.h"

#include <algorithm>
#include <map>

namespace {

struct Teil {
    int bit;
    const char* name;
    std::size_t superzahlBeginn; ///< the draws of the file before it have none
};

constexpr std::array<Teil, 3> kTeile{{{1, "SALOTTO.DAT", 1887}, {2, "MALOTTO.DAT", 497}, {4, "MBLOTTO.DAT", 497}}};
constexpr std::array kModi{ZZModus::Ohne, ZZModus::Mit, ZZModus::Nur};
constexpr std::array kZeilen{Matrixzeilen::Spielwochen, Matrixzeilen::JahreNachDatum,
                             Matrixzeilen::JahreNachSpielwoche};

/// A record of a file and what only the program's calendar knows of it.
struct GezogeneZiehung {
    RohZiehung roh;
    bool mitSuperzahl = false;
    std::string datum;

    int schluessel(Matrixzeilen zeilen) const
    {
        if (zeilen == Matrixzeilen::JahreNachDatum)
            return std::stoi(datum.substr(datum.rfind('.') + 1));
        return std::stoi(zeilen == Matrixzeilen::Spielwochen ? roh.jahrUndWoche.substr(5)
                                                             : roh.jahrUndWoche.substr(0, 4));
    }
};

/// The numbers that count; a Zusatzzahl of 0 is none.
std::vector<int> gezogene(const RohZiehung& ziehung, ZZModus modus)
{
    std::vector<int> zahlen;
    if (modus != ZZModus::Nur)
        zahlen.assign(ziehung.zahlen.begin(), ziehung.zahlen.end());
    if (modus != ZZModus::Ohne && ziehung.zz > 0)
        zahlen.push_back(ziehung.zz);
    return zahlen;
}

using Zaehlung = std::map<int, std::map<int, int>>; ///< [row][number]

void pruefe(const Matrix& matrix, const Zaehlung& soll, int ersteZahl, std::size_t spalten)
{
    int rekord = 0;
    std::size_t gefunden = 0;
    for (const Zahlenzeile& zeile : matrix.tabelle.zeilen) {
        ASSERT_EQ(zeile.zellen.size(), spalten);
        std::vector<int> anzahlen(spalten, 0);
        if (const auto dort = soll.find(zeile.schluessel); dort != soll.end()) {
            ++gefunden;
            for (const auto& [zahl, anzahl] : dort->second)
                anzahlen[static_cast<std::size_t>(zahl - ersteZahl)] = anzahl;
        }
        const auto [min, max] = std::ranges::minmax(anzahlen);
        rekord = std::max(rekord, max);
        for (std::size_t i = 0; i < spalten; ++i) {
            const std::string text = std::to_string(anzahlen[i]);
            const std::string erwartet = anzahlen[i] == max ? text + "\n" : anzahlen[i] == min ? "\n" + text : text;
            EXPECT_EQ(matrixzelle(zeile.zellen[i], false), erwartet) << zeile.schluessel << " Stelle " << i;
        }
    }
    EXPECT_EQ(gefunden, soll.size());
    EXPECT_EQ(matrix.tabelle.rekord->anzahl, rekord);
    EXPECT_EQ(soll.at(matrix.tabelle.rekord->schluessel).at(matrix.tabelle.rekord->zahl), rekord);
}

/// Each set of games, as the bits of its files.
class EchteMatrizen : public testing::TestWithParam<int> {
protected:
    void SetUp() override
    {
        if (!gibtEchteDaten())
            GTEST_SKIP() << "keine echten Ziehungen";
        archiv_.ProgrammVerzeichnis = kEchteDaten.string() + "/";
        LadeAlleZiehungen(archiv_, GetParam(), {});
        for (const Teil& teil : kTeile) {
            if ((GetParam() & teil.bit) == 0)
                continue;
            std::size_t nr = 0;
            for (const RohZiehung& roh : liesRoh(teil.name))
                ziehungen_.push_back({roh, ++nr >= teil.superzahlBeginn, archiv_.DatumAlle[ziehungen_.size() + 1]});
        }
        ASSERT_EQ(static_cast<std::size_t>(archiv_.AnzahlZiehungen), ziehungen_.size());
    }

    /// The years from the first to the last one have a row each.
    void pruefeZeilen(const Matrix& matrix, Matrixzeilen zeilen) const
    {
        int von = 1;
        int bis = 53;
        if (zeilen != Matrixzeilen::Spielwochen) {
            std::vector<int> jahre;
            jahre.reserve(ziehungen_.size());
            for (const GezogeneZiehung& ziehung : ziehungen_)
                jahre.push_back(ziehung.schluessel(zeilen));
            std::tie(von, bis) = std::pair(std::ranges::min(jahre), std::ranges::max(jahre));
        }
        ASSERT_EQ(matrix.tabelle.zeilen.size(), static_cast<std::size_t>(bis - von + 1));
        EXPECT_EQ(matrix.tabelle.zeilen.front().schluessel, von);
    }

    ZiehungsArchiv archiv_;
    std::vector<GezogeneZiehung> ziehungen_;
};

TEST_P(EchteMatrizen, ZaehlenDieGewinnzahlenWieDerText)
{
    for (const Matrixzeilen zeilen : kZeilen) {
        for (const ZZModus modus : kModi) {
            Zaehlung soll;
            for (const GezogeneZiehung& ziehung : ziehungen_)
                for (const int zahl : gezogene(ziehung.roh, modus))
                    ++soll[ziehung.schluessel(zeilen)][zahl];
            const Matrix gezaehlt = matrix(archiv_, Matrixspalten::Gewinnzahlen, zeilen, modus);
            pruefeZeilen(gezaehlt, zeilen);
            pruefe(gezaehlt, soll, 1, 49);
        }
    }
}

TEST_P(EchteMatrizen, ZaehlenDieSuperzahlenWieDerText)
{
    for (const Matrixzeilen zeilen : kZeilen) {
        Zaehlung soll;
        for (const GezogeneZiehung& ziehung : ziehungen_)
            if (ziehung.mitSuperzahl)
                ++soll[ziehung.schluessel(zeilen)][ziehung.roh.sz];
        const Matrix gezaehlt = matrix(archiv_, Matrixspalten::Superzahlen, zeilen, ZZModus::Ohne);
        pruefeZeilen(gezaehlt, zeilen);
        pruefe(gezaehlt, soll, 0, 10);
    }
}

INSTANTIATE_TEST_SUITE_P(AlleAuswahlen, EchteMatrizen, testing::Range(1, 8));

} // namespace

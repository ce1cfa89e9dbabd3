#include "archive/logic/Ziehungsdatei.h"
#include "engines/logic/KombinationAusNummer.h"
#include "engines/logic/Kombinationsseite.h"
#include "engines/logic/Trefferliste.h"
#include "testhilfen/Datenordner.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>

namespace {

/// A draw by the text of its record.
struct Roh {
    std::set<int> zahlen;
    int superzahl = -1; ///< -1: none was drawn yet
};

/// The records of a file by their fixed columns. `ersteMitSuperzahl` counts from 1.
void lies(const char* name, int ersteMitSuperzahl, std::vector<Roh>& ziehungen)
{
    std::ifstream datei(kEchteDaten / name);
    int nr = 0;
    for (std::string zeile; std::getline(datei, zeile);) {
        Roh roh;
        for (std::size_t i = 0; i < 6; ++i)
            roh.zahlen.insert(std::stoi(zeile.substr(8 + 3 * i, 2)));
        if (++nr >= ersteMitSuperzahl)
            roh.superzahl = std::stoi(zeile.substr(29, 2));
        ziehungen.push_back(roh);
    }
}

/// Each set of games, as the bits of its files.
class EchteKombinationen : public testing::TestWithParam<int> {
protected:
    void SetUp() override
    {
        if (!std::filesystem::exists(kEchteDaten / "SALOTTO.DAT"))
            GTEST_SKIP() << "keine echten Ziehungen";
        archiv_.ProgrammVerzeichnis = kEchteDaten.string() + "/";
        LadeAlleZiehungen(archiv_, GetParam(), {});
        if ((GetParam() & 1) != 0)
            lies("SALOTTO.DAT", 1887, roh_);
        if ((GetParam() & 2) != 0)
            lies("MALOTTO.DAT", 497, roh_);
        if ((GetParam() & 4) != 0)
            lies("MBLOTTO.DAT", 497, roh_);
        ASSERT_EQ(static_cast<std::size_t>(archiv_.AnzahlZiehungen), roh_.size());
    }

    /// The nine counts in the order of a row's columns, then their sum.
    std::vector<int> zaehle(const Kombination& kombination, int superzahl) const
    {
        std::vector<int> zaehler(10);
        for (const Roh& roh : roh_) {
            std::size_t richtige = 0;
            for (const std::int32_t zahl : kombination)
                richtige += roh.zahlen.count(zahl);
            const bool mit = roh.superzahl == superzahl;
            if (richtige < (mit ? 2U : 3U))
                continue;
            ++zaehler[2 * (6 - richtige) + (mit ? 0 : 1)];
            ++zaehler[9];
        }
        return zaehler;
    }

    /// The numbers behind the bars of a row's text.
    static std::vector<int> ausText(const std::string& zeile)
    {
        std::vector<int> werte;
        for (std::size_t strich = zeile.find('|'); strich != std::string::npos; strich = zeile.find('|', strich + 1))
            werte.push_back(std::stoi(zeile.substr(zeile.find_first_of("0123456789", strich))));
        return werte;
    }

    void pruefe(std::int32_t erste, int superzahl) const
    {
        for (const Kombinationszeile& zeile : kombinationsseite(archiv_, erste, superzahl)) {
            const std::vector<int> erwartet = zaehle(zeile.zahlen, superzahl);
            ASSERT_EQ(ausText(kombinationszeile(zeile)), erwartet) << kombinationszeile(zeile);
            ASSERT_EQ(gewinnfaelle(archiv_, zeile.zahlen, superzahl).size(), static_cast<std::size_t>(erwartet[9]));
        }
    }

    ZiehungsArchiv archiv_;
    std::vector<Roh> roh_;
};

TEST_P(EchteKombinationen, SeitenWieAusDemText)
{
    for (const int superzahl : {0, 4, 9})
        for (const std::int32_t erste : {1, 2'345'678, 7'000'001, 12'000'000, 13'983'787})
            pruefe(erste, superzahl);
}

TEST_P(EchteKombinationen, DieZiehungenSelbstSindSechser)
{
    for (std::size_t nr = 0; nr < roh_.size(); nr += roh_.size() / 20) {
        Kombination zahlen{};
        std::copy(roh_[nr].zahlen.begin(), roh_[nr].zahlen.end(), zahlen.begin());
        const Trefferzaehler zaehler = ::zaehle(gewinnfaelle(archiv_, zahlen, std::max(0, roh_[nr].superzahl)));
        EXPECT_GE(zaehler.mitSuperzahl[6] + zaehler.ohneSuperzahl[6], 1);
        EXPECT_EQ(zaehler.mitSuperzahl[6] > 0, roh_[nr].superzahl >= 0);
    }
}

TEST_P(EchteKombinationen, DieTageGehoerenZuDenGewaehltenSpielarten)
{
    std::set<std::string> tage;
    for (const Gewinnfall& fall : gewinnfaelle(archiv_, {11, 13, 24, 35, 46, 48}, 0))
        tage.insert(fall.tag);
    tage.erase("Di");
    std::set<std::string> erwartet;
    if ((GetParam() & 1) != 0)
        erwartet.insert("Sa");
    if ((GetParam() & 2) != 0)
        erwartet.insert("Mi");
    if ((GetParam() & 4) != 0)
        erwartet.insert("Mi(B)");
    EXPECT_EQ(tage, erwartet);
}

INSTANTIATE_TEST_SUITE_P(Spielarten, EchteKombinationen, testing::Range(1, 8));

} // namespace

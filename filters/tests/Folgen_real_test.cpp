#include "filters/logic/Folgewiederholungen.h"
#include "filters/logic/Serien.h"
#include "testhilfen/EchteDaten.h"
#include "testhilfen/SerienReferenz.h"

#include <chrono>
#include <map>
#include <set>

// Runs and repetitions of the real draws, beside a count over the text of their files. The days of the merged order are
// counted from the first draw of each file, in weeks, by a calendar of the library's own.

namespace {

using Tage = std::chrono::sys_days;

std::vector<Plumpserie> gefundene(const Seriensuche& suche)
{
    std::vector<Plumpserie> serien;
    for (const Serie& serie : suche.serien) {
        Plumpserie eine{{}, serie.erste, serie.laenge};
        for (int zahl = 1; zahl <= 49; ++zahl)
            if (serie.zahlen >> zahl & 1U)
                eine.zahlen.push_back(zahl);
        serien.push_back(eine);
    }
    return serien;
}

std::vector<Plumpziehung> plump(const std::vector<RohZiehung>& roh, bool mitZusatzzahl)
{
    std::vector<Plumpziehung> ziehungen;
    for (const RohZiehung& ziehung : roh) {
        ziehungen.emplace_back(ziehung.zahlen);
        if (mitZusatzzahl)
            ziehungen.back().nimm(ziehung.zz);
    }
    return ziehungen;
}

class EchteSerien : public EchteDaten {};

TEST_P(EchteSerien, AllerLaengenStimmenMitDenEinfachenSchleifen)
{
    const auto folge = einzelneFolge(archiv_);
    for (const bool zz : {false, true}) {
        const auto ziehungen = plump(roh_, zz);
        std::size_t gefunden = 1;
        for (std::int32_t mindestens = 1; gefunden > 0; ++mindestens) {
            const auto serien = gefundene(sucheSerien(folge, {.mindestens = mindestens, .mitZusatzzahl = zz}));
            EXPECT_EQ(serien, einzelneSerienPlump(ziehungen, static_cast<std::size_t>(mindestens))) << mindestens;
            gefunden = serien.size();
            ASSERT_LT(mindestens, 20);
        }
    }
}

TEST_P(EchteSerien, VonDreiZahlenStimmenMitAllen18424Schleifen)
{
    EXPECT_EQ(gefundene(sucheSerien(einzelneFolge(archiv_), {.zahlen = 3, .mindestens = 3})),
              dreierSerienPlump(plump(roh_, false), 3));
}

INSTANTIATE_TEST_SUITE_P(AlleSpielarten, EchteSerien, testing::Values(Samstagslotto, Mittwochslotto, MittwochslottoB));

/// The day of each Saturday draw, by the text of its date in the archive, and of the others by their weeks.
class EchteFolge : public testing::TestWithParam<int> {
protected:
    void SetUp() override
    {
        if (!gibtEchteDaten())
            GTEST_SKIP() << "keine echten Ziehungen";
        archiv_.ProgrammVerzeichnis = kEchteDaten.string() + "/";
        LadeAlleZiehungen(archiv_, GetParam(), {});
        if (GetParam() & 1)
            nimm("SALOTTO.DAT", [this](std::size_t i) { return samstag(i); });
        for (const auto& [bit, name] : {std::pair(2, "MALOTTO.DAT"), {4, "MBLOTTO.DAT"}})
            if (GetParam() & bit)
                nimm(name, [](std::size_t i) {
                    return Tage(std::chrono::year(1986) / 6 / 4) + std::chrono::weeks(static_cast<int>(i));
                });
        for (const auto& [tag, ziehungen] : nachTagen_) {
            for (const auto& zahlen : ziehungen) {
                zahlen_.push_back(zahlen);
                ziehungen_.emplace_back(zahlen);
            }
        }
    }

    /// Behind draw 955 every Saturday; those before have days of their own, which only their date texts tell.
    Tage samstag(std::size_t i) const
    {
        if (i + 1 > 955)
            return Tage(std::chrono::year(1974) / 1 / 26) + std::chrono::weeks(static_cast<int>(i + 1 - 955));
        const std::string& text = archiv_.DatumAlle[i + 1];
        return std::chrono::year(std::stoi(text.substr(10, 4))) / std::stoi(text.substr(7, 2)) /
               std::stoi(text.substr(4, 2));
    }

    template <class Tag> void nimm(const std::string& name, Tag tag)
    {
        const std::vector<RohZiehung> roh = liesRoh(name);
        for (std::size_t i = 0; i < roh.size(); ++i)
            nachTagen_[tag(i)].push_back(roh[i].zahlen);
    }

    ZiehungsArchiv archiv_;
    std::map<Tage, std::vector<std::array<int, 6>>> nachTagen_;
    std::vector<std::array<int, 6>> zahlen_; ///< in the order of their days
    std::vector<Plumpziehung> ziehungen_;
};

TEST_P(EchteFolge, WiederholtSoVieleZahlenWieDerText)
{
    std::array<std::int32_t, 7> soll{};
    for (std::size_t i = 1; i < zahlen_.size(); ++i) {
        std::set<int> beide(zahlen_[i].begin(), zahlen_[i].end());
        beide.insert(zahlen_[i - 1].begin(), zahlen_[i - 1].end());
        ++soll[12 - beide.size()];
    }
    const auto gezaehlt = zaehleWiederholungen(gemischteFolge(archiv_), "");
    EXPECT_EQ(gezaehlt.anzahl, soll);
    EXPECT_EQ(gezaehlt.folge->ziehungen.size(), ziehungen_.size());
}

TEST_P(EchteFolge, HatDieSerienDerEinfachenSchleifen)
{
    const auto folge = gemischteFolge(archiv_);
    for (std::int32_t mindestens = 1; mindestens <= 10; ++mindestens)
        EXPECT_EQ(gefundene(sucheSerien(folge, {.mindestens = mindestens})),
                  einzelneSerienPlump(ziehungen_, static_cast<std::size_t>(mindestens)));
}

TEST_P(EchteFolge, HatDieDreierserienDerEinfachenSchleifen)
{
    EXPECT_EQ(gefundene(sucheSerien(gemischteFolge(archiv_), {.zahlen = 3, .mindestens = 3})),
              dreierSerienPlump(ziehungen_, 3));
}

INSTANTIATE_TEST_SUITE_P(AlleAuswahlen, EchteFolge, testing::Range(1, 8));

} // namespace

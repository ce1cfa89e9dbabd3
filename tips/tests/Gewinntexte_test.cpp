#include "shell/logic/Binomial.h"
#include "shell/logic/Format.h"
#include "tips/rules/Gewinnplantafel.h"
#include "tips/rules/Gewinntexte.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

TEST(Gewinntexte, DreiSpaltenDesNeuenPlans)
{
    const std::vector<std::array<std::string, 3>> erwartet{
        {"Sechser+SZ", "6-er+SZ", " (6er+SZ)"}, {"Sechser", "6-er", " (6er)"},
        {"Fünfer+SZ", "5-er+SZ", " (5er+SZ)"},  {"Fünfer", "5-er", " (5er)"},
        {"Vierer+SZ", "4-er+SZ", " (4er+SZ)"},  {"Vierer", "4-er", " (4er)"},
        {"Dreier+SZ", "3-er+SZ", " (3er+SZ)"},  {"Dreier", "3-er", " (3er)"},
        {"Zweier+SZ", "2-er+SZ", " (2er+SZ)"}};
    for (std::size_t i = 0; i < erwartet.size(); ++i) {
        const auto klasse = static_cast<Gewinnklasse>(i + 1);
        EXPECT_EQ(gewinntextNeu(klasse), erwartet[i][0]);
        EXPECT_EQ(gewinntextTippschein(klasse, 99), erwartet[i][1]);
        EXPECT_EQ(gewinntextBericht(klasse), erwartet[i][2]);
    }
}

TEST(Gewinntexte, OhneKlasseDieBlosseTrefferzahlOderNichts)
{
    EXPECT_EQ(gewinntextNeu(Gewinnklasse::Keine), "");
    EXPECT_EQ(gewinntextAlt(Gewinnklasse::Keine), "");
    EXPECT_EQ(gewinntextBericht(Gewinnklasse::Keine), "");
    for (int treffer = 0; treffer <= 2; ++treffer)
        EXPECT_EQ(gewinntextTippschein(GewinnklassenplanNeu.klasse(treffer, false), treffer), std::to_string(treffer));
    EXPECT_EQ(gewinntextTippschein(GewinnklassenplanNeu.klasse(2, true), 2), "2-er+SZ");
    EXPECT_EQ(gewinntextTippschein(GewinnklassenplanNeu.klasse(1, true), 1), "1");
}

/// How often a class comes up: in `guenstige` of `alle` equally likely cases.
struct Anteil {
    std::int64_t guenstige;
    std::int64_t alle;

    /// `faktor` times the share, or one over it, rounded to a whole number.
    std::int64_t mal(std::int64_t faktor) const { return (2 * guenstige * faktor + alle) / (2 * alle); }
    std::int64_t kehrwert() const { return (2 * alle + guenstige) / (2 * guenstige); }
};

/// Tips with `treffer` right numbers; one drawn digit of ten is the Superzahl.
Anteil mitSuperzahl(int treffer, bool superzahl)
{
    return {Binomial(6, treffer) * Binomial(43, 6 - treffer) * (superzahl ? 1 : 9), Binomial(49, 6) * 10};
}

/// Tips with `treffer` right numbers, and the Zusatzzahl or not.
Anteil mitZusatzzahl(int treffer, bool zusatzzahl)
{
    return {Binomial(6, treffer) * Binomial(1, zusatzzahl) * Binomial(42, 6 - treffer - zusatzzahl), Binomial(49, 6)};
}

constexpr std::int64_t kStellen = 1'000'000'000'000; ///< the frequencies have twelve decimals

/// The decimals of "0,000000007151" as a whole number.
std::int64_t stellen(std::string_view haeufigkeit)
{
    EXPECT_EQ(haeufigkeit.substr(0, 2), "0,");
    EXPECT_EQ(haeufigkeit.size(), 14U);
    return std::stoll(std::string(haeufigkeit.substr(2)));
}

std::string chancentext(const Anteil& anteil)
{
    return "1: " + Format(anteil.kehrwert(), "#,###,###");
}

std::vector<Anteil> anteileNeu()
{
    std::vector<Anteil> alle;
    for (int treffer = 6; treffer >= 3; --treffer)
        alle.insert(alle.end(), {mitSuperzahl(treffer, true), mitSuperzahl(treffer, false)});
    alle.push_back(mitSuperzahl(2, true));
    return alle;
}

std::vector<Anteil> anteileAlt()
{
    std::vector<Anteil> alle{mitSuperzahl(6, true), mitSuperzahl(6, false)};
    for (int treffer = 5; treffer >= 3; --treffer)
        alle.insert(alle.end(), {mitZusatzzahl(treffer, true), mitZusatzzahl(treffer, false)});
    return alle;
}

TEST(Gewinnplantafel, DieChancenFolgenZifferFuerZifferAusDerKombinatorik)
{
    const std::vector<Anteil> neu = anteileNeu();
    ASSERT_EQ(neu.size(), gewinnplantafel::kChancenNeu.size());
    for (std::size_t i = 0; i < neu.size(); ++i)
        EXPECT_EQ(gewinnplantafel::kChancenNeu[i].chance, chancentext(neu[i])) << i;
    const std::vector<Anteil> alt = anteileAlt();
    ASSERT_EQ(alt.size(), gewinnplantafel::kChancenAlt.size());
    for (std::size_t i = 0; i < alt.size(); ++i)
        EXPECT_EQ(gewinnplantafel::kChancenAlt[i].chance, chancentext(alt[i])) << i;
}

TEST(Gewinnplantafel, DieHaeufigkeitenDesAltenPlansFolgenZifferFuerZiffer)
{
    const std::vector<Anteil> alt = anteileAlt();
    for (std::size_t i = 0; i < alt.size(); ++i)
        EXPECT_EQ(stellen(gewinnplantafel::kChancenAlt[i].haeufigkeit), alt[i].mal(kStellen)) << i;
}

// Those of the new plan were taken from the rounded chances, some cut off and some rounded.
TEST(Gewinnplantafel, DieHaeufigkeitenDesNeuenPlansSindKehrwerteDerGerundetenChancen)
{
    const std::vector<Anteil> neu = anteileNeu();
    for (std::size_t i = 0; i < neu.size(); ++i) {
        // The text of GK3 is too small by ten, and is shown as it stands.
        const std::int64_t nenner = neu[i].kehrwert() * (i == 2 ? 10 : 1);
        const std::int64_t gezeigt = stellen(gewinnplantafel::kChancenNeu[i].haeufigkeit);
        EXPECT_LT(std::abs(gezeigt * nenner - kStellen), nenner) << i;
    }
}

TEST(Gewinnplantafel, DieHaeufigkeitenDesNeuenPlansStehenZifferFuerZiffer)
{
    const std::array<std::string_view, 9> erwartet{"0,000000007151", "0,000000064360", "0,000000184499",
                                                   "0,000016604951", "0,000096861681", "0,000871839581",
                                                   "0,001763668430", "0,015873015873", "0,013157894737"};
    for (std::size_t i = 0; i < erwartet.size(); ++i)
        EXPECT_EQ(gewinnplantafel::kChancenNeu[i].haeufigkeit, erwartet[i]) << i;
}

std::string ausgeschrieben(std::string_view klasse)
{
    std::string name(klasse);
    for (const auto& [kurz, lang] : {std::pair("+SZ", " mit Superzahl"), std::pair("+ZZ", " mit ZZ")})
        if (const auto stelle = name.find(kurz); stelle != std::string::npos)
            name.replace(stelle, 3, lang);
    return name;
}

TEST(Gewinnplantafel, DieZeilenHeissenWieDieKlassen)
{
    for (std::size_t i = 0; i < gewinnplantafel::kChancenNeu.size(); ++i) {
        EXPECT_EQ(gewinnplantafel::kChancenNeu[i].klasse, "GK" + std::to_string(i + 1));
        EXPECT_EQ(gewinnplantafel::kChancenNeu[i].name, ausgeschrieben(gewinntexte::kNeu[i + 1]));
        EXPECT_EQ(gewinnplantafel::kAnteileNeu[i].klasse, gewinnplantafel::kChancenNeu[i].klasse);
    }
    for (std::size_t i = 0; i < gewinnplantafel::kChancenAlt.size(); ++i) {
        EXPECT_EQ(gewinnplantafel::kChancenAlt[i].klasse, "GK" + std::to_string(i + 1));
        EXPECT_EQ(gewinnplantafel::kChancenAlt[i].name, ausgeschrieben(gewinntexte::kAlt[i + 1]));
        EXPECT_EQ(gewinnplantafel::kAnteileAlt[i].klasse, gewinnplantafel::kChancenAlt[i].klasse);
    }
}

double prozent(std::string_view text)
{
    std::string zahl(text);
    std::ranges::replace(zahl, ',', '.');
    return std::stod(zahl);
}

TEST(Gewinnplantafel, DieAnteileGehenAuf)
{
    double alt = 0;
    for (const auto& zeile : gewinnplantafel::kAnteileAlt)
        alt += prozent(zeile.anteil);
    EXPECT_NEAR(alt, 100, 1e-9);
    double mittwoch = 0;
    for (const auto& zeile : gewinnplantafel::kAnteileMittwoch)
        mittwoch += prozent(zeile.anteil);
    EXPECT_NEAR(mittwoch, 100, 1e-9);
    // The share of GK1 is taken off first; the rest goes to the classes 2 to 8.
    double bis = 0;
    double ab = 0;
    for (std::size_t i = 1; i < 8; ++i) {
        bis += prozent(gewinnplantafel::kAnteileNeu[i].bis19092020);
        ab += prozent(gewinnplantafel::kAnteileNeu[i].ab23092020);
    }
    EXPECT_NEAR(bis, 100, 1e-9);
    EXPECT_NEAR(ab, 100, 1e-9);
}

TEST(Gewinnplantafel, DieAnteileStehenZifferFuerZiffer)
{
    using namespace gewinnplantafel;
    const std::array<std::string_view, 9> bis{"12,8%", "10,0%", "5,0%",  "15,0%",  "5,0%",
                                              "10,0%", "10,0%", "45,0%", "fest 5€"};
    const std::array<std::string_view, 9> ab{"15,0%", "15,0%", "5,2%",  "15,5%",  "4,3%",
                                             "10,2%", "8,7%",  "41,1%", "fest 6€"};
    for (std::size_t i = 0; i < bis.size(); ++i) {
        EXPECT_EQ(kAnteileNeu[i].bis19092020, bis[i]);
        EXPECT_EQ(kAnteileNeu[i].ab23092020, ab[i]);
    }
    const std::array<std::string_view, 8> alt{"10,0 %", "8,0 %",  "5,0 %", "13,0 %",
                                              "2,0 %",  "10,0 %", "8,0 %", "44,0 %"};
    for (std::size_t i = 0; i < alt.size(); ++i) {
        EXPECT_EQ(kAnteileAlt[i].anteil, alt[i]);
        EXPECT_EQ(kAnteileAlt[i].bemerkung, i == 4 ? "(ab 22.5.1999)" : "");
    }
    const std::array<std::array<std::string_view, 2>, 7> mittwoch{{{"Sechser mit Superzahl", "6,0 %"},
                                                                   {"Sechser", "10,0 %"},
                                                                   {"Fünfer mit ZZ", "6,0 %"},
                                                                   {"Fünfer", "20,0 %"},
                                                                   {"Vierer", "20,0 %"},
                                                                   {"Dreier mit ZZ", "14,0 %"},
                                                                   {"Dreier", "24,0 %"}}};
    for (std::size_t i = 0; i < mittwoch.size(); ++i) {
        EXPECT_EQ(kAnteileMittwoch[i].klasse, "GK" + std::to_string(i + 1));
        EXPECT_EQ(kAnteileMittwoch[i].name, mittwoch[i][0]);
        EXPECT_EQ(kAnteileMittwoch[i].anteil, mittwoch[i][1]);
    }
    EXPECT_EQ(kAnteileMittwochTitel, "Ausschüttungsanteil Mittwochslotto (von 1997-2000)");
}

TEST(Gewinnplantafel, DieKombinationszahlen)
{
    using namespace gewinnplantafel;
    EXPECT_EQ(kSechserkombinationen, Format(Binomial(49, 6), "#,###,###"));
    EXPECT_EQ(kSechserMitSuperzahl, Format(Binomial(49, 6) * 10, "#,###,###"));
    EXPECT_EQ(kFuenferkombinationen, Format(Binomial(49, 5), "#,###,###"));
    EXPECT_EQ(kViererkombinationen, Format(Binomial(49, 4), "#,###,###"));
    EXPECT_EQ(kDreierkombinationen, Format(Binomial(49, 3), "#,###,###"));
    EXPECT_EQ(kKombinationsformel, "Anzahl=n!/((n-k)!*k!)");
}

} // namespace

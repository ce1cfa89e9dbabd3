#include "filters/logic/Zahlennachbarn.h"
#include "filters/tests/Nachbarreferenz.h"
#include "testhilfen/EchteDaten.h"

#include <set>

namespace {

using Dateien = std::vector<Spielart>;

/// What the text of a file says of a hit: the draw, and the numbers that count.
struct Rohtreffer {
    std::string jahrUndWoche;
    std::array<int, 6> zahlen{};
    std::set<int> gruppe;
};

std::vector<Rohtreffer> reihenImText(const std::vector<RohZiehung>& roh, int k)
{
    std::vector<Rohtreffer> alle;
    for (int erste = 1; erste <= 50 - k; ++erste)
        for (const RohZiehung& ziehung : roh)
            if (Nachbarreferenz::enthaeltReihe(ziehung.zahlen, erste, k)) {
                Rohtreffer treffer{ziehung.jahrUndWoche, ziehung.zahlen, {}};
                for (int zahl = erste; zahl < erste + k; ++zahl)
                    treffer.gruppe.insert(zahl);
                alle.push_back(treffer);
            }
    return alle;
}

std::vector<Rohtreffer> musterImText(const std::vector<RohZiehung>& roh, int code)
{
    std::vector<Rohtreffer> alle;
    for (const RohZiehung& ziehung : roh) {
        if (Nachbarreferenz::zerlegung(ziehung.zahlen) != Nachbarreferenz::kMuster.at(code))
            continue;
        Rohtreffer treffer{ziehung.jahrUndWoche, ziehung.zahlen, {}};
        for (const int zahl : ziehung.zahlen)
            if (Nachbarreferenz::enthaelt(ziehung.zahlen, zahl - 1) ||
                Nachbarreferenz::enthaelt(ziehung.zahlen, zahl + 1))
                treffer.gruppe.insert(zahl);
        alle.push_back(treffer);
    }
    return alle;
}

void vergleiche(const std::vector<Nachbartreffer>& ist, const std::vector<Rohtreffer>& soll)
{
    ASSERT_EQ(ist.size(), soll.size());
    for (std::size_t i = 0; i < soll.size(); ++i) {
        char jahrUndWoche[16];
        std::snprintf(jahrUndWoche, sizeof jahrUndWoche, "%04d/%02d", ist[i].jjjj, ist[i].sw);
        ASSERT_EQ(jahrUndWoche, soll[i].jahrUndWoche) << i;
        ASSERT_TRUE(std::ranges::equal(ist[i].zahlen, soll[i].zahlen)) << i;
        std::set<int> gruppe;
        for (int zahl = 0; zahl < 64; ++zahl)
            if ((ist[i].gruppe >> zahl & 1U) != 0)
                gruppe.insert(zahl);
        ASSERT_EQ(gruppe, soll[i].gruppe) << i;
    }
}

class EchteNachbarn : public EchteDaten {};

TEST_P(EchteNachbarn, JedeGroesseStimmtMitDemText)
{
    for (const Nachbargruppe& gruppe : kNachbargruppen) {
        SCOPED_TRACE(gruppe.code);
        vergleiche(sucheNachbarn(archiv_, gruppe), reihenImText(roh_, gruppe.code));
    }
}

TEST_P(EchteNachbarn, JedesMusterStimmtMitDemText)
{
    for (const Nachbargruppe& gruppe : kNachbarmuster) {
        SCOPED_TRACE(gruppe.code);
        vergleiche(sucheNachbarn(archiv_, gruppe), musterImText(roh_, gruppe.code));
    }
}

/// The last field of a line, from the draw on that the game had its first Superzahl.
TEST_P(EchteNachbarn, DieSuperzahlStehtWieImText)
{
    std::ifstream datei(kEchteDaten / ziehungsdateiName(GetParam()));
    const std::size_t beginn = GetParam() == Samstagslotto ? 1887 : 497;
    std::map<std::string, std::string> superzahlen;
    std::size_t nr = 0;
    for (std::string zeile; std::getline(datei, zeile);)
        superzahlen[zeile.substr(0, 4) + zeile.substr(5, 2)] =
            ++nr < beginn ? "-" : std::to_string(std::stoi(zeile.substr(zeile.rfind(',') + 1)));
    const auto treffer = sucheNachbarn(archiv_, kNachbargruppen[0]);
    ASSERT_FALSE(treffer.empty());
    for (const Nachbartreffer& eine : treffer) {
        char schluessel[16];
        std::snprintf(schluessel, sizeof schluessel, "%04d%02d", eine.jjjj, eine.sw);
        EXPECT_EQ(eine.s ? std::to_string(*eine.s) : "-", superzahlen.at(schluessel)) << schluessel;
    }
}

INSTANTIATE_TEST_SUITE_P(AlleSpielarten, EchteNachbarn,
                         testing::Values(Samstagslotto, Mittwochslotto, MittwochslottoB));

} // namespace

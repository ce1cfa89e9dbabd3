#include "shell/logic/Binomial.h"
#include "testhilfen/ArchivAus.h"
#include "testhilfen/VollsucheReferenz.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {

using Reihe = std::array<std::int32_t, 6>;

ZiehungsArchiv archiv(const std::vector<Reihe>& reihen)
{
    std::vector<TestZiehung> ziehungen;
    for (const Reihe& reihe : reihen)
        ziehungen.push_back({2000, 1, reihe, 0});
    return archivAus(Samstagslotto, ziehungen);
}

/// Draws by chance of the numbers up to `bis`, so that few numbers repeat often.
ZiehungsArchiv zufaellig(unsigned saat, int anzahl, std::int32_t bis)
{
    std::mt19937 zufall(saat);
    std::vector<std::int32_t> alle(static_cast<std::size_t>(bis));
    for (std::size_t i = 0; i < alle.size(); ++i)
        alle[i] = static_cast<std::int32_t>(i) + 1;
    std::vector<Reihe> reihen;
    for (int i = 0; i < anzahl; ++i) {
        std::ranges::shuffle(alle, zufall);
        Reihe reihe{};
        std::copy_n(alle.begin(), reihe.size(), reihe.begin());
        std::ranges::sort(reihe);
        reihen.push_back(reihe);
    }
    return archiv(reihen);
}

Suchergebnis allesAufEinmal(const ZiehungsArchiv& archiv, int groesse)
{
    Suchergebnis ergebnis;
    Vollsuche(archiv, groesse, ergebnis).testeAlle({});
    return ergebnis;
}

Suchergebnis einzeln(const ZiehungsArchiv& archiv, int groesse)
{
    Suchergebnis ergebnis;
    Vollsuche suche(archiv, groesse, ergebnis);
    while (!suche.fertig())
        suche.teste();
    return ergebnis;
}

void erwarteGleich(const Suchergebnis& ist, const Suchergebnis& soll)
{
    EXPECT_EQ(ist.Suchlaeufe, soll.Suchlaeufe);
    EXPECT_EQ(ist.NieGezogen, soll.NieGezogen);
    EXPECT_EQ(ist.EinmalGezogen, soll.EinmalGezogen);
    EXPECT_EQ(ist.wiederholungen.size(), soll.wiederholungen.size());
    EXPECT_TRUE(ist == soll);
}

class JedeGroesse : public testing::TestWithParam<int> {};

TEST_P(JedeGroesse, BeideArtenFindenDasselbeWieDiePlatteSchleife)
{
    const int groesse = GetParam();
    const std::vector<ZiehungsArchiv> archive{
        archiv({}),
        archiv({{1, 2, 3, 4, 5, 6}}),
        archiv({{44, 45, 46, 47, 48, 49}, {1, 2, 3, 4, 5, 6}, {44, 45, 46, 47, 48, 49}}),
        archiv(std::vector<Reihe>(9, {7, 19, 23, 30, 41, 49})),
        zufaellig(7, 30, 9),
        zufaellig(8, 25, 49),
        archiv({{49, 3, 3, 0, 50, 1}, {1, 3, 49, 20, 21, 22}, {1, 3, 20, 49, 21, 49}, {-7, 3, 3, 5, 21, 80}}),
    };
    for (const ZiehungsArchiv& jedes : archive) {
        SCOPED_TRACE(jedes.AnzahlZiehungen);
        const Suchergebnis soll = sucheEinfach(jedes, groesse);
        erwarteGleich(allesAufEinmal(jedes, groesse), soll);
        erwarteGleich(einzeln(jedes, groesse), soll);
    }
}

TEST_P(JedeGroesse, DieSummenGehenAuf)
{
    const Suchergebnis ergebnis = allesAufEinmal(zufaellig(3, 3000, 49), GetParam());
    EXPECT_EQ(ergebnis.SuchlaeufeGesamt, Binomial(49, GetParam()));
    EXPECT_EQ(ergebnis.Suchlaeufe, ergebnis.SuchlaeufeGesamt);
    EXPECT_FALSE(ergebnis.abgebrochen());
    EXPECT_EQ(ergebnis.NieGezogen + ergebnis.EinmalGezogen + static_cast<std::int32_t>(ergebnis.wiederholungen.size()),
              ergebnis.SuchlaeufeGesamt);
}

TEST_P(JedeGroesse, NichtsVonUnsinnigenReihenZaehlt)
{
    constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
    const Suchergebnis ergebnis = allesAufEinmal(
        archiv({{0, 0, 0, 0, 0, 0}, {kMin, kMax, -1, 50, 64, 65}, {1, 1, 1, 1, 1, 1}, {77, 78, 79, 80, 81, 49}}),
        GetParam());
    EXPECT_EQ(ergebnis.NieGezogen, ergebnis.SuchlaeufeGesamt);
}

TEST_P(JedeGroesse, DieGroesstenDateienMitLauterGleichenZiehungen)
{
    constexpr int kZiehungen = 3 * kMaxZiehungenJeDatei;
    const Suchergebnis ergebnis =
        allesAufEinmal(archiv(std::vector<Reihe>(kZiehungen, {1, 2, 3, 47, 48, 49})), GetParam());
    EXPECT_EQ(static_cast<std::int64_t>(ergebnis.wiederholungen.size()), Binomial(6, GetParam()));
    EXPECT_EQ(ergebnis.EinmalGezogen, 0);
    EXPECT_NE(ergebnis.wiederholungen.front().find("98301 mal -> 01 02"), std::string::npos);
}

TEST_P(JedeGroesse, HaeltVorDemErstenTestWennDerFortschrittEsSagt)
{
    Suchergebnis ergebnis;
    Vollsuche suche(zufaellig(1, 20, 49), GetParam(), ergebnis);
    int gefragt = 0;
    suche.testeAlle([&gefragt](std::uint64_t erledigt) {
        EXPECT_EQ(erledigt, 0U);
        ++gefragt;
        return false;
    });
    EXPECT_EQ(gefragt, 1);
    EXPECT_EQ(ergebnis.Suchlaeufe, 0);
    EXPECT_TRUE(ergebnis.abgebrochen());
}

TEST_P(JedeGroesse, NachEinemHaltGehtEsWeiterBisZumSelbenErgebnis)
{
    const ZiehungsArchiv ziehungen = zufaellig(5, 200, 49);
    Suchergebnis ergebnis;
    Vollsuche suche(ziehungen, GetParam(), ergebnis);
    for (int i = 0; i < 1000; ++i)
        suche.teste();
    EXPECT_EQ(ergebnis.Suchlaeufe, 1000);
    EXPECT_TRUE(ergebnis.abgebrochen());
    suche.testeAlle({});
    erwarteGleich(ergebnis, allesAufEinmal(ziehungen, GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Vollsuche, JedeGroesse, testing::Range(2, 7));

TEST(Vollsuche, ZeigtDieKombinationDieAnDerReiheIst)
{
    Suchergebnis ergebnis;
    Vollsuche suche(archiv({}), 2, ergebnis);
    std::vector<std::string> gezeigt;
    while (!suche.fertig()) {
        const auto zahlen = suche.kombination();
        ASSERT_EQ(zahlen.size(), 2U);
        gezeigt.push_back(std::to_string(zahlen[0]) + "," + std::to_string(zahlen[1]));
        suche.teste();
    }
    ASSERT_EQ(gezeigt.size(), 1176U);
    EXPECT_EQ(gezeigt[0], "1,2");
    EXPECT_EQ(gezeigt[47], "1,49");
    EXPECT_EQ(gezeigt[48], "2,3");
    EXPECT_EQ(gezeigt.back(), "48,49");
}

TEST(Vollsuche, ListetNieGezogeneNurBeiDenDreiern)
{
    const ZiehungsArchiv eine = archiv({{1, 2, 3, 4, 5, 6}});
    const Suchergebnis dreier = allesAufEinmal(eine, 3);
    EXPECT_EQ(dreier.NieGezogen, 18424 - 20);
    ASSERT_EQ(dreier.nieGezogene.size(), 18404U);
    EXPECT_EQ(dreier.nieGezogene.front(), "01 02 07");
    EXPECT_EQ(dreier.nieGezogene.back(), "47 48 49");
    for (const int groesse : {2, 4, 5, 6})
        EXPECT_TRUE(allesAufEinmal(eine, groesse).nieGezogene.empty());
}

TEST(Vollsuche, EinePaarzeileNenntDieHaeufigkeit)
{
    const Suchergebnis paare = allesAufEinmal(archiv({{1, 2, 3, 4, 5, 6}, {1, 2, 13, 14, 15, 16}}), 2);
    EXPECT_EQ(paare.wiederholungen, std::vector<std::string>{"   2 mal -> 01 02"});
    EXPECT_EQ(paare.EinmalGezogen, 28);
    EXPECT_EQ(paare.NieGezogen, 1176 - 29);
}

TEST(Vollsuche, EineUnsinnigeReiheZaehltVonIhrerErstenBisZuIhrerLetztenZahl)
{
    const ZiehungsArchiv unsinn = archiv({{49, 3, 12, 20, 30, 1}, {1, 3, 49, 20, 21, 22}, {-7, 22, 21, 3, 80, 50}});
    EXPECT_EQ(allesAufEinmal(unsinn, 3).wiederholungen, std::vector<std::string>{"      2 mal -> 03 21 22"});
    EXPECT_EQ(allesAufEinmal(unsinn, 6).EinmalGezogen, 0);
}

TEST(Vollsuche, MeldetDenStandBeimLaufen)
{
    const ZiehungsArchiv ziehungen = zufaellig(2, 3000, 49);
    Suchergebnis ergebnis;
    Vollsuche suche(ziehungen, 5, ergebnis);
    std::uint64_t zuletzt = 0;
    suche.testeAlle([&](std::uint64_t erledigt) {
        EXPECT_GE(erledigt, zuletzt);
        EXPECT_EQ(erledigt, static_cast<std::uint64_t>(ergebnis.Suchlaeufe));
        zuletzt = erledigt;
        return true;
    });
    EXPECT_FALSE(ergebnis.abgebrochen());
}

} // namespace

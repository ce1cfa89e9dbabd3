#include "filters/logic/Zahlennachbarn.h"
#include "filters/tests/Nachbarreferenz.h"
#include "testhilfen/ArchivAus.h"

#include <gmock/gmock.h>
#include <limits>
#include <random>
#include <set>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Nachbargruppe& reihe(int k)
{
    return kNachbargruppen.at(static_cast<std::size_t>(k - kKleinsteNachbargruppe));
}

const Nachbargruppe& muster(int code)
{
    return *std::ranges::find(kNachbarmuster, code, &Nachbargruppe::code);
}

std::vector<int> zahlenIn(Zahlenmenge menge)
{
    std::vector<int> zahlen;
    for (int zahl = 0; zahl < 64; ++zahl)
        if ((menge >> zahl & 1U) != 0)
            zahlen.push_back(zahl);
    return zahlen;
}

/// The groups of the hits, in their order.
std::vector<std::vector<int>> gruppen(const ZiehungsArchiv& archiv, const Nachbargruppe& gruppe)
{
    std::vector<std::vector<int>> alle;
    for (const Nachbartreffer& treffer : sucheNachbarn(archiv, gruppe))
        alle.push_back(zahlenIn(treffer.gruppe));
    return alle;
}

/// An archive of draws by chance, more often than not with neighbours.
ZiehungsArchiv zufallsarchiv(int ziehungen, int hoechste)
{
    std::mt19937 zufall(11);
    std::vector<Zahlenreihe> reihen;
    for (int i = 0; i < ziehungen; ++i) {
        std::set<std::int32_t> zahlen;
        while (zahlen.size() < 6)
            zahlen.insert(static_cast<std::int32_t>(1 + zufall() % static_cast<unsigned>(hoechste)));
        Zahlenreihe reihe{};
        std::ranges::copy(zahlen, reihe.begin());
        reihen.push_back(reihe);
    }
    return archivAus(reihen);
}

TEST(Zahlennachbarn, DieMaskeHatEinBitFuerJedenNachbarn)
{
    EXPECT_EQ(Nachbarmaske({1, 3, 5, 7, 9, 11}), 0U);
    EXPECT_EQ(Nachbarmaske({1, 2, 5, 7, 9, 11}), 1U);
    EXPECT_EQ(Nachbarmaske({1, 3, 4, 7, 9, 11}), 2U);
    EXPECT_EQ(Nachbarmaske({1, 3, 5, 6, 9, 11}), 4U);
    EXPECT_EQ(Nachbarmaske({1, 3, 5, 8, 9, 11}), 8U);
    EXPECT_EQ(Nachbarmaske({1, 3, 5, 8, 48, 49}), 16U);
    EXPECT_EQ(Nachbarmaske({1, 2, 10, 11, 48, 49}), 21U);
    EXPECT_EQ(Nachbarmaske({1, 2, 3, 4, 5, 6}), 31U);
}

TEST(Zahlennachbarn, WasKeineLottozahlIstHatKeineNachbarn)
{
    constexpr std::int32_t kGroesste = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t kKleinste = std::numeric_limits<std::int32_t>::min();
    EXPECT_EQ(Nachbarmaske({0, 1, 49, 50, 51, 52}), 0U);
    EXPECT_EQ(Nachbarmaske({kKleinste, kGroesste, kKleinste, -1, 0, kGroesste}), 0U);
    EXPECT_EQ(Nachbarmaske({6, 5, 4, 3, 2, 1}), 0U);
}

TEST(Zahlennachbarn, JedeMaskeGehoertZuHoechstensEinemMuster)
{
    const std::map<unsigned, int> erwartet{{5, 22},   {9, 22},  {10, 22}, {17, 22}, {18, 22}, {20, 22},
                                           {21, 222}, {11, 23}, {13, 23}, {19, 23}, {22, 23}, {25, 23},
                                           {26, 23},  {27, 33}, {23, 24}, {29, 24}};
    for (unsigned maske = 0; maske < 32; ++maske) {
        Zahlenreihe zahlen{1};
        for (std::size_t i = 0; i < 5; ++i)
            zahlen[i + 1] = zahlen[i] + ((maske >> i & 1U) != 0 ? 1 : 2);
        ASSERT_EQ(Nachbarmaske(zahlen), maske);
        const ZiehungsArchiv archiv = archivAus({zahlen});
        std::vector<int> gefundene;
        for (const Nachbargruppe& eines : kNachbarmuster)
            if (!sucheNachbarn(archiv, eines).empty())
                gefundene.push_back(eines.code);
        const auto hier = erwartet.find(maske);
        EXPECT_EQ(gefundene, hier == erwartet.end() ? std::vector<int>{} : std::vector{hier->second}) << maske;
    }
}

TEST(Zahlennachbarn, SechsInFolgeSindMehrereKleinereReihen)
{
    const ZiehungsArchiv archiv = archivAus({{1, 2, 3, 4, 5, 6}});
    EXPECT_THAT(gruppen(archiv, reihe(3)),
                ElementsAre(ElementsAre(1, 2, 3), ElementsAre(2, 3, 4), ElementsAre(3, 4, 5), ElementsAre(4, 5, 6)));
    EXPECT_EQ(gruppen(archiv, reihe(2)).size(), 5U);
    EXPECT_EQ(gruppen(archiv, reihe(5)).size(), 2U);
    EXPECT_THAT(gruppen(archiv, reihe(6)), ElementsAre(ElementsAre(1, 2, 3, 4, 5, 6)));
    for (const Nachbargruppe& eines : kNachbarmuster)
        EXPECT_THAT(gruppen(archiv, eines), IsEmpty()) << eines.code;
}

TEST(Zahlennachbarn, FuenfUndSechsMitSiebenStehenUnterBeidenPaaren)
{
    EXPECT_THAT(gruppen(archivAus({{5, 6, 7, 20, 30, 40}}), reihe(2)),
                ElementsAre(ElementsAre(5, 6), ElementsAre(6, 7)));
}

TEST(Zahlennachbarn, DreiPaareSindKeineZweiPaare)
{
    const ZiehungsArchiv archiv = archivAus({{1, 2, 10, 11, 48, 49}});
    EXPECT_THAT(gruppen(archiv, muster(22)), IsEmpty());
    EXPECT_THAT(gruppen(archiv, muster(222)), ElementsAre(ElementsAre(1, 2, 10, 11, 48, 49)));
}

TEST(Zahlennachbarn, EinMusterZeigtNurSeineReihen)
{
    EXPECT_THAT(gruppen(archivAus({{3, 10, 11, 20, 48, 49}}), muster(22)), ElementsAre(ElementsAre(10, 11, 48, 49)));
    EXPECT_THAT(gruppen(archivAus({{1, 2, 10, 11, 12, 40}}), muster(23)), ElementsAre(ElementsAre(1, 2, 10, 11, 12)));
    EXPECT_THAT(gruppen(archivAus({{1, 2, 3, 10, 11, 12}}), muster(33)), ElementsAre(ElementsAre(1, 2, 3, 10, 11, 12)));
    EXPECT_THAT(gruppen(archivAus({{1, 2, 3, 4, 10, 11}}), muster(24)), ElementsAre(ElementsAre(1, 2, 3, 4, 10, 11)));
}

TEST(Zahlennachbarn, JeGroesseSoVieleLaeufeWieAnfaenge)
{
    const std::array<int, 5> laeufe{48, 47, 46, 45, 44};
    for (std::size_t i = 0; i < laeufe.size(); ++i)
        EXPECT_EQ(kNachbargruppen[i].laeufe(), laeufe[i]);
    for (const Nachbargruppe& eines : kNachbarmuster)
        EXPECT_EQ(eines.laeufe(), 1);
    const auto letzte = sucheNachbarn(archivAus({{1, 3, 5, 7, 48, 49}}), reihe(2));
    ASSERT_EQ(letzte.size(), 1U);
    EXPECT_EQ(letzte[0].Suchlauf, 47);
    EXPECT_THAT(zahlenIn(letzte[0].gruppe), ElementsAre(48, 49));
}

TEST(Zahlennachbarn, StehenNachDemAnfangUndDarinNachDerZiehung)
{
    const ZiehungsArchiv archiv = archivAus(
        Mittwochslotto,
        {{2000, 1, {7, 8, 20, 30, 40, 49}}, {2000, 2, {1, 2, 20, 30, 40, 49}}, {2000, 3, {7, 8, 20, 21, 40, 49}}});
    std::vector<std::pair<int, int>> folge;
    for (const Nachbartreffer& treffer : sucheNachbarn(archiv, reihe(2)))
        folge.emplace_back(treffer.Suchlauf, treffer.sw);
    EXPECT_THAT(folge, ElementsAre(std::pair(0, 2), std::pair(6, 1), std::pair(6, 3), std::pair(19, 3)));
}

TEST(Zahlennachbarn, EinTrefferIstDieGanzeZiehung)
{
    ZiehungsArchiv archiv = archivAus(MittwochslottoB, {{1986, 23, {3, 12, 13, 16, 23, 41}, 7}});
    archiv.Datum = {"", "Mi, 04.06.1986"};
    const auto treffer = sucheNachbarn(archiv, reihe(2));
    ASSERT_EQ(treffer.size(), 1U);
    EXPECT_EQ(treffer[0].Spielart, MittwochslottoB);
    EXPECT_EQ(treffer[0].jjjj, 1986);
    EXPECT_EQ(treffer[0].sw, 23);
    EXPECT_EQ(treffer[0].datum, "Mi, 04.06.1986");
    EXPECT_EQ(treffer[0].zahlen, (Kombination{3, 12, 13, 16, 23, 41}));
    EXPECT_EQ(treffer[0].s, std::nullopt);
}

TEST(Zahlennachbarn, DieSuperzahlBeginntJeSpielMitIhrerZiehung)
{
    for (const auto& [spielart, beginn] : {std::pair<std::int16_t, std::size_t>(SpielartStart, 1887),
                                           {Samstagslotto, 1887},
                                           {Mittwochslotto, 497},
                                           {MittwochslottoB, 497}}) {
        ZiehungsArchiv archiv =
            archivAus(spielart, std::vector<TestZiehung>(beginn, {2000, 1, {1, 2, 10, 11, 30, 40}}));
        archiv.s.assign(beginn + 1, 5);
        for (const Nachbargruppe* gruppe : {&reihe(2), &muster(22)}) {
            const auto treffer = sucheNachbarn(archiv, *gruppe);
            ASSERT_FALSE(treffer.empty());
            for (std::size_t i = 0; i < treffer.size(); ++i) // of each run only the last draw has one
                ASSERT_EQ(treffer[i].s, (i + 1) % beginn == 0 ? std::optional(5) : std::nullopt)
                    << spielart << ' ' << i;
        }
    }
}

TEST(Zahlennachbarn, EinLeeresArchivHatKeine)
{
    for (const Nachbargruppe& gruppe : kNachbargruppen)
        EXPECT_THAT(sucheNachbarn(ZiehungsArchiv(), gruppe), IsEmpty());
    for (const Nachbargruppe& gruppe : kNachbarmuster)
        EXPECT_THAT(sucheNachbarn(ZiehungsArchiv(), gruppe), IsEmpty());
    const Nachbardatei datei = nachbardatei(ZiehungsArchiv());
    EXPECT_EQ(datei.AnzahlZiehungen, 0);
    EXPECT_EQ(datei.letzteZiehung, "0000/00");
}

TEST(Zahlennachbarn, NachEinemFehlversuchZaehlenDieAltenSpaltenNicht)
{
    ZiehungsArchiv archiv = archivAus({{1, 2, 3, 4, 5, 6}});
    archiv.AnzahlZiehungen = 0;
    EXPECT_THAT(sucheNachbarn(archiv, reihe(2)), IsEmpty());
    EXPECT_EQ(nachbardatei(archiv).letzteZiehung, "0000/00");
}

TEST(Zahlennachbarn, FalscheZahlenBildenKeineReihen)
{
    constexpr std::int32_t kGroesste = std::numeric_limits<std::int32_t>::max();
    const ZiehungsArchiv archiv = archivAus({{0, 1, 49, 50, 51, 52}, {-2, -1, 0, kGroesste - 1, kGroesste, 64}});
    for (const Nachbargruppe& gruppe : kNachbargruppen)
        EXPECT_THAT(sucheNachbarn(archiv, gruppe), IsEmpty()) << gruppe.code;
    for (const Nachbargruppe& gruppe : kNachbarmuster)
        EXPECT_THAT(sucheNachbarn(archiv, gruppe), IsEmpty()) << gruppe.code;
}

TEST(Zahlennachbarn, EineUngeordneteReiheIstDieselbeReihe)
{
    EXPECT_THAT(gruppen(archivAus({{40, 13, 12, 11, 30, 11}}), reihe(3)), ElementsAre(ElementsAre(11, 12, 13)));
}

TEST(Zahlennachbarn, GleichenDenEinfachenSchleifen)
{
    for (const int hoechste : {8, 14, 49}) {
        const ZiehungsArchiv archiv = zufallsarchiv(hoechste == 49 ? kMaxZiehungenJeDatei : 2000, hoechste);
        for (int k = 2; k <= 6; ++k) {
            std::vector<std::pair<int, int>> soll;
            for (int erste = 1; erste <= 50 - k; ++erste)
                for (int nr = 1; nr <= archiv.AnzahlZiehungen; ++nr)
                    if (Nachbarreferenz::enthaeltReihe(archiv.gewinnzahlen(static_cast<std::size_t>(nr)), erste, k))
                        soll.emplace_back(erste, nr);
            const auto treffer = sucheNachbarn(archiv, reihe(k));
            ASSERT_EQ(treffer.size(), soll.size()) << hoechste << ' ' << k;
            for (std::size_t i = 0; i < soll.size(); ++i) {
                ASSERT_EQ(treffer[i].Suchlauf, soll[i].first - 1);
                ASSERT_EQ(treffer[i].zahlen, archiv.gewinnzahlen(static_cast<std::size_t>(soll[i].second)));
                ASSERT_EQ(zahlenIn(treffer[i].gruppe).front(), soll[i].first);
                ASSERT_EQ(zahlenIn(treffer[i].gruppe).back(), soll[i].first + k - 1);
            }
        }
    }
}

TEST(Zahlennachbarn, EinMusterIstDieZerlegungInReihen)
{
    const ZiehungsArchiv archiv = zufallsarchiv(5000, 14);
    for (const auto& [code, zerlegung] : Nachbarreferenz::kMuster) {
        std::vector<Kombination> soll;
        for (int nr = 1; nr <= archiv.AnzahlZiehungen; ++nr)
            if (const Kombination zahlen = archiv.gewinnzahlen(static_cast<std::size_t>(nr));
                Nachbarreferenz::zerlegung(zahlen) == zerlegung)
                soll.push_back(zahlen);
        std::vector<Kombination> ist;
        for (const Nachbartreffer& treffer : sucheNachbarn(archiv, muster(code)))
            ist.push_back(treffer.zahlen);
        EXPECT_FALSE(soll.empty()) << code;
        EXPECT_EQ(ist, soll) << code;
    }
}

} // namespace

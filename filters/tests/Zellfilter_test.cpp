#include "filters/logic/Zellfilter.h"
#include "testhilfen/ArchivAus.h"

#include <gmock/gmock.h>
#include <limits>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr Linienwahl kKeine;
const Linienwahl kAlle = ~Linienwahl{};

Tippfeld7x7 feldMit(std::initializer_list<std::int32_t> zahlen)
{
    Tippfeld7x7 feld;
    feld.zeige(std::vector<std::int32_t>(zahlen));
    return feld;
}

Zellsuche suche(const std::vector<Zahlenreihe>& reihen, const Tippfeld7x7& zellen)
{
    return FiltereNachZellen(archivAus(reihen), zellen, datumVon);
}

TEST(Zellfilter, EineZeileSindSiebenZahlenHintereinander)
{
    EXPECT_THAT(zellenDer(Linienwahl(1), kKeine).gewaehlte(), ElementsAre(1, 2, 3, 4, 5, 6, 7));
    EXPECT_THAT(zellenDer(Linienwahl(64), kKeine).gewaehlte(), ElementsAre(43, 44, 45, 46, 47, 48, 49));
}

TEST(Zellfilter, EineSpalteSindSiebenZahlenImAbstandVonSieben)
{
    EXPECT_THAT(zellenDer(kKeine, Linienwahl(1)).gewaehlte(), ElementsAre(1, 8, 15, 22, 29, 36, 43));
    EXPECT_THAT(zellenDer(kKeine, Linienwahl(64)).gewaehlte(), ElementsAre(7, 14, 21, 28, 35, 42, 49));
}

TEST(Zellfilter, ZeilenUndSpaltenVereinigenSich)
{
    EXPECT_EQ(zellenDer(Linienwahl(1), Linienwahl(1)).anzahl(), 13);
    EXPECT_EQ(zellenDer(kAlle, kKeine).anzahl(), 49);
    EXPECT_EQ(zellenDer(kAlle, kAlle).anzahl(), 49);
    EXPECT_EQ(zellenDer(kKeine, kKeine).anzahl(), 0);
}

TEST(Zellfilter, FindetWasGanzInDenZellenLiegtAeltesteZuerst)
{
    const Zellsuche gefunden =
        suche({{1, 2, 3, 4, 5, 7}, {1, 2, 3, 4, 5, 8}, {2, 3, 4, 5, 6, 7}}, zellenDer(Linienwahl(1), kKeine));
    ASSERT_THAT(gefunden.funde, SizeIs(2));
    EXPECT_EQ(gefunden.funde[0].zahlen, (Kombination{1, 2, 3, 4, 5, 7}));
    EXPECT_EQ(gefunden.funde[1].zahlen, (Kombination{2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(gefunden.AnzahlZiehungen, 3);
    EXPECT_EQ(gefunden.ZellFlag, zellenDer(Linienwahl(1), kKeine));
}

TEST(Zellfilter, DieZeileNenntWocheZahlenUndDatum)
{
    ZiehungsArchiv archiv = archivAus({{1, 2, 3, 4, 5, 6}});
    archiv.Datum.emplace_back("So, 09.10.1955");
    archiv.DatumAlle.emplace_back("Mi, 04.06.1986 (B)");
    const Tippfeld7x7 alle = zellenDer(kAlle, kKeine);
    EXPECT_EQ(fundzeile(FiltereNachZellen(archiv, alle, datumVon).funde[0], 5),
              "2000/01   01 02 03 04 05 06     So, 09.10.1955");
    EXPECT_EQ(fundzeile(FiltereNachZellen(archiv, alle, datumAlleVon).funde[0], 5),
              "2000/01   01 02 03 04 05 06     Mi, 04.06.1986 (B)");
}

TEST(Zellfilter, AlleZeilenFindenJedeZiehung)
{
    const Zellsuche gefunden = suche({{1, 9, 17, 25, 33, 41}, {44, 45, 46, 47, 48, 49}}, zellenDer(kAlle, kKeine));
    EXPECT_EQ(ergebniszeile(gefunden), "2 Ziehungen (100,00%) von 2 Ziehungen ");
}

TEST(Zellfilter, GenauSechsZellenFindenNurDieseZiehung)
{
    const Tippfeld7x7 sechs = feldMit({1, 9, 17, 25, 33, 41});
    EXPECT_EQ(ergebniszeile(suche({{1, 9, 17, 25, 33, 41}, {1, 9, 17, 25, 33, 42}, {2, 9, 17, 25, 33, 41}}, sechs)),
              "1 Ziehung (33,33%) von 3 Ziehungen ");
}

TEST(Zellfilter, WenigerAlsSechsZellenFindenNichts)
{
    const Zellsuche gefunden = suche({{1, 2, 3, 4, 5, 6}}, feldMit({1, 2, 3, 4, 5}));
    EXPECT_THAT(gefunden.funde, IsEmpty());
    EXPECT_EQ(ergebniszeile(gefunden), "0 Ziehungen (0,00%) von 1 Ziehungen ");
}

TEST(Zellfilter, OhneZelleHatDerAnteilKeineStellen)
{
    EXPECT_EQ(ergebniszeile(suche({{1, 2, 3, 4, 5, 6}, {1, 2, 3, 4, 5, 7}}, {})), "0 Ziehungen (0%) von 2 Ziehungen ");
}

TEST(Zellfilter, OhneZiehungIstDerAnteilNull)
{
    const Zellsuche gefunden = FiltereNachZellen(ZiehungsArchiv{}, zellenDer(kAlle, kAlle), datumVon);
    EXPECT_THAT(gefunden.funde, IsEmpty());
    EXPECT_EQ(ergebniszeile(gefunden), "0 Ziehungen (0,00%) von 0 Ziehungen ");
}

TEST(Zellfilter, WasKeineZahlIstLiegtInKeinerZelle)
{
    constexpr auto kMin = std::numeric_limits<std::int32_t>::min();
    constexpr auto kMax = std::numeric_limits<std::int32_t>::max();
    for (const std::int32_t fremd : {kMin, -1, 0, 50, 63, 64, kMax})
        EXPECT_THAT(suche({{1, 2, 3, 4, 5, fremd}}, zellenDer(kAlle, kAlle)).funde, IsEmpty()) << fremd;
}

} // namespace

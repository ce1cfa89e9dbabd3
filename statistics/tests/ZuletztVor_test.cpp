#include "statistics/logic/ZuletztVor.h"
#include "testhilfen/ArchivAus.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

/// Draws that all show 1 to 6 without a Zusatzzahl, for a test to change.
std::vector<TestZiehung> gleiche(std::size_t anzahl)
{
    return std::vector<TestZiehung>(anzahl, TestZiehung{2000, 1, {1, 2, 3, 4, 5, 6}, 0});
}

/// The draw with a 1-based ZiehungsNr.
TestZiehung& ziehung(std::vector<TestZiehung>& ziehungen, std::size_t nr)
{
    return ziehungen[nr - 1];
}

std::int32_t vor(const std::vector<TestZiehung>& ziehungen, std::int16_t spielart, ZZModus modus, std::size_t zahl)
{
    return zuletztVor(archivAus(spielart, ziehungen), modus)[zahl - 1];
}

TEST(ZuletztVor, DieLetzteZiehungIstNull)
{
    EXPECT_EQ(vor(gleiche(300), Mittwochslotto, ZZModus::Ohne, 6), 0);
}

TEST(ZuletztVor, DieSpaetereZiehungGilt)
{
    auto ziehungen = gleiche(300);
    ziehung(ziehungen, 250).zahlen[5] = 49;
    ziehung(ziehungen, 290).zahlen[5] = 49;
    EXPECT_EQ(vor(ziehungen, Mittwochslotto, ZZModus::Ohne, 49), 10);
}

TEST(ZuletztVor, SuchbeginnMittwochIstZweihunderteinundvierzig)
{
    auto ziehungen = gleiche(300);
    ziehung(ziehungen, 240).zahlen[5] = 48;
    ziehung(ziehungen, 241).zahlen[5] = 49;
    for (const std::int16_t spielart : {Mittwochslotto, MittwochslottoB}) {
        EXPECT_EQ(vor(ziehungen, spielart, ZZModus::Ohne, 49), 59);
        EXPECT_EQ(vor(ziehungen, spielart, ZZModus::Ohne, 48), 300);
    }
}

TEST(ZuletztVor, SuchbeginnSamstagIstZweitausend)
{
    auto ziehungen = gleiche(2010);
    ziehung(ziehungen, 1999).zahlen[5] = 48;
    ziehung(ziehungen, 2000).zahlen[5] = 49;
    for (const std::int16_t spielart : {SpielartStart, Samstagslotto}) {
        EXPECT_EQ(vor(ziehungen, spielart, ZZModus::Ohne, 49), 10);
        EXPECT_EQ(vor(ziehungen, spielart, ZZModus::Ohne, 48), 2010);
    }
}

TEST(ZuletztVor, EinKuerzeresArchivGibtSeineAnzahl)
{
    EXPECT_EQ(vor(gleiche(240), Mittwochslotto, ZZModus::Ohne, 1), 240);
    EXPECT_EQ(vor(gleiche(1999), Samstagslotto, ZZModus::Ohne, 1), 1999);
    EXPECT_EQ(vor({}, Samstagslotto, ZZModus::Ohne, 1), 0);
}

TEST(ZuletztVor, DerModusSagtWasZaehlt)
{
    auto ziehungen = gleiche(300);
    ziehung(ziehungen, 280).zz = 1;
    ziehung(ziehungen, 290).zz = 49;
    EXPECT_EQ(vor(ziehungen, Mittwochslotto, ZZModus::Ohne, 49), 300);
    EXPECT_EQ(vor(ziehungen, Mittwochslotto, ZZModus::Mit, 49), 10);
    EXPECT_EQ(vor(ziehungen, Mittwochslotto, ZZModus::Nur, 49), 10);
    EXPECT_EQ(vor(ziehungen, Mittwochslotto, ZZModus::Mit, 1), 0);
    EXPECT_EQ(vor(ziehungen, Mittwochslotto, ZZModus::Nur, 1), 20);
    EXPECT_EQ(vor(ziehungen, Mittwochslotto, ZZModus::Nur, 2), 300);
}

TEST(ZuletztVor, ZahlenAusserhalbWerdenUebergangen)
{
    auto ziehungen = gleiche(300);
    ziehung(ziehungen, 300) = {2000, 1, {-5, 0, 50, 1, 2147483647, 3}, 99};
    EXPECT_EQ(vor(ziehungen, Mittwochslotto, ZZModus::Mit, 1), 0);
    EXPECT_EQ(vor(ziehungen, Mittwochslotto, ZZModus::Mit, 2), 1);
}

} // namespace

#include "testhilfen/Pruefordner.h"
#include "tips/logic/Tipphaeufigkeit.h"

#include <gmock/gmock.h>
#include <numeric>

namespace {

using testing::ElementsAre;
using testing::SizeIs;

TEST(Tipphaeufigkeit, ZaehltDieSpaltenAllerDateien)
{
    const Pruefordner ordner;
    ordner.lege("S_202418.dat", "202418. 3. 7.12.23.34.45:5\r\n202418. 1. 2. 3. 4. 5. 6:3\r\n");
    ordner.lege("S_1999al.dat", "199901. 3.49.50. 0.-1. x:\n199902. 3\n\n3.3.3.3.3.3:3\n");
    const Tipphaeufigkeit haeufigkeit = countTippedNumbers(ordner.pfad(), {"S_202418.dat", "S_1999al.dat"});
    EXPECT_EQ(haeufigkeit.anzahl[3], 4);
    EXPECT_EQ(haeufigkeit.anzahl[49], 1);
    EXPECT_EQ(haeufigkeit.anzahl[45], 1);
    EXPECT_EQ(haeufigkeit.anzahl[48], 0);
    EXPECT_TRUE(haeufigkeit.gang.vollstaendig);
    const std::vector<std::string> nachZahl = haeufigkeitNachZahl(haeufigkeit);
    ASSERT_THAT(nachZahl, SizeIs(49));
    EXPECT_EQ(nachZahl[2], " 3   mal die  4");
    EXPECT_EQ(nachZahl[48], "49   mal die  1");
    EXPECT_EQ(haeufigkeitNachAnzahl(haeufigkeit)[2], "   4 Zahl   3 -> 4  mal");
}

TEST(Tipphaeufigkeit, FehlendeDateienWerdenGenannt)
{
    const Pruefordner ordner;
    const Tipphaeufigkeit haeufigkeit = countTippedNumbers(ordner.pfad(), {"S_202418.dat"});
    EXPECT_THAT(haeufigkeit.gang.fehler, ElementsAre(Scheinfehler{"S_202418.dat", Dateistand::Fehlt}));
    EXPECT_EQ(std::accumulate(haeufigkeit.anzahl.begin(), haeufigkeit.anzahl.end(), 0), 0);
}

} // namespace

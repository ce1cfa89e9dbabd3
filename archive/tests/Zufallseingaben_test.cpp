#include "fuzz/PruefeHttpKopf.h"
#include "fuzz/PruefeUrl.h"
#include "fuzz/PruefeZiehungsdatei.h"
#include "testhilfen/Zufallseingaben.h"

#include <gtest/gtest.h>

namespace {

TEST(Zufallseingaben, HaltenDieAdressenZusammen)
{
    for (const std::string& beispiel : beispiele("url"))
        EXPECT_EQ(pruefeUrl(beispiel), "");
    pruefeViele("url", pruefeUrl);
}

TEST(Zufallseingaben, HaltenDieAntwortkoepfeZusammen)
{
    for (const std::string& beispiel : beispiele("http_kopf"))
        EXPECT_EQ(pruefeHttpKopf(beispiel), "");
    pruefeViele("http_kopf", pruefeHttpKopf);
}

TEST(Zufallseingaben, LesenKeineZiehungFalsch)
{
    pruefeViele("ziehungsdatei", pruefeZiehungsleser);
}

TEST(Zufallseingaben, BringenDieStrukturpruefungNichtDurcheinander)
{
    pruefeViele("ziehungsdatei", pruefeStrukturpruefung);
}

} // namespace

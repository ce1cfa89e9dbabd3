#include "testhilfen/ArchivAus.h"
#include "tips/logic/Tippscheintexte.h"

#include <gtest/gtest.h>

TEST(Tippscheintexte, DieSpielwocheHinterDerLetztenZiehung)
{
    const auto nach = [](std::int32_t jahr, std::int32_t woche) {
        return naechsteSpielwoche(archivAus(1, {{1955, 1, {}}, {jahr, woche, {}}}));
    };
    EXPECT_EQ(nach(2024, 17), "202418");
    EXPECT_EQ(nach(2024, 8), "202409");
    EXPECT_EQ(nach(2024, 52), "202453");
    EXPECT_EQ(nach(2024, 53), "202501");
    EXPECT_EQ(nach(1999, 54), "200001");
    EXPECT_EQ(naechsteSpielwoche({}), "000001");
}

TEST(Tippscheintexte, EineSpielwocheHatSechsZeichenUndEndetMitEinBisDreiundfuenfzig)
{
    for (const char* antwort : {"202401", "202453", "202418", "Text12", "äöüß12", "20242x"})
        EXPECT_TRUE(istSpielwoche(antwort)) << antwort;
    for (const char* antwort : {"", "202400", "202454", "20241", "2024018", "2024xx", "2024-1", "../x12", "a\\bc12",
                                "2024?1", "..", "C:xx12"})
        EXPECT_FALSE(istSpielwoche(antwort)) << antwort;
    EXPECT_FALSE(istSpielwoche(std::string(200, '1')));
}

TEST(Tippscheintexte, BeideMittwocheHabenEineArt)
{
    EXPECT_EQ(tippscheinArt(0), "Samstag-Tipschein");
    EXPECT_EQ(tippscheinArt(1), "Samstag-Tipschein");
    EXPECT_EQ(tippscheinArt(2), "Mittwoch-Tipschein");
    EXPECT_EQ(tippscheinArt(3), "Mittwoch-Tipschein");
}

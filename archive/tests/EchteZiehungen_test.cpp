#include "archive/logic/Ziehungsdatei.h"
#include "archive/logic/Ziehungskalender.h"
#include "testhilfen/Datenordner.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

class EchteZiehungenTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (!gibtEchteDaten())
            GTEST_SKIP() << "no real draws";
        archiv.ProgrammVerzeichnis = kEchteDaten.string();
    }

    void lade(std::int16_t spielart)
    {
        archiv.Spielart = spielart;
        LadeZiehungsdatei(archiv, {});
    }

    ZiehungsArchiv archiv;
};

using Sechs = std::array<std::int32_t, 6>;

} // namespace

TEST_F(EchteZiehungenTest, Samstagslotto)
{
    lade(Samstagslotto);
    EXPECT_EQ(gespeicherteZiehungen(archiv),
              "Gespeicherte Ziehungen: 1955/41 bis: 2026/29    Anzahl der Ziehungen: 3693");
    EXPECT_EQ(archiv.gewinnzahlen(1), (Sechs{3, 12, 13, 16, 23, 41}));
    EXPECT_EQ(archiv.gewinnzahlen(3693), (Sechs{5, 17, 33, 35, 39, 47}));
    EXPECT_EQ(archiv.s[3693], 6);
    EXPECT_EQ(archiv.Datum[3693], "Sa, 18.07.2026");
    EXPECT_EQ(jahrUndWoche(archiv, 1887), "1991/49");
}

TEST_F(EchteZiehungenTest, Mittwochslotto)
{
    lade(Mittwochslotto);
    EXPECT_EQ(gespeicherteZiehungen(archiv),
              "Gespeicherte Ziehungen: 1986/23 bis: 2026/30    Anzahl der Ziehungen: 2095");
    EXPECT_EQ(archiv.gewinnzahlen(1), (Sechs{11, 26, 27, 30, 35, 38}));
    EXPECT_EQ(archiv.gewinnzahlen(2095), (Sechs{3, 5, 10, 14, 25, 49}));
    EXPECT_EQ(archiv.Datum[2095], "Mi, 22.07.2026");
    EXPECT_EQ(jahrUndWoche(archiv, 497), "1995/49");
}

TEST_F(EchteZiehungenTest, MittwochslottoB)
{
    lade(MittwochslottoB);
    EXPECT_EQ(gespeicherteZiehungen(archiv),
              "Gespeicherte Ziehungen: 1986/23 bis: 2000/48    Anzahl der Ziehungen: 757");
    EXPECT_EQ(archiv.gewinnzahlen(757), (Sechs{15, 24, 33, 41, 46, 49}));
    EXPECT_EQ(archiv.Datum[757], "Mi, 29.11.2000");
    EXPECT_EQ(jahrUndWoche(archiv, 497), "1995/49");
}

TEST_F(EchteZiehungenTest, AlleZusammen)
{
    EXPECT_EQ(LadeAlleZiehungen(archiv, 7, {}), "3693  [2026/29]:2095  [2026/30]:757  [2000/48]");
    EXPECT_EQ(archiv.AnzahlZiehungen, 6545);
    EXPECT_EQ(archiv.DatumAlle[3694], "Mi, 04.06.1986");
    EXPECT_EQ(archiv.DatumAlle[6545], "Mi, 29.11.2000 (B)");
    EXPECT_EQ(std::ranges::count(archiv.s, 11), 1886 + 496 + 496);
}

TEST_F(EchteZiehungenTest, DieselbenSechsFielenAmSamstagUndAmMittwoch)
{
    const Sechs sechs{15, 25, 27, 30, 42, 48};
    lade(Samstagslotto);
    EXPECT_EQ(archiv.gewinnzahlen(1628), sechs);
    EXPECT_EQ(jahrUndWoche(archiv, 1628), "1986/51");
    lade(Mittwochslotto);
    EXPECT_EQ(archiv.gewinnzahlen(473), sechs);
    EXPECT_EQ(jahrUndWoche(archiv, 473), "1995/25");
}

TEST_F(EchteZiehungenTest, ZusatzzahlenGibtEsVonZeile37Bis27April2013)
{
    lade(Samstagslotto);
    for (std::int32_t nr = 1; nr <= archiv.AnzahlZiehungen; ++nr) {
        const bool erwartet =
            nr >= kZusatzzahlBeginnSamstag && samstagsZiehung(nr) <= std::chrono::year{2013} / std::chrono::April / 27;
        ASSERT_EQ(archiv.zz[static_cast<std::size_t>(nr)] != 0, erwartet) << datumText(samstagsZiehung(nr));
    }
}

TEST_F(EchteZiehungenTest, ZusatzzahlenGibtEsAmMittwochBis1Mai2013)
{
    lade(Mittwochslotto);
    for (std::int32_t nr = 1; nr <= archiv.AnzahlZiehungen; ++nr) {
        const bool erwartet = mittwochsZiehung(nr) <= std::chrono::year{2013} / std::chrono::May / 1;
        ASSERT_EQ(archiv.zz[static_cast<std::size_t>(nr)] != 0, erwartet) << datumText(mittwochsZiehung(nr));
    }
}

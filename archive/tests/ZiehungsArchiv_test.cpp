#include "archive/logic/ZiehungsArchiv.h"

#include <gtest/gtest.h>

namespace {

ZiehungsArchiv zweiZiehungen()
{
    ZiehungsArchiv archiv;
    archiv.jjjj = {0, 1955, 2026};
    archiv.sw = {0, 41, 3};
    archiv.z1 = {0, 3, 5};
    archiv.z2 = {0, 12, 17};
    archiv.z3 = {0, 13, 33};
    archiv.z4 = {0, 16, 35};
    archiv.z5 = {0, 23, 39};
    archiv.z6 = {0, 41, 47};
    archiv.AnzahlZiehungen = 2;
    return archiv;
}

} // namespace

TEST(ZiehungsArchiv, ElementNullEnthaeltNichts)
{
    ZiehungsArchiv archiv;
    for (const ZiehungsArchiv::Spalte* spalte : archiv.spalten())
        EXPECT_EQ(*spalte, ZiehungsArchiv::Spalte{0});
    EXPECT_EQ(archiv.Datum[0], "");
    EXPECT_EQ(archiv.DatumAlle[0], "");
    EXPECT_EQ(archiv.AnzahlZiehungen, 0);
    EXPECT_EQ(archiv.Spielart, SpielartStart);
}

TEST(ZiehungsArchiv, SpaltenStehenInDerReihenfolgeDerDatei)
{
    ZiehungsArchiv a;
    EXPECT_EQ(a.spalten(), (std::array<ZiehungsArchiv::Spalte*, 10>{&a.jjjj, &a.sw, &a.z1, &a.z2, &a.z3, &a.z4, &a.z5,
                                                                    &a.z6, &a.zz, &a.s}));
}

TEST(ZiehungsArchiv, GibtDieGewinnzahlenEinerZiehung)
{
    EXPECT_EQ(zweiZiehungen().gewinnzahlen(1), (std::array<std::int32_t, 6>{3, 12, 13, 16, 23, 41}));
}

TEST(ZiehungsdateiName, NullUndEinsSindDasSamstagslotto)
{
    EXPECT_EQ(ziehungsdateiName(0), "SALOTTO.DAT");
    EXPECT_EQ(ziehungsdateiName(1), "SALOTTO.DAT");
    EXPECT_EQ(ziehungsdateiName(2), "MALOTTO.DAT");
    EXPECT_EQ(ziehungsdateiName(3), "MBLOTTO.DAT");
}

TEST(ZiehungsdateiName, IstLeerFuerAndereSpielarten)
{
    EXPECT_EQ(ziehungsdateiName(4), "");
    EXPECT_EQ(ziehungsdateiName(-1), "");
    EXPECT_EQ(ziehungsdateiName(INT16_MIN), "");
}

TEST(ErstesSpieljahr, Ist1955OderFuerBeideMittwochsspiele1986)
{
    EXPECT_EQ(erstesSpieljahr(SpielartStart), "1955");
    EXPECT_EQ(erstesSpieljahr(Samstagslotto), "1955");
    EXPECT_EQ(erstesSpieljahr(Mittwochslotto), "1986");
    EXPECT_EQ(erstesSpieljahr(MittwochslottoB), "1986");
}

TEST(JahrUndWoche, FuelltMitNullen)
{
    const ZiehungsArchiv archiv = zweiZiehungen();
    EXPECT_EQ(jahrUndWoche(archiv, 1), "1955/41");
    EXPECT_EQ(jahrUndWoche(archiv, 2), "2026/03");
}

TEST(JahrUndWoche, IstNullOhneZiehung)
{
    EXPECT_EQ(jahrUndWoche(zweiZiehungen(), 0), "0000/00");
    EXPECT_EQ(jahrUndWoche(zweiZiehungen(), 3), "0000/00");
    EXPECT_EQ(jahrUndWoche(ZiehungsArchiv(), 1), "0000/00");
}

TEST(GespeicherteZiehungen, NenntErsteUndLetzteZiehungUndIhreZahl)
{
    EXPECT_EQ(gespeicherteZiehungen(zweiZiehungen()),
              "Gespeicherte Ziehungen: 1955/41 bis: 2026/03    Anzahl der Ziehungen: 2");
}

TEST(GespeicherteZiehungen, IstLeerOhneZiehung)
{
    ZiehungsArchiv archiv = zweiZiehungen();
    archiv.AnzahlZiehungen = 0;
    EXPECT_EQ(gespeicherteZiehungen(archiv), "");
}

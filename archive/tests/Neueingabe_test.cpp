#include "archive/logic/Neueingabe.h"

#include <gtest/gtest.h>

namespace {

ZiehungsArchiv archivMit(std::int32_t jahr, std::int32_t woche, std::int16_t spielart = Samstagslotto)
{
    ZiehungsArchiv archiv;
    archiv.Spielart = spielart;
    archiv.AnzahlZiehungen = 1;
    const std::array<std::int32_t, 10> satz{jahr, woche, 3, 12, 13, 16, 23, 41, 0, 4};
    const auto spalten = archiv.spalten();
    for (std::size_t i = 0; i < spalten.size(); ++i)
        spalten[i]->push_back(satz[i]);
    archiv.Datum.push_back("So, 09.10.1955");
    return archiv;
}

const NeueZiehung kNeue{2024, 31, {3, 12, 24, 33, 41, 49}, 7};

TEST(Vorschlag, NachWoche53KommtDasNaechsteJahr)
{
    const Vorschlag neu = naechsteZiehung(archivMit(1992, 53));
    EXPECT_EQ(neu.jjjj, 1993);
    EXPECT_EQ(neu.sw, 1);
}

TEST(Vorschlag, NachWoche52KommtImmer53)
{
    const Vorschlag neu = naechsteZiehung(archivMit(2025, 52));
    EXPECT_EQ(neu.jjjj, 2025);
    EXPECT_EQ(neu.sw, 53);
}

TEST(Vorschlag, EinUnsinnigesJahrBleibtVierstellig)
{
    EXPECT_EQ(letztesSpieljahr(archivMit(INT32_MAX, 1)), 9999);
    EXPECT_EQ(letztesSpieljahr(archivMit(INT32_MIN, 1)), 0);
    EXPECT_EQ(naechsteZiehung(archivMit(INT32_MAX, 53)).jjjj, 10000);
}

TEST(Vorschlag, LeeresArchiv)
{
    EXPECT_EQ(naechsteZiehung(ZiehungsArchiv()).jjjj, 0);
    EXPECT_EQ(naechsteZiehung(ZiehungsArchiv()).sw, 1);
}

TEST(NeueZiehung, DatensatzOhneZusatzzahl)
{
    EXPECT_EQ(neuerDatensatz(kNeue), "2024,31,03,12,24,33,41,49,00,7");
    EXPECT_EQ(neuerDatensatz(kNeue).size(), 30u);
    EXPECT_EQ(anzeigeform(kNeue), "2024,31,03,12,24,33,41,49  SZ:7");
}

TEST(NeueZiehung, SicherungszeileMitKuerzelUndDatum)
{
    EXPECT_EQ(sicherungszeile(kNeue, Samstagslotto, "Sa, 03.08.2024"),
              "2024,31,03,12,24,33,41,49,00,7,Sa,Sa, 03.08.2024");
    EXPECT_EQ(sicherungszeile(kNeue, Mittwochslotto, "x"), "2024,31,03,12,24,33,41,49,00,7,Mi,x");
    EXPECT_EQ(sicherungszeile(kNeue, MittwochslottoB, "x"), "2024,31,03,12,24,33,41,49,00,7,M(B),x");
}

TEST(Listenzeile, OhneZusatzUndSuperzahl)
{
    EXPECT_EQ(listenzeile(archivMit(1955, 41), 1), "0001    So, 09.10.1955 1955/41  03 12 13 16 23 41    -   -");
}

TEST(Listenzeile, MitZusatzzahl)
{
    ZiehungsArchiv archiv = archivMit(1955, 41);
    archiv.zz[1] = 7;
    EXPECT_EQ(listenzeile(archiv, 1), "0001    So, 09.10.1955 1955/41  03 12 13 16 23 41   7   -");
    EXPECT_EQ(zusatzzahlText(archiv, 1), " 7");
}

TEST(Superzahl, ErstAbIhremBeginn)
{
    ZiehungsArchiv archiv;
    archiv.s.assign(2000, 5);
    archiv.Spielart = Samstagslotto;
    EXPECT_EQ(superzahlText(archiv, 1886), "-");
    EXPECT_EQ(superzahlText(archiv, 1887), "5");
    for (const std::int16_t mittwoch : {Mittwochslotto, MittwochslottoB}) {
        archiv.Spielart = mittwoch;
        EXPECT_EQ(superzahlText(archiv, 496), "-");
        EXPECT_EQ(superzahlText(archiv, 497), "5");
    }
}

} // namespace

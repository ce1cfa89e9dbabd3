#include "engines/logic/KombinationAusNummer.h"
#include "engines/logic/Trefferliste.h"
#include "engines/logic/Zahlenspalten.h"
#include "engines/tests/Trefferarchiv.h"
#include "testhilfen/ZaehlerReferenz.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr Kombination kGesucht{1, 2, 3, 4, 5, 6};

/// A draw that shares the first `richtige` numbers with 1 2 3 4 5 6.
Kombination mitRichtigen(int richtige)
{
    Kombination zahlen{44, 45, 46, 47, 48, 49};
    for (int i = 0; i < richtige; ++i)
        zahlen[static_cast<std::size_t>(i)] = i + 1;
    return zahlen;
}

TEST(ZahlenspaltenTest, JederRangZaehltInSeinemFach)
{
    for (int richtige = 0; richtige <= 6; ++richtige) {
        const auto rang = static_cast<std::size_t>(richtige);
        const ZiehungsArchiv archiv =
            trefferarchiv({{mitRichtigen(richtige), 7}, {mitRichtigen(richtige), 8}, {mitRichtigen(richtige), 8}});
        Trefferzaehler erwartet;
        erwartet.mitSuperzahl[rang] = richtige >= 2 ? 1 : 0;
        erwartet.ohneSuperzahl[rang] = richtige >= 3 ? 2 : 0;
        EXPECT_EQ(Zahlenspalten(archiv, 7).zaehle(kGesucht), erwartet) << richtige;
    }
}

TEST(ZahlenspaltenTest, EineZiehungOhneSuperzahlIstNieEinRangMitSuperzahl)
{
    const ZiehungsArchiv archiv = trefferarchiv({{mitRichtigen(6), kOhneSuperzahl}, {mitRichtigen(2), kOhneSuperzahl}});
    for (const std::int32_t superzahl : {0, 1, 9, kOhneSuperzahl}) {
        Trefferzaehler erwartet;
        erwartet.ohneSuperzahl[6] = 1;
        EXPECT_EQ(Zahlenspalten(archiv, superzahl).zaehle(kGesucht), erwartet);
    }
}

TEST(ZahlenspaltenTest, OhneZiehungenIstAllesNull)
{
    const Trefferzaehler zaehler = Zahlenspalten(ZiehungsArchiv{}, 0).zaehle(kGesucht);
    EXPECT_EQ(zaehler, Trefferzaehler{});
    EXPECT_EQ(zaehler.Gewinnfaelle(), 0);
}

TEST(ZahlenspaltenTest, ZaehltWieDieFlaggentafel)
{
    for (const int anzahl : {1, 2, 62, 63, 64, 65, 127, 128, 1000}) {
        const ZiehungsArchiv archiv = zufallsarchiv(anzahl, static_cast<unsigned>(anzahl));
        for (std::int32_t superzahl = 0; superzahl < 10; ++superzahl) {
            const Zahlenspalten spalten(archiv, superzahl);
            for (std::int32_t nummer = 1; nummer <= 13'983'816; nummer += 123'457) {
                const Kombination zahlen = KombinationAusNummer(nummer);
                ASSERT_EQ(spalten.zaehle(zahlen), trefferEinfach(archiv, zahlen, superzahl)) << anzahl << " " << nummer;
            }
            // The draws themselves are the only ones with five and six right.
            for (std::size_t nr = 1; nr < archiv.z1.size(); nr += 7) {
                const Kombination zahlen = archiv.gewinnzahlen(nr);
                ASSERT_EQ(spalten.zaehle(zahlen), trefferEinfach(archiv, zahlen, superzahl));
            }
        }
    }
}

TEST(ZahlenspaltenTest, SoVieleZiehungenWieDreiDateienFassen)
{
    const std::vector<Kombinierte> gleiche(3 * std::size_t{kMaxZiehungenJeDatei}, {kGesucht, 3});
    Trefferzaehler erwartet;
    erwartet.mitSuperzahl[6] = 98'301;
    EXPECT_EQ(Zahlenspalten(trefferarchiv(gleiche), 3).zaehle(kGesucht), erwartet);
}

TEST(ZahlenspaltenTest, WasKeineZahlIstZaehltNieUndEineDoppelteZaehltEinmal)
{
    using Grenzen = std::numeric_limits<std::int32_t>;
    const ZiehungsArchiv archiv = trefferarchiv({
        {{Grenzen::min(), -1, 0, 50, 64, Grenzen::max()}, 0},
        {{1, 1, 1, 1, 1, 1}, 0},
        {{6, 5, 4, 3, 2, 1}, 0},
        {{3, 3, 2, 1, 99, -7}, 0},
    });
    Trefferzaehler erwartet;
    erwartet.mitSuperzahl[6] = 1;
    erwartet.mitSuperzahl[3] = 1;
    EXPECT_EQ(Zahlenspalten(archiv, 0).zaehle(kGesucht), erwartet);
    EXPECT_EQ(zaehle(gewinnfaelle(archiv, kGesucht, 0)), erwartet);
}

TEST(ZahlenspaltenTest, JedeZahlIstAmWerk)
{
    for (std::int32_t zahl = 1; zahl <= 44; ++zahl) {
        const Kombination zahlen{zahl, zahl + 1, zahl + 2, zahl + 3, zahl + 4, zahl + 5};
        EXPECT_EQ(Zahlenspalten(trefferarchiv({{zahlen, 0}}), 1).zaehle(zahlen).ohneSuperzahl[6], 1);
    }
}

} // namespace

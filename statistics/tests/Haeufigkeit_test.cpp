#include "statistics/logic/Haeufigkeit.h"
#include "testhilfen/ArchivAus.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

namespace {

constexpr Ziehungsbereich kAlles{0, 9999};

const std::vector<TestZiehung>& fuenfZiehungen()
{
    static const std::vector<TestZiehung> ziehungen{
        {1955, 41, {1, 2, 3, 4, 5, 6}, 0},      {1955, 42, {1, 2, 3, 4, 5, 49}, 0},
        {1956, 25, {7, 8, 9, 10, 11, 12}, 49},  {1957, 1, {1, 8, 9, 10, 11, 12}, 7},
        {1957, 2, {43, 44, 45, 46, 47, 48}, 7},
    };
    return ziehungen;
}

ZiehungsArchiv fuenf()
{
    return archivAus(Samstagslotto, fuenfZiehungen());
}

/// The count as it would be done by hand: draw by draw, number by number.
Haeufigkeit vonHand(const std::vector<TestZiehung>& ziehungen, const Ziehungsbereich& bereich, ZZModus modus)
{
    Haeufigkeit summe;
    for (std::size_t i = 0; i < ziehungen.size(); ++i) {
        const TestZiehung& ziehung = ziehungen[i];
        const auto nr = static_cast<std::int32_t>(i + 1);
        if (nr > bereich.letzteZiehung || ziehung.jjjj < bereich.von || ziehung.jjjj > bereich.bis)
            continue;
        ++summe.AusgewerteteZiehungen;
        summe.LetzteZiehung = nr;
        std::vector<std::int32_t> zahlen;
        if (modus != ZZModus::Nur)
            zahlen.assign(ziehung.zahlen.begin(), ziehung.zahlen.end());
        if (modus != ZZModus::Ohne)
            zahlen.push_back(ziehung.zz);
        for (const std::int32_t zahl : zahlen)
            if (zahl >= 1 && zahl <= 49)
                ++summe.anzahl[static_cast<std::size_t>(zahl - 1)];
    }
    return summe;
}

int summeAllerZahlen(const Haeufigkeit& haeufigkeit)
{
    int summe = 0;
    for (const std::int16_t anzahl : haeufigkeit.anzahl)
        summe += anzahl;
    return summe;
}

TEST(Haeufigkeit, OhneZusatzzahlZaehlenDieSechs)
{
    const Haeufigkeit haeufigkeit = zaehleHaeufigkeit(fuenf(), kAlles, ZZModus::Ohne);
    EXPECT_EQ(haeufigkeit.fuer(1), 3);
    EXPECT_EQ(haeufigkeit.fuer(7), 1);
    EXPECT_EQ(haeufigkeit.fuer(49), 1);
    EXPECT_EQ(haeufigkeit.fuer(13), 0);
    EXPECT_EQ(summeAllerZahlen(haeufigkeit), 30);
    EXPECT_EQ(haeufigkeit.AusgewerteteZiehungen, 5);
    EXPECT_EQ(haeufigkeit.LetzteZiehung, 5);
    EXPECT_EQ(haeufigkeit.letztesSpieljahr, 1957);
    EXPECT_EQ(haeufigkeit.letzteSpielwoche, 2);
}

TEST(Haeufigkeit, MitZusatzzahlZaehltSieMit)
{
    const Haeufigkeit haeufigkeit = zaehleHaeufigkeit(fuenf(), kAlles, ZZModus::Mit);
    EXPECT_EQ(haeufigkeit.fuer(7), 3);
    EXPECT_EQ(haeufigkeit.fuer(49), 2);
    EXPECT_EQ(summeAllerZahlen(haeufigkeit), 33);
}

TEST(Haeufigkeit, NurZusatzzahlZaehltSieAllein)
{
    const Haeufigkeit haeufigkeit = zaehleHaeufigkeit(fuenf(), kAlles, ZZModus::Nur);
    EXPECT_EQ(haeufigkeit.fuer(7), 2);
    EXPECT_EQ(haeufigkeit.fuer(49), 1);
    EXPECT_EQ(summeAllerZahlen(haeufigkeit), 3);
    EXPECT_EQ(haeufigkeit.AusgewerteteZiehungen, 5);
}

TEST(Haeufigkeit, NurZusatzzahlVorIhrerZeitIstNull)
{
    const Haeufigkeit haeufigkeit = zaehleHaeufigkeit(fuenf(), {1955, 1955}, ZZModus::Nur);
    EXPECT_EQ(summeAllerZahlen(haeufigkeit), 0);
    EXPECT_EQ(haeufigkeit.AusgewerteteZiehungen, 2);
}

TEST(Haeufigkeit, VonGleichBisIstDasEineSpieljahr)
{
    const Haeufigkeit haeufigkeit = zaehleHaeufigkeit(fuenf(), {1956, 1956}, ZZModus::Ohne);
    EXPECT_EQ(haeufigkeit.AusgewerteteZiehungen, 1);
    EXPECT_EQ(haeufigkeit.LetzteZiehung, 3);
    EXPECT_EQ(haeufigkeit.fuer(7), 1);
    EXPECT_EQ(haeufigkeit.fuer(1), 0);
}

TEST(Haeufigkeit, BisZiehungEndetDort)
{
    const Haeufigkeit haeufigkeit = zaehleHaeufigkeit(fuenf(), {1955, 1957, 4}, ZZModus::Ohne);
    EXPECT_EQ(haeufigkeit.AusgewerteteZiehungen, 4);
    EXPECT_EQ(haeufigkeit.LetzteZiehung, 4);
    EXPECT_EQ(haeufigkeit.letzteSpielwoche, 1);
    EXPECT_EQ(haeufigkeit.fuer(43), 0);
}

TEST(Haeufigkeit, BisZiehungUeberDemEndeZaehltAlle)
{
    EXPECT_EQ(zaehleHaeufigkeit(fuenf(), {1955, 1957, 6}, ZZModus::Mit),
              zaehleHaeufigkeit(fuenf(), kAlles, ZZModus::Mit));
}

TEST(Haeufigkeit, LeererBereichGibtNullen)
{
    EXPECT_EQ(zaehleHaeufigkeit(fuenf(), {1955, 1957, 0}, ZZModus::Mit), Haeufigkeit{});
    EXPECT_EQ(zaehleHaeufigkeit(fuenf(), {1900, 1954}, ZZModus::Mit), Haeufigkeit{});
    EXPECT_EQ(zaehleHaeufigkeit(fuenf(), {1957, 1955}, ZZModus::Mit), Haeufigkeit{});
    EXPECT_EQ(zaehleHaeufigkeit(ZiehungsArchiv{}, kAlles, ZZModus::Mit), Haeufigkeit{});
}

TEST(Haeufigkeit, NachEinemFehlgeschlagenenLadenZaehltNichts)
{
    ZiehungsArchiv archiv = fuenf();
    archiv.AnzahlZiehungen = 0;
    EXPECT_EQ(zaehleHaeufigkeit(archiv, kAlles, ZZModus::Ohne), Haeufigkeit{});
}

TEST(Haeufigkeit, ZahlenAusserhalbZaehlenNicht)
{
    constexpr auto kKleinste = std::numeric_limits<std::int32_t>::min();
    constexpr auto kGroesste = std::numeric_limits<std::int32_t>::max();
    const ZiehungsArchiv archiv =
        archivAus(Samstagslotto, {{1955, 41, {kKleinste, -1, 0, 49, 50, kGroesste}, 51}, {1955, 42, {}, 1}});
    const Haeufigkeit haeufigkeit = zaehleHaeufigkeit(archiv, kAlles, ZZModus::Mit);
    EXPECT_EQ(summeAllerZahlen(haeufigkeit), 2);
    EXPECT_EQ(haeufigkeit.fuer(49), 1);
    EXPECT_EQ(haeufigkeit.fuer(1), 1);
    EXPECT_EQ(haeufigkeit.AusgewerteteZiehungen, 2);
}

TEST(Haeufigkeit, BleibtAnDerGrenzeVonSechzehnBitStehen)
{
    const std::vector<TestZiehung> ziehungen(10000, TestZiehung{1955, 41, {7, 7, 7, 7, 7, 7}, 7});
    EXPECT_EQ(zaehleHaeufigkeit(archivAus(Samstagslotto, ziehungen), kAlles, ZZModus::Mit).fuer(7), 32767);
}

TEST(Haeufigkeit, UngeordneteJahreZaehlenWieVonHand)
{
    std::mt19937 zufall(1955);
    std::uniform_int_distribution<std::int32_t> jahr(1955, 1965);
    std::uniform_int_distribution<std::int32_t> zahl(-1, 51);
    std::vector<TestZiehung> ziehungen(400);
    for (TestZiehung& ziehung : ziehungen) {
        ziehung.jjjj = jahr(zufall);
        for (std::int32_t& z : ziehung.zahlen)
            z = zahl(zufall);
        ziehung.zz = zahl(zufall);
    }
    const ZiehungsArchiv archiv = archivAus(Samstagslotto, ziehungen);
    for (const ZZModus modus : {ZZModus::Ohne, ZZModus::Mit, ZZModus::Nur}) {
        for (const Ziehungsbereich bereich : {Ziehungsbereich{1955, 1965}, Ziehungsbereich{1957, 1960},
                                              Ziehungsbereich{1960, 1960, 250}, Ziehungsbereich{1955, 1965, 1}}) {
            const Haeufigkeit gezaehlt = zaehleHaeufigkeit(archiv, bereich, modus);
            const Haeufigkeit hand = vonHand(ziehungen, bereich, modus);
            EXPECT_EQ(gezaehlt.anzahl, hand.anzahl);
            EXPECT_EQ(gezaehlt.AusgewerteteZiehungen, hand.AusgewerteteZiehungen);
            EXPECT_EQ(gezaehlt.LetzteZiehung, hand.LetzteZiehung);
        }
    }
}

TEST(Haeufigkeit, DasZweiteArchivKommtHinzu)
{
    const ZiehungsArchiv a = archivAus(
        Mittwochslotto,
        {{1986, 23, {1, 2, 3, 4, 5, 6}, 7}, {1986, 24, {1, 2, 3, 4, 5, 6}, 7}, {1987, 1, {1, 2, 3, 4, 5, 6}, 7}});
    const ZiehungsArchiv b = archivAus(MittwochslottoB, {{1986, 23, {1, 12, 13, 14, 15, 16}, 7}});
    Haeufigkeit summe = zaehleHaeufigkeit(a, {1986, 1987}, ZZModus::Ohne);
    zaehleDazu(summe, b, {1986, 1987}, ZZModus::Ohne);
    EXPECT_EQ(summe.fuer(1), 4);
    EXPECT_EQ(summe.fuer(2), 3);
    EXPECT_EQ(summe.fuer(12), 1);
    EXPECT_EQ(summe.fuer(7), 0);
    EXPECT_EQ(summe.AusgewerteteZiehungen, 4);
    EXPECT_EQ(summe.LetzteZiehung, 1);
    EXPECT_EQ(summe.letztesSpieljahr, 1987);
    EXPECT_EQ(summe.letzteSpielwoche, 1);
}

TEST(Haeufigkeit, DieZiehungsgrenzeGiltInJedemArchivFuerSich)
{
    const ZiehungsArchiv lang = archivAus(
        Mittwochslotto,
        {{1986, 23, {1, 2, 3, 4, 5, 6}, 0}, {1986, 24, {1, 2, 3, 4, 5, 6}, 0}, {1986, 25, {1, 2, 3, 4, 5, 6}, 0}});
    const ZiehungsArchiv kurz = archivAus(MittwochslottoB, {{1986, 23, {1, 2, 3, 4, 5, 7}, 0}});
    Haeufigkeit summe = zaehleHaeufigkeit(lang, {1986, 1986, 2}, ZZModus::Ohne);
    zaehleDazu(summe, kurz, {1986, 1986, 2}, ZZModus::Ohne);
    EXPECT_EQ(summe.AusgewerteteZiehungen, 3);
    EXPECT_EQ(summe.fuer(1), 3);
}

TEST(Haeufigkeit, EinZweitesArchivOhneZiehungImBereichAendertNichts)
{
    const Haeufigkeit vorher = zaehleHaeufigkeit(fuenf(), kAlles, ZZModus::Ohne);
    Haeufigkeit summe = vorher;
    zaehleDazu(summe, archivAus(MittwochslottoB, {}), kAlles, ZZModus::Ohne);
    EXPECT_EQ(summe, vorher);
}

Haeufigkeit mitAnzahlen(std::int16_t alle, std::initializer_list<std::pair<int, int>> andere)
{
    Haeufigkeit haeufigkeit;
    haeufigkeit.anzahl.fill(alle);
    for (const auto& [zahl, anzahl] : andere)
        haeufigkeit.anzahl[static_cast<std::size_t>(zahl - 1)] = static_cast<std::int16_t>(anzahl);
    return haeufigkeit;
}

TEST(Extremwerte, NennenDieEineHoechsteUndNiedrigste)
{
    const Extremwerte extreme = extremwerte(mitAnzahlen(5, {{3, 9}, {17, 1}}));
    EXPECT_EQ(extreme.max, 9);
    EXPECT_EQ(extreme.zahlMax, 3);
    EXPECT_EQ(extreme.min, 1);
    EXPECT_EQ(extreme.zahlMin, 17);
    EXPECT_EQ(extreme.maxima.count(), 1U);
    EXPECT_TRUE(extreme.maxima.test(3));
    EXPECT_TRUE(extreme.minima.test(17));
}

TEST(Extremwerte, BeiGleichstandWirdDieHoechsteZahlGenanntUndAlleMarkiert)
{
    const Extremwerte extreme = extremwerte(mitAnzahlen(5, {{1, 9}, {20, 9}, {2, 1}, {48, 1}, {30, 1}}));
    EXPECT_EQ(extreme.zahlMax, 20);
    EXPECT_EQ(extreme.zahlMin, 48);
    EXPECT_EQ(extreme.maxima.count(), 2U);
    EXPECT_TRUE(extreme.maxima.test(1) && extreme.maxima.test(20));
    EXPECT_EQ(extreme.minima.count(), 3U);
    EXPECT_TRUE(extreme.minima.test(2) && extreme.minima.test(30) && extreme.minima.test(48));
}

TEST(Extremwerte, AllesNullIstBeidesUndNenntNeunundvierzig)
{
    const Extremwerte extreme = extremwerte(Haeufigkeit{});
    EXPECT_EQ(extreme.max, 0);
    EXPECT_EQ(extreme.min, 0);
    EXPECT_EQ(extreme.zahlMax, 49);
    EXPECT_EQ(extreme.zahlMin, 49);
    EXPECT_EQ(extreme.maxima.count(), 49U);
    EXPECT_EQ(extreme.minima.count(), 49U);
    EXPECT_FALSE(extreme.maxima.test(0) || extreme.minima.test(0));
}

} // namespace

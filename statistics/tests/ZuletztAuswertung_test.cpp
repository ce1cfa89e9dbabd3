#include "archive/logic/Ziehungskalender.h"
#include "statistics/logic/ZuletztAuswertung.h"
#include "testhilfen/ArchivAus.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

/// Draws that all show 1 to 6 without a Zusatzzahl, week by week, for a test to change.
std::vector<TestZiehung> gleiche(std::int32_t anzahl)
{
    std::vector<TestZiehung> ziehungen;
    for (std::int32_t i = 0; i < anzahl; ++i)
        ziehungen.push_back({1986 + i / 52, 1 + i % 52, {1, 2, 3, 4, 5, 6}, 0});
    return ziehungen;
}

TestZiehung& ziehung(std::vector<TestZiehung>& ziehungen, std::size_t nr)
{
    return ziehungen[nr - 1];
}

ZiehungsArchiv mittwoch(std::int16_t spielart, const std::vector<TestZiehung>& ziehungen)
{
    ZiehungsArchiv archiv = archivAus(spielart, ziehungen);
    BaueMittwochsDaten(archiv);
    return archiv;
}

TEST(ZuletztGrenze, LiestGanzeZahlen)
{
    EXPECT_EQ(liesGrenze("100", 500).nr, 100);
    EXPECT_EQ(liesGrenze(" 0100 ", 500).nr, 100);
    EXPECT_EQ(liesGrenze("+7", 500).nr, 7);
    EXPECT_FALSE(liesGrenze("500", 500).berichtigt);
}

TEST(ZuletztGrenze, SetztZuHoheAufDieAnzahlZurueck)
{
    for (const char* text : {"501", "99999999999"}) {
        const Ziehungsgrenze grenze = liesGrenze(text, 500);
        EXPECT_EQ(grenze.nr, 500) << text;
        EXPECT_TRUE(grenze.berichtigt) << text;
    }
}

TEST(ZuletztGrenze, NullUndNegativeBleiben)
{
    EXPECT_EQ(liesGrenze("0", 500).nr, 0);
    EXPECT_EQ(liesGrenze("-5", 500).nr, -5);
    EXPECT_FALSE(liesGrenze("-5", 500).berichtigt);
    EXPECT_EQ(liesGrenze("-99999999999", 500).nr, INT32_MIN);
}

TEST(ZuletztGrenze, KeineZahlIstKeineZiehung)
{
    for (const char* text : {"", " ", "abc", "12a", "1-2", "--5", "+-5", "1,5", "-"}) {
        const Ziehungsgrenze grenze = liesGrenze(text, 500);
        EXPECT_EQ(grenze.nr, 0) << text;
        EXPECT_FALSE(grenze.berichtigt) << text;
    }
}

TEST(ZuletztGrenze, LeeresArchivHatKeineZiehung)
{
    EXPECT_EQ(liesGrenze("5", 0).nr, 0);
    EXPECT_TRUE(liesGrenze("5", 0).berichtigt);
}

TEST(ZuletztAuswertung, BisZurLetztenZiehungBeginntDieSucheSpaeter)
{
    auto ziehungen = gleiche(300);
    ziehung(ziehungen, 240).zahlen[5] = 48;
    ziehung(ziehungen, 241).zahlen[5] = 49;
    const ZuletztAuswertung auswertung = werteZuletztAus(mittwoch(Mittwochslotto, ziehungen), 300, ZZModus::Ohne);
    EXPECT_EQ(auswertung.Suchbeginn, 241);
    EXPECT_EQ(auswertung.fuer(48), LetztesAuftreten({0, Mittwochslotto, "0000/00", ""}));
    EXPECT_EQ(auswertung.fuer(49), LetztesAuftreten({241, Mittwochslotto, "1990/33", "Mi, 09.01.1991"}));
    EXPECT_EQ(auswertung.wochen(49), 59);
    EXPECT_EQ(auswertung.wochen(48), 300);
    EXPECT_EQ(auswertung.wochen(1), 0);
    EXPECT_EQ(auswertung.stand, "1991/40");
}

TEST(ZuletztAuswertung, EineFruehereZiehungSuchtVonAnfangAn)
{
    auto ziehungen = gleiche(300);
    ziehung(ziehungen, 3).zahlen[5] = 49;
    ziehung(ziehungen, 200).zahlen[5] = 48;
    const ZuletztAuswertung auswertung = werteZuletztAus(mittwoch(Mittwochslotto, ziehungen), 100, ZZModus::Ohne);
    EXPECT_EQ(auswertung.Suchbeginn, 1);
    EXPECT_EQ(auswertung.fuer(49).ZiehungsNr, 3);
    EXPECT_EQ(auswertung.wochen(49), 97);
    EXPECT_EQ(auswertung.fuer(1).ZiehungsNr, 100);
    EXPECT_EQ(auswertung.stand, "1987/48");
}

TEST(ZuletztAuswertung, NochNichtGezogeneBehaltenElementNull)
{
    const ZuletztAuswertung auswertung = werteZuletztAus(mittwoch(Mittwochslotto, gleiche(300)), 100, ZZModus::Ohne);
    EXPECT_EQ(auswertung.fuer(30), LetztesAuftreten({0, Mittwochslotto, "0000/00", ""}));
}

TEST(ZuletztAuswertung, WenigerZiehungenAlsDerSuchbeginnGebenLauterNullen)
{
    for (const std::int16_t spielart : {Samstagslotto, Mittwochslotto, MittwochslottoB}) {
        const std::int32_t anzahl = spielart == Samstagslotto ? 1999 : 240;
        const ZuletztAuswertung auswertung =
            werteZuletztAus(archivAus(spielart, gleiche(anzahl)), anzahl, ZZModus::Mit);
        for (int zahl = 1; zahl <= 49; ++zahl)
            EXPECT_EQ(auswertung.fuer(zahl), LetztesAuftreten({0, spielart, "0000/00", ""})) << zahl;
    }
}

TEST(ZuletztAuswertung, OhneZiehungIstKeineGetroffen)
{
    const ZiehungsArchiv archiv = mittwoch(Mittwochslotto, gleiche(300));
    for (const std::int32_t grenze : {0, -5}) {
        const ZuletztAuswertung auswertung = werteZuletztAus(archiv, grenze, ZZModus::Mit);
        for (int zahl = 1; zahl <= 49; ++zahl) {
            EXPECT_EQ(auswertung.fuer(zahl).ZiehungsNr, 0);
            EXPECT_EQ(auswertung.wochen(zahl), grenze);
        }
        EXPECT_EQ(auswertung.stand, "0000/00");
    }
    EXPECT_EQ(werteZuletztAus(ZiehungsArchiv(), 0, ZZModus::Ohne).fuer(1), LetztesAuftreten());
}

TEST(ZuletztAuswertung, NurZusatzzahlBleibtBeiDerLetztenStehen)
{
    auto ziehungen = gleiche(300);
    ziehung(ziehungen, 250).zz = 49;
    ziehung(ziehungen, 260).zz = 1;
    auto archiv = mittwoch(Mittwochslotto, ziehungen);
    EXPECT_EQ(werteZuletztAus(archiv, 300, ZZModus::Nur).wochen(1), 40);
    EXPECT_EQ(werteZuletztAus(archiv, 300, ZZModus::Nur).wochen(49), 50);
    EXPECT_EQ(werteZuletztAus(archiv, 300, ZZModus::Nur).fuer(2).ZiehungsNr, 0);
    EXPECT_EQ(werteZuletztAus(archiv, 300, ZZModus::Mit).wochen(1), 0);
    EXPECT_EQ(werteZuletztAus(archiv, 300, ZZModus::Ohne).fuer(49).ZiehungsNr, 0);
    for (int i = 0; i < 5; ++i)
        ziehungen.push_back({2000, 1, {1, 2, 3, 4, 5, 6}, 0});
    archiv = mittwoch(Mittwochslotto, ziehungen);
    EXPECT_EQ(werteZuletztAus(archiv, 305, ZZModus::Nur).wochen(1), 45);
}

TEST(ZuletztMittwochAB, VonBeidenGiltDieSpaetereMitIhrerEigenenWoche)
{
    auto a = gleiche(300);
    auto b = gleiche(280);
    ziehung(a, 270).zahlen[5] = 40;
    ziehung(b, 260).zahlen[5] = 40;
    ziehung(a, 250).zahlen[5] = 41;
    ziehung(b, 275).zahlen[5] = 41;
    ziehung(b, 275).sw = 53;
    ziehung(b, 245).zahlen[5] = 42;
    ZuletztAuswertung auswertung = werteZuletztAus(mittwoch(Mittwochslotto, a), 300, ZZModus::Ohne);
    ergaenzeMittwoch(auswertung, mittwoch(MittwochslottoB, b));
    EXPECT_TRUE(auswertung.mittwochAB);
    EXPECT_EQ(auswertung.Spielart, Mittwochslotto);
    EXPECT_EQ(auswertung.fuer(40), LetztesAuftreten({270, Mittwochslotto, "1991/10", "Mi, 31.07.1991"}));
    EXPECT_EQ(auswertung.fuer(41), LetztesAuftreten({275, MittwochslottoB, "1991/53", "Mi, 04.09.1991"}));
    EXPECT_EQ(auswertung.fuer(42).ZiehungsNr, 245);
    EXPECT_EQ(auswertung.fuer(42).Spielart, MittwochslottoB);
    EXPECT_EQ(auswertung.fuer(1).ZiehungsNr, 300);
}

TEST(ZuletztMittwochAB, InDerselbenZiehungGiltDieZuerstDurchsuchteDatei)
{
    auto a = gleiche(300);
    auto b = gleiche(280);
    ziehung(a, 260).zahlen[5] = 40;
    ziehung(b, 260).zahlen[5] = 40;
    ziehung(b, 260).sw = 53;
    ZuletztAuswertung vonA = werteZuletztAus(mittwoch(Mittwochslotto, a), 280, ZZModus::Ohne);
    ergaenzeMittwoch(vonA, mittwoch(MittwochslottoB, b));
    EXPECT_EQ(vonA.fuer(40).ZiehungsNr, 260);
    EXPECT_EQ(vonA.fuer(40).Spielart, Mittwochslotto);
    EXPECT_EQ(vonA.fuer(40).jahrUndWoche.substr(5), "52");
    ZuletztAuswertung vonB = werteZuletztAus(mittwoch(MittwochslottoB, b), 280, ZZModus::Ohne);
    ergaenzeMittwoch(vonB, mittwoch(Mittwochslotto, a));
    EXPECT_EQ(vonB.fuer(40).ZiehungsNr, 260);
    EXPECT_EQ(vonB.fuer(40).Spielart, MittwochslottoB);
    EXPECT_EQ(vonB.fuer(40).jahrUndWoche.substr(5), "53");
}

TEST(ZuletztMittwochAB, DieGrenzenDerErstenDateiGeltenAuchInDerZweiten)
{
    auto a = gleiche(300);
    auto b = gleiche(280);
    ziehung(a, 290).zahlen[5] = 40;
    ziehung(a, 240).zahlen[5] = 41;
    ziehung(a, 241).zahlen[5] = 42;
    ZuletztAuswertung auswertung = werteZuletztAus(mittwoch(MittwochslottoB, b), 280, ZZModus::Ohne);
    ergaenzeMittwoch(auswertung, mittwoch(Mittwochslotto, a));
    EXPECT_EQ(auswertung.Spielart, MittwochslottoB);
    EXPECT_EQ(auswertung.fuer(40).ZiehungsNr, 0);
    EXPECT_EQ(auswertung.fuer(41).ZiehungsNr, 0);
    EXPECT_EQ(auswertung.fuer(42).ZiehungsNr, 241);
    EXPECT_EQ(auswertung.Grenze, 280);
}

TEST(ZuletztMittwochAB, EineFruehereZiehungSuchtBeideVonAnfangAn)
{
    auto a = gleiche(300);
    auto b = gleiche(280);
    ziehung(b, 5).zahlen[5] = 40;
    ZuletztAuswertung auswertung = werteZuletztAus(mittwoch(Mittwochslotto, a), 200, ZZModus::Ohne);
    ergaenzeMittwoch(auswertung, mittwoch(MittwochslottoB, b));
    EXPECT_EQ(auswertung.fuer(40).ZiehungsNr, 5);
    EXPECT_EQ(auswertung.wochen(40), 195);
}

TEST(ZuletztMarken, AlleDerNeuestenUndDerAeltestenZiehung)
{
    auto ziehungen = gleiche(10);
    ziehung(ziehungen, 10).zahlen = {1, 2, 3, 4, 5, 49};
    ziehung(ziehungen, 1).zahlen = {7, 8, 9, 10, 11, 12};
    for (std::int32_t nr = 2, zahl = 13; zahl <= 48; ++nr)
        for (std::int32_t& stelle : ziehung(ziehungen, static_cast<std::size_t>(nr)).zahlen)
            stelle = zahl++;
    ziehung(ziehungen, 9).zahlen[5] = 6;
    ziehungen.push_back({2000, 1, {1, 2, 3, 4, 5, 6}, 0}); // so that draw 10 is an earlier one
    const auto marken = zuletztMarken(werteZuletztAus(mittwoch(Mittwochslotto, ziehungen), 10, ZZModus::Ohne));
    for (std::size_t zahl = 1; zahl <= 49; ++zahl) {
        EXPECT_EQ(marken.neueste[zahl], zahl <= 5 || zahl == 49) << zahl;
        EXPECT_EQ(marken.aelteste[zahl], zahl >= 7 && zahl <= 12) << zahl;
    }
}

TEST(ZuletztMarken, GleicherTextGenuegtFuerDieMarke)
{
    auto ziehungen = gleiche(10);
    ziehung(ziehungen, 9) = ziehung(ziehungen, 10);
    ziehung(ziehungen, 9).zahlen = {44, 45, 46, 47, 48, 49};
    ziehungen.push_back({2000, 1, {1, 2, 3, 4, 5, 6}, 0});
    const auto marken = zuletztMarken(werteZuletztAus(mittwoch(Mittwochslotto, ziehungen), 10, ZZModus::Ohne));
    EXPECT_TRUE(marken.neueste[1]);
    EXPECT_TRUE(marken.neueste[49]);
    EXPECT_FALSE(marken.neueste[30]);
}

TEST(ZuletztMarken, OhneTrefferSindAlleBeides)
{
    const auto marken = zuletztMarken(ZuletztAuswertung());
    EXPECT_EQ(marken.neueste.count(), 49U);
    EXPECT_EQ(marken.aelteste.count(), 49U);
}

} // namespace

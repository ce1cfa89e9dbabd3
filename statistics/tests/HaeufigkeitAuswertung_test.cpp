#include "statistics/logic/HaeufigkeitAuswertung.h"
#include "testhilfen/ArchivAus.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

const Bereichsangabe kNachJahren{Bereichsform::Jahre, "1990", "2026", "3693"};
const Bereichsangabe kBisZiehung{Bereichsform::BisZiehung, "1955", "2026", "100"};

HaeufigkeitAuswertung auswertung(std::int16_t spielart, const Bereichsangabe& angabe, ZZModus modus = ZZModus::Ohne)
{
    HaeufigkeitAuswertung ergebnis;
    ergebnis.spielart = spielart;
    ergebnis.angabe = angabe;
    ergebnis.ZaehlModus = modus;
    ergebnis.haeufigkeit.AusgewerteteZiehungen = 1900;
    ergebnis.haeufigkeit.letzteSpielwoche = 9;
    return ergebnis;
}

HaeufigkeitAuswertung mittwochAB(const Bereichsangabe& angabe)
{
    HaeufigkeitAuswertung ergebnis = auswertung(Mittwochslotto, angabe);
    ergebnis.mittwochAB = true;
    return ergebnis;
}

Bereichsangabe abJahr(const std::string& von)
{
    return {Bereichsform::Jahre, von, "2026", "3693"};
}

std::string kopf(const HaeufigkeitAuswertung& auswertung, std::size_t zeile)
{
    return druckauftrag(auswertung).kopf.at(zeile);
}

TEST(HaeufigkeitAuswertung, WerteAusHaeltAllesFest)
{
    const ZiehungsArchiv archiv = archivAus(Mittwochslotto, {{1986, 23, {1, 2, 3, 4, 5, 6}, 7}});
    const Ziehungsbereich bereich{1986, 2026, 1};
    const HaeufigkeitAuswertung ergebnis = werteAus(archiv, bereich, kBisZiehung, ZZModus::Nur);
    EXPECT_EQ(ergebnis.haeufigkeit.fuer(7), 1);
    EXPECT_EQ(ergebnis.spielart, Mittwochslotto);
    EXPECT_FALSE(ergebnis.mittwochAB);
    EXPECT_EQ(ergebnis.ZaehlModus, ZZModus::Nur);
    EXPECT_EQ(ergebnis.bereich, bereich);
    EXPECT_EQ(ergebnis.angabe, kBisZiehung);
}

TEST(HaeufigkeitAuswertung, HaeltFestWieLangeJedeZahlAusblieb)
{
    std::vector<TestZiehung> ziehungen(300, {1986, 23, {1, 2, 3, 4, 5, 6}, 0});
    ziehungen[289].zz = 49;
    const ZiehungsArchiv archiv = archivAus(Mittwochslotto, ziehungen);
    EXPECT_EQ(werteAus(archiv, {1986, 1986}, kNachJahren, ZZModus::Mit).zuletztVor, zuletztVor(archiv, ZZModus::Mit));
    EXPECT_EQ(werteAus(archiv, {1986, 1986}, kNachJahren, ZZModus::Mit).zuletztVor[48], 10);
    EXPECT_EQ(werteAus(archiv, {1986, 1986}, kNachJahren, ZZModus::Ohne).zuletztVor[48], 300);
}

TEST(HaeufigkeitAuswertung, HaeltFestObDerBereichDieLetzteZiehungErreicht)
{
    const ZiehungsArchiv archiv =
        archivAus(Mittwochslotto, {{1986, 23, {1, 2, 3, 4, 5, 6}, 0}, {1987, 1, {1, 2, 3, 4, 5, 6}, 0}});
    EXPECT_TRUE(werteAus(archiv, {1986, 1987}, kNachJahren, ZZModus::Ohne).erreichtLetzteZiehung);
    EXPECT_FALSE(werteAus(archiv, {1986, 1986}, kNachJahren, ZZModus::Ohne).erreichtLetzteZiehung);
    EXPECT_TRUE(werteAus(archiv, {1986, 1987, 2}, kBisZiehung, ZZModus::Ohne).erreichtLetzteZiehung);
    EXPECT_FALSE(werteAus(archiv, {1986, 1987, 1}, kBisZiehung, ZZModus::Ohne).erreichtLetzteZiehung);
    EXPECT_FALSE(werteAus(ZiehungsArchiv(), {0, 0, 0}, kBisZiehung, ZZModus::Ohne).erreichtLetzteZiehung);
    EXPECT_FALSE(werteAus(ZiehungsArchiv(), {0, 0}, kNachJahren, ZZModus::Ohne).erreichtLetzteZiehung);
}

TEST(HaeufigkeitAuswertung, VonBeidenMittwochsspielenZaehltDieLetzteZiehungVonA)
{
    const ZiehungsArchiv a =
        archivAus(Mittwochslotto, {{1986, 23, {1, 2, 3, 4, 5, 6}, 0}, {2026, 30, {1, 2, 3, 4, 5, 6}, 0}});
    const ZiehungsArchiv b = archivAus(MittwochslottoB, {{1986, 23, {1, 2, 3, 4, 5, 6}, 0}});
    for (const std::int32_t bis : {1986, 2026}) {
        HaeufigkeitAuswertung vonA = werteAus(a, {1986, bis}, kNachJahren, ZZModus::Ohne);
        ergaenzeMittwoch(vonA, b);
        HaeufigkeitAuswertung vonB = werteAus(b, {1986, bis}, kNachJahren, ZZModus::Ohne);
        ergaenzeMittwoch(vonB, a);
        EXPECT_EQ(vonA.erreichtLetzteZiehung, bis == 2026);
        EXPECT_EQ(vonB.erreichtLetzteZiehung, bis == 2026);
        EXPECT_EQ(vonA.zuletztVor, zuletztVor(a, ZZModus::Ohne));
        EXPECT_EQ(vonB.zuletztVor, zuletztVor(a, ZZModus::Ohne));
    }
}

TEST(HaeufigkeitAuswertung, DerAndereMittwochKommtOhneZusatzzahlHinzu)
{
    const ZiehungsArchiv b = archivAus(MittwochslottoB, {{1986, 23, {1, 2, 3, 4, 5, 6}, 7}});
    const ZiehungsArchiv a =
        archivAus(Mittwochslotto, {{1986, 23, {1, 2, 3, 4, 5, 8}, 7}, {2026, 30, {1, 2, 3, 4, 5, 8}, 0}});
    Auswertebereich bereich{1986, 1986, 1};
    bereich.setzeBis("2026");
    HaeufigkeitAuswertung ergebnis = werteAus(b, *bereich.pruefe().bereich, bereich.angabe(), ZZModus::Ohne);
    ergaenzeMittwoch(ergebnis, a);
    EXPECT_TRUE(ergebnis.mittwochAB);
    EXPECT_EQ(ergebnis.haeufigkeit.fuer(1), 3);
    EXPECT_EQ(ergebnis.haeufigkeit.fuer(7), 0);
    EXPECT_EQ(ergebniszeile(ergebnis),
              "Mittwochslotto (A+B): Auswertung von 1986 bis 2026 ; 3 Ziehungen ohne Zusatzzahl");
    EXPECT_EQ(kopf(ergebnis, 1), "  -- Häufigkeit (ohne ZZ) 1986/23 - 2026/30, 3 Ziehungen --");
}

TEST(HaeufigkeitAuswertung, SpielLabel)
{
    EXPECT_EQ(spielLabel(auswertung(SpielartStart, kNachJahren)), "SAMSTAGSLOTTO");
    EXPECT_EQ(spielLabel(auswertung(Samstagslotto, kNachJahren)), "SAMSTAGSLOTTO");
    EXPECT_EQ(spielLabel(auswertung(Mittwochslotto, kNachJahren)), "MITTWOCHSLOTTO ");
    EXPECT_EQ(spielLabel(auswertung(MittwochslottoB, kNachJahren)), "MITTWOCHSLOTTO (B)");
    EXPECT_EQ(spielLabel(mittwochAB(kNachJahren)), "MITTWOCHSLOTTO (A+B)");
}

TEST(HaeufigkeitAuswertung, ErgebniszeileNachJahren)
{
    EXPECT_EQ(ergebniszeile(auswertung(Samstagslotto, kNachJahren)),
              "Samstagslotto: Auswertung von 1990 bis 2026 ; 1900 Ziehungen; ohne Zusatzzahl");
    EXPECT_EQ(ergebniszeile(auswertung(Mittwochslotto, kNachJahren, ZZModus::Mit)),
              "Mittwochslotto : Auswertung von 1990 bis 2026 ; 1900 Ziehungen; mit Zusatzzahl");
    EXPECT_EQ(ergebniszeile(auswertung(MittwochslottoB, kNachJahren, ZZModus::Nur)),
              "Mittwochslotto (B): Auswertung von 1990 bis 2026 ; 1900 Ziehungen; nur Zusatzzahl");
}

TEST(HaeufigkeitAuswertung, ErgebniszeileBisZiehung)
{
    EXPECT_EQ(ergebniszeile(auswertung(SpielartStart, kBisZiehung)),
              "Samstagslotto: Auswertung von Ziehung 1 bis Ziehung 100 , ohne Zusatzzahl");
    EXPECT_EQ(ergebniszeile(auswertung(MittwochslottoB, kBisZiehung, ZZModus::Nur)),
              "Mittwochslotto (B): Auswertung von Ziehung 1 bis Ziehung 100 , nur Zusatzzahl");
}

TEST(HaeufigkeitAuswertung, ErgebniszeileBeiderMittwochsspiele)
{
    EXPECT_EQ(ergebniszeile(mittwochAB(kNachJahren)),
              "Mittwochslotto (A+B): Auswertung von 1990 bis 2026 ; 1900 Ziehungen ohne Zusatzzahl");
    EXPECT_EQ(ergebniszeile(mittwochAB(kBisZiehung)),
              "Mittwochslotto (A+B): Auswertung von Ziehung 1 bis Ziehung 100 ,ohne Zusatzzahl");
}

TEST(HaeufigkeitAuswertung, Extremtexte)
{
    Haeufigkeit haeufigkeit;
    haeufigkeit.anzahl.fill(10);
    haeufigkeit.anzahl[12] = 3;
    haeufigkeit.anzahl[48] = 25;
    const Extremwerte extreme = extremwerte(haeufigkeit);
    EXPECT_EQ(maximumText(extreme), "Max: Zahl -> 49 (25 mal gezogen)");
    EXPECT_EQ(minimumText(extreme), "Min: Zahl -> 13 (3 mal gezogen)");
}

TEST(HaeufigkeitDruck, ErsteZeileNenntDasSpiel)
{
    const std::string einzug(25, ' ');
    EXPECT_EQ(kopf(auswertung(SpielartStart, kNachJahren), 0), einzug + "*** Samstagslotto ***");
    EXPECT_EQ(kopf(auswertung(Mittwochslotto, kNachJahren), 0), einzug + "*** Mittwochslotto  ***");
    EXPECT_EQ(kopf(auswertung(MittwochslottoB, kNachJahren), 0), einzug + "*** Mittwochslotto (B) ***");
    EXPECT_EQ(kopf(mittwochAB(kNachJahren), 0), einzug + "*** Mittwochslotto (A+B) ***");
}

TEST(HaeufigkeitDruck, UeberschriftNachJahren)
{
    EXPECT_EQ(kopf(auswertung(Samstagslotto, kNachJahren), 1),
              "  -- Häufigkeit (ohne ZZ) 1990/01 - 2026/09, 1900 Ziehungen --");
    EXPECT_EQ(kopf(auswertung(Samstagslotto, kNachJahren, ZZModus::Mit), 1),
              "  -- Häufigkeit (mit ZZ) 1990/01 - 2026/09, 1900 Ziehungen --");
    EXPECT_EQ(kopf(auswertung(Samstagslotto, kNachJahren, ZZModus::Nur), 1),
              "  -- Häufigkeit (nur ZZ) 1990/01 - 2026/09, 1900 Ziehungen --");
    EXPECT_EQ(kopf(mittwochAB(kNachJahren), 1), "  -- Häufigkeit (ohne ZZ) 1990/01 - 2026/09, 1900 Ziehungen --");
}

TEST(HaeufigkeitDruck, ErsteSpielwocheFolgtDemErstenSpieljahrDesSpiels)
{
    const auto woche = [](std::int16_t spielart, const std::string& von) {
        return kopf(auswertung(spielart, abJahr(von)), 1)
            .substr(std::string("  -- Häufigkeit (ohne ZZ) 1955/").size(), 2);
    };
    EXPECT_EQ(woche(SpielartStart, "1955"), "41");
    EXPECT_EQ(woche(Samstagslotto, "1955"), "41");
    EXPECT_EQ(woche(Samstagslotto, "1956"), "01");
    EXPECT_EQ(woche(Samstagslotto, "1986"), "01");
    EXPECT_EQ(woche(Mittwochslotto, "1986"), "23");
    EXPECT_EQ(woche(MittwochslottoB, "1986"), "23");
    EXPECT_EQ(woche(Mittwochslotto, "1955"), "01");
    EXPECT_EQ(woche(MittwochslottoB, "1987"), "01");
}

TEST(HaeufigkeitDruck, UeberschriftBisZiehung)
{
    EXPECT_EQ(kopf(auswertung(Samstagslotto, kBisZiehung), 1), "  -- Häufigkeit (ohne ZZ), nach 100 Ziehungen --");
    EXPECT_EQ(kopf(auswertung(Samstagslotto, kBisZiehung, ZZModus::Mit), 1),
              "  -- Häufigkeit (mit ZZ), nach 100 Ziehungen --");
    EXPECT_EQ(kopf(auswertung(Samstagslotto, kBisZiehung, ZZModus::Nur), 1),
              "  -- Häufigkeit (nur ZZ), nach 100 Ziehungen --");
    EXPECT_EQ(kopf(mittwochAB(kBisZiehung), 1), "  -- Häufigkeit (ohne ZZ), nach 100 Ziehungen --");
}

TEST(HaeufigkeitDruck, EineZeileJeZahl)
{
    HaeufigkeitAuswertung ergebnis = auswertung(Samstagslotto, kNachJahren);
    ergebnis.haeufigkeit.anzahl[0] = 7;
    ergebnis.haeufigkeit.anzahl[48] = 32767;
    const Druckauftrag auftrag = druckauftrag(ergebnis);
    ASSERT_EQ(auftrag.zeilen.size(), 49U);
    EXPECT_EQ(auftrag.kopf.at(2), std::string(26, ' '));
    EXPECT_EQ(auftrag.zeilen[0], "   Zahl 01 wurde     7 mal gezogen");
    EXPECT_EQ(auftrag.zeilen[1], "   Zahl 02 wurde     0 mal gezogen");
    EXPECT_EQ(auftrag.zeilen[48], "   Zahl 49 wurde 32767 mal gezogen");
}

TEST(HaeufigkeitDruck, PasstAufEineSeite)
{
    const auto seiten = druckseiten(druckauftrag(auswertung(Samstagslotto, kNachJahren)));
    ASSERT_EQ(seiten.size(), 1U);
    EXPECT_EQ(seiten[0].size(), 52U);
}

TEST(HaeufigkeitDruck, EinSeitenwechselWiederholtDenKopf)
{
    Druckauftrag auftrag = druckauftrag(auswertung(Samstagslotto, kNachJahren));
    auftrag.masse.zeilenJeSeite = 30;
    const auto seiten = druckseiten(auftrag);
    ASSERT_EQ(seiten.size(), 2U);
    EXPECT_EQ(seiten[0].size(), 30U);
    EXPECT_EQ(seiten[1][0], std::string(7, ' '));
    EXPECT_EQ(seiten[1][1], auftrag.kopf[0]);
    EXPECT_EQ(seiten[1][2], auftrag.kopf[1]);
    EXPECT_EQ(seiten[1][4], "   Zahl 28 wurde     0 mal gezogen");
}

// The text line of a bar

ZiehungsArchiv dreiJahre()
{
    return archivAus(
        Samstagslotto,
        {{1955, 41, {1, 2, 3, 4, 5, 6}, 0}, {1956, 1, {1, 2, 3, 4, 5, 6}, 0}, {1957, 1, {1, 2, 3, 4, 5, 6}, 0}});
}

std::string textFuerEins(Auswertebereich bereich, ZZModus modus)
{
    const ZiehungsArchiv archiv = dreiJahre();
    const Bereichspruefung pruefung = bereich.pruefe();
    if (!pruefung.bereich)
        return "kein Bereich";
    HaeufigkeitAuswertung auswertung = werteAus(archiv, *pruefung.bereich, bereich.angabe(), modus);
    auswertung.zuletztVor[0] = 12;
    return balkenText(auswertung, 1);
}

std::string nachJahren(std::string bis, ZZModus modus)
{
    Auswertebereich bereich{1955, 1957, 3};
    bereich.setzeBis(std::move(bis));
    return textFuerEins(bereich, modus);
}

std::string bisZiehung(std::string nr, ZZModus modus)
{
    Auswertebereich bereich{1955, 1957, 3};
    bereich.zeigeBisZiehung();
    bereich.setzeBisZiehung(std::move(nr));
    return textFuerEins(bereich, modus);
}

TEST(BalkenText, BisZumLetztenSpieljahrMitWochen)
{
    EXPECT_EQ(nachJahren("1957", ZZModus::Ohne), "Zahl 1 -> 3 mal gezogen, zuletzt gezogen vor: 12 Wochen (ohne ZZ)");
    EXPECT_EQ(nachJahren("1957", ZZModus::Mit), "Zahl 1 -> 3 mal gezogen, zuletzt gezogen vor: 12 Wochen (mit ZZ)");
    EXPECT_EQ(nachJahren("1957", ZZModus::Nur), "Zahl 1 -> 0 mal gezogen, zuletzt gezogen vor: 12 Wochen (nur ZZ)");
}

TEST(BalkenText, VorDemLetztenSpieljahrOhneWochen)
{
    EXPECT_EQ(nachJahren("1956", ZZModus::Ohne), "Zahl 1 -> 2 mal gezogen, (ohne ZZ)");
    EXPECT_EQ(nachJahren("1956", ZZModus::Mit), "Zahl 1 -> 2 mal gezogen,  (mit ZZ)");
    EXPECT_EQ(nachJahren("1956", ZZModus::Nur), "Zahl 1 -> 0 mal gezogen,  (nur ZZ)");
}

TEST(BalkenText, NachDemLetztenSpieljahrOhneWochen)
{
    EXPECT_EQ(nachJahren("1958", ZZModus::Ohne), "Zahl 1 -> 3 mal gezogen, (ohne ZZ)");
    EXPECT_EQ(nachJahren("9999", ZZModus::Mit), "Zahl 1 -> 3 mal gezogen,  (mit ZZ)");
}

TEST(BalkenText, BisZurLetztenZiehungMitWochen)
{
    EXPECT_EQ(bisZiehung("3", ZZModus::Ohne), "Zahl 1 -> 3 mal gezogen, zuletzt gezogen vor: 12 Wochen (ohne ZZ)");
    EXPECT_EQ(bisZiehung("99", ZZModus::Ohne), "Zahl 1 -> 3 mal gezogen, zuletzt gezogen vor: 12 Wochen (ohne ZZ)");
}

TEST(BalkenText, VorDerLetztenZiehungOhneWochen)
{
    EXPECT_EQ(bisZiehung("2", ZZModus::Ohne), "Zahl 1 -> 2 mal gezogen, (ohne ZZ)");
    EXPECT_EQ(bisZiehung("2", ZZModus::Nur), "Zahl 1 -> 0 mal gezogen,  (nur ZZ)");
}

} // namespace

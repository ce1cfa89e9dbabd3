#include "archive/logic/Spielarttexte.h"
#include "shell/logic/Auswertebereich.h"
#include "shell/logic/ClipReport.h"
#include "shell/logic/Druckzeilen.h"
#include "shell/logic/Tippfeld7x7.h"
#include "shell/logic/ZZModus.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Tippfeld7x7 feldMit(std::initializer_list<std::int32_t> zahlen)
{
    Tippfeld7x7 feld;
    feld.zeige(std::vector<std::int32_t>(zahlen));
    return feld;
}

Auswertebereich samstag()
{
    return {1955, 2026, 3693};
}

Auswertebereich mitJahren(std::string von, std::string bis)
{
    Auswertebereich bereich = samstag();
    bereich.setzeVon(std::move(von));
    bereich.setzeBis(std::move(bis));
    return bereich;
}

Auswertebereich bisZiehung(std::string nr)
{
    Auswertebereich bereich = samstag();
    bereich.zeigeBisZiehung();
    bereich.setzeBisZiehung(std::move(nr));
    return bereich;
}

const Meldung kVierstellig{"Lotto-Nachricht", "Jahreszahlen 4-stellig eingeben !"};
const Meldung kBisKleiner{"", "\"Bis\" muss grösser \"Von\" sein!"};

// Tippfeld7x7

TEST(Tippfeld7x7, ZellenStehenInLesereihenfolge)
{
    static_assert(Tippfeld7x7::zeile(1) == 0 && Tippfeld7x7::spalte(1) == 0);
    static_assert(Tippfeld7x7::zeile(7) == 0 && Tippfeld7x7::spalte(7) == 6);
    static_assert(Tippfeld7x7::zeile(8) == 1 && Tippfeld7x7::spalte(8) == 0);
    static_assert(Tippfeld7x7::zeile(43) == 6 && Tippfeld7x7::spalte(43) == 0);
    for (int zahl = 1; zahl <= 49; ++zahl)
        EXPECT_EQ(zahl, Tippfeld7x7::zeile(zahl) * 7 + Tippfeld7x7::spalte(zahl) + 1);
}

TEST(Tippfeld7x7, IstAmAnfangLeer)
{
    const Tippfeld7x7 feld;
    EXPECT_EQ(feld.anzahl(), 0);
    EXPECT_THAT(feld.gewaehlte(), IsEmpty());
}

TEST(Tippfeld7x7, GewaehlteStehenAufsteigend)
{
    Tippfeld7x7 feld;
    for (const int zahl : {49, 3, 17, 1})
        feld.klickFreieEingabe(zahl);
    EXPECT_THAT(feld.gewaehlte(), ElementsAre(1, 3, 17, 49));
}

TEST(Tippfeld7x7, SiebterKlickAendertNichts)
{
    Tippfeld7x7 feld = feldMit({1, 2, 3, 4, 5, 6});
    feld.klickFreieEingabe(7);
    EXPECT_THAT(feld.gewaehlte(), ElementsAre(1, 2, 3, 4, 5, 6));
}

TEST(Tippfeld7x7, KlickAufMarkierteBeiSechsenLoestSie)
{
    Tippfeld7x7 feld = feldMit({1, 2, 3, 4, 5, 6});
    feld.klickFreieEingabe(4);
    EXPECT_THAT(feld.gewaehlte(), ElementsAre(1, 2, 3, 5, 6));
    feld.klickFreieEingabe(7);
    EXPECT_THAT(feld.gewaehlte(), ElementsAre(1, 2, 3, 5, 6, 7));
}

TEST(Tippfeld7x7, KlickAufMarkierteUnterSechsenLoestSie)
{
    Tippfeld7x7 feld;
    feld.klickFreieEingabe(12);
    feld.klickFreieEingabe(12);
    EXPECT_EQ(feld.anzahl(), 0);
}

TEST(Tippfeld7x7, EineZahlLoestAlleAnderen)
{
    Tippfeld7x7 feld = feldMit({1, 2, 3});
    feld.klickEineZahl(30);
    EXPECT_THAT(feld.gewaehlte(), ElementsAre(30));
    feld.klickEineZahl(30);
    EXPECT_THAT(feld.gewaehlte(), ElementsAre(30));
}

TEST(Tippfeld7x7, EineAuswahlNimmtBeliebigViele)
{
    Tippfeld7x7 feld;
    for (int zahl = 1; zahl <= 49; ++zahl)
        feld.klickAuswahl(zahl);
    EXPECT_EQ(feld.anzahl(), 49);
    feld.klickAuswahl(7);
    EXPECT_EQ(feld.anzahl(), 48);
    EXPECT_FALSE(feld.markiert(7));
}

TEST(Tippfeld7x7, EineZiehungErsetztWasDaWar)
{
    Tippfeld7x7 feld = feldMit({1, 2, 3, 4, 5, 6});
    feld.zeige(std::array<std::int32_t, 6>{15, 25, 27, 30, 42, 48});
    EXPECT_THAT(feld.gewaehlte(), ElementsAre(15, 25, 27, 30, 42, 48));
}

TEST(Tippfeld7x7, ZahlenAusserhalbAendernNichts)
{
    for (const int zahl : {-2147483647, -1, 0, 50, 64, 2147483647}) {
        Tippfeld7x7 feld = feldMit({5});
        feld.klickFreieEingabe(zahl);
        feld.klickEineZahl(zahl);
        feld.klickAuswahl(zahl);
        EXPECT_FALSE(feld.markiert(zahl)) << zahl;
        EXPECT_THAT(feld.gewaehlte(), ElementsAre(5)) << zahl;
    }
    EXPECT_THAT(feldMit({0, -3, 50, 7}).gewaehlte(), ElementsAre(7));
}

TEST(Tippfeld7x7, LoescheNimmtAlleMarken)
{
    Tippfeld7x7 feld = feldMit({1, 49});
    feld.loesche();
    EXPECT_EQ(feld, Tippfeld7x7{});
}

// ZZModus

TEST(ZZModus, HatDieWerteEinsBisDrei)
{
    EXPECT_EQ(static_cast<int>(ZZModus::Ohne), 1);
    EXPECT_EQ(static_cast<int>(ZZModus::Mit), 2);
    EXPECT_EQ(static_cast<int>(ZZModus::Nur), 3);
}

TEST(ZZModus, SagtWasZaehlt)
{
    EXPECT_TRUE(zaehltGewinnzahlen(ZZModus::Ohne) && !zaehltZusatzzahl(ZZModus::Ohne));
    EXPECT_TRUE(zaehltGewinnzahlen(ZZModus::Mit) && zaehltZusatzzahl(ZZModus::Mit));
    EXPECT_TRUE(!zaehltGewinnzahlen(ZZModus::Nur) && zaehltZusatzzahl(ZZModus::Nur));
}

TEST(ZZModus, TexteUndBeschriftungen)
{
    EXPECT_EQ(zzText(ZZModus::Ohne), "ohne Zusatzzahl");
    EXPECT_EQ(zzText(ZZModus::Mit), "mit Zusatzzahl");
    EXPECT_EQ(zzText(ZZModus::Nur), "nur Zusatzzahl");
    EXPECT_EQ(zzKurztext(ZZModus::Nur), "nur ZZ");
    EXPECT_EQ(zzBefehl(ZZModus::Mit), "&mit Zusatzzahl");
    EXPECT_EQ(zzKurzbefehl(ZZModus::Ohne), "&ohne ZZ");
    EXPECT_EQ(kZusatzzahlHinweis, "Hinweis: Eine Zusatzzahl wurde erst ab der 25. Spielwoche 1956 ermittelt.");
}

TEST(Spielarttexte, NullUndEinsSindGleich)
{
    EXPECT_EQ(spielartName(0), "Samstagslotto");
    EXPECT_EQ(spielartName(1), "Samstagslotto");
    EXPECT_EQ(spielartGross(0), "SAMSTAGSLOTTO");
    EXPECT_EQ(spielartGross(1), "SAMSTAGSLOTTO");
}

TEST(Spielarttexte, MittwochMitSeinemLeerzeichen)
{
    EXPECT_EQ(spielartName(2), "Mittwochslotto ");
    EXPECT_EQ(spielartGross(2), "MITTWOCHSLOTTO ");
    EXPECT_EQ(spielartName(3), "Mittwochslotto (B)");
    EXPECT_EQ(spielartGross(3), "MITTWOCHSLOTTO (B)");
}

TEST(Spielarttexte, AusserhalbLeer)
{
    EXPECT_EQ(spielartName(-1), "");
    EXPECT_EQ(spielartGross(4), "");
}

// Auswertebereich

TEST(Auswertebereich, IstMitDemArchivVorbelegt)
{
    const Auswertebereich bereich = samstag();
    EXPECT_EQ(bereich.angabe(), (Bereichsangabe{Bereichsform::Jahre, "1955", "2026", "3693"}));
}

TEST(Auswertebereich, ListenReichenVomErstenBisZumLetzten)
{
    const Auswertebereich bereich{1986, 1988, 10001};
    EXPECT_THAT(bereich.jahre(), ElementsAre("1986", "1987", "1988"));
    const std::vector<std::string> nummern = bereich.ziehungsnummern();
    ASSERT_EQ(nummern.size(), 10001U);
    EXPECT_EQ(nummern[0], "   1");
    EXPECT_EQ(nummern[9], "  10");
    EXPECT_EQ(nummern[998], " 999");
    EXPECT_EQ(nummern[9998], "9999");
    EXPECT_EQ(nummern[10000], "10001");
}

TEST(Auswertebereich, LeeresArchivHatLeereJahreUndNullZiehungen)
{
    for (Auswertebereich bereich : {Auswertebereich{}, Auswertebereich{0, 0, 0}, Auswertebereich{1955, 2026, -1}}) {
        EXPECT_EQ(bereich.angabe(), (Bereichsangabe{Bereichsform::Jahre, "", "", "0"}));
        EXPECT_THAT(bereich.jahre(), IsEmpty());
        EXPECT_THAT(bereich.ziehungsnummern(), IsEmpty());
        EXPECT_EQ(bereich.pruefe().meldung, kVierstellig);
    }
}

TEST(Auswertebereich, UnsinnigeJahreDesArchivsGebenEndlicheListen)
{
    const Auswertebereich bereich{-2147483647, 2147483647, 1};
    EXPECT_EQ(bereich.jahre().size(), 10000U);
    EXPECT_THAT(Auswertebereich(2026, 1955, 1).jahre(), IsEmpty());
}

TEST(Auswertebereich, ZurZiehungSetztDieJahreZurueck)
{
    Auswertebereich bereich = mitJahren("1999", "2000");
    bereich.zeigeBisZiehung();
    EXPECT_EQ(bereich.angabe(), (Bereichsangabe{Bereichsform::BisZiehung, "1955", "2026", "3693"}));
    bereich.setzeBisZiehung("100");
    bereich.zeigeJahre();
    EXPECT_EQ(bereich.angabe(), (Bereichsangabe{Bereichsform::Jahre, "1955", "2026", "100"}));
}

TEST(Auswertebereich, ZurueckZuDenJahrenLaesstDieTexteStehen)
{
    Auswertebereich bereich = mitJahren("1999", "2000");
    bereich.zeigeJahre();
    EXPECT_EQ(bereich.angabe().von, "1999");
}

TEST(Auswertebereich, NachJahrenOhneZiehungsgrenze)
{
    const Bereichspruefung pruefung = mitJahren("1956", "1960").pruefe();
    EXPECT_EQ(pruefung.bereich, (Ziehungsbereich{1956, 1960, Ziehungsbereich::kAlleZiehungen}));
    EXPECT_FALSE(pruefung.meldung);
}

TEST(Auswertebereich, NachJahrenIstBisZiehungOhneBelang)
{
    Auswertebereich bereich = samstag();
    bereich.setzeBisZiehung("99999");
    EXPECT_TRUE(bereich.pruefe().bereich);
    EXPECT_EQ(bereich.angabe().bisZiehung, "99999");
}

TEST(Auswertebereich, VonGleichBisIstErlaubt)
{
    EXPECT_EQ(mitJahren("1990", "1990").pruefe().bereich,
              (Ziehungsbereich{1990, 1990, Ziehungsbereich::kAlleZiehungen}));
}

TEST(Auswertebereich, ZweistelligesVonWirdAbgelehnt)
{
    const Bereichspruefung pruefung = mitJahren("19", "2026").pruefe();
    EXPECT_EQ(pruefung.meldung, kVierstellig);
    EXPECT_FALSE(pruefung.bereich);
}

TEST(Auswertebereich, ZuKurzOderZuLangWirdAbgelehnt)
{
    EXPECT_EQ(mitJahren("", "2026").pruefe().meldung, kVierstellig);
    EXPECT_EQ(mitJahren("1955", "").pruefe().meldung, kVierstellig);
    EXPECT_EQ(mitJahren("1955", "02026").pruefe().meldung, kVierstellig);
    EXPECT_EQ(mitJahren("1955 ", "2026").pruefe().meldung, kVierstellig);
}

TEST(Auswertebereich, VierstelligKommtVorBisKleinerVon)
{
    EXPECT_EQ(mitJahren("2000", "199").pruefe().meldung, kVierstellig);
    EXPECT_EQ(mitJahren("20000", "1999").pruefe().meldung, kVierstellig);
    EXPECT_EQ(mitJahren("2000", "1999").pruefe().meldung, kBisKleiner);
}

TEST(Auswertebereich, VierZeichenDieKeineZiffernSindWerdenAbgelehnt)
{
    for (const char* text : {"abcd", "äöüß", "äö", "19x5", "    ", "1e03", "19,5", "-199", "+199", " 199", "199 "}) {
        const Bereichspruefung von = mitJahren(text, "2026").pruefe();
        EXPECT_EQ(von.meldung, kVierstellig) << text;
        EXPECT_FALSE(von.bereich) << text;
        const Bereichspruefung bis = mitJahren("1955", text).pruefe();
        EXPECT_EQ(bis.meldung, kVierstellig) << text;
        EXPECT_FALSE(bis.bereich) << text;
    }
}

TEST(Auswertebereich, EinAnderesArchivLaesstStehenWasZuSehenIst)
{
    Auswertebereich nachJahren = mitJahren("1990", "1995");
    nachJahren.folge({1986, 2000, 757});
    EXPECT_EQ(nachJahren.angabe(), (Bereichsangabe{Bereichsform::Jahre, "1990", "1995", "757"}));
    EXPECT_THAT(nachJahren.jahre(), testing::SizeIs(15));

    Auswertebereich nachZiehung = bisZiehung("100");
    nachZiehung.folge({1986, 2000, 757});
    EXPECT_EQ(nachZiehung.angabe(), (Bereichsangabe{Bereichsform::BisZiehung, "1986", "2000", "100"}));
}

TEST(Auswertebereich, EinAnderesArchivLaesstEineEingegebeneZiehungStehen)
{
    Auswertebereich bereich = bisZiehung("100");
    bereich.zeigeJahre();
    bereich.folge({1986, 2000, 757});
    EXPECT_EQ(bereich.angabe().bisZiehung, "100");

    Auswertebereich alle = bisZiehung("3693"); // in view: the draws of the result that the screen shows
    alle.folge({1986, 2000, 757});
    EXPECT_EQ(alle.angabe().bisZiehung, "3693");
    EXPECT_EQ(alle.pruefe().bereich, (Ziehungsbereich{1986, 2000, 757}));
}

TEST(Auswertebereich, BisZiehungLaeuftUeberAlleJahre)
{
    EXPECT_EQ(bisZiehung("100").pruefe().bereich, (Ziehungsbereich{1955, 2026, 100}));
    EXPECT_EQ(bisZiehung(" 3693").pruefe().bereich, (Ziehungsbereich{1955, 2026, 3693}));
}

TEST(Auswertebereich, ZuHoheZiehungWirdImFeldBerichtigt)
{
    for (const char* text : {"3694", "99999999999", "123456789012345678901234567890"}) {
        Auswertebereich bereich = bisZiehung(text);
        EXPECT_EQ(bereich.pruefe().bereich, (Ziehungsbereich{1955, 2026, 3693})) << text;
        EXPECT_EQ(bereich.angabe().bisZiehung, "3693") << text;
    }
}

TEST(Auswertebereich, KeineZiehungsnummerIstEinLeererBereich)
{
    for (const char* text : {"0", "-1", "-99999999999", "", "abc", "12abc", "7,5"}) {
        Auswertebereich bereich = bisZiehung(text);
        EXPECT_EQ(bereich.pruefe().bereich, (Ziehungsbereich{1955, 2026, 0})) << text;
        EXPECT_EQ(bereich.angabe().bisZiehung, text);
    }
}

TEST(Ziehungsbereich, EndeLiegtImmerImArchiv)
{
    EXPECT_EQ((Ziehungsbereich{1955, 2026, 100}.ende(3693)), 100);
    EXPECT_EQ((Ziehungsbereich{1955, 2026, 1000}.ende(757)), 757);
    EXPECT_EQ((Ziehungsbereich{1955, 2026}.ende(757)), 757);
    EXPECT_EQ((Ziehungsbereich{1955, 2026, -5}.ende(757)), 0);
    EXPECT_EQ((Ziehungsbereich{1955, 2026, 5}.ende(-1)), 0);
}

TEST(Auswertebereich, Hinweise)
{
    EXPECT_EQ(hinweisVon("1955"), "Jahreszahl nicht kleiner 1955 wählen.");
    EXPECT_EQ(hinweisVon("1986"), "Jahreszahl nicht kleiner 1986 wählen.");
    EXPECT_EQ(kHinweisJahre, "Zurück zur Auswertemöglichkeit \"von Jahr / bis Jahr.\"");
}

// ClipReport

TEST(ClipReport, GanzerBericht)
{
    ClipReport bericht;
    const std::vector<std::string> zeilen{"  1   12", "  2    9"};
    bericht.spiel(spielartGross(2)).zeile("Statistik für die Gewinnzahl: 7").leerzeile();
    bericht.zeile("Kopf").zeilen(zeilen).leerzeile();
    bericht.erfassungsstand("2026/30", "Mi, 22.07.2026").ausgewerteteZiehungen(2095);
    bericht.zeile("Ergebnis").schlusshinweis();
    EXPECT_EQ(bericht.text(), "\r\n*** MITTWOCHSLOTTO  ***\r\n"
                              "Statistik für die Gewinnzahl: 7\r\n"
                              "\r\n"
                              "Kopf\r\n"
                              "  1   12\r\n"
                              "  2    9\r\n"
                              "\r\n"
                              "Erfassungsstand: 2026/30  Mi, 22.07.2026\r\n"
                              "Anzahl der ausgewerteten Ziehungen: 2095\r\n"
                              "Ergebnis\r\n"
                              "Hinweis: Falls die Spalten der Tabelle nicht ordentlich dargestellt werden, \r\n"
                              "wählen sie für die Ansicht eine nichtproportionale Schriftart (z.B. Courier).\r\n");
}

TEST(ClipReport, IstOhneStueckeLeer)
{
    EXPECT_EQ(ClipReport{}.text(), "");
}

TEST(ClipReport, KnopfUndHinweis)
{
    EXPECT_EQ(kClipBefehl, "ClipBoard");
    EXPECT_EQ(kClipHinweis, "Überträgt die Ergebnisse in die Zwischenablage.");
}

// Druckzeilen

Druckauftrag listeMit(int zeilen, Druckmasse masse = {})
{
    Druckauftrag auftrag{{"K1", "K2", "K3"}, {"F1"}, {}, masse};
    for (int i = 1; i <= zeilen; ++i)
        auftrag.zeilen.push_back(std::to_string(i));
    return auftrag;
}

TEST(Druckzeilen, MasseSindAchtFuenfzigDreiundfuenfzig)
{
    const Druckmasse masse;
    EXPECT_EQ(masse.schriftgroesse, 8);
    EXPECT_EQ(masse.listenzeilen, 50);
    EXPECT_EQ(masse.zeilenJeSeite, 53);
}

TEST(Druckzeilen, KopfUndFuenfzigZeilenFuellenEineSeite)
{
    const auto seiten = druckseiten(listeMit(50));
    ASSERT_EQ(seiten.size(), 1U);
    EXPECT_EQ(seiten[0].size(), 53U);
    EXPECT_EQ(seiten[0].front(), "K1");
    EXPECT_EQ(seiten[0].back(), "50");
}

TEST(Druckzeilen, DieNaechsteZeileBringtDenKopfNeu)
{
    const auto seiten = druckseiten(listeMit(51));
    ASSERT_EQ(seiten.size(), 2U);
    EXPECT_THAT(seiten[1], ElementsAre("       ", "F1", "51"));
}

TEST(Druckzeilen, FolgeseitenSindEbensoVoll)
{
    const auto seiten = druckseiten(listeMit(150));
    ASSERT_EQ(seiten.size(), 3U);
    EXPECT_EQ(seiten[1].size(), 52U); // 50 list lines; the shorter heading leaves one line free
    EXPECT_EQ(seiten[1][2], "51");
    EXPECT_EQ(seiten[2].back(), "150");
}

TEST(Druckzeilen, DieZeilenzahlDerSeiteBegrenztAuch)
{
    const auto seiten = druckseiten(listeMit(4, {8, 50, 5}));
    ASSERT_EQ(seiten.size(), 2U);
    EXPECT_THAT(seiten[0], ElementsAre("K1", "K2", "K3", "1", "2"));
    EXPECT_THAT(seiten[1], ElementsAre("       ", "F1", "3", "4"));
}

TEST(Druckzeilen, OhneListeBleibtDerKopf)
{
    const auto seiten = druckseiten(listeMit(0));
    ASSERT_EQ(seiten.size(), 1U);
    EXPECT_THAT(seiten[0], ElementsAre("K1", "K2", "K3"));
}

TEST(Druckzeilen, ZuKleineMasseGebenEineZeileJeSeite)
{
    for (const Druckmasse masse : {Druckmasse{8, 0, 0}, Druckmasse{8, -1, 53}, Druckmasse{8, 50, 2}}) {
        const auto seiten = druckseiten(listeMit(3, masse));
        ASSERT_EQ(seiten.size(), 3U);
        EXPECT_EQ(seiten[2].back(), "3");
    }
}

} // namespace

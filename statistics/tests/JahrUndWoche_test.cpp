#include "statistics/logic/JahrUndWoche.h"
#include "statistics/logic/JahrUndWocheZeilen.h"
#include "testhilfen/ArchivAus.h"

#include <gmock/gmock.h>
#include <numeric>
#include <string>

namespace {

using testing::ElementsAre;

/// Two years of three draws and one of one draw; the number 7 comes as Gewinnzahl, as Zusatzzahl and not at all.
ZiehungsArchiv dreiJahre()
{
    return archivAus(Samstagslotto, {{1955, 51, {1, 2, 3, 4, 5, 7}, 0},
                                     {1955, 52, {7, 8, 9, 10, 11, 12}, 0},
                                     {1956, 1, {1, 2, 3, 4, 5, 6}, 7},
                                     {1956, 2, {7, 20, 30, 40, 41, 42}, 43},
                                     {1956, 52, {13, 14, 15, 16, 17, 18}, 0},
                                     {1957, 53, {13, 14, 15, 16, 17, 18}, 1}});
}

std::int32_t inWoche(const HaeufigkeitProWoche& haeufigkeit, int woche)
{
    return haeufigkeit[static_cast<std::size_t>(woche - 1)];
}

TEST(CountPerYear, ZaehltJedeZiehungMitDerZahlInIhremSpieljahr)
{
    const ZiehungsArchiv archiv = dreiJahre();
    const HaeufigkeitProJahr ohne = countPerYear(archiv, 7, ZZModus::Ohne);
    EXPECT_THAT(ohne.jahre, ElementsAre(Jahresanzahl{1955, 2}, Jahresanzahl{1956, 1}, Jahresanzahl{1957, 0}));
    EXPECT_EQ(ohne.gesamt, 3);
    const HaeufigkeitProJahr mit = countPerYear(archiv, 7, ZZModus::Mit);
    EXPECT_THAT(mit.jahre, ElementsAre(Jahresanzahl{1955, 2}, Jahresanzahl{1956, 2}, Jahresanzahl{1957, 0}));
    EXPECT_EQ(mit.gesamt, 4);
    const HaeufigkeitProJahr nur = countPerYear(archiv, 7, ZZModus::Nur);
    EXPECT_THAT(nur.jahre, ElementsAre(Jahresanzahl{1955, 0}, Jahresanzahl{1956, 1}, Jahresanzahl{1957, 0}));
    EXPECT_EQ(nur.gesamt, 1);
}

TEST(CountPerYear, BeginntMitDemErstenJahrDesSpiels)
{
    const std::vector<TestZiehung> eine{{1990, 1, {1, 2, 3, 4, 5, 6}, 0}};
    EXPECT_THAT(countPerYear(archivAus(Samstagslotto, eine), 1, ZZModus::Ohne).jahre,
                ElementsAre(Jahresanzahl{1955, 0}, Jahresanzahl{1990, 1}));
    EXPECT_THAT(countPerYear(archivAus(SpielartStart, eine), 1, ZZModus::Ohne).jahre,
                ElementsAre(Jahresanzahl{1955, 0}, Jahresanzahl{1990, 1}));
    for (const std::int16_t spielart : {Mittwochslotto, MittwochslottoB})
        EXPECT_THAT(countPerYear(archivAus(spielart, eine), 1, ZZModus::Ohne).jahre,
                    ElementsAre(Jahresanzahl{1986, 0}, Jahresanzahl{1990, 1}));
}

TEST(CountPerYear, EineZiehung)
{
    const ZiehungsArchiv archiv = archivAus(Samstagslotto, {{1955, 41, {3, 12, 13, 16, 23, 41}, 0}});
    EXPECT_THAT(countPerYear(archiv, 41, ZZModus::Ohne).jahre, ElementsAre(Jahresanzahl{1955, 1}));
    EXPECT_THAT(countPerYear(archiv, 40, ZZModus::Ohne).jahre, ElementsAre(Jahresanzahl{1955, 0}));
}

TEST(CountPerYear, LeeresArchivHatNurDasErsteJahr)
{
    const HaeufigkeitProJahr leer = countPerYear(archivAus(Mittwochslotto, {}), 1, ZZModus::Mit);
    EXPECT_THAT(leer.jahre, ElementsAre(Jahresanzahl{1986, 0}));
    EXPECT_EQ(leer.gesamt, 0);
}

TEST(CountPerWeek, ZaehltNachSpielwoche)
{
    const HaeufigkeitProWoche mit = countPerWeek(dreiJahre(), 7, ZZModus::Mit);
    for (const int woche : {1, 2, 51, 52})
        EXPECT_EQ(inWoche(mit, woche), 1) << woche;
    EXPECT_EQ(std::accumulate(mit.begin(), mit.end(), 0), 4);
    EXPECT_EQ(inWoche(countPerWeek(dreiJahre(), 7, ZZModus::Ohne), 1), 0);
    EXPECT_EQ(inWoche(countPerWeek(dreiJahre(), 13, ZZModus::Ohne), 52), 1);
    EXPECT_EQ(inWoche(countPerWeek(dreiJahre(), 13, ZZModus::Ohne), 53), 1);
}

TEST(CountPerWeek, EineWocheAusserhalbWirdAusgelassen)
{
    const ZiehungsArchiv archiv = archivAus(Samstagslotto, {{1955, 0, {1, 2, 3, 4, 5, 6}, 0},
                                                            {1955, 54, {1, 2, 3, 4, 5, 6}, 0},
                                                            {1955, -1, {1, 2, 3, 4, 5, 6}, 0},
                                                            {1955, 2147483647, {1, 2, 3, 4, 5, 6}, 0}});
    EXPECT_EQ(countPerWeek(archiv, 1, ZZModus::Ohne), HaeufigkeitProWoche{});
    EXPECT_EQ(countPerYear(archiv, 1, ZZModus::Ohne).gesamt, 4);
}

TEST(TrefferProJahr, NenntDieWochen)
{
    EXPECT_THAT(trefferProJahr(dreiJahre(), 7, ZZModus::Mit),
                ElementsAre(Jahrestreffer{1955, {51, 52}}, Jahrestreffer{1956, {1, 2}}, Jahrestreffer{1957, {}}));
}

TEST(JahrUndWocheZeilen, JahreMitIhremMaximum)
{
    const Anzahlzeilen liste = jahreszeilen({{{1955, 3}, {1956, 12}, {1957, 0}, {1958, 12}}, 27});
    EXPECT_THAT(liste.zeilen, ElementsAre("1955        3", "1956       12", "1957        0", "1958       12"));
    EXPECT_EQ(liste.maximum, 12);
    EXPECT_THAT(liste.hoechste, ElementsAre(1U, 3U));
    for (const std::string& zeile : liste.zeilen)
        EXPECT_EQ(zeile.size(), 13U);
}

TEST(JahrUndWocheZeilen, SpielwocheDreiundfuenfzigStehtImmer)
{
    HaeufigkeitProWoche haeufigkeit{};
    haeufigkeit[0] = 7;
    haeufigkeit[40] = 100;
    const Anzahlzeilen liste = wochenzeilen(haeufigkeit);
    ASSERT_EQ(liste.zeilen.size(), 53U);
    EXPECT_EQ(liste.zeilen[0], "    1         7");
    EXPECT_EQ(liste.zeilen[40], "   41       100");
    EXPECT_EQ(liste.zeilen[52], "   53         0");
    EXPECT_EQ(liste.maximum, 100);
    EXPECT_THAT(liste.hoechste, ElementsAre(40U));
}

TEST(JahrUndWocheZeilen, OhneTrefferSindAlleWochenHoechste)
{
    const Anzahlzeilen liste = wochenzeilen({});
    EXPECT_EQ(liste.maximum, 0);
    EXPECT_EQ(liste.hoechste.size(), 53U);
}

TEST(JahrUndWocheZeilen, DetailsMitSummeJeJahr)
{
    const std::vector<Jahrestreffer> jahre{{1955, {51, 52}}, {1956, {}}, {1957, {3}}};
    EXPECT_THAT(detailzeilen(jahre),
                ElementsAre("1955   SW 51", "1955   SW 52", "----------------------------", "** 1955 Summe=   2 **",
                            "============================", "----------------------------", "** 1956 Summe=   0 **",
                            "============================", "1957   SW 03", "----------------------------",
                            "** 1957 Summe=   1 **"));
    EXPECT_TRUE(detailzeilen({}).empty());
}

TEST(JahrUndWocheZeilen, BerichtProJahr)
{
    const JahrUndWoche auswertung = werteJahrUndWocheAus(dreiJahre(), 7, ZZModus::Mit);
    EXPECT_EQ(auswertung.treffer, trefferProJahr(dreiJahre(), 7, ZZModus::Mit));
    EXPECT_EQ(berichtProJahr(auswertung, jahreszeilen(auswertung.proJahr).zeilen),
              "\r\n"
              "*** Wie oft wurde die Zahl 7 pro Jahr gezogen ? *** IM SAMSTAGSLOTTO\r\n"
              "   (mit Zusatzzahl,  Stand: 1957/53)\r\n"
              "\r\n"
              "  Jahr   Häufigkeit\r\n"
              "1955        2\r\n"
              "1956        2\r\n"
              "1957        0\r\n"
              "\r\n"
              "Ziehungen mit der ausgewählten Gewinnzahl: 4 (mit Zusatzzahl) \r\n"
              "Hinweis: Falls die Spalten der Tabelle nicht ordentlich dargestellt werden, \r\n"
              "wählen sie für die Ansicht eine nichtproportionale Schriftart (z.B. Courier).\r\n");
}

TEST(JahrUndWocheZeilen, BerichtProWocheInJedemSpielUndModus)
{
    const auto bericht = [](std::int16_t spielart, ZZModus modus) {
        const std::vector<std::string> zeilen{"    1         7"};
        return berichtProWoche({.zahl = 49,
                                .ZaehlModus = modus,
                                .Spielart = spielart,
                                .proJahr = {{}, 12},
                                .proWoche = {},
                                .treffer = {},
                                .letzteZiehung = "2000/48"},
                               zeilen);
    };
    EXPECT_TRUE(
        bericht(MittwochslottoB, ZZModus::Nur)
            .starts_with("\r\n*** Wie oft wurde die Zahl 49 pro Spielwoche gezogen ? *** IM MITTWOCHSLOTTO (B)\r\n"
                         "   (nur die Zusatzzahl,  Stand: 2000/48)\r\n"
                         "\r\n"
                         "Spielwoche   Häufigkeit\r\n"
                         "    1         7\r\n"
                         "\r\n"
                         "Ziehungen mit der ausgewählten Gewinnzahl: 12 (nur die Zusatzzahl)\r\n"));
    EXPECT_NE(bericht(Mittwochslotto, ZZModus::Ohne).find("*** IM MITTWOCHSLOTTO \r\n   (ohne Zusatzzahl,  Stand"),
              std::string::npos);
    EXPECT_NE(bericht(Mittwochslotto, ZZModus::Ohne).find(": 12 (ohne Zusatzzahl) \r\n"), std::string::npos);
}

} // namespace

#include "engines/logic/Vollsuche.h"
#include "engines/logic/VollsucheTexte.h"
#include "testhilfen/ArchivAus.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

std::string zeile(std::vector<std::int32_t> zahlen, std::uint32_t haeufigkeit)
{
    return wiederholungszeile(zahlen, haeufigkeit);
}

Suchergebnis stand(int groesse, std::int32_t laeufe)
{
    Suchergebnis ergebnis = beginneSuche(groesse);
    ergebnis.Suchlaeufe = laeufe;
    return ergebnis;
}

TEST(VollsucheTexte, JedeGroesseHatIhreBreite)
{
    EXPECT_EQ(zeile({7, 19}, 82), "  82 mal -> 07 19");
    EXPECT_EQ(zeile({7, 19, 20}, 9), "      9 mal -> 07 19 20");
    EXPECT_EQ(zeile({1, 2, 3, 49}, 3), "   3 mal -> 01 02 03 49");
    EXPECT_EQ(zeile({1, 2, 3, 4, 49}, 2), "    2 mal -> 01 02 03 04 49");
    EXPECT_EQ(zeile({15, 25, 27, 30, 42, 48}, 2), "    2 mal -> 15 25 27 30 42 48");
    EXPECT_EQ(zeile({1, 2}, 12345), "12345 mal -> 01 02");
}

TEST(VollsucheTexte, DieOrdnungDerZeilenIstDieRangfolge)
{
    std::vector<std::string> zeilen{zeile({7, 19}, 100), zeile({1, 2}, 9), zeile({40, 41}, 9), zeile({3, 4}, 11)};
    std::ranges::sort(zeilen);
    EXPECT_EQ(zeilen, (std::vector<std::string>{"   9 mal -> 01 02", "   9 mal -> 40 41", "  11 mal -> 03 04",
                                                " 100 mal -> 07 19"}));
}

TEST(VollsucheTexte, JedeGroesseHatIhreNamen)
{
    EXPECT_EQ(groessentexte(2).befehl, "&Zweier-Wiederholungen");
    EXPECT_EQ(groessentexte(3).wiederholungen, "Dreierwiederholungen");
    EXPECT_EQ(groessentexte(4).kopf, "      Vierekombinationen");
    EXPECT_EQ(groessentexte(4).titel, "Suche nach Viererkombinationen");
    EXPECT_EQ(groessentexte(5).befehl, "&Fünfer-Wiederholungen");
    EXPECT_EQ(groessentexte(6).titel, "Suche nach Sechserwiederholungen");
    for (const int groesse : {2, 3, 5})
        EXPECT_EQ(groessentexte(groesse).titel, "");
}

TEST(VollsucheTexte, FasstZusammen)
{
    Suchergebnis ergebnis = stand(4, 211876);
    ergebnis.NieGezogen = 123456;
    ergebnis.EinmalGezogen = 0;
    ergebnis.wiederholungen.resize(1234);
    EXPECT_EQ(zusammenfassung(ergebnis), "      Vierekombinationen\r\n"
                                         "--------------------------------\r\n"
                                         "überhaupt mögliche: 211.876\r\n"
                                         " noch nie gezogene: 123.456\r\n"
                                         "   einmal gezogene: 0\r\n"
                                         " mehrfach gezogene: 1.234");
}

TEST(VollsucheTexte, VorDerErstenSucheStehenStriche)
{
    EXPECT_EQ(leereZusammenfassung(), "        Kombinationen\r\n"
                                      "--------------------------------\r\n"
                                      "überhaupt mögliche: -\r\n"
                                      " noch nie gezogene: -\r\n"
                                      "   einmal gezogene: -\r\n"
                                      " mehrfach gezogene: -");
}

TEST(VollsucheTexte, ZaehltDieSuchlaeufe)
{
    EXPECT_EQ(suchlaeufeText(stand(2, 0)), "Suchläufe: 0 von 1.176");
    EXPECT_EQ(suchlaeufeMitProzent(stand(6, 6'991'908)), "Suchläufe: 6.991.908 von 13.983.816  50,00%");
    EXPECT_EQ(suchlaeufeMitProzent(stand(6, 13'983'816)), "Suchläufe: 13.983.816 von 13.983.816  100,00%");
    EXPECT_EQ(suchlaeufeMitProzent(stand(3, 500)), "Suchläufe: 500 von 18.424  2,71%");
    EXPECT_EQ(alleSuchlaeufe(stand(5, 1'906'884)), "Suchläufe: 1.906.884 von 1.906.884  100%");
    EXPECT_EQ(suchlaeufeMitProzent(Suchergebnis{}), "Suchläufe: 0 von   0,00%");
}

TEST(VollsucheTexte, DieSuchzeitIstMindestensZweiSekunden)
{
    const Zeitpunkt start = *liesIsoZeit("2026-11-21T23:59:58");
    EXPECT_EQ(suchzeit(start, start), 2);
    EXPECT_EQ(suchzeit(start, start + 1999ms), 2);
    EXPECT_EQ(suchzeit(start, start + 2s), 3);
    EXPECT_EQ(suchzeit(start, start + 14h), 14 * 3600 + 1); // over midnight
    EXPECT_EQ(suchzeit(start, start - 1h), 2);              // the clock was set back
}

TEST(VollsucheTexte, SchaetztDieGanzeZeit)
{
    EXPECT_EQ(schaetzung(stand(2, 588), 10), "00:00:19");
    EXPECT_EQ(schaetzung(stand(2, 1176), 2), "00:00:01");
    EXPECT_EQ(schaetzung(stand(6, 1000), 3), "11:39:10");
    EXPECT_EQ(schaetzung(stand(2, 1176), 0), "00.00.00");
    EXPECT_EQ(schaetzung(stand(2, 0), 5), "00.00.00");
}

TEST(VollsucheTexte, DerTitelNenntSpielUndZiehungen)
{
    const TestZiehung erste{1986, 23, {1, 2, 3, 4, 5, 6}};
    const TestZiehung letzte{2026, 30, {1, 2, 3, 4, 5, 6}};
    EXPECT_EQ(suchtitel(archivAus(Mittwochslotto, {erste, letzte}), "Mittwochslotto "),
              "Suche nach Wiederholungen (brute force)   Mittwochslotto    2 Ziehungen von 1986/23 bis 2026/30");
    EXPECT_EQ(suchtitel(archivAus(Mittwochslotto, {letzte, erste, letzte, erste}), "Zwei "),
              "Suche nach Wiederholungen (brute force)   Zwei    4 Ziehungen von 1986/23 bis 2026/30");
    EXPECT_EQ(suchtitel(archivAus(Samstagslotto, {}), "Samstagslotto"),
              "Suche nach Wiederholungen (brute force)   Samstagslotto");
    EXPECT_EQ(suchtitel(archivAus(Samstagslotto, {erste}), ""), "Suche nach Wiederholungen (brute force)");
}

TEST(VollsucheTexte, BerichtetWiederholungenUndNieGezogene)
{
    ZiehungsArchiv archiv = archivAus(Samstagslotto, {{1955, 41, {1, 2, 3, 4, 5, 6}}, {1955, 42, {1, 2, 3, 4, 5, 6}}});
    const Suchquelle quelle = suchquelle(archiv, "Samstagslotto", {"", "So, 09.10.1955", "So, 16.10.1955"});
    const std::vector<std::string> zeilen{"   2 mal -> 01 02", "   2 mal -> 01 03"};
    EXPECT_EQ(wiederholungsbericht(quelle, 2, zeilen),
              "\r\n*** SAMSTAGSLOTTO ***\r\n"
              "Zweierwiederholungen im Samstagslotto\r\n"
              "\r\n"
              "   2 mal -> 01 02\r\n"
              "   2 mal -> 01 03\r\n"
              "\r\n"
              "Erfassungstand der Ziehungen: 1955/42  So, 16.10.1955\r\n"
              "Anzahl der ausgewerteten Ziehungen: 2\r\n"
              "Hinweis: Falls die Spalten der Tabelle nicht ordentlich dargestellt werden, \r\n"
              "wählen sie für die Ansicht eine nichtproportionale Schriftart (z.B. Courier).\r\n");
    EXPECT_EQ(nieGezogenBericht(quelle, std::vector<std::string>{"01 02 07"}),
              "\r\n*** SAMSTAGSLOTTO ***\r\n"
              "Noch nie gezogene Dreierkombinationen im Samstagslotto\r\n"
              "\r\n"
              "01 02 07\r\n"
              "\r\n"
              "Erfassungstand der Ziehungen: 1955/42  So, 16.10.1955\r\n"
              "Anzahl der ausgewerteten Ziehungen: 2\r\n"
              "Hinweis: Falls die Spalten der Tabelle nicht ordentlich dargestellt werden, \r\n"
              "wählen sie für die Ansicht eine nichtproportionale Schriftart (z.B. Courier).\r\n");
}

TEST(VollsucheTexte, DerBerichtEndetMitDerSpaetestenZiehung)
{
    constexpr Zahlenreihe kZahlen{1, 2, 3, 4, 5, 6};
    const ZiehungsArchiv archiv =
        archivAus(Samstagslotto, {{1955, 41, kZahlen}, {2026, 30, kZahlen}, {2026, 29, kZahlen}, {2000, 48, kZahlen}});
    const auto letzte = [&archiv](const std::vector<std::string>& daten) {
        const Suchquelle quelle = suchquelle(archiv, "Zwei", daten);
        return quelle.jahrUndWoche + "  " + quelle.datum;
    };
    EXPECT_EQ(letzte({"", "So, 09.10.1955", "Sa, 25.07.2026", "Mi, 22.07.2026", "Mi, 29.11.2000 (B)"}),
              "2026/30  Sa, 25.07.2026");
    EXPECT_EQ(letzte({"", "Sa, 31.12.2025", "Sa, 01.02.2026", "Mi, 31.01.2026", "Mi, 01.02.2026 (B)"}),
              "2000/48  Mi, 01.02.2026 (B)"); // the last one of that day
    EXPECT_EQ(letzte({"", "So, 09.10.1955"}), "1955/41  So, 09.10.1955");
    EXPECT_EQ(letzte({}), "2000/48  ");
}

TEST(VollsucheTexte, OhneZeilenGibtEsKeinenBericht)
{
    const Suchquelle quelle = suchquelle(archivAus(Samstagslotto, {}), "Samstagslotto", {});
    EXPECT_EQ(quelle.jahrUndWoche, "0000/00");
    EXPECT_EQ(wiederholungsbericht(quelle, 0, {}), "");
    EXPECT_EQ(nieGezogenBericht(quelle, {}), "");
}

} // namespace

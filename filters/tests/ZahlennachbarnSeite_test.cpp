#include "filters/logic/ZahlennachbarnSeite.h"

#include <gtest/gtest.h>
#include <regex>
#include <set>

namespace {

Nachbartreffer treffer(std::int16_t spielart, const Kombination& zahlen, Zahlenmenge gruppe)
{
    return {.Spielart = spielart,
            .jjjj = 1998,
            .sw = 3,
            .datum = "Sa, 17.01.1998",
            .zahlen = zahlen,
            .gruppe = gruppe,
            .s = 7};
}

/// A search of the active game with two hits.
Nachbarsuche einzeln()
{
    Nachbarsuche suche{.gruppe = kNachbargruppen[0]};
    suche.dateien = {{Samstagslotto, 3693, "2026/29", 2}};
    suche.treffer = {treffer(Samstagslotto, {1, 2, 10, 20, 30, 40}, zahlenmenge(std::array{1, 2})),
                     treffer(Samstagslotto, {3, 9, 10, 20, 30, 49}, zahlenmenge(std::array{9, 10}))};
    suche.treffer[1].s.reset();
    return suche;
}

/// A mixed pattern over two games.
Nachbarsuche zusammen()
{
    Nachbarsuche suche{.gruppe = kNachbarmuster[0], .zusammen = true};
    suche.dateien = {{Samstagslotto, 3693, "2026/29", 0}, {MittwochslottoB, 757, "2000/48", 1}};
    suche.treffer = {treffer(MittwochslottoB, {1, 2, 10, 11, 30, 40}, zahlenmenge(std::array{1, 2, 10, 11}))};
    return suche;
}

std::size_t wieOft(const std::string& text, const std::string& teil)
{
    std::size_t anzahl = 0;
    for (std::size_t ort = text.find(teil); ort != std::string::npos; ort = text.find(teil, ort + 1))
        ++anzahl;
    return anzahl;
}

bool enthaelt(const std::string& text, const std::string& teil)
{
    return text.find(teil) != std::string::npos;
}

/// Every tag of the body is closed, the innermost one first.
bool istWohlgeformt(const std::string& seite)
{
    std::vector<std::string> offene{"html"};
    const std::string rumpf = seite.substr(seite.find("<body>"));
    const std::regex tag("<(/?)([a-z0-9]+)[^<>]*>");
    for (std::sregex_iterator ort(rumpf.begin(), rumpf.end(), tag); ort != std::sregex_iterator(); ++ort)
        if ((*ort)[1].length() == 0)
            offene.push_back((*ort)[2]);
        else if (offene.empty() || offene.back() != (*ort)[2])
            return false;
        else
            offene.pop_back();
    return offene.empty() && std::regex_replace(rumpf, tag, "").find_first_of("<>") == std::string::npos;
}

TEST(ZahlennachbarnSeite, DieRumpfzeilenEinesSpiels)
{
    const std::string seite = nachbarnSeite(einzeln());
    EXPECT_TRUE(seite.starts_with("<html>\r\n<head>\r\n<meta name=\"viewport\""));
    EXPECT_TRUE(enthaelt(seite, "charset=iso-8859-1"));
    EXPECT_TRUE(enthaelt(seite, "<title>Zahlennachbarn</title>"));
    EXPECT_TRUE(enthaelt(seite, "div.scroll{border:0px; height:505px; width:600px;"));
    EXPECT_EQ(seite.substr(seite.find("<body>")),
              "<body>\r\n"
              "<center>\r\n"
              "<h1>2-er Zahlennachbarn seit der 1.Ziehung  1955</h1>\r\n"
              "<h2>Samstagslotto: 2 mal &nbsp; </h2>\r\n"
              "<p>Erfassungsstand der Ziehungsdatei: 2026/29 [Spieljahr/Spielwoche], Anzahl der Ziehungen: 3693</p>\r\n"
              "<div class=\"scroll\"><table>\r\n"
              "<thead>\r\n"
              "<tr><th class=\"gruppe_h\">Gruppe</th><th class=\"jahr_h\" colspan=\"2\">Jahr/SW</th>"
              "<th class=\"datum_h\">Datum</th><th class=\"zahl\">Z1</th><th class=\"zahl\">Z2</th>"
              "<th class=\"zahl\">Z3</th><th class=\"zahl\">Z4</th><th class=\"zahl\">Z5</th><th class=\"zahl\">Z6</th>"
              "<th class=\"sz\">SZ</th></tr>\r\n"
              "</thead>\r\n"
              "<tbody>\r\n"
              "<tr><td class=\"gruppe\">(2-Gr.)</td><td class=\"jahr\">1998</td><td class=\"woche\">03</td>"
              "<td class=\"datum_n\">Sa, 17.01.1998</td><td class=\"zahl_g\">01</td><td class=\"zahl_g\">02</td>"
              "<td class=\"zahl_n\">10</td><td class=\"zahl_n\">20</td><td class=\"zahl_n\">30</td>"
              "<td class=\"zahl_n\">40</td><td class=\"sz\">7</td></tr>\r\n"
              "<tr><td class=\"gruppe\">(2-Gr.)</td><td class=\"jahr\">1998</td><td class=\"woche\">03</td>"
              "<td class=\"datum_n\">Sa, 17.01.1998</td><td class=\"zahl_n\">03</td><td class=\"zahl_g\">09</td>"
              "<td class=\"zahl_g\">10</td><td class=\"zahl_n\">20</td><td class=\"zahl_n\">30</td>"
              "<td class=\"zahl_n\">49</td><td class=\"sz\">-</td></tr>\r\n"
              "</tbody>\r\n"
              "</table></div>\r\n"
              "</center></body>\r\n"
              "</html>\r\n");
    EXPECT_TRUE(istWohlgeformt(seite));
}

TEST(ZahlennachbarnSeite, MehrereSpieleStehenMitIhremStand)
{
    const std::string seite = nachbarnSeite(zusammen());
    EXPECT_TRUE(enthaelt(seite, "<h1>2 Zwillinge  1955</h1>"));
    EXPECT_TRUE(
        enthaelt(seite, "<h2>Samstagslotto: 0 mal &nbsp; Mittwochslotto (B): 1 mal &nbsp; zusammen: 1 mal </h2>"));
    EXPECT_TRUE(enthaelt(seite, "<p>Samstagslotto, Erfassungsstand der Ziehungsdatei: 2026/29 [Spieljahr/Spielwoche], "
                                "Anzahl der Ziehungen: 3693</p>"));
    EXPECT_TRUE(enthaelt(seite, "<p>Mittwochslotto (B), Erfassungsstand der Ziehungsdatei: 2000/48 "
                                "[Spieljahr/Spielwoche], Anzahl der Ziehungen: 757</p>"));
    EXPECT_TRUE(enthaelt(seite, "<th class=\"sart_h\">SArt</th><th class=\"datum_h\">"));
    EXPECT_TRUE(enthaelt(seite, "<td class=\"gruppe\">2 Zwillinge</td>"));
    EXPECT_TRUE(enthaelt(seite, "<td class=\"sart\">MiB</td>"));
    EXPECT_EQ(wieOft(seite, "class=\"zahl_g\""), 4U);
    EXPECT_EQ(wieOft(seite, "class=\"zahl_n\""), 2U);
    EXPECT_TRUE(istWohlgeformt(seite));
}

TEST(ZahlennachbarnSeite, DieUeberschriftNenntGroesseUndErstesJahr)
{
    Nachbarsuche suche = einzeln();
    for (const Nachbargruppe& gruppe : kNachbargruppen) {
        suche.gruppe = gruppe;
        const std::string groesse = std::to_string(gruppe.code);
        suche.zusammen = false;
        suche.dateien[0].Spielart = Mittwochslotto;
        EXPECT_TRUE(
            enthaelt(nachbarnSeite(suche), "<h1>" + groesse + "-er Zahlennachbarn seit der 1.Ziehung  1986</h1>"));
        suche.zusammen = true;
        suche.dateien[0].Spielart = Samstagslotto;
        EXPECT_TRUE(enthaelt(nachbarnSeite(suche), "<h1>" + groesse + "-er Zahlennachbarn  1955</h1>"));
    }
    const std::array<std::string, 5> muster{"2 Zwillinge", "3 Zwillinge", "1 Zwill.+1 Drill.", "2 Drillinge",
                                            "1 Zwill.+1 Vierl."};
    for (std::size_t i = 0; i < muster.size(); ++i) {
        suche.gruppe = kNachbarmuster[i];
        EXPECT_TRUE(enthaelt(nachbarnSeite(suche), "<h1>" + muster[i] + "  1955</h1>"));
    }
}

TEST(ZahlennachbarnSeite, DieDateienHeissenNachDerGruppe)
{
    std::vector<std::string> namen;
    namen.reserve(kNachbargruppen.size() + kNachbarmuster.size());
    for (const Nachbargruppe& gruppe : kNachbargruppen)
        namen.emplace_back(gruppe.seitendatei);
    for (const Nachbargruppe& gruppe : kNachbarmuster)
        namen.emplace_back(gruppe.seitendatei);
    EXPECT_EQ(namen,
              (std::vector<std::string>{"nachbarn-2er.htm", "nachbarn-3er.htm", "nachbarn-4er.htm", "nachbarn-5er.htm",
                                        "nachbarn-6er.htm", "2-Zwillinge.htm", "3-Zwillinge.htm",
                                        "1-Zwilling1-Drilling.htm", "2-Drillinge.htm", "1-Zwilling+1-Vierling.htm"}));
}

TEST(ZahlennachbarnSeite, OhneTrefferStehtNurDerKopf)
{
    Nachbarsuche suche = einzeln();
    suche.gruppe = kNachbargruppen[4];
    suche.treffer.clear();
    suche.dateien[0].treffer = 0;
    const std::string seite = nachbarnSeite(suche);
    EXPECT_EQ(wieOft(seite, "<tr>"), 1U);
    EXPECT_EQ(wieOft(seite, "<td"), 0U);
    EXPECT_TRUE(enthaelt(seite, "0 mal "));
    EXPECT_FALSE(enthaelt(seite, "***"));
    EXPECT_TRUE(istWohlgeformt(seite));
}

TEST(ZahlennachbarnSeite, EineAbgebrocheneSucheSagtEs)
{
    Nachbarsuche suche = einzeln();
    EXPECT_FALSE(enthaelt(nachbarnSeite(suche), "abgebrochen"));
    suche.vollstaendig = false;
    EXPECT_TRUE(enthaelt(nachbarnSeite(suche), "<h2>Die Suche wurde abgebrochen.</h2>"));
}

TEST(ZahlennachbarnSeite, TexteWerdenMaskiert)
{
    Nachbarsuche suche = einzeln();
    suche.treffer[0].datum = "<b>&\"";
    const std::string seite = nachbarnSeite(suche);
    EXPECT_TRUE(enthaelt(seite, "<td class=\"datum_n\">&lt;b&gt;&amp;&quot;</td>"));
    EXPECT_TRUE(istWohlgeformt(seite));
}

TEST(ZahlennachbarnSeite, FalscheZahlenStehenWieSieSind)
{
    Nachbarsuche suche = einzeln();
    suche.treffer[0].zahlen = {-5, 1, 2, 50, 1000, 2'000'000'000};
    const std::string seite = nachbarnSeite(suche);
    EXPECT_TRUE(enthaelt(seite, "<td class=\"zahl_n\">2000000000</td>"));
    EXPECT_EQ(wieOft(seite, "class=\"zahl_g\""), 4U);
    EXPECT_TRUE(istWohlgeformt(seite));
}

TEST(ZahlennachbarnSeite, EndetMitDemErstenNeinDerAusgabe)
{
    const Nachbarsuche suche = einzeln();
    for (int stuecke = 0; stuecke < 4; ++stuecke) {
        int gegeben = 0;
        EXPECT_FALSE(schreibeNachbarnSeite(suche, [&](std::string_view) { return gegeben++ < stuecke; }));
        EXPECT_EQ(gegeben, stuecke + 1);
    }
}

} // namespace

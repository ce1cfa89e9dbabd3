#include "testhilfen/ArchivAus.h"
#include "tips/logic/Zeitreiseausgabe.h"

#include <gtest/gtest.h>

namespace {

constexpr Kombination kTip{1, 2, 3, 4, 5, 6};

Zeitreise gewinne(std::int16_t spielart, Zeitreiseform form = Zeitreiseform::EineSpielart)
{
    const ZiehungsArchiv archiv = archivAus(
        spielart,
        {{1986, 23, {1, 2, 3, 40, 41, 42}}, {1986, 24, {7, 8, 9, 10, 11, 12}}, {1986, 25, {1, 2, 3, 4, 5, 6}}});
    return evaluateGewinne(archiv, kTip, 7, spielart, form);
}

bool enthaelt(const std::string& seite, const std::string& stueck)
{
    return seite.find(stueck) != std::string::npos;
}

TEST(Zeitreiseausgabe, DerNameDerCsvDatei)
{
    Zeitreise zeitreise;
    zeitreise.zahlen = {3, 7, 12};
    EXPECT_EQ(csvDateiname(zeitreise), "kombinationen-3-7-12.csv");
    zeitreise.zahlen = {49};
    EXPECT_EQ(csvDateiname(zeitreise), "kombinationen-49.csv");
}

TEST(Zeitreiseausgabe, EineCsvZeileJeZiehungOhneMarkenUndKlasse)
{
    EXPECT_EQ(writeCsv(gewinne(Mittwochslotto)), "1986,23,Mi, 04.06.1986,01,02,03,40,41,42,-,\r\n"
                                                 "1986,25,Mi, 18.06.1986,01,02,03,04,05,06,-,\r\n");
    EXPECT_EQ(writeCsv(gewinne(Mittwochslotto, Zeitreiseform::Zusammen)),
              "1986/23,Mi,Mi, 04.06.1986,01,02,03,40,41,42,-,\r\n"
              "1986/25,Mi,Mi, 18.06.1986,01,02,03,04,05,06,-,\r\n");
}

TEST(Zeitreiseausgabe, LeereZeilenEinerKurzenSucheSindLeer)
{
    const Zeitreise suche = searchKombination(archivAus({{1, 2, 3, 4, 5, 6}}), std::vector{6}, Samstagslotto);
    std::string leere;
    for (int i = 0; i < 9; ++i)
        leere += "\r\n";
    EXPECT_EQ(writeCsv(suche), "2000,01,So, 09.10.1955,01,02,03,04,05,06,-,\r\n" + leere);
}

TEST(Zeitreiseausgabe, DieSeiteNenntSpielTippUndJahr)
{
    const std::string samstag = writeHtml(gewinne(Samstagslotto));
    EXPECT_TRUE(samstag.starts_with("<!DOCTYPE html>\r\n"));
    EXPECT_TRUE(enthaelt(samstag, "charset=UTF-8"));
    EXPECT_TRUE(enthaelt(samstag, "<title>Gewinnliste für die ausgewählte Tippkombination</title>"));
    EXPECT_TRUE(enthaelt(samstag,
                         "Samstagslotto - Gewinne der ausgewählten Zahlenkombination (1 2 3 4 5 6 Superzahl:7) "
                         "seit der 1.Ziehung  1955 -<br></div>"));
    EXPECT_TRUE(enthaelt(samstag, "Hätte man die ausgewählten 6 Zahlen im Samstagslotto ab der 1.&nbsp;Ziehung (9. "
                                  "Oktober 1955) ständig gespielt,<br>\r\nwären also folgende Gewinne erzielt worden:"
                                  "</span>"));
    const std::string b = writeHtml(gewinne(MittwochslottoB));
    EXPECT_TRUE(enthaelt(b, "Mittwochslotto (b) - Gewinne"));
    EXPECT_TRUE(enthaelt(b, "1986 -<br></div>"));
    EXPECT_TRUE(enthaelt(b, "Mittwochslotto (b) ab der 1.&nbsp;Ziehung (4. Juni 1986) ständig gespielt,<br>"));
    EXPECT_TRUE(enthaelt(writeHtml(gewinne(Mittwochslotto)), "Mittwochslotto  - Gewinne"));
}

TEST(Zeitreiseausgabe, DieSeiteZeigtZeilenTippfeldUndZaehler)
{
    const std::string seite = writeHtml(gewinne(Mittwochslotto));
    EXPECT_TRUE(enthaelt(seite, "<tr><td>1986</td><td>23</td><td>Mi, 04.06.1986</td><td class=\"zahl_g\">01</td><td "
                                "class=\"zahl_g\">02</td><td class=\"zahl_g\">03</td><td>40</td><td>41</td><td>42</td>"
                                "<td>-</td><td>Dreier</td></tr>"));
    EXPECT_TRUE(enthaelt(seite, "title=\"Liste auf- oder zuklappen\""));
    EXPECT_TRUE(enthaelt(seite, "height:253px; width:605px;"));
    EXPECT_TRUE(enthaelt(seite, "#liste td:nth-child(1) {width:50px;}"));
    EXPECT_TRUE(enthaelt(seite, "<tr><td class=\"zahl_gt\">1</td><td class=\"zahl_gt\">2</td>"));
    EXPECT_TRUE(enthaelt(seite, "<td class=\"zahl_gt\">6</td><td>7</td></tr>"));
    EXPECT_TRUE(enthaelt(seite, ">Superzahl: 7</div>"));
    EXPECT_TRUE(enthaelt(seite, "<tr><th>GK</th><th>Richtige</th><th>Anz.</th></tr>"));
    EXPECT_TRUE(enthaelt(seite, "<tr><td>2</td><td>Sechser :</td><td>1</td></tr>"));
    EXPECT_TRUE(enthaelt(seite, "<tr><td>8</td><td>Dreier :</td><td>1</td></tr>"));
    EXPECT_TRUE(enthaelt(seite, "<tr><td>9</td><td>Zweier mit Superzahl :</td><td>0</td></tr>"));
    EXPECT_TRUE(enthaelt(seite, "Gewinnf&auml;lle gesamt:</td><td>2</td></tr>"));
    EXPECT_TRUE(enthaelt(seite, "Erfassungsstand der Ziehungsdatei: 1986/25 [Spieljahr/Spielwoche], Anzahl der "
                                "Ziehungen: 3</div>"));
}

TEST(Zeitreiseausgabe, EineGetroffeneSuperzahlHatIhreEigeneKlasse)
{
    ZiehungsArchiv archiv =
        archivAus(Mittwochslotto, std::vector<TestZiehung>(497, {1995, 49, {1, 2, 30, 31, 32, 33}}));
    archiv.s[497] = 7;
    const std::string seite = writeHtml(evaluateGewinne(archiv, kTip, 7, Mittwochslotto));
    EXPECT_TRUE(enthaelt(seite, "<td class=\"zahl_zg\">7</td><td>Zweier+SZ</td>"));
}

TEST(Zeitreiseausgabe, DieSeiteMehrererSpiele)
{
    Zeitreise alle;
    alle.form = Zeitreiseform::Zusammen;
    alle.zahlen = {1, 2, 3, 4, 5, 6};
    fuegeHinzu(alle, gewinne(Samstagslotto, alle.form));
    fuegeHinzu(alle, gewinne(Mittwochslotto, alle.form));
    const std::string seite = writeHtml(alle);
    EXPECT_TRUE(enthaelt(seite, "height:253px; width:615px;"));
    EXPECT_TRUE(enthaelt(seite, "#liste td:nth-child(1) {width:60px;}"));
    EXPECT_TRUE(enthaelt(seite, "Samstagslotto + Mittwochslotto - Gewinne"));
    EXPECT_TRUE(enthaelt(seite, "seit der 1.Ziehung  1955 -"));
    EXPECT_TRUE(enthaelt(seite, "<th>Jahr/SW</th>\r\n<th>Zieh.</th>"));
    EXPECT_TRUE(enthaelt(seite, ", Anzahl der ausgewerteten Ziehungen: 6</div>"));
}

} // namespace

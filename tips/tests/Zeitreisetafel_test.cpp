#include "testhilfen/ArchivAus.h"
#include "tips/logic/Zeitreisetafel.h"
#include "tips/logic/Zeitreisetexte.h"

#include <gtest/gtest.h>

namespace {

using Zellen = std::vector<std::string>;

Zellen zellen(const Zeitreise& zeitreise, const Zeitreisezeile& zeile)
{
    Zellen alle;
    for (const Zeitreisespalte& spalte : zeitreisespalten(zeitreise.form))
        alle.push_back(zeitreisezelle(zeitreise, zeile, spalte));
    return alle;
}

Zellen titel(Zeitreiseform form)
{
    Zellen alle;
    for (const Zeitreisespalte& spalte : zeitreisespalten(form))
        alle.emplace_back(spalte.titel);
    return alle;
}

Zeitreise mitKlasse(Zeitreiseform form, Gewinnklasse klasse)
{
    Zeitreise zeitreise;
    zeitreise.form = form;
    zeitreise.zeilen = {{.Spielart = Mittwochslotto,
                         .ziehungsNr = 1,
                         .jjjj = 1986,
                         .sw = 3,
                         .zahlen = {1, 2, 3, 40, 41, 42},
                         .zz = 7,
                         .s = 5,
                         .getroffen = {true, false, false, false, false, true},
                         .klasse = klasse}};
    return zeitreise;
}

TEST(Zeitreisetafel, DieSpaltenJeForm)
{
    EXPECT_EQ(titel(Zeitreiseform::EineSpielart),
              (Zellen{"Jahr", "SW", "Datum", "Z1", "Z2", "Z3", "Z4", "Z5", "Z6", "SZ", "Gewinn"}));
    EXPECT_EQ(titel(Zeitreiseform::Zusammen),
              (Zellen{"Jahr/SW", "Zieh.", "Datum", "Z1", "Z2", "Z3", "Z4", "Z5", "Z6", "SZ", "Gewinn"}));
    EXPECT_EQ(titel(Zeitreiseform::AlterPlan),
              (Zellen{"Jahr", "SW", "Datum", "Z1", "Z2", "Z3", "Z4", "Z5", "Z6", "ZZ", "SZ", "Gewinn"}));
}

TEST(Zeitreisetafel, DieZellenEinerZiehung)
{
    const Zeitreise neu = mitKlasse(Zeitreiseform::EineSpielart, Gewinnklasse::GK7);
    EXPECT_EQ(zellen(neu, neu.zeilen[0]),
              (Zellen{"1986", "03", "Mi, 04.06.1986", " 01", "02", "03", "40", "41", " 42", " 5", "Dreier+SZ"}));
    const Zeitreise zusammen = mitKlasse(Zeitreiseform::Zusammen, Gewinnklasse::GK8);
    EXPECT_EQ(zellen(zusammen, zusammen.zeilen[0]),
              (Zellen{"1986/03", "Mi", "Mi, 04.06.1986", " 01", "02", "03", "40", "41", " 42", "5", "Dreier"}));
    const Zeitreise alt = mitKlasse(Zeitreiseform::AlterPlan, Gewinnklasse::GK7);
    EXPECT_EQ(zellen(alt, alt.zeilen[0]),
              (Zellen{"1986", "03", "Mi, 04.06.1986", " 01", "02", "03", "40", "41", " 42", " 07", "5", "Dreier+ZZ"}));
    const Zeitreise jackpot = mitKlasse(Zeitreiseform::AlterPlan, Gewinnklasse::GK1);
    EXPECT_EQ(zellen(jackpot, jackpot.zeilen[0])[9], "07");
    EXPECT_EQ(zellen(jackpot, jackpot.zeilen[0])[10], " 5");
}

TEST(Zeitreisetafel, WasEineZiehungNichtHatIstEinStrich)
{
    Zeitreise alt = mitKlasse(Zeitreiseform::AlterPlan, Gewinnklasse::Keine);
    alt.zeilen[0].zz = 0;
    alt.zeilen[0].s = kOhneSuperzahl;
    const Zellen zeile = zellen(alt, alt.zeilen[0]);
    EXPECT_EQ(zeile[9], "-");
    EXPECT_EQ(zeile[10], "-");
    EXPECT_EQ(zeile[11], "");
    alt.zeilen[0].zz = -1;
    EXPECT_EQ(zellen(alt, alt.zeilen[0])[9], "-");
}

TEST(Zeitreisetafel, DieKurznamenDerSpiele)
{
    Zeitreise zeitreise = mitKlasse(Zeitreiseform::Zusammen, Gewinnklasse::Keine);
    for (const auto& [spielart, name] :
         {std::pair<std::int16_t, const char*>{0, "Sa"}, {1, "Sa"}, {2, "Mi"}, {3, "Mi(B)"}}) {
        zeitreise.zeilen[0].Spielart = spielart;
        EXPECT_EQ(zellen(zeitreise, zeitreise.zeilen[0])[1], name);
    }
}

// Without a class the Superzahl is drawn by chance: it stays unmarked beside one or two hits.
TEST(Zeitreisetafel, OhneKlasseBleibtDieSuperzahlOhneMarke)
{
    ZiehungsArchiv archiv =
        archivAus(Mittwochslotto, std::vector<TestZiehung>(498, {1990, 1, {1, 30, 31, 32, 33, 34}}));
    archiv.z2[498] = 2;
    std::ranges::fill(archiv.s, 4);
    const Zeitreise zeitreise = evaluateAlle(archiv, {1, 2, 3, 4, 5, 6}, 4, Mittwochslotto);
    EXPECT_EQ(zellen(zeitreise, zeitreise.zeilen[495])[9], "-");
    EXPECT_EQ(zellen(zeitreise, zeitreise.zeilen[496])[9], "4");
    EXPECT_EQ(zellen(zeitreise, zeitreise.zeilen[497])[9], " 4");
    EXPECT_EQ(zellen(zeitreise, zeitreise.zeilen[497])[10], "Zweier+SZ");
}

TEST(Zeitreisetafel, EineKurzeSucheWirdMitLeerenZeilenAufgefuellt)
{
    Zeitreise zeitreise;
    zeitreise.art = Zeitreiseart::Suche;
    EXPECT_EQ(leereZeilen(zeitreise), 0U);
    zeitreise.zahlen = {1};
    EXPECT_EQ(leereZeilen(zeitreise), 10U);
    zeitreise.zeilen.resize(9);
    EXPECT_EQ(leereZeilen(zeitreise), 1U);
    zeitreise.zeilen.resize(10);
    EXPECT_EQ(leereZeilen(zeitreise), 0U);
    zeitreise.zeilen.resize(3);
    zeitreise.art = Zeitreiseart::Gewinne;
    EXPECT_EQ(leereZeilen(zeitreise), 0U);
}

TEST(Zeitreisetafel, DieFarbenFolgenDenMarken)
{
    const auto& spalten = zeitreisespalten(Zeitreiseform::AlterPlan);
    const Farbe schwarz{0, 0, 0};
    EXPECT_EQ(zeitreisefarbe(0, false, &spalten[3], "07"), (Farbpaar{{0xD9, 0xFC, 0xFD}, schwarz}));
    EXPECT_EQ(zeitreisefarbe(1, false, &spalten[3], "07"), (Farbpaar{{255, 255, 255}, schwarz}));
    EXPECT_EQ(zeitreisefarbe(1, true, &spalten[3], "07"), (Farbpaar{{0xFF, 0xC0, 0x80}, schwarz}));
    EXPECT_EQ(zeitreisefarbe(0, false, &spalten[3], " 07"), (Farbpaar{{0x80, 0xFF, 0xFF}, {255, 0, 0}}));
    EXPECT_EQ(zeitreisefarbe(0, false, &spalten[9], " 07"), (Farbpaar{{255, 255, 0}, schwarz}));
    EXPECT_EQ(zeitreisefarbe(0, false, &spalten[10], " 5"), (Farbpaar{{255, 255, 0}, schwarz}));
    EXPECT_EQ(zeitreisefarbe(0, true, nullptr, ""), (Farbpaar{{0xC0, 0xC0, 0xC0}, schwarz}));
}

TEST(Zeitreisetexte, DerListentitel)
{
    Zeitreise zeitreise;
    zeitreise.zahlen = {1, 2, 3, 4, 5, 6};
    zeitreise.zeilen.resize(37);
    EXPECT_EQ(listentitel(zeitreise), "Ziehungen mit Gewinnen: 37");
    zeitreise.art = Zeitreiseart::Alle;
    EXPECT_EQ(listentitel(zeitreise), "Alle 37 Ziehungen mit ihren Treffern");
    zeitreise.zahlen.clear();
    EXPECT_EQ(listentitel(zeitreise), "Alle 37 Ziehungen");
    zeitreise.art = Zeitreiseart::Suche;
    zeitreise.zahlen = {3, 7, 12};
    EXPECT_EQ(listentitel(zeitreise), "Ziehungen mit der gesuchten Kombination 3 7 12:   37 mal");
    zeitreise.zeilen.clear();
    EXPECT_EQ(listentitel(zeitreise), "Ziehungen mit der gesuchten Kombination 3 7 12: 0 (noch nicht gezogen)");
    EXPECT_EQ(listentitelVorher(false), "Die Ziehungen mit Gewinnen");
    EXPECT_EQ(listentitelVorher(true), "Die Ziehungen mit der gesuchter Kombination");
}

TEST(Zeitreisetexte, DieTitel)
{
    using enum Zeitreiseform;
    EXPECT_EQ(zeitreisetitel(EineSpielart, false, true),
              "Vergleich eines Tipps mit allen Ziehungen seit 1. Ausspielung 1955");
    EXPECT_EQ(zeitreisetitel(EineSpielart, true, false),
              "Suche nach einer Kombination in allen Ziehungen seit 1. Ausspielung 1986");
    EXPECT_EQ(zeitreisetitel(AlterPlan, false, false),
              "Vergleich mit allen Ziehungen seit 1986 (altes Gewinnschema mit Zusatzzahl)");
    EXPECT_EQ(zeitreisetitel(Zusammen, true, true), "Lottozeitreise - Wie oft wurde eine Kombination gezogen?");
    EXPECT_EQ(haeufigkeitstitel(EineSpielart, true), "Ausgabe: Häufigkeit der Zahlen seit 1955");
    EXPECT_EQ(haeufigkeitstitel(EineSpielart, false), "Ausgabe: Häufigkeit der ausgewählten Zahlen seit 1986");
    EXPECT_EQ(haeufigkeitstitel(AlterPlan, false), "Ausgabe: Häufigkeit der Zahlen seit 1986 (ohne Zusatzzahl)");
    Zeitreise zusammen;
    zusammen.form = Zusammen;
    EXPECT_EQ(zeitreisetitel(zusammen), "Lottozeitreise, die Treffer einer ausgewählten Tippkombination");
    zusammen.ziehungen = 2;
    zusammen.von = "1955/41";
    zusammen.bis = "2026/29";
    EXPECT_EQ(zeitreisetitel(zusammen),
              "Lottozeitreise - Die Treffer der ausgewählten Tippkombination von 1955/41 bis 2026/29");
}

TEST(Zeitreisetexte, DieZiehungszeile)
{
    const ZiehungsArchiv archiv = archivAus(Samstagslotto, {{1955, 41, {}}, {2026, 9, {}}});
    EXPECT_EQ(ziehungszeile(archiv), "2 Ziehungen, von: 1955/41 bis: 2026/09");
    EXPECT_EQ(ziehungszeile(ZiehungsArchiv{}), "0 Ziehungen, von: 0000/00 bis: 0000/00");
    EXPECT_EQ(ziehungszeile(Zeitreise{}), "Ausgewertete Ziehungen: 0");
    EXPECT_EQ(spielartenGross({2}), "MITTWOCHSLOTTO ");
    EXPECT_EQ(spielartenGross({1, 2, 3}), "SAMSTAGSLOTTO + MITTWOCHSLOTTO + MITTWOCHSLOTTO (B)");
    EXPECT_EQ(spielartenGross({}), "");
}

} // namespace

#include "testhilfen/ArchivAus.h"
#include "tips/logic/Zeitreise.h"

#include <gtest/gtest.h>

namespace {

constexpr Kombination kTip{1, 2, 3, 4, 5, 6};

/// So many Saturday draws of two hits with `kTip`, all with the Superzahl 4.
ZiehungsArchiv zweier(std::int32_t anzahl)
{
    ZiehungsArchiv archiv = archivAus(
        Samstagslotto, std::vector<TestZiehung>(static_cast<std::size_t>(anzahl), {1990, 1, {1, 2, 40, 41, 42, 43}}));
    std::ranges::fill(archiv.s, 4);
    return archiv;
}

std::vector<std::int32_t> nummern(const Zeitreise& zeitreise)
{
    std::vector<std::int32_t> alle;
    for (const Zeitreisezeile& zeile : zeitreise.zeilen)
        alle.push_back(zeile.ziehungsNr);
    return alle;
}

} // namespace

TEST(Zeitreise, EinTippDerNieTrafGibtKeineZeile)
{
    const Zeitreise zeitreise = evaluateGewinne(archivAus({{7, 8, 9, 10, 11, 12}}), kTip, 0, Samstagslotto);
    EXPECT_TRUE(zeitreise.zeilen.empty());
    EXPECT_EQ(zaehlerstand(zeitreise, 0, false), 1);
    EXPECT_EQ(zeitreise.ziehungen, 1);
    EXPECT_EQ(zeitreise.von, "2000/01");
    EXPECT_EQ(zeitreise.bis, "2000/01");
}

TEST(Zeitreise, EinLeeresArchivGibtNichts)
{
    for (const Zeitreiseart art : {Zeitreiseart::Gewinne, Zeitreiseart::Alle, Zeitreiseart::Suche}) {
        const Zeitreise zeitreise =
            evaluate({}, {art, {1, 2, 3, 4, 5, 6}, 0}, Samstagslotto, Zeitreiseform::EineSpielart);
        EXPECT_TRUE(zeitreise.zeilen.empty());
        EXPECT_EQ(zeitreise.bilanz, Trefferbilanz{});
        EXPECT_EQ(zeitreise.von, "9999/99");
        EXPECT_EQ(zeitreise.bis, "0000/00");
    }
}

TEST(Zeitreise, EinZweierGewinntErstSeitEsDieSuperzahlGibt)
{
    const Zeitreise zeitreise = evaluateGewinne(zweier(1888), kTip, 4, Samstagslotto);
    EXPECT_EQ(nummern(zeitreise), (std::vector<std::int32_t>{1887, 1888}));
    EXPECT_EQ(zeitreise.zeilen[0].klasse, Gewinnklasse::GK9);
    EXPECT_EQ(zeitreise.zeilen[0].getroffen, (std::array<bool, 6>{true, true, false, false, false, false}));
    EXPECT_EQ(zaehlerstand(zeitreise, 2, true), 2);
    EXPECT_EQ(zaehlerstand(zeitreise, 2, false), 1886);
    EXPECT_TRUE(evaluateGewinne(zweier(1888), kTip, 5, Samstagslotto).zeilen.empty());
    EXPECT_TRUE(evaluateGewinne(zweier(1886), kTip, 4, Samstagslotto).zeilen.empty());
}

TEST(Zeitreise, AlleZiehungenStehenAnIhrerNummer)
{
    const Zeitreise zeitreise = evaluateAlle(zweier(1888), kTip, 4, Samstagslotto);
    ASSERT_EQ(zeitreise.zeilen.size(), 1888U);
    for (std::size_t i = 0; i < zeitreise.zeilen.size(); ++i) {
        const Zeitreisezeile& zeile = zeitreise.zeilen[i];
        EXPECT_EQ(zeile.ziehungsNr, static_cast<std::int32_t>(i + 1));
        EXPECT_EQ(zeile.s, i < 1886 ? kOhneSuperzahl : 4);
        EXPECT_EQ(zeile.klasse, i < 1886 ? Gewinnklasse::Keine : Gewinnklasse::GK9);
        EXPECT_TRUE(zeile.getroffen[0]);
    }
}

TEST(Zeitreise, OhneTippStehenAlleZiehungenOhneMarken)
{
    const Zeitreise zeitreise =
        evaluate(zweier(3), {Zeitreiseart::Alle, {1, 2, 3, 4, 5}, 4}, Samstagslotto, Zeitreiseform::EineSpielart);
    ASSERT_EQ(zeitreise.zeilen.size(), 3U);
    EXPECT_EQ(zeitreise.zeilen[0].getroffen, (std::array<bool, 6>{}));
    EXPECT_TRUE(zeitreise.zahlen.empty());
    EXPECT_EQ(zeitreise.bilanz, Trefferbilanz{});
}

TEST(Zeitreise, DieFormWaehltDenPlan)
{
    const ZiehungsArchiv archiv = archivAus(Samstagslotto, {{2000, 1, {1, 2, 3, 4, 5, 49}, 6}});
    const Zeitreise neu = evaluateGewinne(archiv, kTip, 0, Samstagslotto);
    const Zeitreise alt = evaluateGewinne(archiv, kTip, 0, Samstagslotto, Zeitreiseform::AlterPlan);
    EXPECT_EQ(gewinntext(neu.form, neu.zeilen.at(0).klasse), "Fünfer");
    EXPECT_EQ(gewinntext(alt.form, alt.zeilen.at(0).klasse), "Fünfer+ZZ");
    EXPECT_EQ(zaehlerstand(neu, 5, false), 1);
    EXPECT_EQ(zaehlerstand(alt, 5, true), 1);
    EXPECT_EQ(zaehlerstand(alt, 5, false), 0);
}

TEST(Zeitreise, AmMittwochBHatDerAltePlanWenigerKlassen)
{
    ZiehungsArchiv archiv =
        archivAus(MittwochslottoB, std::vector<TestZiehung>(497, {1990, 1, {1, 2, 3, 4, 48, 49}, 6}));
    archiv.z5[497] = 5;
    archiv.z6[497] = 6;
    archiv.s[497] = 4;
    const Zeitreise zeitreise = evaluateGewinne(archiv, kTip, 4, MittwochslottoB, Zeitreiseform::AlterPlan);
    EXPECT_EQ(gewinntext(zeitreise.form, zeitreise.zeilen.front().klasse), "Vierer");
    EXPECT_EQ(gewinntext(zeitreise.form, zeitreise.zeilen.back().klasse), "Sechser");
    EXPECT_EQ(zaehlerstand(zeitreise, 4, false), 496);
    EXPECT_EQ(zaehlerstand(zeitreise, 6, false), 1);
    EXPECT_EQ(zaehlerstand(zeitreise, 6, true), 0);
}

TEST(Zeitreise, EineKombinationStehtInIhrenZiehungen)
{
    const ZiehungsArchiv archiv =
        archivAus({{1, 2, 3, 4, 5, 6}, {1, 2, 7, 8, 9, 10}, {2, 11, 12, 13, 14, 15}, {20, 21, 22, 23, 24, 25}});
    const Zeitreise paar = searchKombination(archiv, std::vector{1, 2}, Samstagslotto);
    EXPECT_EQ(nummern(paar), (std::vector<std::int32_t>{1, 2}));
    EXPECT_EQ(paar.bilanz.haeufigkeit, (std::array<std::int32_t, 6>{2, 3, 0, 0, 0, 0}));
    EXPECT_EQ(paar.zeilen[1].getroffen, (std::array<bool, 6>{true, true, false, false, false, false}));
    for (int treffer = 0; treffer <= 6; ++treffer) {
        EXPECT_EQ(zaehlerstand(paar, treffer, false), treffer == 2 ? 2 : 0);
        EXPECT_EQ(zaehlerstand(paar, treffer, true), 0);
    }
    EXPECT_EQ(nummern(searchKombination(archiv, kTip, Samstagslotto)), (std::vector<std::int32_t>{1}));
    EXPECT_EQ(zaehlerstand(searchKombination(archiv, kTip, Samstagslotto), 6, false), 1);
    EXPECT_TRUE(searchKombination(archiv, {}, Samstagslotto).zeilen.empty());
    EXPECT_TRUE(searchKombination(archiv, std::vector{49}, Samstagslotto).zeilen.empty());
}

TEST(Zeitreise, EineFrageIstErstMitGenugZahlenVollstaendig)
{
    const std::vector<std::int32_t> fuenf{1, 2, 3, 4, 5};
    EXPECT_FALSE((Zeitreisefrage{Zeitreiseart::Gewinne, fuenf, 0}.istVollstaendig()));
    EXPECT_TRUE((Zeitreisefrage{Zeitreiseart::Alle, fuenf, 0}.istVollstaendig()));
    EXPECT_TRUE((Zeitreisefrage{Zeitreiseart::Suche, fuenf, 0}.istVollstaendig()));
    EXPECT_FALSE((Zeitreisefrage{Zeitreiseart::Suche, {}, 0}.istVollstaendig()));
}

TEST(Zeitreise, MehrereSpieleStehenNachWochenGeordnet)
{
    const ZiehungsArchiv samstag =
        archivAus(Samstagslotto, {{1990, 1, {1, 2, 3, 40, 41, 42}}, {1990, 3, {1, 2, 3, 40, 41, 42}}});
    const ZiehungsArchiv mittwoch =
        archivAus(Mittwochslotto, {{1989, 52, {1, 2, 3, 40, 41, 42}}, {1990, 2, {1, 2, 3, 4, 41, 42}}});
    Zeitreise alle;
    alle.form = Zeitreiseform::Zusammen;
    fuegeHinzu(alle, evaluateGewinne(samstag, kTip, 0, Samstagslotto, alle.form));
    fuegeHinzu(alle, evaluateGewinne(mittwoch, kTip, 0, Mittwochslotto, alle.form));
    ordneNachWoche(alle);
    std::vector<std::string> wochen;
    for (const Zeitreisezeile& zeile : alle.zeilen)
        wochen.push_back(std::to_string(zeile.jjjj) + "/" + std::to_string(zeile.sw));
    EXPECT_EQ(wochen, (std::vector<std::string>{"1989/52", "1990/1", "1990/2", "1990/3"}));
    EXPECT_EQ(alle.von, "1989/52");
    EXPECT_EQ(alle.bis, "1990/03");
    EXPECT_EQ(alle.ziehungen, 4);
    EXPECT_EQ(zaehlerstand(alle, 3, false), 3);
    EXPECT_EQ(zaehlerstand(alle, 4, false), 1);
    EXPECT_EQ(alle.bilanz.haeufigkeit[3], 1);
    EXPECT_TRUE(alle.seit1955());
}

TEST(Zeitreise, EinSpielOhneZiehungenZaehltNicht)
{
    Zeitreise alle;
    fuegeHinzu(alle, evaluateGewinne(zweier(1), kTip, 0, Samstagslotto));
    const Zeitreise vorher = alle;
    fuegeHinzu(alle, evaluateGewinne({}, kTip, 0, Mittwochslotto));
    EXPECT_EQ(alle.ziehungen, vorher.ziehungen);
    EXPECT_EQ(alle.von, vorher.von);
    EXPECT_EQ(alle.bis, vorher.bis);
    EXPECT_EQ(alle.bilanz, vorher.bilanz);
}

TEST(Zeitreise, WeissObDasArchivNochDasselbeIst)
{
    ZiehungsArchiv archiv = zweier(5);
    const Zeitreise zeitreise = evaluateGewinne(archiv, kTip, 0, Samstagslotto);
    EXPECT_TRUE(zeitreise.istVon(archiv));
    EXPECT_FALSE(zeitreise.istVon(zweier(6)));
    archiv.sw.back() = 2;
    EXPECT_FALSE(zeitreise.istVon(archiv));
    archiv.sw.back() = 1;
    archiv.Spielart = Mittwochslotto;
    EXPECT_FALSE(zeitreise.istVon(archiv));
}

TEST(Zeitreise, DieLetzteZiehungAlsTipp)
{
    EXPECT_FALSE(letzteZiehung({}, Samstagslotto));
    const auto frueh = letzteZiehung(zweier(1886), Samstagslotto);
    ASSERT_TRUE(frueh);
    EXPECT_EQ(frueh->zahlen, (Kombination{1, 2, 40, 41, 42, 43}));
    EXPECT_EQ(frueh->s, kOhneSuperzahl);
    EXPECT_EQ(letzteZiehung(zweier(1887), Samstagslotto)->s, 4);
    EXPECT_FALSE(letzteZiehung(archivAus({{1, 2, 3, 4, 5, 60}}), Samstagslotto));
    EXPECT_FALSE(letzteZiehung(archivAus({{1, 2, 3, 4, 5, 5}}), Samstagslotto));
}

TEST(Zeitreise, ZahlenAusserhalbDesSpielsTreffenNichts)
{
    const ZiehungsArchiv archiv = archivAus({{0, -1, 64, 65, 100, 1}});
    const Zeitreise zeitreise = evaluateAlle(archiv, kTip, 0, Samstagslotto);
    EXPECT_EQ(zaehlerstand(zeitreise, 1, false), 1);
    EXPECT_EQ(zeitreise.zeilen[0].getroffen, (std::array<bool, 6>{false, false, false, false, false, true}));
}

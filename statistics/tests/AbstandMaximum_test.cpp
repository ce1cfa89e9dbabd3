#include "statistics/logic/AbstandAuswertung.h"
#include "statistics/logic/AbstandMaximum.h"
#include "testhilfen/AbstandReferenz.h"
#include "testhilfen/ArchivAus.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace {

constexpr std::array kModi{ZZModus::Ohne, ZZModus::Mit, ZZModus::Nur};

/// Draws by chance; with few numbers many absences are equal.
ZiehungsArchiv zufaellig(std::mt19937& wuerfel, std::size_t anzahl, int zahlen)
{
    std::vector<std::int32_t> alle;
    for (int zahl = 1; zahl <= zahlen; ++zahl)
        alle.push_back(50 - zahl);
    std::vector<TestZiehung> ziehungen;
    for (std::size_t i = 0; i < anzahl; ++i) {
        std::shuffle(alle.begin(), alle.end(), wuerfel);
        TestZiehung ziehung{2000, 1 + static_cast<std::int32_t>(i), {}, i % 3 == 0 ? 0 : alle[6]};
        std::copy_n(alle.begin(), 6, ziehung.zahlen.begin());
        ziehungen.push_back(ziehung);
    }
    return archivAus(Samstagslotto, ziehungen);
}

TEST(AbstandMaximum, GibtDasselbeWieDerEinfacheDurchlauf)
{
    std::mt19937 wuerfel(49);
    for (const int zahlen : {7, 8, 12, 49}) {
        for (const std::size_t anzahl : {0U, 1U, 2U, 7U, 36U, 37U, 60U, 300U}) {
            for (int lauf = 0; lauf < 20; ++lauf) {
                const ZiehungsArchiv archiv = zufaellig(wuerfel, anzahl, zahlen);
                for (const ZZModus modus : kModi)
                    EXPECT_EQ(laengsterAbstand(archiv, modus), laengsterAbstandEinfach(archiv, modus))
                        << anzahl << " Ziehungen von " << zahlen << ' ' << zzText(modus);
            }
        }
    }
}

TEST(AbstandMaximum, ZaehltDenErstenTrefferVonVorDerErstenZiehungAn)
{
    std::vector<TestZiehung> ziehungen(9, TestZiehung{2000, 7, {1, 2, 3, 4, 5, 6}, 0});
    ziehungen[8].zahlen = {1, 2, 3, 4, 5, 49};
    const ZiehungsArchiv archiv = archivAus(Samstagslotto, ziehungen);
    EXPECT_EQ(laengsterAbstand(archiv, ZZModus::Ohne), (LaengsterAbstand{49, 9, 2000, 7, 9}));
    EXPECT_EQ(werteAbstandAus(archiv, 49, ZZModus::Ohne).treffer[0].wochen, 8);
}

TEST(AbstandMaximum, VonGleichenGiltDieNiedrigsteZahl)
{
    std::vector<TestZiehung> ziehungen(20, TestZiehung{2000, 1, {1, 2, 3, 4, 5, 6}, 0});
    ziehungen[8].zahlen = {1, 2, 3, 4, 5, 49};
    ziehungen[9].zahlen = {1, 2, 3, 4, 5, 20};
    ziehungen[18].zahlen = {1, 2, 3, 4, 5, 49};
    EXPECT_EQ(laengsterAbstand(archivAus(Samstagslotto, ziehungen), ZZModus::Ohne),
              (LaengsterAbstand{20, 10, 2000, 1, 10}));
}

TEST(AbstandMaximum, InnerhalbDerZahlGiltDieFruehesteZiehung)
{
    std::vector<TestZiehung> ziehungen(30, TestZiehung{2000, 1, {1, 2, 3, 4, 5, 6}, 0});
    for (const std::size_t nr : {10U, 20U, 30U})
        ziehungen[nr - 1].zahlen = {1, 2, 3, 4, 5, 20};
    EXPECT_EQ(laengsterAbstand(archivAus(Samstagslotto, ziehungen), ZZModus::Ohne),
              (LaengsterAbstand{20, 10, 2000, 1, 10}));
}

TEST(AbstandMaximum, OhneTrefferKeineZahl)
{
    EXPECT_EQ(laengsterAbstand(ZiehungsArchiv(), ZZModus::Mit), LaengsterAbstand());
    EXPECT_EQ(laengsterAbstand(archivAus(Samstagslotto, {{2000, 1, {1, 2, 3, 4, 5, 6}, 0}}), ZZModus::Nur),
              LaengsterAbstand());
}

TEST(AbstandMaximum, UebergehtZahlenAusserhalb)
{
    const auto archiv = archivAus(Samstagslotto, {{2000, 1, {-5, 0, 50, 99, 2147483647, 3}, -7}});
    EXPECT_EQ(laengsterAbstand(archiv, ZZModus::Mit), (LaengsterAbstand{3, 1, 2000, 1, 1}));
}

TEST(AbstandMaximum, LoeschtDieErstenSechsunddreissigZusatzzahlen)
{
    ZiehungsArchiv archiv =
        archivAus(Mittwochslotto, std::vector<TestZiehung>(40, TestZiehung{2000, 1, {1, 2, 3, 4, 5, 6}, 49}));
    loescheFrueheZusatzzahlen(archiv);
    for (std::size_t nr = 0; nr <= 40; ++nr)
        EXPECT_EQ(archiv.zz[nr], nr < 37 ? 0 : 49) << nr;
}

TEST(AbstandMaximum, LoeschtInEinemKuerzerenArchivAlle)
{
    ZiehungsArchiv archiv = archivAus(Mittwochslotto, {{2000, 1, {1, 2, 3, 4, 5, 6}, 49}});
    loescheFrueheZusatzzahlen(archiv);
    EXPECT_EQ(archiv.zz, (std::vector<std::int32_t>{0, 0}));
    ZiehungsArchiv leer;
    loescheFrueheZusatzzahlen(leer);
    EXPECT_EQ(leer.zz.size(), 1U);
}

TEST(AbstandMaximum, NenntDasErgebnis)
{
    const LaengsterAbstand abstand{7, 312, 1961, 9, 85};
    EXPECT_EQ(laengsterAbstandText(abstand, ZZModus::Ohne),
              "Die Gewinnzahl 07 wurde mit Zieh.Nr.  312 1961/09, nach   85 Wochen wieder gezogen\n"
              " *** Längster Ausbleibezeitraum überhaupt (ohne Zusatzzahl) ***");
    EXPECT_EQ(laengsterAbstandText(abstand, ZZModus::Mit),
              "Die Gewinnzahl 07 wurde mit Zieh.Nr.  312 1961/09, nach   85 Wochen wieder gezogen\n"
              " *** Längster Ausbleibezeitraum überhaupt (mit Zusatzzahl) ***");
    EXPECT_EQ(laengsterAbstandText(abstand, ZZModus::Nur),
              "Die Zusatzzahl 07 wurde mit Zieh.Nr.  312 1961/09, nach   85 Wochen wieder gezogen\n"
              " *** Längster Ausbleibezeitraum überhaupt (nur Zusatzzahl) ***");
    EXPECT_EQ(laengsterAbstandText({}, ZZModus::Ohne),
              " *** Längster Ausbleibezeitraum überhaupt (ohne Zusatzzahl) ***");
}

} // namespace

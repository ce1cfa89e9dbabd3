#include "testhilfen/ArchivAus.h"
#include "testhilfen/Pruefordner.h"
#include "tips/logic/Scheinvergleich.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::Optional;
using testing::SizeIs;

constexpr Zahlenreihe kTipp{3, 7, 12, 23, 34, 45};
const std::string kZeile = "202418. 3. 7.12.23.34.45:5";

/// `anzahl` draws that hit nothing, then for each count of hits one draw without and one with the Superzahl 5, and
/// Wednesday's Superzahl begins between the first and the second of `beginntVor`.
ZiehungsArchiv alleFaelle(std::int32_t davor)
{
    std::vector<TestZiehung> ziehungen(static_cast<std::size_t>(davor), {1990, 1, {1, 2, 4, 5, 6, 8}});
    for (std::size_t treffer = 0; treffer <= 6; ++treffer)
        for (int sz = 0; sz < 2; ++sz) {
            TestZiehung ziehung{2024, static_cast<std::int32_t>(10 + treffer), {1, 2, 4, 5, 6, 8}};
            std::copy_n(kTipp.begin(), treffer, ziehung.zahlen.begin());
            ziehungen.push_back(ziehung);
        }
    ZiehungsArchiv archiv = archivAus(Mittwochslotto, ziehungen);
    for (std::size_t nr = archiv.s.size() - 14; nr < archiv.s.size(); ++nr)
        archiv.s[nr] = (nr - (archiv.s.size() - 14)) % 2 == 1 ? 5 : 6;
    return archiv;
}

Scheinvergleich vergleiche(const ZiehungsArchiv& archiv, const std::string& bytes,
                           const std::string& name = "M_202418.dat")
{
    Scheinvergleich vergleich(archiv, kLinieEinSchein);
    Takt takt({});
    EXPECT_TRUE(vergleich.nimmAuf(name, tippscheinzeilen(bytes), takt));
    return vergleich;
}

std::vector<std::string> zeilen(const Scheinvergleich& vergleich)
{
    std::vector<std::string> alle;
    for (std::size_t i = 0; i < vergleich.zeilenzahl(); ++i)
        alle.push_back(vergleich.zeile(i));
    return alle;
}

TEST(Scheinvergleich, JedeKlasseHatIhreZeileUndIhrenZaehler)
{
    const Scheinvergleich vergleich = vergleiche(alleFaelle(496), kZeile);
    EXPECT_THAT(zeilen(vergleich),
                ElementsAre("**** Größere Gewinne (ab Vierer werden markiert ! ****", std::string(30, '*'),
                            "*    Tipschein M_2024/18     *", std::string(30, '*'),
                            "**Tip    103 07 12 23 34 45   5 **/18", std::string(30, '-'),
                            "2024/12  03 07 04 05 06 08   5 (2er+SZ)", "2024/13  03 07 12 05 06 08   6 (3er)",
                            "2024/13  03 07 12 05 06 08   5 (3er+SZ)", "2024/14  03 07 12 23 06 08   6 (4er)",
                            "2024/14  03 07 12 23 06 08   5 (4er+SZ)", "2024/15  03 07 12 23 34 08   6 (5er)",
                            "2024/15  03 07 12 23 34 08   5 (5er+SZ)", "2024/16  03 07 12 23 34 45   6 (6er)",
                            "2024/16  03 07 12 23 34 45   5 (6er+SZ)"));
    EXPECT_THAT(vergleich.groessere(), ElementsAre(9, 10, 11, 12, 13, 14));
    const Trefferbilanz& bilanz = vergleich.bilanz();
    EXPECT_EQ(bilanz.Null, 496 + 2);
    EXPECT_EQ(bilanz.Einer, 2);
    EXPECT_EQ(bilanz.zweierRoh, 2);
    EXPECT_EQ(bilanz.Zweier(), 1);
    for (int klasse = 1; klasse <= 9; ++klasse)
        EXPECT_EQ(bilanz.anzahl(static_cast<Gewinnklasse>(klasse)), 1) << klasse;
}

TEST(Scheinvergleich, OhneSuperzahlGibtEsKeineKlasseMitSuperzahl)
{
    for (const char* ende : {"", "x", "15"}) {
        const Scheinvergleich vergleich = vergleiche(alleFaelle(496), kZeile.substr(0, 25) + ende);
        EXPECT_EQ(vergleich.zeile(4), "**Tip    103 07 12 23 34 45   - **/18");
        EXPECT_EQ(vergleich.bilanz().Zweier(), 2);
        EXPECT_EQ(vergleich.bilanz().anzahl(Gewinnklasse::GK2), 2);
        EXPECT_EQ(vergleich.bilanz().anzahl(Gewinnklasse::GK1), 0);
        EXPECT_EQ(vergleich.bilanz().anzahl(Gewinnklasse::GK9), 0);
    }
}

TEST(Scheinvergleich, VorDemBeginnDerSuperzahlStehtEinStrich)
{
    const Scheinvergleich vergleich = vergleiche(alleFaelle(482), kZeile);
    EXPECT_EQ(vergleich.zeile(6), "2024/13  03 07 12 05 06 08   - (3er)");
    EXPECT_EQ(vergleich.zeilenzahl(), 6U + 8U);
    EXPECT_EQ(vergleich.bilanz().anzahl(Gewinnklasse::GK9), 0);
}

TEST(Scheinvergleich, FalscheZahlenTreffenNichtsUndDoppelteEinmal)
{
    const Scheinvergleich vergleich = vergleiche(alleFaelle(496), "202418.45. 0.50. 3. 3.-1:5");
    EXPECT_EQ(vergleich.zeile(4), "**Tip    145 00 50 03 03 -01   5 **/18");
    EXPECT_EQ(vergleich.bilanz().zweierRoh, 2) << "die beiden Sechser";
    EXPECT_EQ(vergleich.bilanz().Einer, 10);
}

TEST(Scheinvergleich, ZeilenOhneTippZaehlenNurInDerNummer)
{
    const Scheinvergleich vergleich = vergleiche(archivAus({{1, 2, 4, 5, 6, 8}}), "\r\n202\r\n" + kZeile + "\r\n\r\n");
    EXPECT_THAT(zeilen(vergleich), SizeIs(6));
    EXPECT_EQ(vergleich.zeile(4), "**Tip    303 07 12 23 34 45   5 **/18");
    EXPECT_EQ(vergleich.bilanz().Null, 1);
}

TEST(Scheinvergleich, DieZahlenStehenAuchBeimZwoelftenTippAnIhrerStelle)
{
    std::string bytes;
    for (int i = 0; i < 12; ++i)
        bytes += kZeile + "\r\n";
    const Scheinvergleich vergleich = vergleiche(archivAus({{1, 2, 4, 5, 6, 8}}), bytes);
    EXPECT_EQ(vergleich.zeile(4 + 2 * 11), "**Tip   1203 07 12 23 34 45   5 **/18");
    EXPECT_EQ(vergleich.zeile(4).substr(10, 17), "03 07 12 23 34 45");
    EXPECT_EQ(vergleich.zeile(4 + 2 * 11).substr(10, 17), "03 07 12 23 34 45");
}

TEST(Scheinvergleich, EineJahresdateiNimmtDieWocheAusJederZeile)
{
    const Scheinvergleich vergleich = vergleiche(
        archivAus({{1, 2, 4, 5, 6, 8}}), "199901. 3. 7.12.23.34.45:5\r\n199952. 1. 2. 4.30.31.32:\r\n", "S_1999al.dat");
    EXPECT_THAT(zeilen(vergleich),
                ElementsAre("**** Größere Gewinne (ab Vierer werden markiert ! ****", std::string(30, '*'),
                            "*    Tipschein S_1999/AL     *", std::string(30, '*'), "1999 3. 7.12.23.34.45:5Tip1:  ",
                            "**Tip    103 07 12 23 34 45   5 **/01", std::string(30, '-'),
                            "1999 1. 2. 4.30.31.32:Tip2:  ", "**Tip    201 02 04 30 31 32   - **/52",
                            std::string(30, '-'), "2000/01  01 02 04 05 06 08   - (3er)"));
}

TEST(Scheinvergleich, EinKlickZeigtZiehungOderTipp)
{
    const Scheinvergleich vergleich = vergleiche(alleFaelle(496), kZeile);
    for (const std::size_t ohne : {0U, 1U, 2U, 3U, 5U, 15U, 99U})
        EXPECT_EQ(vergleich.anzeige(ohne), std::nullopt) << ohne;
    EXPECT_THAT(vergleich.anzeige(4), Optional(Scheinvergleich::Anzeige{kTipp, "Tip 1"}));
    EXPECT_THAT(vergleich.anzeige(7), Optional(Scheinvergleich::Anzeige{{3, 7, 12, 5, 6, 8}, "2024/13"}));
    EXPECT_EQ(vergleich.zeile(99), "");
}

TEST(Scheinvergleich, OhneScheineGibtEsKeineZeile)
{
    EXPECT_EQ(Scheinvergleich().zeilenzahl(), 0U);
    EXPECT_EQ(Scheinvergleich().zeile(0), "");
    EXPECT_EQ(Scheinvergleich().anzeige(0), std::nullopt);
}

TEST(Scheinvergleich, MehrereScheineZaehlenZusammen)
{
    const Pruefordner ordner;
    ordner.lege("M_202418.dat", kZeile);
    ordner.lege("M_202419.dat", kZeile + "\n" + kZeile);
    std::filesystem::create_directory(ordner / "M_202421.dat");
    Scheinvergleich einer(alleFaelle(496), kLinieEinSchein);
    EXPECT_TRUE(compareSlipFile(einer, ordner.pfad(), "M_202418.dat").vollstaendig);
    Scheinvergleich alle(alleFaelle(496), kLinieAlleScheine);
    const Scheingang gang =
        compareAllSlips(alle, ordner.pfad(), {"M_202418.dat", "M_202420.dat", "M_202419.dat", "M_202421.dat"});
    EXPECT_TRUE(gang.vollstaendig);
    EXPECT_THAT(gang.fehler, ElementsAre(Scheinfehler{"M_202420.dat", Dateistand::Fehlt},
                                         Scheinfehler{"M_202421.dat", Dateistand::Unlesbar}));
    EXPECT_EQ(alle.bilanz().gewinne(), 3 * einer.bilanz().gewinne());
    EXPECT_EQ(alle.bilanz().Einer, 3 * einer.bilanz().Einer);
    EXPECT_EQ(alle.zeilenzahl(), 1U + 2 * 3 + 3 * (2 + 9));
    EXPECT_EQ(alle.zeile(1), std::string(28, '*'));
    EXPECT_EQ(alle.zeile(5), std::string(28, '-'));
    EXPECT_EQ(alle.zeile(16), "*    Tipschein M_2024/19     *");
}

TEST(Scheinvergleich, EinHaltLaesstWasFertigIst)
{
    const Pruefordner ordner;
    std::vector<std::string> namen;
    for (int i = 0; i < 200; ++i) {
        namen.push_back("M_" + std::to_string(202000 + i) + ".dat");
        ordner.lege(namen.back(), kZeile);
    }
    Scheinvergleich vergleich(alleFaelle(200'000), kLinieAlleScheine);
    std::uint64_t zuletzt = 0;
    const Scheingang gang = compareAllSlips(vergleich, ordner.pfad(), namen, [&](std::uint64_t erledigt) {
        zuletzt = erledigt;
        return false;
    });
    EXPECT_FALSE(gang.vollstaendig);
    EXPECT_LT(zuletzt, 200U);
    const std::size_t jeSchein = 3 + 2 + 9;
    EXPECT_EQ((vergleich.zeilenzahl() - 1) % jeSchein, 0U) << "kein halber Tipp";
    EXPECT_EQ((vergleich.zeilenzahl() - 1) / jeSchein, zuletzt + 1);
}

TEST(Scheinvergleich, EinLeeresArchivGibtNurDieTipps)
{
    const Scheinvergleich vergleich = vergleiche(ZiehungsArchiv{}, kZeile);
    EXPECT_EQ(vergleich.zeilenzahl(), 6U);
    EXPECT_EQ(vergleich.bilanz(), Trefferbilanz{});
}

} // namespace

#include "testhilfen/ArchivAus.h"
#include "tips/logic/Tippvergleich.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

constexpr Kombination kZiehung{3, 7, 12, 23, 34, 45};
constexpr std::int32_t kSZ = 5;

Reihenvergleich vergleiche(const Tippreihe& reihe)
{
    return compareSlip({reihe}, kZiehung, kSZ).front();
}

/// A row with the first `treffer` numbers of the draw and others, that hit nothing, in rising order.
Tippreihe mitTreffern(std::size_t treffer, const std::string& superzahl)
{
    Kombination zahlen{4, 8, 13, 24, 35, 46};
    std::copy_n(kZiehung.begin(), treffer, zahlen.begin());
    Tippreihe reihe;
    for (std::size_t i = 0; i < zahlen.size(); ++i)
        reihe.zahlen[i] = std::to_string(zahlen[i]);
    reihe.superzahl = superzahl;
    return reihe;
}

TEST(Tippvergleich, JederFallDerTrefferUndDerSuperzahl)
{
    const std::array<std::string, 7> ohne{"0", "1", "2", "3-er", "4-er", "5-er", "6-er"};
    const std::array<std::string, 7> mit{"0", "1", "2-er+SZ", "3-er+SZ", "4-er+SZ", "5-er+SZ", "6-er+SZ"};
    for (std::size_t treffer = 0; treffer <= 6; ++treffer) {
        EXPECT_EQ(vergleiche(mitTreffern(treffer, "5")).gewinn, mit[treffer]);
        for (const char* superzahl : {"", "6", "x", "15", "-5"})
            EXPECT_EQ(vergleiche(mitTreffern(treffer, superzahl)).gewinn, ohne[treffer]) << superzahl;
    }
}

TEST(Tippvergleich, DieSuperzahlWirdErstAbZweiTreffernAngesehen)
{
    EXPECT_FALSE(vergleiche(mitTreffern(0, "5")).superzahlGetroffen);
    EXPECT_FALSE(vergleiche(mitTreffern(1, "5")).superzahlGetroffen);
    EXPECT_TRUE(vergleiche(mitTreffern(2, "5")).superzahlGetroffen);
    EXPECT_FALSE(vergleiche(mitTreffern(6, "4")).superzahlGetroffen);
}

TEST(Tippvergleich, EineFalscheReiheZeigtTrefferUndHatKeinenGewinn)
{
    const Reihenvergleich doppelt = vergleiche({{"3", "3", "x", "", "50", "45"}, "5"});
    EXPECT_EQ(doppelt.stand, Reihenstand::Fehler);
    EXPECT_THAT(doppelt.getroffen, ElementsAre(true, true, false, false, false, true));
    EXPECT_TRUE(doppelt.superzahlGetroffen);
    EXPECT_EQ(doppelt.gewinn, "");
    EXPECT_EQ(vergleiche({{"45", "34", "23", "12", "7", "3"}, "5"}).gewinn, "");
}

TEST(Tippvergleich, EineLeereReiheHatNichts)
{
    EXPECT_EQ(vergleiche({{}, "5"}), Reihenvergleich{});
}

TEST(Tippvergleich, ZahlenMitLeerzeichenUndNullenZaehlen)
{
    EXPECT_EQ(vergleiche({{" 3", "07", "012", " 23 ", "34", "45"}, " 5"}).gewinn, "6-er+SZ");
}

TEST(Tippvergleich, DieFelderDerZiehung)
{
    EXPECT_EQ(vergleichsziehung({"3", "7", "12", "23", "34", "45", "5"}), (Vergleichsziehung{kZiehung, kSZ}));
    EXPECT_EQ(vergleichsziehung({" 1", "02", "3", "4", "5", "49", "0"}), (Vergleichsziehung{{1, 2, 3, 4, 5, 49}, 0}));
    for (const Ziehungstexte& falsch : std::vector<Ziehungstexte>{{"", "7", "12", "23", "34", "45", "5"},
                                                                  {"3", "7", "12", "23", "34", "45", ""},
                                                                  {"3", "7", "12", "23", "34", "45", "10"},
                                                                  {"3", "7", "12", "23", "34", "45", "-1"},
                                                                  {"0", "7", "12", "23", "34", "45", "5"},
                                                                  {"3", "7", "12", "23", "34", "50", "5"},
                                                                  {"3", "7", "12", "23", "34", "34", "5"},
                                                                  {"7", "3", "12", "23", "34", "45", "5"},
                                                                  {"3", "4 9", "12", "23", "34", "45", "5"},
                                                                  {"3", "7", "12", "23", "34", "99999999999", "5"},
                                                                  {"3", "7", "12", "23", "34", "vierzig", "5"}})
        EXPECT_EQ(vergleichsziehung(falsch), std::nullopt);
}

TEST(Tippvergleich, EineZiehungDesArchivsWirdZuFeldern)
{
    ZiehungsArchiv archiv = archivAus({{1, 2, 3, 4, 5, 49}});
    archiv.s[1] = 7;
    EXPECT_THAT(ziehungstexte(archiv, 1), ElementsAre("1", "2", "3", "4", "5", "49", "7"));
    EXPECT_TRUE(vergleichsziehung(ziehungstexte(archiv, 1)));
}

} // namespace

#include "filters/logic/Ziehungsfolge.h"
#include "testhilfen/ArchivAus.h"

#include <gmock/gmock.h>

namespace {

using testing::SizeIs;

/// A combined archive of these dates; the first number of each draw is its place there.
ZiehungsArchiv zusammen(const std::vector<std::string>& daten)
{
    std::vector<Zahlenreihe> reihen;
    for (std::size_t i = 0; i < daten.size(); ++i)
        reihen.push_back({static_cast<int>(i) + 1, 44, 45, 46, 47, 48});
    ZiehungsArchiv archiv = archivAus(reihen);
    archiv.DatumAlle.insert(archiv.DatumAlle.end(), daten.begin(), daten.end());
    return archiv;
}

std::vector<int> ersteZahlen(const Ziehungsfolge& folge)
{
    std::vector<int> zahlen;
    for (const Folgeziehung& ziehung : folge.ziehungen)
        zahlen.push_back(ziehung.zahlen[0]);
    return zahlen;
}

TEST(Ziehungsfolge, EinSpielStehtNachSeinerZiehungsNr)
{
    ZiehungsArchiv archiv = zusammen({"", "", ""});
    archiv.Datum = {"", "So, 16.10.1955", "So, 09.10.1955", "So, 02.10.1955"};
    EXPECT_THAT(ersteZahlen(*einzelneFolge(archiv)), testing::ElementsAre(1, 2, 3));
}

TEST(Ziehungsfolge, MehrereSpieleStehenNachIhrenTagen)
{
    const auto folge =
        gemischteFolge(zusammen({"Sa, 25.11.2000", "Sa, 02.12.2000", "Mi, 29.11.2000", "Mi, 29.11.2000 (B)"}));
    EXPECT_THAT(ersteZahlen(*folge), testing::ElementsAre(1, 3, 4, 2));
}

TEST(Ziehungsfolge, EineDateiAlleinBehaeltIhreReihenfolge)
{
    const auto folge = gemischteFolge(zusammen({"So, 09.10.1955", "So, 16.10.1955", "So, 23.10.1955"}));
    EXPECT_THAT(ersteZahlen(*folge), testing::ElementsAre(1, 2, 3));
}

TEST(Ziehungsfolge, DieSuperzahlBeginntMitIhrerZiehung)
{
    ZiehungsArchiv archiv = archivAus(std::vector<Zahlenreihe>(1887, {1, 2, 3, 4, 5, 6}));
    archiv.s.assign(archiv.s.size(), 4);
    const auto samstags = einzelneFolge(archiv);
    EXPECT_EQ(superzahltext(samstags->ziehungen[1885]), "-");
    EXPECT_EQ(superzahltext(samstags->ziehungen[1886]), "4");
    archiv.Spielart = Mittwochslotto;
    const auto mittwochs = einzelneFolge(archiv);
    EXPECT_EQ(superzahltext(mittwochs->ziehungen[495]), "-");
    EXPECT_EQ(superzahltext(mittwochs->ziehungen[496]), "4");
}

TEST(Ziehungsfolge, DieZeileHaeltIhreSpalten)
{
    ZiehungsArchiv archiv = zusammen({"Mi, 22.11.2000 (B)", "Sa, 25.11.2000"});
    archiv.s = {0, 11, 7};
    archiv.zz = {0, 0, 33};
    const auto folge = gemischteFolge(archiv);
    EXPECT_EQ(folgezeile(*folge, 0), " 2000  01  01 44 45 46 47 48  00    -   Mi, 22.11.2000 (B)   Nr.     1");
    EXPECT_EQ(folgezeile(*folge, 1), " 2000  01  02 44 45 46 47 48  33    7   Sa, 25.11.2000       Nr.     2");
}

TEST(Ziehungsfolge, EinLeeresArchivGibtKeine)
{
    EXPECT_THAT(einzelneFolge(ZiehungsArchiv{})->ziehungen, SizeIs(0));
    EXPECT_THAT(gemischteFolge(ZiehungsArchiv{})->ziehungen, SizeIs(0));
}

TEST(Ziehungsfolge, AngehaengteDateienSindEinGemeinsamesArchiv)
{
    ZiehungsArchiv samstags = archivAus({{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12}});
    samstags.Datum = {"", "Sa, 25.11.2000", "Sa, 02.12.2000", "eine Woche darauf"};
    ZiehungsArchiv mittwochs = archivAus(Mittwochslotto, {{2000, 1, {13, 14, 15, 16, 17, 18}}});
    mittwochs.Datum = {"", "Mi, 29.11.2000"};
    mittwochs.jjjj.push_back(1); // what a load that broke off has left behind the draws
    ZiehungsArchiv beide;
    haengeAn(beide, samstags);
    haengeAn(beide, mittwochs);
    EXPECT_EQ(beide.AnzahlZiehungen, 3);
    for (const ZiehungsArchiv::Spalte* spalte : beide.spalten())
        EXPECT_THAT(*spalte, SizeIs(4));
    EXPECT_EQ(beide.s[3], kOhneSuperzahl);
    EXPECT_THAT(ersteZahlen(*gemischteFolge(beide)), testing::ElementsAre(1, 13, 7));
}

} // namespace

#include "archive/logic/Ziehungskalender.h"

#include <clocale>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <utility>
#include <vector>

using namespace std::chrono;

namespace {

ZiehungsArchiv samstage(std::int32_t anzahl)
{
    ZiehungsArchiv archiv;
    archiv.AnzahlZiehungen = anzahl;
    BaueSamstagsDaten(archiv);
    return archiv;
}

ZiehungsArchiv mittwoche(std::int32_t anzahl)
{
    ZiehungsArchiv archiv;
    archiv.AnzahlZiehungen = anzahl;
    BaueMittwochsDaten(archiv);
    return archiv;
}

/// The weekday by Zeller's congruence, 0 Saturday to 6 Friday, from the digits of a date text.
int wochentagNachZeller(const std::string& datum)
{
    const int tag = std::stoi(datum.substr(4, 2));
    int monat = std::stoi(datum.substr(7, 2));
    int jahr = std::stoi(datum.substr(10, 4));
    if (monat < 3) {
        monat += 12;
        --jahr;
    }
    return (tag + 13 * (monat + 1) / 5 + jahr + jahr / 4 - jahr / 100 + jahr / 400) % 7;
}

const std::vector<std::pair<int, std::string>> kVerlegteZiehungen{
    {12, "Mo, 26.12.1955"},  {26, "Mo, 02.04.1956"},  {33, "Mo, 21.05.1956"},  {80, "Mo, 22.04.1957"},
    {87, "Mo, 10.06.1957"},  {130, "Mo, 07.04.1958"}, {236, "Mo, 18.04.1960"}, {243, "Mo, 06.06.1960"},
    {272, "Mo, 26.12.1960"}, {286, "Mo, 03.04.1961"}, {293, "Mo, 22.05.1961"}, {324, "Di, 26.12.1961"},
    {341, "Mo, 23.04.1962"}, {348, "Mo, 11.06.1962"}, {392, "Mo, 15.04.1963"}, {399, "Mo, 03.06.1963"},
    {442, "Mo, 30.03.1964"}, {449, "Mo, 18.05.1964"}, {497, "Mo, 19.04.1965"}, {504, "Mo, 07.06.1965"},
};

} // namespace

TEST(Samstagskalender, BeginntMitDemSonntagDerErstenZiehung)
{
    EXPECT_EQ(samstage(1).Datum[1], "So, 09.10.1955");
}

TEST(Samstagskalender, Hat918Sonntage19Montage1DienstagUnd17Samstage)
{
    const ZiehungsArchiv archiv = samstage(955);
    std::map<std::string, int> mal;
    for (std::size_t nr = 1; nr <= 955; ++nr)
        ++mal[archiv.Datum[nr].substr(0, 2)];
    EXPECT_EQ(mal, (std::map<std::string, int>{{"So", 918}, {"Mo", 19}, {"Di", 1}, {"Sa", 17}}));
}

TEST(Samstagskalender, VerlegteZiehungenStehenAnIhremTag)
{
    const ZiehungsArchiv archiv = samstage(955);
    for (const auto& [nr, datum] : kVerlegteZiehungen)
        EXPECT_EQ(archiv.Datum[static_cast<std::size_t>(nr)], datum) << nr;
}

TEST(Samstagskalender, NurDieGenanntenZeilenWeichenVomSonntagAb)
{
    const ZiehungsArchiv archiv = samstage(955);
    std::set<std::size_t> abweichend;
    for (const auto& [nr, datum] : kVerlegteZiehungen)
        abweichend.insert(static_cast<std::size_t>(nr));
    for (std::size_t nr = 517; nr <= 533; ++nr)
        abweichend.insert(nr);
    for (std::size_t nr = 1; nr <= 955; ++nr)
        EXPECT_EQ(archiv.Datum[nr].substr(0, 2) == "So", !abweichend.contains(nr)) << archiv.Datum[nr];
}

TEST(Samstagskalender, VerlegteZiehungLiegtHinterDemSonntagIhrerWoche)
{
    for (const auto& [nr, datum] : kVerlegteZiehungen) {
        const days versatz = samstagsZiehung(nr) - samstagsZiehung(nr - 1) - days{7};
        EXPECT_EQ(versatz, days{nr == 324 ? 2 : 1}) << datum;
    }
}

TEST(Samstagskalender, OeffentlicheZiehungenVon1965LiegenAmSamstag)
{
    const ZiehungsArchiv archiv = samstage(955);
    EXPECT_EQ(archiv.Datum[516], "So, 29.08.1965");
    EXPECT_EQ(archiv.Datum[517], "Sa, 04.09.1965");
    EXPECT_EQ(archiv.Datum[533], "Sa, 25.12.1965");
    EXPECT_EQ(archiv.Datum[534], "So, 02.01.1966");
}

TEST(Samstagskalender, Am30Dezember1956WarKeineZiehung)
{
    const ZiehungsArchiv archiv = samstage(955);
    EXPECT_EQ(archiv.Datum[64], "So, 23.12.1956");
    EXPECT_EQ(archiv.Datum[65], "So, 06.01.1957");
}

TEST(Samstagskalender, Zeile955Und956LiegenSechsTageAuseinander)
{
    const ZiehungsArchiv archiv = samstage(956);
    EXPECT_EQ(archiv.Datum[955], "So, 27.01.1974");
    EXPECT_EQ(archiv.Datum[956], "Sa, 02.02.1974");
    EXPECT_EQ(samstagsZiehung(956) - samstagsZiehung(955), days{6});
}

TEST(Samstagskalender, SuperzahlBeginntAm7Dezember1991)
{
    const ZiehungsArchiv archiv = samstage(3693);
    EXPECT_EQ(archiv.Datum[1886], "Sa, 30.11.1991");
    EXPECT_EQ(archiv.Datum[1887], "Sa, 07.12.1991");
}

TEST(Samstagskalender, ZusatzzahlBeginntAm17Juni1956)
{
    EXPECT_EQ(samstage(37).Datum[37], "So, 17.06.1956");
}

TEST(Samstagskalender, NachZeile955IstJedeZiehungAmSamstagDerFolgewoche)
{
    for (std::int32_t nr = 957; nr <= kMaxZiehungenJeDatei; ++nr) {
        ASSERT_EQ(samstagsZiehung(nr) - samstagsZiehung(nr - 1), days{7}) << nr;
        ASSERT_EQ(weekday{samstagsZiehung(nr)}, Saturday) << nr;
    }
}

TEST(Samstagskalender, KurzeDateiHatTrotzdem955Zeilen)
{
    EXPECT_EQ(samstage(0).Datum.size(), 956U);
    EXPECT_EQ(samstage(12).Datum.size(), 956U);
    EXPECT_EQ(samstage(12).Datum[955], "So, 27.01.1974");
}

TEST(Samstagskalender, LangeDateiHatSoVieleZeilenWieZiehungen)
{
    EXPECT_EQ(samstage(3693).Datum.size(), 3694U);
    EXPECT_EQ(samstage(3693).Datum[3693], "Sa, 18.07.2026");
}

TEST(Samstagskalender, ErsetztEineLaengereTabelle)
{
    ZiehungsArchiv archiv = samstage(3693);
    archiv.AnzahlZiehungen = 1000;
    BaueSamstagsDaten(archiv);
    EXPECT_EQ(archiv.Datum.size(), 1001U);
    EXPECT_EQ(archiv.Datum[0], "");
}

TEST(Mittwochskalender, GehtOhneAusnahmeVonWocheZuWoche)
{
    const ZiehungsArchiv archiv = mittwoche(2095);
    ASSERT_EQ(archiv.Datum.size(), 2096U);
    EXPECT_EQ(archiv.Datum[1], "Mi, 04.06.1986");
    EXPECT_EQ(archiv.Datum[2095], "Mi, 22.07.2026");
    for (std::int32_t nr = 2; nr <= 2095; ++nr) {
        ASSERT_EQ(mittwochsZiehung(nr) - mittwochsZiehung(nr - 1), days{7});
        ASSERT_EQ(archiv.Datum[static_cast<std::size_t>(nr)].substr(0, 4), "Mi, ");
    }
}

TEST(Mittwochskalender, SuperzahlBeginntAm6Dezember1995)
{
    const ZiehungsArchiv archiv = mittwoche(2095);
    EXPECT_EQ(archiv.Datum[496], "Mi, 29.11.1995");
    EXPECT_EQ(archiv.Datum[497], "Mi, 06.12.1995");
}

TEST(Mittwochskalender, BSpielEndetAm29November2000)
{
    EXPECT_EQ(mittwoche(757).Datum[757], "Mi, 29.11.2000");
}

TEST(Mittwochskalender, ErsteZeileStehtAuchOhneZiehung)
{
    EXPECT_EQ(mittwoche(0).Datum, (std::vector<std::string>{"", "Mi, 04.06.1986"}));
}

TEST(Ziehungskalender, NegativeAnzahlGiltAlsKeine)
{
    EXPECT_EQ(samstage(-1).Datum.size(), 956U);
    EXPECT_EQ(mittwoche(-1).Datum.size(), 2U);
}

TEST(Ziehungskalender, JederWochentagIstDerWahre)
{
    const std::vector<std::string> nachZeller{"Sa", "So", "Mo", "Di", "Mi", "Do", "Fr"};
    const ZiehungsArchiv sa = samstage(3693);
    const ZiehungsArchiv mi = mittwoche(2095);
    for (std::size_t nr = 1; nr <= 3693; ++nr)
        ASSERT_EQ(sa.Datum[nr].substr(0, 2), nachZeller[static_cast<std::size_t>(wochentagNachZeller(sa.Datum[nr]))]);
    for (std::size_t nr = 1; nr <= 2095; ++nr)
        ASSERT_EQ(mi.Datum[nr].substr(0, 2), nachZeller[static_cast<std::size_t>(wochentagNachZeller(mi.Datum[nr]))]);
}

TEST(DatumText, HatAlleSiebenWochentage)
{
    const sys_days montag = year{2026} / July / 20;
    const std::vector<std::string> erwartet{"Mo, 20.07.2026", "Di, 21.07.2026", "Mi, 22.07.2026", "Do, 23.07.2026",
                                            "Fr, 24.07.2026", "Sa, 25.07.2026", "So, 26.07.2026"};
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(datumText(montag + days{i}), erwartet[static_cast<std::size_t>(i)]);
}

TEST(DatumText, HaengtNichtVonDerSpracheDesRechnersAb)
{
    const std::string vorher = std::setlocale(LC_ALL, nullptr);
    for (const char* sprache : {"C", "en_US.UTF-8", "tr_TR.UTF-8", ""}) {
        std::setlocale(LC_ALL, sprache);
        EXPECT_EQ(datumText(year{2026} / July / 18), "Sa, 18.07.2026") << sprache;
    }
    std::setlocale(LC_ALL, vorher.c_str());
}

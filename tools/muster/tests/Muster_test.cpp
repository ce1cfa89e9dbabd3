#include "archive/logic/ZiehungsArchiv.h"
#include "tools/muster/Muster.h"

#include <array>
#include <gtest/gtest.h>
#include <set>
#include <vector>

using namespace std::chrono;

namespace {

constexpr sys_days kStand = year{2026} / July / 24;
constexpr std::array<std::int16_t, 3> kSpielarten{Samstagslotto, Mittwochslotto, MittwochslottoB};

/// The lines of a sample without their CR LF; a line of another length than 30 ends the test.
std::vector<std::string> zeilen(const std::string& datei)
{
    std::vector<std::string> ergebnis;
    for (std::size_t i = 0; i < datei.size(); i += 32) {
        EXPECT_EQ(datei.substr(i + 30, 2), "\r\n") << "line " << ergebnis.size() + 1;
        ergebnis.push_back(datei.substr(i, 30));
    }
    return ergebnis;
}

int feld(const std::string& zeile, std::size_t ab, std::size_t laenge = 2)
{
    return std::stoi(zeile.substr(ab, laenge));
}

std::array<int, 6> gewinnzahlen(const std::string& zeile)
{
    std::array<int, 6> zahlen{};
    for (std::size_t i = 0; i < zahlen.size(); ++i)
        zahlen[i] = feld(zeile, 8 + 3 * i);
    return zahlen;
}

int zusatzzahl(const std::string& zeile)
{
    return feld(zeile, 26);
}
int superzahl(const std::string& zeile)
{
    return feld(zeile, 29, 1);
}

} // namespace

TEST(Muster, HatDieZiehungenBisZurLetztenVollenWoche)
{
    EXPECT_EQ(musterAnzahl(Samstagslotto, kStand), 3693);
    EXPECT_EQ(musterAnzahl(Mittwochslotto, kStand), 2094);
    for (const std::int16_t spielart : kSpielarten)
        EXPECT_EQ(zeilen(musterDatei(spielart, kStand)).size(),
                  static_cast<std::size_t>(musterAnzahl(spielart, kStand)));
}

TEST(Muster, WocheZaehltErstWennSieVorbeiIst)
{
    const sys_days sonntag = year{2026} / July / 19;
    EXPECT_EQ(musterAnzahl(Samstagslotto, sonntag), 3692);
    EXPECT_EQ(musterAnzahl(Samstagslotto, sonntag + days{1}), 3693);
    EXPECT_EQ(musterAnzahl(Samstagslotto, sonntag + days{7}), 3693);
    EXPECT_EQ(musterAnzahl(Samstagslotto, sonntag + days{8}), 3694);
}

TEST(Muster, EndetImBSpielAm29November2000)
{
    EXPECT_EQ(musterAnzahl(MittwochslottoB, kStand), 757);
    EXPECT_EQ(musterAnzahl(MittwochslottoB, year{2000} / December / 4), 757);
    EXPECT_EQ(musterAnzahl(MittwochslottoB, year{2000} / December / 3), 756);
    EXPECT_EQ(zeilen(musterDatei(MittwochslottoB, kStand)).back().substr(0, 7), "2000,48");
}

TEST(Muster, HatVorDerErstenZiehungKeine)
{
    EXPECT_EQ(musterDatei(Samstagslotto, year{1955} / October / 9), "");
    EXPECT_EQ(musterAnzahl(Samstagslotto, year{1955} / October / 10), 1);
    EXPECT_EQ(musterDatei(Mittwochslotto, year{1980} / January / 1), "");
}

TEST(Muster, HatNieMehrZiehungenAlsEineDateiFasst)
{
    EXPECT_EQ(musterAnzahl(Samstagslotto, year{9999} / December / 31), kMaxZiehungenJeDatei);
}

TEST(Muster, GewinnzahlenSindAufsteigendUndVerschieden)
{
    for (const std::int16_t spielart : kSpielarten) {
        for (const std::string& zeile : zeilen(musterDatei(spielart, kStand))) {
            const auto zahlen = gewinnzahlen(zeile);
            ASSERT_GE(zahlen.front(), 1);
            ASSERT_LE(zahlen.back(), 49);
            for (std::size_t i = 1; i < zahlen.size(); ++i)
                ASSERT_LT(zahlen[i - 1], zahlen[i]) << zeile;
        }
    }
}

TEST(Muster, JedeZahlKommtEtwaGleichOft)
{
    std::array<int, 50> mal{};
    for (const std::string& zeile : zeilen(musterDatei(Samstagslotto, kStand)))
        for (const int zahl : gewinnzahlen(zeile))
            ++mal[static_cast<std::size_t>(zahl)];
    // 3693 * 6 / 49 is 452; five standard deviations of 20.
    for (std::size_t zahl = 1; zahl < mal.size(); ++zahl)
        EXPECT_NEAR(mal[zahl], 452, 100) << zahl;
}

TEST(Muster, ZusatzzahlGibtEsAmSamstagVonZeile37Bis27April2013)
{
    const auto samstag = zeilen(musterDatei(Samstagslotto, kStand));
    for (std::size_t i = 0; i < samstag.size(); ++i)
        ASSERT_EQ(zusatzzahl(samstag[i]) != 0, i + 1 >= 37 && samstag[i].substr(0, 7) <= "2013,17") << samstag[i];
}

TEST(Muster, ZusatzzahlGibtEsAmMittwochBis1Mai2013)
{
    const auto mittwoch = zeilen(musterDatei(Mittwochslotto, kStand));
    for (const std::string& zeile : mittwoch)
        ASSERT_EQ(zusatzzahl(zeile) != 0, zeile.substr(0, 7) <= "2013,18") << zeile;
    for (const std::string& zeile : zeilen(musterDatei(MittwochslottoB, kStand)))
        ASSERT_NE(zusatzzahl(zeile), 0) << zeile;
}

TEST(Muster, ZusatzzahlIstKeineDerSechs)
{
    for (const std::string& zeile : zeilen(musterDatei(Samstagslotto, kStand))) {
        ASSERT_LE(zusatzzahl(zeile), 49);
        for (const int zahl : gewinnzahlen(zeile))
            ASSERT_NE(zahl, zusatzzahl(zeile)) << zeile;
    }
}

TEST(Muster, SuperzahlBeginntMitZeile1887Und497)
{
    for (const std::int16_t spielart : kSpielarten) {
        const auto alle = zeilen(musterDatei(spielart, kStand));
        const std::size_t beginn = spielart == Samstagslotto ? 1887 : 497;
        std::set<int> gesehen;
        for (std::size_t nr = 1; nr <= alle.size(); ++nr)
            if (nr < beginn)
                ASSERT_EQ(superzahl(alle[nr - 1]), 0) << nr;
            else
                gesehen.insert(superzahl(alle[nr - 1]));
        EXPECT_EQ(gesehen.size(), 10U) << "game " << spielart;
    }
}

TEST(Muster, SpielartenHabenVerschiedeneZahlen)
{
    EXPECT_NE(gewinnzahlen(zeilen(musterDatei(Mittwochslotto, kStand)).front()),
              gewinnzahlen(zeilen(musterDatei(MittwochslottoB, kStand)).front()));
}

TEST(Muster, IstJedesMalDasselbe)
{
    const auto samstag = zeilen(musterDatei(Samstagslotto, kStand));
    EXPECT_EQ(samstag, zeilen(musterDatei(Samstagslotto, kStand)));
    EXPECT_EQ(samstag[0], "1955,41,01,07,13,26,30,49,00,0");
    EXPECT_EQ(samstag[3692], "2026,29,13,15,18,19,25,48,00,9");
}

TEST(Muster, SpaetererStandHaengtNurAn)
{
    for (const std::int16_t spielart : kSpielarten) {
        const std::string heute = musterDatei(spielart, kStand);
        const std::string spaeter = musterDatei(spielart, kStand + weeks{100});
        EXPECT_TRUE(spaeter.starts_with(heute));
        EXPECT_EQ(spaeter.size() - heute.size(), spielart == MittwochslottoB ? 0U : 3200U);
    }
}

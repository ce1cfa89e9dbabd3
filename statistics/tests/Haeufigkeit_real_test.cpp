#include "archive/logic/Ziehungsdatei.h"
#include "statistics/logic/Haeufigkeit.h"
#include "statistics/logic/ZuletztVor.h"
#include "testhilfen/Datenordner.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace {

using Zeilen = std::vector<std::string>;

Zeilen liesZeilen(const std::string& name)
{
    std::ifstream datei(kEchteDaten / name);
    Zeilen zeilen;
    for (std::string zeile; std::getline(datei, zeile);)
        zeilen.push_back(zeile);
    return zeilen;
}

int zahlAb(const std::string& zeile, std::size_t stelle, std::size_t laenge)
{
    return std::stoi(zeile.substr(stelle, laenge));
}

/// The numbers of a record that count, by its fixed columns; a Zusatzzahl of "00" is none.
std::vector<int> zahlenDerZeile(const std::string& zeile, ZZModus modus)
{
    std::vector<int> zahlen;
    for (std::size_t feld = 0; feld < 7; ++feld) {
        const bool istZusatzzahl = feld == 6;
        const int zahl = zahlAb(zeile, 8 + 3 * feld, 2);
        if (zahl > 0 && (istZusatzzahl ? modus != ZZModus::Ohne : modus != ZZModus::Nur))
            zahlen.push_back(zahl);
    }
    return zahlen;
}

/// Counts in the text of the file; also the number of records in the range.
std::pair<std::array<int, 50>, int> zaehleImText(const Zeilen& zeilen, const Ziehungsbereich& bereich, ZZModus modus)
{
    std::array<int, 50> anzahl{};
    int ziehungen = 0;
    int nr = 0;
    for (const std::string& zeile : zeilen) {
        const int jahr = zahlAb(zeile, 0, 4);
        if (++nr > bereich.letzteZiehung || jahr < bereich.von || jahr > bereich.bis)
            continue;
        ++ziehungen;
        for (const int zahl : zahlenDerZeile(zeile, modus))
            ++anzahl.at(static_cast<std::size_t>(zahl));
    }
    return {anzahl, ziehungen};
}

class EchteZiehungen : public testing::TestWithParam<Spielart> {
protected:
    void SetUp() override
    {
        archiv_.Spielart = GetParam();
        archiv_.ProgrammVerzeichnis = kEchteDaten.string() + "/";
        const std::string name(ziehungsdateiName(GetParam()));
        if (!std::filesystem::exists(kEchteDaten / name))
            GTEST_SKIP() << "keine echten Ziehungen";
        zeilen_ = liesZeilen(name);
        LadeZiehungsdatei(archiv_, {});
    }

    ZiehungsArchiv archiv_;
    Zeilen zeilen_;
};

TEST_P(EchteZiehungen, ZaehlenWieImText)
{
    ASSERT_GT(zeilen_.size(), 700U);
    ASSERT_EQ(static_cast<std::size_t>(archiv_.AnzahlZiehungen), zeilen_.size());
    const std::vector<Ziehungsbereich> bereiche{
        {1955, 2026},     {1955, 1955},      {1956, 1956},    {1986, 1986},      {1986, 2000},
        {2013, 2013},     {2013, 2026},      {2027, 9999},    {1955, 2026, 1},   {1955, 2026, 36},
        {1955, 2026, 37}, {1955, 2026, 757}, {1955, 2026, 0}, {1990, 1999, 700}, {1955, 2026, 99999}};
    for (const Ziehungsbereich& bereich : bereiche) {
        for (const ZZModus modus : {ZZModus::Ohne, ZZModus::Mit, ZZModus::Nur}) {
            const Haeufigkeit haeufigkeit = zaehleHaeufigkeit(archiv_, bereich, modus);
            const auto [anzahl, ziehungen] = zaehleImText(zeilen_, bereich, modus);
            EXPECT_EQ(haeufigkeit.AusgewerteteZiehungen, ziehungen) << bereich.von << '-' << bereich.bis;
            for (int zahl = 1; zahl <= 49; ++zahl)
                EXPECT_EQ(haeufigkeit.fuer(zahl), anzahl[static_cast<std::size_t>(zahl)])
                    << zzText(modus) << ' ' << bereich.von << '-' << bereich.bis << " Zahl " << zahl;
        }
    }
}

TEST_P(EchteZiehungen, ZuletztVorWieImText)
{
    const std::size_t beginn = GetParam() == Samstagslotto ? 2000 : 241;
    for (const ZZModus modus : {ZZModus::Ohne, ZZModus::Mit, ZZModus::Nur}) {
        std::array<std::size_t, 50> letzte{};
        for (std::size_t nr = beginn; nr <= zeilen_.size(); ++nr)
            for (const int zahl : zahlenDerZeile(zeilen_[nr - 1], modus))
                letzte.at(static_cast<std::size_t>(zahl)) = nr;
        const ZuletztVor zuletzt = zuletztVor(archiv_, modus);
        for (std::size_t zahl = 1; zahl <= 49; ++zahl)
            EXPECT_EQ(static_cast<std::size_t>(zuletzt[zahl - 1]), zeilen_.size() - letzte[zahl])
                << zzText(modus) << " Zahl " << zahl;
    }
}

INSTANTIATE_TEST_SUITE_P(AlleSpielarten, EchteZiehungen,
                         testing::Values(Samstagslotto, Mittwochslotto, MittwochslottoB),
                         [](const auto& fall) { return "Spielart" + std::to_string(fall.param); });

} // namespace

#include "statistics/logic/Zahlengruppen.h"
#include "statistics/logic/Zahlensummen.h"
#include "testhilfen/EchteDaten.h"

#include <map>
#include <numeric>

namespace {

using Zahlengruppenvergleich = EchteDaten;

/// The numbers of a draw that count.
std::vector<int> zahlenVon(const RohZiehung& ziehung, ZZModus modus)
{
    std::vector<int> zahlen;
    if (modus != ZZModus::Nur)
        zahlen.assign(ziehung.zahlen.begin(), ziehung.zahlen.end());
    if (modus != ZZModus::Ohne && ziehung.zz > 0)
        zahlen.push_back(ziehung.zz);
    return zahlen;
}

TEST_P(Zahlengruppenvergleich, GruppenStimmenMitDemText)
{
    for (const ZZModus modus : {ZZModus::Ohne, ZZModus::Mit, ZZModus::Nur})
        for (const auto& [von, bis] : {std::pair(1955, 2026), std::pair(1990, 2000), std::pair(2013, 2013)}) {
            std::array<int, 7> septiden{};
            std::array<int, 5> zehner{};
            int gerade = 0;
            int alle = 0;
            for (const RohZiehung& ziehung : roh_)
                if (const int jahr = std::stoi(ziehung.jahrUndWoche); jahr >= von && jahr <= bis)
                    for (const int zahl : zahlenVon(ziehung, modus)) {
                        ++septiden[static_cast<std::size_t>((zahl + 6) / 7 - 1)];
                        ++zehner[static_cast<std::size_t>(zahl / 10)];
                        gerade += zahl % 2 == 0;
                        ++alle;
                    }
            const Zahlengruppen gruppen = zaehleGruppen(archiv_, von, bis, modus);
            EXPECT_EQ(gruppen.Septiden, septiden);
            EXPECT_EQ(gruppen.zehnergruppen(), zehner);
            EXPECT_EQ(gruppen.Gerade, gerade);
            EXPECT_EQ(gruppen.Ungerade, alle - gerade);
            EXPECT_EQ(gruppen.gesamtzahl(), alle);
        }
}

TEST_P(Zahlengruppenvergleich, SummenStimmenMitDemText)
{
    for (const bool mitZZ : {false, true}) {
        std::map<int, int> haeufigkeit;
        long gesamt = 0;
        for (const RohZiehung& ziehung : roh_) {
            const int summe = std::accumulate(ziehung.zahlen.begin(), ziehung.zahlen.end(), mitZZ ? ziehung.zz : 0);
            ++haeufigkeit[summe];
            gesamt += summe;
        }
        std::pair<int, int> beste;
        for (const auto& [summe, anzahl] : haeufigkeit)
            if (anzahl > beste.second)
                beste = {summe, anzahl};
        const Zahlensummen summen = summiere(archiv_, mitZZ);
        EXPECT_EQ(summen.Gesamtsumme, gesamt);
        EXPECT_EQ(summen.zeilen.size(), roh_.size());
        EXPECT_EQ(std::stoi(summen.zeilen.front()), haeufigkeit.begin()->first);
        EXPECT_EQ(std::stoi(summen.zeilen.back()), haeufigkeit.rbegin()->first);
        EXPECT_EQ(haeufigsteSumme(summen).summe, beste.first);
        EXPECT_EQ(haeufigsteSumme(summen).anzahl, beste.second);
    }
}

INSTANTIATE_TEST_SUITE_P(AlleSpielarten, Zahlengruppenvergleich,
                         testing::Values(Samstagslotto, Mittwochslotto, MittwochslottoB));

} // namespace

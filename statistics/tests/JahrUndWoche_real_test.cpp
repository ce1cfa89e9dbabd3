#include "statistics/logic/JahrUndWoche.h"
#include "statistics/logic/Jahrestabelle.h"
#include "statistics/logic/Wochenstatistik.h"
#include "testhilfen/EchteDaten.h"

#include <map>

namespace {

int jahrVon(const RohZiehung& ziehung)
{
    return std::stoi(ziehung.jahrUndWoche.substr(0, 4));
}
int wocheVon(const RohZiehung& ziehung)
{
    return std::stoi(ziehung.jahrUndWoche.substr(5));
}

/// The numbers that count; a Zusatzzahl of 0 is none.
std::vector<int> zahlenVon(const RohZiehung& ziehung, ZZModus modus)
{
    std::vector<int> zahlen;
    if (modus != ZZModus::Nur)
        zahlen.assign(ziehung.zahlen.begin(), ziehung.zahlen.end());
    if (modus != ZZModus::Ohne && ziehung.zz > 0)
        zahlen.push_back(ziehung.zz);
    return zahlen;
}

constexpr std::array kModi{ZZModus::Ohne, ZZModus::Mit, ZZModus::Nur};

class EchteJahreUndWochen : public EchteDaten {
protected:
    /// The counts of [key][number], the key of a draw taken from its ZiehungsNr - 1.
    template <class Schluessel> std::map<int, std::map<int, int>> zaehle(ZZModus modus, Schluessel schluessel) const
    {
        std::map<int, std::map<int, int>> anzahl;
        for (std::size_t i = 0; i < roh_.size(); ++i)
            for (const int zahl : zahlenVon(roh_[i], modus))
                ++anzahl[schluessel(i)][zahl];
        return anzahl;
    }

    void pruefe(const Zahlentabelle& tabelle, const std::map<int, std::map<int, int>>& erwartet) const
    {
        int gezaehlt = 0;
        int gefunden = 0;
        for (const auto& [jahr, zahlen] : erwartet)
            for (const auto& [zahl, anzahl] : zahlen)
                gezaehlt += anzahl;
        for (const Zahlenzeile& zeile : tabelle.zeilen) {
            const auto jahr = erwartet.find(zeile.schluessel);
            for (int zahl = 1; zahl <= 49; ++zahl) {
                const int anzahl = zeile.zellen[static_cast<std::size_t>(zahl - 1)].anzahl;
                const bool steht = jahr != erwartet.end() && jahr->second.contains(zahl);
                EXPECT_EQ(anzahl, steht ? jahr->second.at(zahl) : 0) << zeile.schluessel << " Zahl " << zahl;
                gefunden += anzahl;
            }
        }
        EXPECT_EQ(gefunden, gezaehlt);
    }
};

TEST_P(EchteJahreUndWochen, ProJahrUndProWocheWieImText)
{
    for (const ZZModus modus : kModi) {
        const auto jahre = zaehle(modus, [&](std::size_t i) { return jahrVon(roh_[i]); });
        const auto wochen = zaehle(modus, [&](std::size_t i) { return wocheVon(roh_[i]); });
        for (int zahl = 1; zahl <= 49; ++zahl) {
            const HaeufigkeitProJahr proJahr = countPerYear(archiv_, zahl, modus);
            EXPECT_EQ(proJahr.jahre.size(), static_cast<std::size_t>(jahrVon(roh_.back()) - jahrVon(roh_.front()) + 1));
            int gesamt = 0;
            for (const Jahresanzahl& jahr : proJahr.jahre) {
                const auto dort = jahre.find(jahr.jahr);
                const bool steht = dort != jahre.end() && dort->second.contains(zahl);
                EXPECT_EQ(jahr.anzahl, steht ? dort->second.at(zahl) : 0) << jahr.jahr << " Zahl " << zahl;
                gesamt += jahr.anzahl;
            }
            EXPECT_EQ(proJahr.gesamt, gesamt);
            const HaeufigkeitProWoche proWoche = countPerWeek(archiv_, zahl, modus);
            for (int woche = 1; woche <= 53; ++woche) {
                const auto dort = wochen.find(woche);
                const bool steht = dort != wochen.end() && dort->second.contains(zahl);
                EXPECT_EQ(proWoche[static_cast<std::size_t>(woche - 1)], steht ? dort->second.at(zahl) : 0)
                    << "SW " << woche << " Zahl " << zahl;
            }
        }
    }
}

TEST_P(EchteJahreUndWochen, DetailsSummierenSichZuDenJahren)
{
    for (const ZZModus modus : kModi) {
        const HaeufigkeitProJahr proJahr = countPerYear(archiv_, 13, modus);
        const std::vector<Jahrestreffer> treffer = trefferProJahr(archiv_, 13, modus);
        ASSERT_EQ(treffer.size(), proJahr.jahre.size());
        for (std::size_t i = 0; i < treffer.size(); ++i) {
            EXPECT_EQ(treffer[i].jahr, proJahr.jahre[i].jahr);
            EXPECT_EQ(treffer[i].wochen.size(), static_cast<std::size_t>(proJahr.jahre[i].anzahl));
        }
    }
}

TEST_P(EchteJahreUndWochen, WochenstatistikWieImText)
{
    for (const bool mitZZ : {false, true}) {
        const auto wochen =
            zaehle(mitZZ ? ZZModus::Mit : ZZModus::Ohne, [&](std::size_t i) { return wocheVon(roh_[i]); });
        std::size_t ziehungen = 0;
        for (int woche = 1; woche <= 53; ++woche) {
            const Wochenstatistik statistik = weekStatistics(archiv_, woche, mitZZ);
            ziehungen += statistik.ziehungen.size();
            const auto dort = wochen.find(woche);
            for (int zahl = 1; zahl <= 49; ++zahl) {
                const bool steht = dort != wochen.end() && dort->second.contains(zahl);
                EXPECT_EQ(statistik.anzahl[static_cast<std::size_t>(zahl - 1)], steht ? dort->second.at(zahl) : 0)
                    << "SW " << woche << " Zahl " << zahl;
            }
        }
        EXPECT_EQ(ziehungen, roh_.size());
    }
}

TEST_P(EchteJahreUndWochen, JahrestabelleWieImText)
{
    for (const ZZModus modus : kModi) {
        pruefe(yearTable(archiv_, modus, false).tabelle,
               zaehle(modus, [&](std::size_t i) { return jahrVon(roh_[i]); }));
        pruefe(yearTable(archiv_, modus, true).tabelle, zaehle(modus, [&](std::size_t i) {
                   const std::string& datum = archiv_.Datum[i + 1];
                   return std::stoi(datum.substr(datum.rfind('.') + 1));
               }));
    }
}

TEST_P(EchteJahreUndWochen, SeitDemEndeDerZusatzzahlIstImNurModusAllesRot)
{
    for (const bool nachDatum : {false, true}) {
        const Jahrestabelle tabelle = yearTable(archiv_, ZZModus::Nur, nachDatum);
        for (const Zahlenzeile& zeile : tabelle.tabelle.zeilen) {
            if (zeile.schluessel <= 2013)
                continue;
            for (const Zahlenzelle& zelle : zeile.zellen)
                EXPECT_EQ(zelle, (Zahlenzelle{0, Zellmarke::Maximum})) << zeile.schluessel;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AlleSpielarten, EchteJahreUndWochen,
                         testing::Values(Samstagslotto, Mittwochslotto, MittwochslottoB),
                         [](const auto& fall) { return "Spielart" + std::to_string(fall.param); });

/// The year that a draw counts for by its date.
int jahrNachDatum(Spielart spielart, std::int32_t jahr, std::int32_t woche)
{
    const ZiehungsArchiv archiv = ladeEchte(spielart);
    const std::vector<std::int32_t> jahre = datumsjahre(archiv, archiv.Datum);
    for (std::size_t nr = 1; nr < jahre.size(); ++nr)
        if (archiv.jjjj[nr] == jahr && archiv.sw[nr] == woche)
            return jahre[nr];
    return 0;
}

TEST(EchteJahreswechsel, DieZiehungenUmNeujahrZaehlenNachDatumAnders)
{
    if (!std::filesystem::exists(kEchteDaten / "SALOTTO.DAT"))
        GTEST_SKIP() << "keine echten Ziehungen";
    EXPECT_EQ(jahrNachDatum(Samstagslotto, 2010, 52), 2011); // 01.01.2011
    EXPECT_EQ(jahrNachDatum(Samstagslotto, 2010, 51), 2010);
    EXPECT_EQ(jahrNachDatum(Samstagslotto, 1992, 53), 1993); // 02.01.1993
    EXPECT_EQ(jahrNachDatum(Mittwochslotto, 2015, 1), 2014); // 31.12.2014
    EXPECT_EQ(jahrNachDatum(MittwochslottoB, 1986, 23), 1986);
}

} // namespace

#include "statistics/logic/ZusammenHaeufigkeit.h"
#include "testhilfen/EchteDaten.h"

#include <algorithm>
#include <optional>
#include <tuple>

namespace {

constexpr std::array<int, 38> kOhne{41, 39, 42, 41, 44, 57, 41, 41, 33, 44, 34, 45, 38, 30, 42, 54, 44, 38, 39,
                                    38, 39, 39, 27, 42, 44, 44, 35, 34, 36, 41, 35, 45, 40, 23, 39, 44, 34, 32};
constexpr std::array<int, 38> kMit{45, 43, 53, 46, 50, 63, 51, 46, 38, 51, 39, 54, 42, 32, 46, 60, 49, 44, 43,
                                   43, 45, 46, 33, 48, 49, 48, 37, 39, 41, 47, 44, 54, 44, 25, 46, 52, 40, 36};

/// A record with its day as a text that sorts.
struct Tagesziehung {
    std::string tag; ///< "20001129"
    RohZiehung ziehung;
    bool vor2000 = false; ///< of Wednesday A, before 06.12.2000

    /// All that tells two records of one day apart.
    auto folge() const { return std::tuple(tag, ziehung.jahrUndWoche, ziehung.zahlen, ziehung.zz); }
};

struct Datei {
    int bit;
    const char* name;
    Spielart spielart;
};
constexpr std::array<Datei, 3> kDateien{
    {{1, "SALOTTO.DAT", Samstagslotto}, {2, "MALOTTO.DAT", Mittwochslotto}, {4, "MBLOTTO.DAT", MittwochslottoB}}};

/// The records of the files of `maske`, oldest first, by the text of the files and the calendar.
std::vector<Tagesziehung> nachTagen(int maske)
{
    std::vector<Tagesziehung> alle;
    for (const Datei& datei : kDateien) {
        if ((maske & datei.bit) == 0)
            continue;
        const std::vector<std::string> daten = ladeEchte(datei.spielart).Datum;
        for (std::size_t nr = 1; const RohZiehung& ziehung : liesRoh(datei.name)) {
            const std::string& datum = daten[nr++];
            const std::string tag = datum.substr(10, 4) + datum.substr(7, 2) + datum.substr(4, 2);
            alle.push_back({tag, ziehung, datei.bit == 2 && tag < "20001206"});
        }
    }
    std::ranges::sort(alle, {}, &Tagesziehung::folge);
    return alle;
}

struct Soll {
    std::vector<int> anzahl;
    int ziehungen = 0;
};

Soll zaehle(std::vector<Tagesziehung> alle, const ZusammenHaeufigkeitswahl& wahl)
{
    if (wahl.nurAb2000)
        std::erase_if(alle, [](const Tagesziehung& ziehung) { return ziehung.vor2000; });
    const auto ab = wahl.letzte ? std::max<std::ptrdiff_t>(std::ssize(alle) - *wahl.letzte, 0) : 0;
    Soll soll{std::vector<int>(49), 0};
    for (auto ziehung = alle.begin() + ab; ziehung != alle.end(); ++ziehung) {
        ++soll.ziehungen;
        for (const int zahl : ziehung->ziehung.zahlen)
            ++soll.anzahl.at(static_cast<std::size_t>(zahl - 1));
        if (wahl.mitZZ && ziehung->ziehung.zz > 0)
            ++soll.anzahl.at(static_cast<std::size_t>(ziehung->ziehung.zz - 1));
    }
    if (wahl.mit7aus38) {
        soll.anzahl.resize(soll.ziehungen == 0 ? 38 : 49);
        soll.ziehungen += 214;
        for (std::size_t i = 0; i < 38; ++i)
            soll.anzahl[i] += wahl.mitZZ ? kMit[i] : kOhne[i];
    }
    return soll;
}

/// Each set of games, as the bits of its files; 0 is none.
class EchteZusammenHaeufigkeit : public testing::TestWithParam<int> {};

TEST_P(EchteZusammenHaeufigkeit, StimmtMitDemTextDerDateien)
{
    if (!gibtEchteDaten())
        GTEST_SKIP() << "keine echten Ziehungen";
    const int maske = GetParam();
    ZiehungsArchiv archiv;
    archiv.ProgrammVerzeichnis = kEchteDaten.string() + "/";
    LadeAlleZiehungen(archiv, maske == 0 ? 7 : maske, {});
    const std::vector<Tagesziehung> alle = nachTagen(maske);
    const auto samstage = (maske & 1) != 0 ? static_cast<std::int32_t>(liesRoh("SALOTTO.DAT").size()) : 0;

    for (const std::optional<std::int32_t> letzte :
         {std::optional<std::int32_t>(), {1}, {2}, {10}, {100}, {756}, {1500}, {3000}, {1'000'000}}) {
        for (int schalter = 0; schalter < 8; ++schalter) {
            const ZusammenHaeufigkeitswahl wahl{.maske = maske,
                                                .samstagsziehungen = samstage,
                                                .letzte = letzte,
                                                .mitZZ = (schalter & 1) != 0,
                                                .nurAb2000 = (schalter & 2) != 0,
                                                .mit7aus38 = (schalter & 4) != 0};
            const Soll soll = zaehle(alle, wahl);
            const ZusammenHaeufigkeit ist = frequencyRange(archiv, wahl);
            EXPECT_EQ(ist.anzahl, soll.anzahl) << letzte.value_or(-1) << ' ' << schalter;
            EXPECT_EQ(ist.ziehungen, soll.ziehungen) << letzte.value_or(-1) << ' ' << schalter;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AlleAuswahlen, EchteZusammenHaeufigkeit, testing::Range(0, 8));

} // namespace

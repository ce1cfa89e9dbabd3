#include "archive/logic/Ziehungsdatei.h"
#include "archive/logic/Ziehungsmengen.h"
#include "engines/logic/KombinationAusNummer.h"
#include "engines/logic/Trefferreferenz.h"
#include "engines/logic/Treffersuche.h"
#include "testhilfen/EchteDaten.h"

#include <algorithm>

namespace {

/// The draws of the chosen files from their text.
std::vector<Zahlenmenge> mengenImText(int maske)
{
    std::vector<Zahlenmenge> mengen;
    for (const auto& [bit, name] : {std::pair{1, "SALOTTO.DAT"}, {2, "MALOTTO.DAT"}, {4, "MBLOTTO.DAT"}})
        if ((maske & bit) != 0)
            for (const RohZiehung& ziehung : liesRoh(name))
                mengen.push_back(zahlenmenge(ziehung.zahlen));
    return mengen;
}

class EchteTreffersuche : public testing::TestWithParam<std::tuple<int, bool>> {
protected:
    void SetUp() override
    {
        if (!std::filesystem::exists(kEchteDaten / "MBLOTTO.DAT"))
            GTEST_SKIP() << "keine echten Ziehungen";
    }
};

TEST_P(EchteTreffersuche, FindetWasDerVergleichMitDemTextFindet)
{
    const auto [maske, nurExakt] = GetParam();
    ZiehungsArchiv archiv;
    archiv.ProgrammVerzeichnis = kEchteDaten.string() + "/";
    LadeAlleZiehungen(archiv, maske, {});
    const auto reihen = mengenImText(maske);
    const Trefferschwellen schwellen = trefferschwellen(maske);
    const Treffersuche suche = sucheTreffer(ziehungsmengen(archiv), schwellen, nurExakt);

    const auto zaehle = [&reihen](std::int32_t nummer) {
        return trefferMitMengen(zahlenmenge(KombinationAusNummer(nummer)), reihen);
    };
    std::array<std::vector<std::int32_t>, kRanglisten> nummern;
    for (std::size_t l = 0; l < kRanglisten; ++l) {
        const Trefferrang& rang = suche.listen[l];
        for (std::size_t i = 0; i < rang.anzahl(); ++i)
            nummern[l].push_back(rang.nummer(i));
        for (std::size_t i = 0; i < rang.anzahl(); i += 1 + rang.anzahl() / 300) {
            const auto n = zaehle(nummern[l][i]);
            EXPECT_EQ(rang.zeile(i), trefferzeile({n[6], n[5], n[4], n[3]}, nummern[l][i]));
        }
        std::ranges::sort(nummern[l]);
    }
    for (std::int32_t nummer = 1; nummer <= 13'983'816; nummer += 9'973) {
        const auto n = zaehle(nummer);
        const bool keine6 = n[6] == 0, keine5 = keine6 && n[5] == 0, keine4 = keine5 && n[4] == 0;
        const std::array<bool, kRanglisten> erwartet{
            n[3] >= schwellen.SchwelleDrei && (keine4 || !nurExakt),
            n[4] >= schwellen.SchwelleVier && (keine5 || !nurExakt),
            n[5] >= schwellen.SchwelleFuenf && (keine6 || !nurExakt),
            n[6] >= 2 || (n[6] == 1 && n[5] >= 1),
            keine4 && n[3] < schwellen.SchwelleLoser,
        };
        for (std::size_t l = 0; l < kRanglisten; ++l)
            EXPECT_EQ(std::ranges::binary_search(nummern[l], nummer), erwartet[l]) << l << " " << nummer;
    }
}

INSTANTIATE_TEST_SUITE_P(AlleAuswahlen, EchteTreffersuche, testing::Combine(testing::Range(1, 8), testing::Bool()));

} // namespace

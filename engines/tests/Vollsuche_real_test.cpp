#include "engines/logic/Vollsuche.h"
#include "testhilfen/EchteDaten.h"

#include <algorithm>
#include <map>

namespace {

using Teile = std::map<std::vector<int>, int>;

/// Adds one for every part of `groesse` numbers that a draw has.
void zaehleTeile(Teile& teile, const std::array<int, 6>& zahlen, int groesse)
{
    for (unsigned wahl = 0; wahl < 64; ++wahl) {
        std::vector<int> teil;
        for (unsigned i = 0; i < zahlen.size(); ++i)
            if ((wahl >> i & 1U) != 0)
                teil.push_back(zahlen[i]);
        if (static_cast<int>(teil.size()) == groesse)
            ++teile[teil];
    }
}

std::string zweistellig(const std::vector<int>& zahlen)
{
    std::string text;
    for (const int zahl : zahlen)
        text += (text.empty() ? "" : " ") + std::string(zahl < 10 ? "0" : "") + std::to_string(zahl);
    return text;
}

/// What the search has to find, from the texts of the files alone.
struct Erwartet {
    std::int32_t einmal = 0;
    std::vector<std::string> mehrfach; ///< "71 mal -> 27 47"
};

Erwartet erwartet(const std::vector<RohZiehung>& ziehungen, int groesse)
{
    Teile teile;
    for (const RohZiehung& ziehung : ziehungen)
        zaehleTeile(teile, ziehung.zahlen, groesse);
    Erwartet ergebnis;
    for (const auto& [teil, anzahl] : teile) {
        ergebnis.einmal += anzahl == 1 ? 1 : 0;
        if (anzahl > 1)
            ergebnis.mehrfach.push_back(std::to_string(anzahl) + " mal -> " + zweistellig(teil));
    }
    return ergebnis;
}

void pruefe(const ZiehungsArchiv& archiv, const std::vector<RohZiehung>& roh)
{
    for (int groesse = 2; groesse <= 6; ++groesse) {
        SCOPED_TRACE(groesse);
        Suchergebnis ergebnis;
        Vollsuche(archiv, groesse, ergebnis).testeAlle({});
        const Erwartet soll = erwartet(roh, groesse);
        std::vector<std::string> zeilen = ergebnis.wiederholungen;
        for (std::string& zeile : zeilen)
            zeile.erase(0, zeile.find_first_not_of(' '));
        EXPECT_EQ(zeilen, soll.mehrfach);
        EXPECT_EQ(ergebnis.EinmalGezogen, soll.einmal);
        EXPECT_EQ(ergebnis.NieGezogen,
                  ergebnis.SuchlaeufeGesamt - soll.einmal - static_cast<std::int32_t>(soll.mehrfach.size()));
        EXPECT_EQ(ergebnis.nieGezogene.size(), groesse == 3 ? static_cast<std::size_t>(ergebnis.NieGezogen) : 0U);
        EXPECT_FALSE(ergebnis.abgebrochen());
    }
}

class EchteVollsuche : public EchteDaten {};

TEST_P(EchteVollsuche, FindetWasInDenDateienSteht)
{
    pruefe(archiv_, roh_);
}

INSTANTIATE_TEST_SUITE_P(Spiele, EchteVollsuche, testing::Values(Samstagslotto, Mittwochslotto, MittwochslottoB));

TEST(EchteVollsucheZusammen, FindetWasInAllenDateienSteht)
{
    if (!std::filesystem::exists(kEchteDaten))
        GTEST_SKIP() << "keine echten Ziehungen";
    ZiehungsArchiv archiv;
    archiv.ProgrammVerzeichnis = kEchteDaten.string() + "/";
    LadeAlleZiehungen(archiv, 7, {});
    std::vector<RohZiehung> roh;
    for (const char* datei : {"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"})
        std::ranges::copy(liesRoh(datei), std::back_inserter(roh));
    ASSERT_EQ(static_cast<std::size_t>(archiv.AnzahlZiehungen), roh.size());
    pruefe(archiv, roh);
}

} // namespace

#include "shell/logic/ListenModell.h"

#include <algorithm>
#include <cstddef>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

ListenModell mit(std::vector<std::string> zeilen, ListenModell::Eigenschaften eigenschaften = {})
{
    ListenModell liste(eigenschaften);
    liste.fuelle(std::move(zeilen));
    return liste;
}

TEST(ListenModell, IstAmAnfangLeer)
{
    const ListenModell liste;
    EXPECT_EQ(liste.ListCount(), 0U);
    EXPECT_EQ(liste.ListIndex(), -1);
    EXPECT_EQ(liste.List(0), "");
    EXPECT_EQ(liste.SelCount(), 0U);
    EXPECT_FALSE(liste.Sorted());
    EXPECT_FALSE(liste.MultiSelect());
    EXPECT_FALSE(liste.wirdAufAnfrageGemacht());
}

TEST(ListenModell, BehaeltDieReihenfolge)
{
    ListenModell liste;
    EXPECT_TRUE(liste.AddItem("b"));
    EXPECT_TRUE(liste.AddItem("a"));
    EXPECT_TRUE(liste.AddItem("Übersicht"));
    EXPECT_EQ(liste.ListCount(), 3U);
    EXPECT_EQ(liste.List(0), "b");
    EXPECT_EQ(liste.List(2), "Übersicht");
    EXPECT_EQ(liste.List(3), "");
}

TEST(ListenModell, FuegtVorEinerZeileEin)
{
    ListenModell liste = mit({"a", "c"});
    EXPECT_TRUE(liste.AddItem("b", 1));
    EXPECT_TRUE(liste.AddItem("d", 3));
    EXPECT_TRUE(liste.AddItem("0", 0));
    EXPECT_FALSE(liste.AddItem("x", 6));
    EXPECT_THAT(liste.zeilen(), ElementsAre("0", "a", "b", "c", "d"));
}

TEST(ListenModell, EinfuegenUndEntfernenRueckenDieAuswahlMit)
{
    ListenModell liste = mit({"a", "b", "c"}, {.MultiSelect = true});
    liste.SetListIndex(1);
    liste.SetSelected(1, true);
    liste.SetSelected(2, true);
    liste.AddItem("neu", 1);
    EXPECT_EQ(liste.ListIndex(), 2);
    EXPECT_THAT(liste.ausgewaehlte(), ElementsAre(2U, 3U));
    liste.AddItem("hinten", 4);
    EXPECT_THAT(liste.ausgewaehlte(), ElementsAre(2U, 3U));
    EXPECT_TRUE(liste.RemoveItem(0));
    EXPECT_EQ(liste.ListIndex(), 1);
    EXPECT_THAT(liste.ausgewaehlte(), ElementsAre(1U, 2U));
    EXPECT_TRUE(liste.RemoveItem(1));
    EXPECT_EQ(liste.ListIndex(), -1);
    EXPECT_THAT(liste.ausgewaehlte(), ElementsAre(1U));
    EXPECT_EQ(liste.SelCount(), 1U);
    EXPECT_EQ(liste.List(1), "c");
}

TEST(ListenModell, EntferntNurWasDaIst)
{
    ListenModell liste = mit({"a"});
    EXPECT_FALSE(liste.RemoveItem(1));
    EXPECT_TRUE(liste.RemoveItem(0));
    EXPECT_FALSE(liste.RemoveItem(0));
    EXPECT_EQ(liste.ListCount(), 0U);
}

TEST(ListenModell, SortierteOrdnetNachBytes)
{
    ListenModell liste({.Sorted = true});
    for (const char* const text : {"99", "103", " 9", "11", "100", "10"})
        liste.AddItem(text);
    EXPECT_THAT(liste.zeilen(), ElementsAre(" 9", "10", "100", "103", "11", "99"));
}

TEST(ListenModell, SortierteBeachtetKeinenIndex)
{
    ListenModell liste({.Sorted = true});
    liste.AddItem("b");
    liste.AddItem("a");
    EXPECT_TRUE(liste.AddItem("c", 0));
    EXPECT_FALSE(liste.AddItem("d", 4));
    EXPECT_THAT(liste.zeilen(), ElementsAre("a", "b", "c"));
}

TEST(ListenModell, SortierteKenntIhreAnzahlOhneZuOrdnen)
{
    ListenModell liste({.Sorted = true});
    liste.AddItem("b");
    liste.AddItem("a");
    EXPECT_EQ(liste.ListCount(), 2U);
    EXPECT_EQ(liste.List(0), "a");
}

TEST(ListenModell, SortierteOrdnetAuchGefuellte)
{
    ListenModell liste = mit({"c", "a", "b"}, {.Sorted = true});
    EXPECT_THAT(liste.zeilen(), ElementsAre("a", "b", "c"));
    liste.AddItem("aa");
    EXPECT_THAT(liste.zeilen(), ElementsAre("a", "aa", "b", "c"));
}

TEST(ListenModell, SortierteEntferntDieGeordneteZeile)
{
    ListenModell liste({.Sorted = true});
    liste.AddItem("c");
    liste.AddItem("a");
    liste.AddItem("b");
    EXPECT_TRUE(liste.RemoveItem(0));
    EXPECT_THAT(liste.zeilen(), ElementsAre("b", "c"));
    liste.AddItem("a");
    EXPECT_THAT(liste.zeilen(), ElementsAre("a", "b", "c"));
}

TEST(ListenModell, AuswahlBleibtBeiIhrerZeileWennNeueDazwischenKommen)
{
    ListenModell liste = mit({"b", "d", "f"}, {.Sorted = true, .MultiSelect = true});
    liste.SetListIndex(1);
    liste.SetSelected(0, true);
    liste.SetSelected(2, true);
    for (const char* const text : {"g", "a", "e", "c", "d"})
        liste.AddItem(text);
    EXPECT_EQ(liste.SelCount(), 2U);
    EXPECT_THAT(liste.ausgewaehlte(), ElementsAre(1U, 6U));
    EXPECT_EQ(liste.ListIndex(), 3); // the old "d" stands before the new one
    EXPECT_THAT(liste.zeilen(), ElementsAre("a", "b", "c", "d", "d", "e", "f", "g"));
}

TEST(ListenModell, ListIndexWaehltOhneMehrfachauswahl)
{
    ListenModell liste = mit({"a", "b", "c"});
    EXPECT_TRUE(liste.SetListIndex(2));
    EXPECT_EQ(liste.ListIndex(), 2);
    EXPECT_TRUE(liste.Selected(2));
    EXPECT_FALSE(liste.Selected(0));
    EXPECT_EQ(liste.SelCount(), 1U);
    EXPECT_THAT(liste.ausgewaehlte(), ElementsAre(2U));
    EXPECT_TRUE(liste.SetListIndex(-1));
    EXPECT_EQ(liste.SelCount(), 0U);
    EXPECT_THAT(liste.ausgewaehlte(), IsEmpty());
}

TEST(ListenModell, ListIndexAusserhalbAendertNichts)
{
    ListenModell liste = mit({"a", "b"});
    liste.SetListIndex(1);
    EXPECT_FALSE(liste.SetListIndex(2));
    EXPECT_FALSE(liste.SetListIndex(-2));
    EXPECT_EQ(liste.ListIndex(), 1);
}

TEST(ListenModell, SelectedOhneMehrfachauswahlRuecktDieAktuelle)
{
    ListenModell liste = mit({"a", "b", "c"});
    EXPECT_TRUE(liste.SetSelected(1, true));
    EXPECT_EQ(liste.ListIndex(), 1);
    EXPECT_TRUE(liste.SetSelected(2, true));
    EXPECT_EQ(liste.ListIndex(), 2);
    EXPECT_TRUE(liste.SetSelected(0, false));
    EXPECT_EQ(liste.ListIndex(), 2);
    EXPECT_TRUE(liste.SetSelected(2, false));
    EXPECT_EQ(liste.ListIndex(), -1);
    EXPECT_FALSE(liste.SetSelected(3, true));
}

TEST(ListenModell, MehrfachauswahlUndAktuelleSindZweierlei)
{
    ListenModell liste = mit({"a", "b", "c", "d"}, {.MultiSelect = true});
    liste.SetListIndex(3);
    EXPECT_EQ(liste.SelCount(), 0U);
    EXPECT_TRUE(liste.SetSelected(0, true));
    EXPECT_TRUE(liste.SetSelected(2, true));
    EXPECT_TRUE(liste.SetSelected(2, true));
    EXPECT_EQ(liste.SelCount(), 2U);
    EXPECT_THAT(liste.ausgewaehlte(), ElementsAre(0U, 2U));
    EXPECT_EQ(liste.ListIndex(), 3);
    EXPECT_TRUE(liste.SetSelected(0, false));
    EXPECT_TRUE(liste.SetSelected(0, false));
    EXPECT_EQ(liste.SelCount(), 1U);
    EXPECT_FALSE(liste.Selected(99));
    EXPECT_FALSE(liste.SetSelected(4, true));
}

TEST(ListenModell, SpaeterAngefuegteSindNichtGewaehlt)
{
    ListenModell liste = mit({"a"}, {.MultiSelect = true});
    liste.SetSelected(0, true);
    liste.AddItem("b");
    EXPECT_FALSE(liste.Selected(1));
    EXPECT_TRUE(liste.SetSelected(1, true));
    EXPECT_THAT(liste.ausgewaehlte(), ElementsAre(0U, 1U));
}

TEST(ListenModell, ClearUndFuelleVergessenDieAuswahl)
{
    ListenModell liste = mit({"a", "b"}, {.MultiSelect = true});
    liste.SetListIndex(1);
    liste.SetSelected(1, true);
    liste.fuelle({"c", "d"});
    EXPECT_EQ(liste.ListIndex(), -1);
    EXPECT_EQ(liste.SelCount(), 0U);
    EXPECT_FALSE(liste.Selected(1));
    liste.SetSelected(0, true);
    liste.Clear();
    EXPECT_EQ(liste.ListCount(), 0U);
    EXPECT_EQ(liste.SelCount(), 0U);
    liste.AddItem("e");
    EXPECT_FALSE(liste.Selected(0));
}

TEST(ListenModell, ZeilenAufAnfrageWerdenErstBeimLesenGemacht)
{
    ListenModell liste;
    std::vector<std::size_t> gemachte;
    liste.aufAnfrage(13'983'816, [&](std::size_t i) {
        gemachte.push_back(i);
        return "Zeile " + std::to_string(i + 1);
    });
    EXPECT_TRUE(liste.wirdAufAnfrageGemacht());
    EXPECT_EQ(liste.ListCount(), 13'983'816U);
    EXPECT_THAT(gemachte, IsEmpty());
    EXPECT_EQ(liste.List(13'983'815), "Zeile 13983816");
    EXPECT_EQ(liste.List(0), "Zeile 1");
    EXPECT_EQ(liste.List(13'983'816), "");
    EXPECT_THAT(gemachte, ElementsAre(13'983'815U, 0U));
}

TEST(ListenModell, ZeilenAufAnfrageLassenSichWaehlen)
{
    ListenModell liste({.MultiSelect = true});
    liste.aufAnfrage(14'000'000, [](std::size_t i) { return std::to_string(i); });
    EXPECT_TRUE(liste.SetSelected(13'999'999, true));
    EXPECT_TRUE(liste.SetSelected(5, true));
    EXPECT_TRUE(liste.SetListIndex(13'999'999));
    EXPECT_FALSE(liste.SetListIndex(14'000'000));
    EXPECT_THAT(liste.ausgewaehlte(), ElementsAre(5U, 13'999'999U));
    EXPECT_EQ(liste.ListIndex(), 13'999'999);
}

TEST(ListenModell, ZeilenAufAnfrageNehmenKeineDazuUndGebenKeineHer)
{
    ListenModell liste;
    liste.aufAnfrage(2, [](std::size_t i) { return std::to_string(i); });
    EXPECT_FALSE(liste.AddItem("x"));
    EXPECT_FALSE(liste.AddItem("x", 0));
    EXPECT_FALSE(liste.RemoveItem(0));
    EXPECT_THAT(liste.zeilen(), IsEmpty());
    EXPECT_EQ(liste.ListCount(), 2U);
    liste.Clear();
    EXPECT_EQ(liste.ListCount(), 0U);
    EXPECT_FALSE(liste.wirdAufAnfrageGemacht());
    EXPECT_TRUE(liste.AddItem("x"));
}

TEST(ListenModell, ZeilenAufAnfrageBehaltenIhreReihenfolge)
{
    ListenModell liste({.Sorted = true});
    liste.aufAnfrage(3, [](std::size_t i) { return std::to_string(9 - i); });
    EXPECT_EQ(liste.List(0), "9");
    EXPECT_EQ(liste.List(2), "7");
}

TEST(ListenModell, MeldetJedeAenderungEinmal)
{
    using Aenderung = ListenModell::Aenderung;
    ListenModell liste({.MultiSelect = true});
    std::map<Aenderung, int> meldungen;
    liste.beiAenderung([&](Aenderung aenderung) { ++meldungen[aenderung]; });
    liste.AddItem("a");
    liste.AddItem("b", 0);
    liste.AddItem("c", 2);
    liste.fuelle({"a", "b"});
    liste.RemoveItem(0);
    liste.Clear();
    liste.aufAnfrage(5, [](std::size_t) { return std::string(); });
    EXPECT_EQ(meldungen[Aenderung::Zeilen], 7);
    EXPECT_EQ(meldungen[Aenderung::Auswahl], 0);
    liste.SetListIndex(1);
    liste.SetSelected(2, true);
    EXPECT_EQ(meldungen[Aenderung::Auswahl], 2);
    EXPECT_EQ(meldungen[Aenderung::Zeilen], 7);
}

TEST(ListenModell, MeldetNichtWasNichtsAendert)
{
    ListenModell liste = mit({"a", "b"}, {.Sorted = true});
    int meldungen = 0;
    liste.beiAenderung([&](ListenModell::Aenderung) { ++meldungen; });
    liste.SetListIndex(-1);
    liste.SetListIndex(7);
    liste.SetSelected(1, false);
    liste.RemoveItem(9);
    liste.AddItem("x", 9);
    EXPECT_EQ(liste.List(0), "a");
    EXPECT_EQ(meldungen, 0);
}

/// The plain list that the model is held against: every row knows whether it is chosen or the current one.
class SchlichteListe {
public:
    SchlichteListe(bool sortiert, bool mehrfach) : sortiert_(sortiert), mehrfach_(mehrfach) {}

    struct Zeile {
        std::string text;
        bool gewaehlt{false};
        bool aktuell{false};
    };

    void fuegeEin(const std::string& text, std::size_t index)
    {
        auto stelle = zeilen_.begin() + static_cast<std::ptrdiff_t>(index);
        if (sortiert_)
            stelle = std::ranges::upper_bound(zeilen_, text, {}, &Zeile::text);
        zeilen_.insert(stelle, Zeile{text});
    }

    void entferne(std::size_t index) { zeilen_.erase(zeilen_.begin() + static_cast<std::ptrdiff_t>(index)); }

    void macheAktuell(std::ptrdiff_t index)
    {
        for (std::size_t i = 0; i < zeilen_.size(); ++i)
            zeilen_[i].aktuell = static_cast<std::ptrdiff_t>(i) == index;
    }

    void waehle(std::size_t index, bool gewaehlt)
    {
        if (mehrfach_)
            zeilen_[index].gewaehlt = gewaehlt;
        else if (gewaehlt || zeilen_[index].aktuell)
            macheAktuell(gewaehlt ? static_cast<std::ptrdiff_t>(index) : -1);
    }

    std::size_t anzahl() const { return zeilen_.size(); }
    void leere() { zeilen_.clear(); }

    void erwarteGleich(const ListenModell& modell) const
    {
        ASSERT_EQ(modell.ListCount(), zeilen_.size());
        std::ptrdiff_t aktuelle = -1;
        std::vector<std::size_t> gewaehlte;
        for (std::size_t i = 0; i < zeilen_.size(); ++i) {
            const bool gewaehlt = mehrfach_ ? zeilen_[i].gewaehlt : zeilen_[i].aktuell;
            ASSERT_EQ(modell.List(i), zeilen_[i].text);
            ASSERT_EQ(modell.Selected(i), gewaehlt);
            if (zeilen_[i].aktuell)
                aktuelle = static_cast<std::ptrdiff_t>(i);
            if (gewaehlt)
                gewaehlte.push_back(i);
        }
        ASSERT_EQ(modell.ListIndex(), aktuelle);
        ASSERT_EQ(modell.ausgewaehlte(), gewaehlte);
        ASSERT_EQ(modell.SelCount(), gewaehlte.size());
    }

private:
    bool sortiert_;
    bool mehrfach_;
    std::vector<Zeile> zeilen_;
};

class BeliebigeFolgen : public testing::TestWithParam<std::pair<bool, bool>> {};

TEST_P(BeliebigeFolgen, VerhaltenSichWieDieSchlichteListe)
{
    const auto [sortiert, mehrfach] = GetParam();
    std::mt19937 zufall(sortiert * 2U + mehrfach);
    for (int runde = 0; runde < 200; ++runde) {
        ListenModell modell({.Sorted = sortiert, .MultiSelect = mehrfach});
        SchlichteListe schlicht(sortiert, mehrfach);
        for (int schritt = 0; schritt < 60; ++schritt) {
            const std::size_t anzahl = schlicht.anzahl();
            const std::size_t ort = anzahl == 0 ? 0 : zufall() % anzahl;
            const unsigned was = zufall() % 16;
            if (was < 7 || anzahl == 0) {
                const std::string text = std::to_string(zufall() % 20);
                modell.AddItem(text);
                schlicht.fuegeEin(text, anzahl);
            } else if (was == 7) {
                modell.AddItem("5", ort);
                schlicht.fuegeEin("5", ort);
            } else if (was < 10) {
                modell.RemoveItem(ort);
                schlicht.entferne(ort);
            } else if (was < 12) {
                modell.SetListIndex(static_cast<std::ptrdiff_t>(ort));
                schlicht.macheAktuell(static_cast<std::ptrdiff_t>(ort));
            } else if (was < 14) {
                const bool gewaehlt = zufall() % 4 != 0;
                modell.SetSelected(ort, gewaehlt);
                schlicht.waehle(ort, gewaehlt);
            } else if (was == 14) {
                schlicht.erwarteGleich(modell);
            } else if (zufall() % 8 == 0) {
                modell.Clear();
                schlicht.leere();
            }
        }
        schlicht.erwarteGleich(modell);
        if (HasFatalFailure())
            return;
    }
}

INSTANTIATE_TEST_SUITE_P(SortiertMehrfach, BeliebigeFolgen,
                         testing::Values(std::pair{false, false}, std::pair{false, true}, std::pair{true, false},
                                         std::pair{true, true}),
                         [](const auto& fall) {
                             return std::string(fall.param.first ? "Sortiert" : "Unsortiert") +
                                    (fall.param.second ? "Mehrfach" : "Einfach");
                         });

} // namespace

#include "listcontrol/logic/ListenFehler.h"
#include "listcontrol/logic/Listenauswahl.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Auswahl : public testing::Test {
protected:
    Auswahl()
    {
        for (const char* text : {"e", "d", "c", "b", "a"})
            posten.AddItem(text);
    }

    std::vector<int> gewaehlte() const
    {
        std::vector<int> alle;
        for (int zeile = 0; zeile < posten.ItemCount(); ++zeile)
            if (posten.Item(zeile).Selected())
                alle.push_back(zeile);
        EXPECT_EQ(auswahl.SelCount(), static_cast<int>(alle.size()));
        return alle;
    }

    void klicke(int zeile) { auswahl.waehle(zeile, false, false); }
    void klickeStrg(int zeile) { auswahl.waehle(zeile, true, false); }
    void klickeUmschalt(int zeile) { auswahl.waehle(zeile, false, true); }

    ListItemCollection posten{1};
    Listenauswahl auswahl{posten};
};

TEST_F(Auswahl, IstAmAnfangLeer)
{
    EXPECT_EQ(auswahl.SelectedItem(), -1);
    EXPECT_EQ(auswahl.fokus(), -1);
    EXPECT_TRUE(auswahl.MultiSelect());
}

TEST_F(Auswahl, EinKlickWaehltGenauDieseZeile)
{
    klicke(1);
    klicke(3);
    EXPECT_THAT(gewaehlte(), ElementsAre(3));
    EXPECT_EQ(auswahl.SelectedItem(), 3);
    EXPECT_EQ(auswahl.fokus(), 3);
}

TEST_F(Auswahl, StrgSchaltetEineZeileUm)
{
    klicke(1);
    klickeStrg(4);
    klickeStrg(2);
    EXPECT_THAT(gewaehlte(), ElementsAre(1, 2, 4));
    klickeStrg(2);
    EXPECT_THAT(gewaehlte(), ElementsAre(1, 4));
    EXPECT_EQ(auswahl.fokus(), 2);
    EXPECT_EQ(auswahl.SelectedItem(), 1);
}

TEST_F(Auswahl, UmschaltWaehltVomAnkerAnUndSonstNichts)
{
    klicke(0);
    klickeStrg(2);
    klickeUmschalt(4);
    EXPECT_THAT(gewaehlte(), ElementsAre(2, 3, 4));
    klickeUmschalt(1);
    EXPECT_THAT(gewaehlte(), ElementsAre(1, 2));
    EXPECT_EQ(auswahl.fokus(), 1);
}

TEST_F(Auswahl, UmschaltOhneAnkerWaehltVonDerErstenZeileAn)
{
    klickeUmschalt(2);
    EXPECT_THAT(gewaehlte(), ElementsAre(0, 1, 2));
}

TEST_F(Auswahl, UmschaltMitStrgLaesstDieUebrigenStehen)
{
    klicke(0);
    klickeStrg(3);
    auswahl.waehle(4, true, true);
    EXPECT_THAT(gewaehlte(), ElementsAre(0, 3, 4));
}

TEST_F(Auswahl, OhneMehrfachauswahlIstImmerHoechstensEineGewaehlt)
{
    auswahl.setMultiSelect(false);
    klicke(1);
    klickeStrg(3);
    EXPECT_THAT(gewaehlte(), ElementsAre(3));
    klickeUmschalt(4);
    EXPECT_THAT(gewaehlte(), ElementsAre(4));
    auswahl.setSelected(0, true);
    EXPECT_THAT(gewaehlte(), ElementsAre(0));
    auswahl.SelectAll();
    EXPECT_THAT(gewaehlte(), ElementsAre(0));
}

TEST_F(Auswahl, AbschaltenDerMehrfachauswahlLaesstDieZeileMitFokus)
{
    klicke(1);
    klickeUmschalt(3);
    auswahl.setMultiSelect(false);
    EXPECT_THAT(gewaehlte(), ElementsAre(3));
}

TEST_F(Auswahl, AlleUndKeine)
{
    auswahl.SelectAll();
    EXPECT_THAT(gewaehlte(), ElementsAre(0, 1, 2, 3, 4));
    auswahl.UnSelectAll();
    EXPECT_THAT(gewaehlte(), IsEmpty());
    EXPECT_EQ(auswahl.SelectedItem(), -1);
}

TEST_F(Auswahl, WaehltVomProgrammAusEineZeileOderKeine)
{
    auswahl.SelectAll();
    auswahl.waehleAllein(2);
    EXPECT_THAT(gewaehlte(), ElementsAre(2));
    EXPECT_THROW(auswahl.waehleAllein(5), IndexFehler);
    EXPECT_THAT(gewaehlte(), ElementsAre(2));
    auswahl.waehleAllein(-1);
    EXPECT_THAT(gewaehlte(), IsEmpty());
    EXPECT_EQ(auswahl.fokus(), -1);
}

TEST_F(Auswahl, ZweimalGesetztZaehltEinmal)
{
    auswahl.setSelected(1, true);
    auswahl.setSelected(1, true);
    EXPECT_THAT(gewaehlte(), ElementsAre(1));
    auswahl.setSelected(1, false);
    auswahl.setSelected(1, false);
    EXPECT_THAT(gewaehlte(), IsEmpty());
}

TEST_F(Auswahl, FolgtEingefuegtenZeilen)
{
    klicke(2);
    auswahl.nachHinzufuegen(posten.AddItem("x", {}, 2));
    EXPECT_EQ(auswahl.fokus(), 3);
    auswahl.nachHinzufuegen(posten.AddItem("y"));
    EXPECT_EQ(auswahl.fokus(), 3);
    EXPECT_THAT(gewaehlte(), ElementsAre(3));
}

TEST_F(Auswahl, FolgtEntferntenZeilen)
{
    klicke(2);
    klickeStrg(4);
    auswahl.vorEntfernen(2);
    posten.RemoveItem(2);
    EXPECT_THAT(gewaehlte(), ElementsAre(3));
    EXPECT_EQ(auswahl.fokus(), 3);
    auswahl.vorEntfernen(3);
    posten.RemoveItem(3);
    EXPECT_THAT(gewaehlte(), IsEmpty());
    EXPECT_EQ(auswahl.fokus(), 2);
}

TEST_F(Auswahl, MitDerZeileGehenFokusUndAnkerAufDieNaechste)
{
    klicke(1);
    auswahl.vorEntfernen(1);
    posten.RemoveItem(1);
    EXPECT_EQ(auswahl.fokus(), 1);
    EXPECT_EQ(auswahl.SelectedItem(), -1);
    klickeUmschalt(3);
    EXPECT_THAT(gewaehlte(), ElementsAre(1, 2, 3));
}

TEST_F(Auswahl, VonDerLetztenZeileGehtDerFokusAufDieDavor)
{
    klicke(4);
    auswahl.vorEntfernen(4);
    posten.RemoveItem(4);
    EXPECT_EQ(auswahl.fokus(), 3);
}

TEST_F(Auswahl, EineZeileDahinterLaesstDenFokusStehen)
{
    klicke(2);
    auswahl.vorEntfernen(3);
    posten.RemoveItem(3);
    EXPECT_EQ(auswahl.fokus(), 2);
}

TEST_F(Auswahl, DieLetzteZeileNimmtDenFokusMit)
{
    klicke(0);
    for (int zeile = 4; zeile >= 0; --zeile) {
        auswahl.vorEntfernen(zeile);
        posten.RemoveItem(zeile);
    }
    EXPECT_EQ(auswahl.fokus(), -1);
    EXPECT_EQ(auswahl.SelectedItem(), -1);
}

TEST_F(Auswahl, FolgtVerschobenenZeilen)
{
    klicke(1);
    posten.MoveItem(1, 3);
    auswahl.nachVerschieben(1, 3);
    EXPECT_EQ(auswahl.fokus(), 3);
    posten.MoveItem(0, 4);
    auswahl.nachVerschieben(0, 4);
    EXPECT_EQ(auswahl.fokus(), 2);
    posten.MoveItem(4, 0);
    auswahl.nachVerschieben(4, 0);
    EXPECT_EQ(auswahl.fokus(), 3);
    EXPECT_THAT(gewaehlte(), ElementsAre(3));
}

TEST_F(Auswahl, AmZielEinerVerschiebungMachtDerFokusPlatz)
{
    klicke(3);
    posten.MoveItem(1, 3);
    auswahl.nachVerschieben(1, 3);
    EXPECT_EQ(auswahl.fokus(), 2);
    EXPECT_THAT(gewaehlte(), ElementsAre(2));
    posten.MoveItem(4, 2);
    auswahl.nachVerschieben(4, 2);
    EXPECT_EQ(auswahl.fokus(), 3);
    EXPECT_THAT(gewaehlte(), ElementsAre(3));
}

TEST_F(Auswahl, AusserhalbEinerVerschiebungBleibtDerFokus)
{
    klicke(1);
    posten.MoveItem(2, 4);
    auswahl.nachVerschieben(2, 4);
    EXPECT_EQ(auswahl.fokus(), 1);
    posten.MoveItem(4, 2);
    auswahl.nachVerschieben(4, 2);
    EXPECT_EQ(auswahl.fokus(), 1);
}

TEST_F(Auswahl, GehtBeimSortierenMitIhrenZeilen)
{
    klicke(4);
    klickeStrg(1);
    auswahl.sortiere(0, Sortierrichtung::Aufsteigend);
    EXPECT_THAT(gewaehlte(), ElementsAre(0, 3));
    EXPECT_EQ(auswahl.fokus(), 3);
    klickeUmschalt(4);
    EXPECT_THAT(gewaehlte(), ElementsAre(3, 4));
}

TEST_F(Auswahl, EndetMitDemLeeren)
{
    auswahl.SelectAll();
    klicke(3);
    posten.Clear();
    auswahl.nachLeeren();
    EXPECT_EQ(auswahl.SelectedItem(), -1);
    EXPECT_EQ(auswahl.fokus(), -1);
    auswahl.SelectAll();
    EXPECT_EQ(auswahl.SelCount(), 0);
}

} // namespace

#include "listcontrol/logic/modLargeList.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

namespace {

constexpr const char* kKeineListe = "Zugriff auf dieses Objekt verweigert. Objekt ist keine Listbox.";

/// Source and text of what `tue` raises, joined by "|"; the empty text if it raises nothing.
template <class Tue> std::string fehlerVon(Tue tue)
{
    try {
        tue();
    } catch (const ListenFehler& fehler) {
        return fehler.quelle() + "|" + fehler.what();
    }
    return {};
}

TEST(modLargeList, UeberDieAlteGrenzeHinaus)
{
    ListenModell liste;
    for (int i = 0; i < 40'000; ++i)
        AddItem(&liste, std::to_string(i));
    EXPECT_EQ(GetListCount(&liste), 40'000);
    EXPECT_EQ(GetListItem(&liste, 39'999), "39999");
    SetListIndex(&liste, 39'999);
    EXPECT_EQ(liste.ListIndex(), 39'999);
    ClearList(&liste);
    EXPECT_EQ(GetListCount(&liste), 0);
}

TEST(modLargeList, SortierteListeOrdnetEin)
{
    ListenModell liste({.Sorted = true});
    AddItem(&liste, "b");
    AddItem(&liste, "a");
    EXPECT_EQ(GetListItem(&liste, 0), "a");
}

TEST(modLargeList, NullIstKeineListbox)
{
    ListenModell* const keine = nullptr;
    EXPECT_EQ(fehlerVon([&] { AddItem(keine, "x"); }), std::string("mod_Listbox.AddItem|") + kKeineListe);
    EXPECT_EQ(fehlerVon([&] { ClearList(keine); }), std::string("mod_Listbox.ClearList|") + kKeineListe);
    EXPECT_EQ(fehlerVon([&] { GetListCount(keine); }), std::string("mod_Listbox.GetListCount|") + kKeineListe);
    EXPECT_EQ(fehlerVon([&] { GetListItem(keine, 0); }), std::string("mod_ListBox.GetListItem|") + kKeineListe);
    EXPECT_EQ(fehlerVon([&] { SetListIndex(keine, 0); }), std::string("mod_Listbox.SetListIndex|") + kKeineListe);
}

TEST(modLargeList, IndexHinterDemEnde)
{
    ListenModell liste;
    AddItem(&liste, "x");
    const std::string erwartet = "mod_ListBox.GetListItem|Index außerhalb des gültigen Bereichs.";
    EXPECT_EQ(fehlerVon([&] { GetListItem(&liste, 1); }), erwartet);
    EXPECT_EQ(fehlerVon([&] { GetListItem(&liste, -1); }), erwartet);
    EXPECT_EQ(fehlerVon([&] { GetListItem(&liste, 0); }), "");
}

TEST(modLargeList, ZeileDieSichNichtMachenLaesst)
{
    ListenModell liste;
    liste.aufAnfrage(1, [](std::size_t) -> std::string { throw std::runtime_error("nichts da"); });
    EXPECT_EQ(fehlerVon([&] { GetListItem(&liste, 0); }),
              "mod_ListBox.GetListItem|Element konnte nicht ausgelesen werden.");
}

TEST(modLargeList, ListIndexAusserhalb)
{
    ListenModell liste;
    AddItem(&liste, "x");
    const std::string erwartet = "mod_Listbox.SetListIndex|Konnte ListIndex nicht setzen.";
    EXPECT_EQ(fehlerVon([&] { SetListIndex(&liste, 1); }), erwartet);
    EXPECT_EQ(fehlerVon([&] { SetListIndex(&liste, -2); }), erwartet);
    EXPECT_EQ(fehlerVon([&] { SetListIndex(&liste, 0); }), "");
}

TEST(modLargeList, MinusEinsNimmtDieAuswahlUndGiltAlsFehler)
{
    ListenModell liste;
    AddItem(&liste, "x");
    SetListIndex(&liste, 0);
    EXPECT_EQ(fehlerVon([&] { SetListIndex(&liste, -1); }), "mod_Listbox.SetListIndex|Konnte ListIndex nicht setzen.");
    EXPECT_EQ(liste.ListIndex(), -1);
}

TEST(modLargeList, ListeMitZeilenAufAnfrageNimmtKeineAn)
{
    ListenModell liste;
    liste.aufAnfrage(14'000'000, [](std::size_t i) { return std::to_string(i); });
    EXPECT_EQ(fehlerVon([&] { AddItem(&liste, "x"); }), std::string("mod_Listbox.AddItem|") + kKeineListe);
    EXPECT_EQ(GetListCount(&liste), 14'000'000);
    EXPECT_EQ(GetListItem(&liste, 13'999'999), "13999999");
}

} // namespace

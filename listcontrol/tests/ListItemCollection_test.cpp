#include "listcontrol/logic/ListItemCollection.h"
#include "listcontrol/logic/ListenFehler.h"
#include "listcontrol/logic/modShellSort.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

std::vector<std::string> spalte(const ListItemCollection& posten, int nummer = 0)
{
    std::vector<std::string> texte;
    for (int zeile = 0; zeile < posten.ItemCount(); ++zeile)
        texte.emplace_back(posten.Item(zeile).Text(nummer));
    return texte;
}

ListItemCollection mit(const std::vector<std::string>& texte, int spalten = 1)
{
    ListItemCollection posten(spalten);
    for (const std::string& text : texte)
        posten.AddItem(text);
    return posten;
}

TEST(ListItemCollection, OhneSpaltenIstHinzufuegenEinFehlerUndFuegtNichtsHinzu)
{
    ListItemCollection posten;
    try {
        posten.AddItem("x");
        FAIL() << "no error was raised";
    } catch (const ListenFehler& fehler) {
        EXPECT_STREQ(fehler.what(), "Kann Items nicht hinzufügen, wenn keine Spalten definiert wurden!");
    }
    EXPECT_EQ(posten.ItemCount(), 0);
}

TEST(ListItemCollection, GibtDenIndexDerNeuenZeile)
{
    ListItemCollection posten(2);
    EXPECT_EQ(posten.AddItem("a"), 0);
    EXPECT_EQ(posten.AddItem("c", "merke"), 1);
    EXPECT_EQ(posten.AddItem("b", {}, 1), 1);
    EXPECT_EQ(posten.AddItem("0", {}, 0), 0);
    EXPECT_EQ(posten.AddItem("d", {}, 4), 4);
    EXPECT_EQ(posten.AddItem("e", {}, -7), 5);
    EXPECT_THAT(spalte(posten), ElementsAre("0", "a", "b", "c", "d", "e"));
    EXPECT_EQ(posten.Item(3).Tag(), "merke");
    EXPECT_EQ(posten.Item(3).Text(1), "");
}

TEST(ListItemCollection, EinFalscherIndexIstFehler9)
{
    ListItemCollection posten = mit({"a", "b"});
    EXPECT_THROW(posten.AddItem("x", {}, 3), IndexFehler);
    EXPECT_THROW(posten.Item(2), IndexFehler);
    EXPECT_THROW(posten.Item(-1), IndexFehler);
    EXPECT_THROW(posten.RemoveItem(2), IndexFehler);
    EXPECT_THROW(posten.MoveItem(0, 2), IndexFehler);
    EXPECT_THROW(posten.MoveItem(-1, 0), IndexFehler);
    EXPECT_THROW(posten.Sort(1, Sortierrichtung::Aufsteigend), IndexFehler);
    EXPECT_THAT(spalte(posten), ElementsAre("a", "b"));
}

TEST(ListItemCollection, Die1001teZeileLaesstDieKapazitaetAuf1500Wachsen)
{
    ListItemCollection posten(1);
    for (int i = 0; i < 1000; ++i)
        posten.AddItem("");
    EXPECT_EQ(posten.Capacity(), 1000);
    posten.AddItem("");
    EXPECT_EQ(posten.Capacity(), 1500);
    EXPECT_EQ(posten.ItemCount(), 1001);
}

TEST(ListItemCollection, WaechstJedesmalUmDieHaelfteGerundet)
{
    ListItemCollection posten(1);
    std::vector<int> stufen{posten.Capacity()};
    for (int i = 0; i < 6000; ++i) {
        posten.AddItem("");
        if (posten.Capacity() != stufen.back())
            stufen.push_back(posten.Capacity());
    }
    EXPECT_THAT(stufen, ElementsAre(1000, 1500, 2250, 3375, 5062, 7593));
}

TEST(ListItemCollection, LegtSichAufEineZeilenzahlFest)
{
    ListItemCollection posten(1);
    posten.PrepareForItems(20);
    EXPECT_EQ(posten.Capacity(), 20);
    for (int i = 0; i < 21; ++i)
        posten.AddItem("");
    EXPECT_EQ(posten.Capacity(), 30);
    posten.PrepareForItems(5);
    EXPECT_EQ(posten.Capacity(), 21);
    EXPECT_EQ(posten.ItemCount(), 21);
}

TEST(ListItemCollection, WaechstAuchVonNichtsAus)
{
    ListItemCollection posten(1);
    posten.PrepareForItems(0);
    for (int i = 0; i < 4; ++i)
        posten.AddItem("");
    EXPECT_EQ(posten.ItemCount(), 4);
    EXPECT_GE(posten.Capacity(), 4);
}

TEST(ListItemCollection, LeerenBehaeltSpaltenUndKapazitaet)
{
    ListItemCollection posten = mit({"a", "b"}, 3);
    posten.PrepareForItems(5000);
    posten.Clear();
    EXPECT_EQ(posten.ItemCount(), 0);
    EXPECT_EQ(posten.ColumnCount(), 3);
    EXPECT_EQ(posten.Capacity(), 5000);
}

TEST(ListItemCollection, EntferntGenauEineZeile)
{
    ListItemCollection posten = mit({"a", "b", "c"});
    posten.RemoveItem(1);
    EXPECT_THAT(spalte(posten), ElementsAre("a", "c"));
}

TEST(ListItemCollection, VerschiebtNachVornUndNachHinten)
{
    ListItemCollection posten = mit({"a", "b", "c", "d"});
    posten.MoveItem(0, 2);
    EXPECT_THAT(spalte(posten), ElementsAre("b", "c", "a", "d"));
    posten.MoveItem(3, 0);
    EXPECT_THAT(spalte(posten), ElementsAre("d", "b", "c", "a"));
    posten.MoveItem(1, 1);
    EXPECT_THAT(spalte(posten), ElementsAre("d", "b", "c", "a"));
}

TEST(ListItemCollection, ZahlenMitFuehrendenNullenSortierenSichNachIhremWert)
{
    ListItemCollection posten = mit({"10", "09", "49", "01", "31"});
    posten.Sort(0, Sortierrichtung::Aufsteigend);
    EXPECT_THAT(spalte(posten), ElementsAre("01", "09", "10", "31", "49"));
}

TEST(ListItemCollection, ZahlenOhneFuehrendeNullenSortierenSichAlsText)
{
    ListItemCollection posten = mit({"10", "9", "49", "1", "31"});
    posten.Sort(0, Sortierrichtung::Aufsteigend);
    EXPECT_THAT(spalte(posten), ElementsAre("1", "10", "31", "49", "9"));
}

TEST(ListItemCollection, Richtung1SortiertAbsteigend)
{
    ListItemCollection posten = mit({"b", "C", "a"});
    posten.Sort(0, static_cast<Sortierrichtung>(1));
    EXPECT_THAT(spalte(posten), ElementsAre("C", "b", "a"));
}

TEST(ListItemCollection, SortiertOhneAnsehenVonGrossUndKlein)
{
    ListItemCollection posten = mit({"zwölf", "ZWÖLFTE", "Acht", "acht", "ÜBER", "über"});
    posten.Sort(0, Sortierrichtung::Aufsteigend);
    EXPECT_THAT(spalte(posten), ElementsAre("Acht", "acht", "zwölf", "ZWÖLFTE", "ÜBER", "über"));
}

TEST(ListItemCollection, SortiertGanzeZeilenNachEinerSpalte)
{
    ListItemCollection posten(2);
    for (const auto& [erster, zweiter] : std::vector<std::pair<const char*, const char*>>{{"a", "2"}, {"b", "1"}})
        posten.Item(posten.AddItem(erster, zweiter)).setText(1, zweiter);
    posten.Sort(1, Sortierrichtung::Aufsteigend);
    EXPECT_THAT(spalte(posten), ElementsAre("b", "a"));
    EXPECT_EQ(posten.Item(0).Tag(), "1");
}

TEST(ListItemCollection, GleicheTexteBleibenBeimSortierenWoSieSind)
{
    ListItemCollection posten = mit({"1", "2", "3", "4", "5", "6"}, 2);
    posten.Sort(1, Sortierrichtung::Absteigend);
    EXPECT_THAT(spalte(posten), ElementsAre("1", "2", "3", "4", "5", "6"));
}

/// Texts that differ early, late, in length only, or not at all.
std::string sortiertext(std::mt19937& wuerfel)
{
    static const std::vector<std::string> anfaenge = {
        "",  "0", "gemeinsamer Anfan", "GEMEINSAMER ANFANG", std::string("nul\0l", 5), std::string("nul\0", 4),
        "ö", "Ö", "fünfzehn Byte"};
    static const std::vector<std::string> enden = {"", " ", "a", "B", "zzzzzzzz", "ß", "é", "É"};
    return anfaenge[wuerfel() % anfaenge.size()] + enden[wuerfel() % enden.size()] + enden[wuerfel() % enden.size()];
}

TEST(ListItemCollection, SortiertGenauWieDerShellsortMitSeinemVergleich)
{
    std::mt19937 wuerfel(6049);
    for (const auto richtung : {Sortierrichtung::Aufsteigend, Sortierrichtung::Absteigend}) {
        for (const int anzahl : {0, 1, 2, 3, 50, 1000}) {
            ListItemCollection posten(2);
            std::vector<ListItem> erwartet;
            for (int i = 0; i < anzahl; ++i) {
                const std::string text = sortiertext(wuerfel);
                posten.Item(posten.AddItem(std::to_string(i))).setText(1, text);
                erwartet.emplace_back(2).setText(0, std::to_string(i));
                erwartet.back().setText(1, text);
            }
            const SortCallback vergleich{.spalte = 1, .richtung = richtung};
            std::vector<const ListItem*> folge;
            for (const ListItem& einer : erwartet)
                folge.push_back(&einer);
            ShellSort(folge, [&](const ListItem* links, const ListItem* rechts) { return vergleich(*links, *rechts); });
            std::vector<std::string> namen;
            for (const ListItem* einer : folge)
                namen.emplace_back(einer->Text(0));
            posten.Sort(1, richtung);
            EXPECT_THAT(spalte(posten), ElementsAreArray(namen)) << anzahl;
        }
    }
}

TEST(ListItemCollection, NeueSpaltenzahlGiltFuerAlleZeilen)
{
    ListItemCollection posten = mit({"a", "b"});
    posten.setColumnCount(2);
    posten.Item(1).setText(1, "x");
    EXPECT_EQ(posten.Item(1).Text(1), "x");
    EXPECT_EQ(posten.Item(posten.AddItem("c")).SubItemCount(), 2);
}

} // namespace

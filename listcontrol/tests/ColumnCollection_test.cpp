#include "listcontrol/logic/ColumnCollection.h"
#include "listcontrol/logic/ListenFehler.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace {

Column spalte(std::string key, std::string titel = {})
{
    Column neue;
    neue.key = std::move(key);
    neue.Caption = std::move(titel);
    return neue;
}

ColumnCollection mit(std::initializer_list<const char*> keys)
{
    ColumnCollection spalten;
    for (const char* key : keys)
        spalten.Add(spalte(key));
    return spalten;
}

TEST(ColumnCollection, IstAmAnfangLeer)
{
    const ColumnCollection spalten;
    EXPECT_EQ(spalten.Count(), 0);
    EXPECT_EQ(spalten.Index("Jahr"), -1);
}

TEST(ColumnCollection, FindetSpaltenNachIndexUndSchluessel)
{
    const ColumnCollection spalten = mit({"Zieh.Nr", "trenner0", "Jahr"});
    EXPECT_EQ(spalten.Count(), 3);
    EXPECT_EQ(spalten.Item(2).key, "Jahr");
    EXPECT_EQ(spalten.Index("trenner0"), 1);
    EXPECT_EQ(spalten.Index("ZIEH.NR"), 0);
    EXPECT_EQ(spalten.Index("SW"), -1);
}

TEST(ColumnCollection, EinSchluesselZweimalIstEinFehler)
{
    ColumnCollection spalten = mit({"SZ"});
    try {
        spalten.Add(spalte("sz"));
        FAIL() << "no error was raised";
    } catch (const ListenFehler& fehler) {
        EXPECT_STREQ(fehler.what(), "Objekt nicht eindeutig in Aufzählung!");
        EXPECT_EQ(fehler.nummer(), 0);
    }
    EXPECT_EQ(spalten.Count(), 1);
}

TEST(ColumnCollection, EntfernenLaesstDieSpaeterenAufruecken)
{
    ColumnCollection spalten = mit({"a", "b", "c"});
    spalten.Remove(1);
    EXPECT_EQ(spalten.Count(), 2);
    EXPECT_EQ(spalten.Index("c"), 1);
    spalten.Add(spalte("b"));
    EXPECT_EQ(spalten.Index("b"), 2);
}

TEST(ColumnCollection, EinFalscherIndexIstFehler9)
{
    ColumnCollection spalten = mit({"a"});
    for (const int index : {-1, 1, 100}) {
        EXPECT_THROW(spalten.Item(index), IndexFehler) << index;
        EXPECT_THROW(spalten.Remove(index), IndexFehler) << index;
    }
    try {
        spalten.Item(1);
        FAIL() << "no error was raised";
    } catch (const ListenFehler& fehler) {
        EXPECT_EQ(fehler.nummer(), 9);
        EXPECT_STREQ(fehler.what(), "Index außerhalb des gültigen Bereichs");
        EXPECT_EQ(fehler.quelle(), "ColumnCollection");
    }
    EXPECT_EQ(spalten.Count(), 1);
}

TEST(Column, NurOhneTitelUndMitFesterBreiteIstSieEinTrenner)
{
    Column eine = spalte("trenner1");
    EXPECT_FALSE(eine.istTrenner());
    eine.Resizable = false;
    EXPECT_TRUE(eine.istTrenner());
    eine.Caption = "Z1";
    EXPECT_FALSE(eine.istTrenner());
}

TEST(Column, WarVorDerErstenSortierungInKeinerRichtungSortiert)
{
    EXPECT_FALSE(Column().LastSortOrder.has_value());
}

} // namespace

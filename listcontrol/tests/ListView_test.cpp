// What programs do with the list: its members, its errors, its rows as a store.

#include "listcontrol/tests/ListViewTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ListViewSpeicher : public ListViewTest {};

TEST_F(ListViewSpeicher, HatDieVorgabenDerEigenschaften)
{
    EXPECT_EQ(liste->BackColor(), QApplication::palette().color(QPalette::Base));
    EXPECT_EQ(liste->ForeColor(), QApplication::palette().color(QPalette::Text));
    EXPECT_EQ(liste->SelectedBackColor(), QApplication::palette().color(QPalette::Highlight));
    EXPECT_EQ(liste->SelectedForeColor(), QApplication::palette().color(QPalette::HighlightedText));
    EXPECT_EQ(liste->FocusRectColor(), QApplication::palette().color(QPalette::Highlight));
    EXPECT_EQ(liste->CheckboxColor(), QColor(0, 0, 0));
    EXPECT_EQ(liste->CheckboxSelectedColor(), QColor(255, 255, 255));
    EXPECT_TRUE(liste->Reorder());
    EXPECT_TRUE(liste->MultiSelect());
    EXPECT_FALSE(liste->ColumnsAutoSize());
    EXPECT_TRUE(liste->ColumnsVisible());
    EXPECT_TRUE(liste->Enabled());
    EXPECT_EQ(liste->BorderStyle(), 1);
    EXPECT_TRUE(liste->SolidFocusRect());
    EXPECT_FALSE(liste->Checkboxes());
    EXPECT_EQ(liste->ItemPaddingTop(), 4);
    EXPECT_EQ(liste->ItemPaddingBottom(), 4);
    EXPECT_EQ(liste->ItemPaddingLeft(), 4);
    EXPECT_EQ(liste->ItemPaddingRight(), 5);
    EXPECT_EQ(liste->PictureHeight(), 16);
    EXPECT_EQ(liste->PictureWidth(), 16);
    EXPECT_TRUE(liste->PicturesVisible());
    EXPECT_TRUE(liste->Redraw());
    EXPECT_TRUE(liste->Sortable());
    EXPECT_EQ(liste->SelectedItem(), -1);
    EXPECT_EQ(liste->PictureCount(), 0);
}

TEST_F(ListViewSpeicher, OhneSpaltenIstHinzufuegenEinFehlerUndFuegtNichtsHinzu)
{
    try {
        liste->AddItem("x");
        FAIL() << "no error was raised";
    } catch (const std::runtime_error& fehler) {
        EXPECT_STREQ(fehler.what(), "Kann Items nicht hinzufügen, wenn keine Spalten definiert wurden!");
    }
    EXPECT_EQ(liste->ItemCount(), 0);
}

TEST_F(ListViewSpeicher, MitZeilenBleibenDieSpaltenWieSieSind)
{
    legeSpaltenAn();
    fuelle(1);
    constexpr auto kText = "Kann Spalten nicht hinzufügen oder entfernen wenn Items in Liste!";
    EXPECT_THAT([this] { liste->AddColumn("neu", "Neu", TextAlign::Left, 10); },
                testing::ThrowsMessage<ListenFehler>(kText));
    EXPECT_THAT([this] { liste->RemoveColumn(0); }, testing::ThrowsMessage<ListenFehler>(kText));
    EXPECT_EQ(liste->ColumnCount(), 5);
    liste->Clear();
    liste->RemoveColumn(0);
    EXPECT_EQ(liste->ColumnCount(), 4);
}

TEST_F(ListViewSpeicher, EinSchluesselZweimalIstEinFehler)
{
    legeSpaltenAn();
    EXPECT_THAT([this] { liste->AddTrenner("trenner1"); },
                testing::ThrowsMessage<ListenFehler>("Objekt nicht eindeutig in Aufzählung!"));
    EXPECT_EQ(liste->ColumnCount(), 5);
}

TEST_F(ListViewSpeicher, EinFalscherIndexIstFehler9)
{
    legeSpaltenAn();
    fuelle(2);
    EXPECT_THROW(liste->ItemText(2, 0), IndexFehler);
    EXPECT_THROW(liste->ItemText(0, 5), IndexFehler);
    EXPECT_THROW(liste->setItemText(-1, 0, ""), IndexFehler);
    EXPECT_THROW(liste->RemoveItem(2), IndexFehler);
    EXPECT_THROW(liste->MoveItem(0, 2), IndexFehler);
    EXPECT_THROW(liste->ItemTag(2), IndexFehler);
    EXPECT_THROW(liste->ItemSelected(2), IndexFehler);
    EXPECT_THROW(liste->setItemSelected(2, true), IndexFehler);
    EXPECT_THROW(liste->setSelectedItem(2), IndexFehler);
    EXPECT_THROW(liste->ItemChecked(-2), IndexFehler);
    EXPECT_THROW(liste->MakeSureVisible(2), IndexFehler);
    EXPECT_THROW(liste->Sort(5), IndexFehler);
    EXPECT_THROW(liste->ColumnKey(5), IndexFehler);
    EXPECT_THROW(liste->setColumnWidth(-1, 3), IndexFehler);
    EXPECT_THROW(liste->zeilentext(2), IndexFehler);
    EXPECT_EQ(liste->ItemCount(), 2);
    liste->Clear();
    EXPECT_THROW(liste->RemoveColumn(5), IndexFehler);
}

TEST_F(ListViewSpeicher, SpaltenHabenDieAngegebenenEigenschaften)
{
    legeSpaltenAn();
    liste->AddColumn("d", "Versteckt", TextAlign::Right, 33, false, false);
    EXPECT_EQ(liste->ColumnIndex("b"), 2);
    EXPECT_EQ(liste->ColumnIndex("nie"), -1);
    EXPECT_EQ(liste->ColumnKey(1), "trenner0");
    EXPECT_EQ(liste->ColumnCaption(0), "Zieh.Nr.");
    EXPECT_EQ(liste->ColumnWidth(1), 1);
    EXPECT_FALSE(liste->ColumnResizable(1));
    EXPECT_TRUE(liste->ColumnResizable(2));
    EXPECT_EQ(liste->ColumnTextAlign(2), TextAlign::Center);
    EXPECT_FALSE(liste->ColumnVisible(5));
    EXPECT_FALSE(liste->ColumnResizable(5));
    liste->setColumnCaption(4, "Gewinne");
    liste->setColumnWidth(4, 85);
    liste->setColumnTextAlign(4, TextAlign::Center);
    liste->setColumnVisible(5, true);
    liste->setColumnResizable(5, true);
    EXPECT_EQ(liste->ColumnCaption(4), "Gewinne");
    EXPECT_EQ(liste->ColumnWidth(4), 85);
    EXPECT_EQ(liste->ColumnTextAlign(4), TextAlign::Center);
    EXPECT_TRUE(liste->ColumnVisible(5));
    EXPECT_TRUE(liste->ColumnResizable(5));
}

TEST_F(ListViewSpeicher, GibtZurueckWasGeschriebenWurde)
{
    legeSpaltenAn();
    EXPECT_EQ(liste->AddItem("0001", "merke"), 0);
    EXPECT_EQ(liste->AddItem("0000", {}, 0), 0);
    liste->setItemText(1, 2, " 07 ");
    liste->setItemText(1, 4, "Zeile\nÜbertrag");
    EXPECT_EQ(liste->ItemText(1, 0), "0001");
    EXPECT_EQ(liste->ItemText(1, 1), "");
    EXPECT_EQ(liste->ItemText(1, 2), " 07 ");
    EXPECT_EQ(liste->ItemTag(1), "merke");
    EXPECT_EQ(liste->zeilentext(1), QString("0001\t\t 07 \t\tZeile\nÜbertrag"));
    liste->setItemTag(1, "b");
    EXPECT_EQ(liste->ItemTag(1), "b");
}

TEST_F(ListViewSpeicher, ClearBehaeltDieSpalten)
{
    legeSpaltenAn();
    fuelle(10);
    liste->setSelectedItem(4);
    liste->Clear();
    EXPECT_EQ(liste->ItemCount(), 0);
    EXPECT_EQ(liste->ColumnCount(), 5);
    EXPECT_EQ(liste->SelectedItem(), -1);
}

TEST_F(ListViewSpeicher, EntferntUndVerschiebtZeilenMitIhrerAuswahl)
{
    legeSpaltenAn();
    fuelle(5);
    liste->setSelectedItem(1);
    liste->MoveItem(1, 3);
    EXPECT_THAT(spalte(0), ElementsAre("0000", "0002", "0003", "0001", "0004"));
    EXPECT_EQ(liste->SelectedItem(), 3);
    liste->RemoveItem(0);
    EXPECT_EQ(liste->SelectedItem(), 2);
    liste->RemoveItem(2);
    EXPECT_THAT(spalte(0), ElementsAre("0002", "0003", "0004"));
    EXPECT_EQ(liste->SelectedItem(), -1);
}

TEST_F(ListViewSpeicher, SortiertMitAuswahlUndAnsicht)
{
    legeSpaltenAn();
    fuelle(4);
    liste->setSelectedItem(0);
    liste->Sort(4);
    EXPECT_THAT(spalte(0), ElementsAre("0003", "0002", "0001", "0000"));
    EXPECT_THAT(gewaehlte(), ElementsAre(3));
    liste->Sort(4, Sortierrichtung::Absteigend);
    EXPECT_THAT(spalte(0), ElementsAre("0000", "0001", "0002", "0003"));
}

TEST_F(ListViewSpeicher, WaehltAlleUndKeine)
{
    legeSpaltenAn();
    fuelle(3);
    int ereignisse = 0;
    liste->beiAuswahl = [&] { ++ereignisse; };
    liste->SelectAll();
    EXPECT_THAT(gewaehlte(), ElementsAre(0, 1, 2));
    liste->UnSelectAll();
    EXPECT_THAT(gewaehlte(), IsEmpty());
    liste->setItemSelected(1, true);
    EXPECT_THAT(gewaehlte(), ElementsAre(1));
    EXPECT_EQ(ereignisse, 0);
}

TEST_F(ListViewSpeicher, MerktSichHaekchenUndBilder)
{
    legeSpaltenAn();
    fuelle(2);
    liste->setItemChecked(1, true);
    EXPECT_FALSE(liste->ItemChecked(0));
    EXPECT_TRUE(liste->ItemChecked(1));
    EXPECT_EQ(liste->AddPicture(QPixmap(16, 16)), 0);
    EXPECT_EQ(liste->PictureCount(), 1);
    EXPECT_EQ(liste->ItemPicture(0), -1);
    liste->setItemPicture(0, 0);
    EXPECT_EQ(liste->ItemPicture(0), 0);
}

TEST_F(ListViewSpeicher, FarbenFolgenDerPaletteBisSieGesetztSind)
{
    liste->setBackColor(Qt::yellow);
    liste->setForeColor(Qt::blue);
    liste->setSelectedBackColor(Qt::magenta);
    EXPECT_EQ(liste->BackColor(), QColor(Qt::yellow));
    EXPECT_EQ(liste->ForeColor(), QColor(Qt::blue));
    EXPECT_EQ(liste->FocusRectColor(), QColor(Qt::magenta));
    liste->setFocusRectColor(Qt::black);
    EXPECT_EQ(liste->FocusRectColor(), QColor(Qt::black));
    EXPECT_EQ(liste->SelectedForeColor(), QApplication::palette().color(QPalette::HighlightedText));
}

} // namespace

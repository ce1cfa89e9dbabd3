#pragma once

#include "listcontrol/logic/ColumnCollection.h"
#include "listcontrol/logic/ICustomDraw.h"
#include "listcontrol/logic/ListItemCollection.h"
#include "listcontrol/logic/ListenFehler.h"
#include "listcontrol/logic/Listenauswahl.h"
#include "listcontrol/logic/Spaltenlage.h"
#include "listcontrol/screens/Zellmaler.h"
#include "shell/elements/Zeilenansicht.h"

#include <QMargins>
#include <QPixmap>

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

class Listenkopf;
class QMimeData;

/// The result list: rows of cells under a header, each cell coloured by a callback. Screens use it as a store as well:
/// they write cells with `setItemText` and read them back with `ItemText`. Rows and columns count from 0; the index of
/// a column is the order in which it was added, wherever the user drags it to. An index out of range raises
/// `IndexFehler` (number 9), all else `ListenFehler`.
///
/// What stands behind the toolkit's own means here: a colour with its brush and pen (`Color`) is a QColor of the
/// palette, the off-screen surface (`DrawBuffer`) is Qt's backing store, the scroll bars (`Scrollbars`) and the
/// routing of messages (`Subclasser`) are those of QAbstractScrollArea.
class ListView final : public Zeilenansicht {
public:
    explicit ListView(QWidget* eltern);
    ~ListView() override;

    // --- Items

    int PictureCount() const { return static_cast<int>(bilder_.size()); }
    /// The chosen row: the focus row if it is chosen, else the first chosen one; -1 for none.
    int SelectedItem() const { return auswahl_.SelectedItem(); }
    /// Chooses this row alone, or with -1 none. Raises no event.
    void setSelectedItem(int row)
    {
        setze([&] { auswahl_.waehleAllein(row); });
    }
    int ItemCount() const { return posten_.ItemCount(); }
    std::string ItemTag(int row) const { return std::string(posten_.Item(row).Tag()); }
    void setItemTag(int row, std::string_view tag) { posten_.Item(row).setTag(tag); }
    bool ItemSelected(int row) const { return posten_.Item(row).Selected(); }
    void setItemSelected(int row, bool selected)
    {
        setze([&] { auswahl_.setSelected(row, selected); });
    }
    std::string ItemText(int row, int column) const { return std::string(posten_.Item(row).Text(column)); }
    void setItemText(int row, int column, std::string_view text);
    bool ItemChecked(int row) const { return posten_.Item(row).Checked(); }
    void setItemChecked(int row, bool checked)
    {
        setze([&] { posten_.Item(row).setChecked(checked); });
    }
    /// Index of the picture in front of a row's first text; -1 for none.
    int ItemPicture(int row) const { return posten_.Item(row).PictureIndex(); }
    void setItemPicture(int row, int picture)
    {
        setze([&] { posten_.Item(row).setPictureIndex(picture); });
    }
    /// Adds a picture that rows can show. Returns its index.
    int AddPicture(const QPixmap& picture);

    /// Adds a row in front of row `index`, or with an index below 0 behind the last one; `text` is that of the first
    /// column. Returns the new row's index. Raises `ListenFehler` while there are no columns.
    int AddItem(std::string_view text, std::string_view tag = {}, int index = -1);
    void RemoveItem(int row);
    /// Takes a row out and puts it back so that it becomes row `to`.
    void MoveItem(int from, int to);
    /// Removes all rows; the columns stay.
    void Clear();
    /// Makes room for this many rows before a long fill.
    void PrepareForItems(int count) { posten_.PrepareForItems(count); }

    // --- Columns. Adding and removing raise `ListenFehler` while there are rows, and for a key that is taken.

    /// -1 if no column has this key.
    int ColumnIndex(std::string_view key) const { return spalten_.Index(key); }
    void RemoveColumn(int column);
    /// `width` is in pixels. A column without caption that is not resizable is a separator.
    void AddColumn(std::string_view key, std::string_view caption, TextAlign textAlign, int width,
                   bool resizable = true, bool visible = true);
    /// Adds a separator: a line one pixel wide, coloured by the callback like any column.
    void AddTrenner(std::string_view key) { AddColumn(key, {}, TextAlign::Left, 1, false); }
    int ColumnCount() const { return spalten_.Count(); }
    const std::string& ColumnKey(int column) const { return spalten_.Item(column).key; }
    /// True if the header is shown.
    bool ColumnsVisible() const { return kopfSichtbar_; }
    void setColumnsVisible(bool visible);
    bool ColumnVisible(int column) const { return spalten_.Item(column).Visible; }
    void setColumnVisible(int column, bool visible);
    const std::string& ColumnCaption(int column) const { return spalten_.Item(column).Caption; }
    void setColumnCaption(int column, std::string_view caption);
    int ColumnWidth(int column) const { return spalten_.Item(column).Width; }
    void setColumnWidth(int column, int width);
    bool ColumnResizable(int column) const { return spalten_.Item(column).Resizable; }
    void setColumnResizable(int column, bool resizable);
    TextAlign ColumnTextAlign(int column) const { return spalten_.Item(column).TextAlign; }
    void setColumnTextAlign(int column, TextAlign textAlign);
    /// The width that shows a text of this many characters in full.
    int breiteFuerZeichen(int zeichen) const;
    /// Gives a column the width of its widest text, looking at its caption and at rows up to a bounded number.
    void passeBreiteAn(int column);

    // --- Behaviour

    /// A click on a header sorts. True at first: to be switched off where a row's place means something.
    bool Sortable() const;
    void setSortable(bool sortable);
    /// Rows grow a little so that whole ones fill the height.
    bool ItemsAutoSize() const { return zeilenStrecken_; }
    void setItemsAutoSize(bool autoSize)
    {
        setze([&] { zeilenStrecken_ = autoSize; });
    }
    int PictureHeight() const { return bildgroesse_.height(); }
    void setPictureHeight(int height)
    {
        setze([&] { bildgroesse_.setHeight(std::max(0, height)); });
    }
    int PictureWidth() const { return bildgroesse_.width(); }
    void setPictureWidth(int width)
    {
        setze([&] { bildgroesse_.setWidth(std::max(0, width)); });
    }
    bool PicturesVisible() const { return bilderSichtbar_; }
    void setPicturesVisible(bool visible)
    {
        setze([&] { bilderSichtbar_ = visible; });
    }
    int ItemPaddingTop() const { return innenrand_.top(); }
    void setItemPaddingTop(int padding)
    {
        setze([&] { innenrand_.setTop(std::max(0, padding)); });
    }
    int ItemPaddingBottom() const { return innenrand_.bottom(); }
    void setItemPaddingBottom(int padding)
    {
        setze([&] { innenrand_.setBottom(std::max(0, padding)); });
    }
    int ItemPaddingLeft() const { return innenrand_.left(); }
    void setItemPaddingLeft(int padding)
    {
        setze([&] { innenrand_.setLeft(std::max(0, padding)); });
    }
    int ItemPaddingRight() const { return innenrand_.right(); }
    void setItemPaddingRight(int padding)
    {
        setze([&] { innenrand_.setRight(std::max(0, padding)); });
    }
    bool Checkboxes() const { return kaestchenSichtbar_; }
    void setCheckboxes(bool checkboxes)
    {
        setze([&] { kaestchenSichtbar_ = checkboxes; });
    }
    /// 0: nothing can be dropped; 1: a drop calls `beiAblegen`.
    int OLEDropMode() const { return ablegemodus_; }
    void setOLEDropMode(int mode);
    /// A solid frame around the focus row instead of a dotted one.
    bool SolidFocusRect() const { return fokusSolide_; }
    void setSolidFocusRect(bool solid)
    {
        setze([&] { fokusSolide_ = solid; });
    }
    ICustomDraw* DrawCallback() const { return faerber_; }
    /// Who colours the cells; not owned, null for nobody.
    void setDrawCallback(ICustomDraw* callback)
    {
        setze([&] { faerber_ = callback; });
    }
    /// 0: no border, 1: a border.
    int BorderStyle() const { return frameShape() == QFrame::NoFrame ? 0 : 1; }
    void setBorderStyle(int style);
    bool Enabled() const { return isEnabled(); }
    /// How many rows the list would like to have in sight.
    void setzeSichtbar(int zeilen)
    {
        sichtbareZeilen_ = zeilen;
        updateGeometry();
    }
    /// Spreads spare width over the columns that the user has not sized; separators stay.
    bool ColumnsAutoSize() const { return spaltenStrecken_; }
    void setColumnsAutoSize(bool autoSize);
    /// Headers can be dragged to another place. Separators keep theirs.
    bool Reorder() const;
    void setReorder(bool reorder);
    bool MultiSelect() const { return auswahl_.MultiSelect(); }
    void setMultiSelect(bool multiSelect)
    {
        setze([&] { auswahl_.setMultiSelect(multiSelect); });
    }

    // --- Colours and font. A colour that is not set follows the palette.

    QColor CheckboxColor() const { return kaestchenfarbe_; }
    void setCheckboxColor(const QColor& color)
    {
        setze([&] { kaestchenfarbe_ = color; });
    }
    QColor CheckboxSelectedColor() const { return kaestchenfarbeGewaehlt_; }
    void setCheckboxSelectedColor(const QColor& color)
    {
        setze([&] { kaestchenfarbeGewaehlt_ = color; });
    }
    QColor BackColor() const { return palette().color(QPalette::Base); }
    void setBackColor(const QColor& color) { setzeFarbe(QPalette::Base, color); }
    QColor ForeColor() const { return palette().color(QPalette::Text); }
    void setForeColor(const QColor& color) { setzeFarbe(QPalette::Text, color); }
    QColor SelectedForeColor() const { return palette().color(QPalette::HighlightedText); }
    void setSelectedForeColor(const QColor& color) { setzeFarbe(QPalette::HighlightedText, color); }
    QColor SelectedBackColor() const { return palette().color(QPalette::Highlight); }
    void setSelectedBackColor(const QColor& color) { setzeFarbe(QPalette::Highlight, color); }
    QColor FocusRectColor() const { return fokusfarbe_.isValid() ? fokusfarbe_ : SelectedBackColor(); }
    void setFocusRectColor(const QColor& color)
    {
        setze([&] { fokusfarbe_ = color; });
    }
    QFont Font() const { return font(); }

    /// False: neither painting nor scroll bars follow what happens, until it is set to true again.
    bool Redraw() const { return zeichnet_; }
    void setRedraw(bool redraw);

    // --- Actions. Points are in pixels of the whole control, its header and border included.

    int ItemHeight() const { return zeilenhoehe(); }
    void Sort(int column, Sortierrichtung order = Sortierrichtung::Aufsteigend);
    /// -1 beside the columns.
    int ColumnFromPoint(int x, int y) const;
    /// -1 on the header and below the last row.
    int RowFromPoint(int x, int y) const;
    /// Paints at once.
    void Refresh();
    /// Scrolls as little as possible, so that the row is in sight.
    void MakeSureVisible(int row);
    /// The same to the side, for a column.
    void zeigeSpalte(int column);
    void SelectAll()
    {
        setze([&] { auswahl_.SelectAll(); });
    }
    void UnSelectAll()
    {
        setze([&] { auswahl_.UnSelectAll(); });
    }

    // --- Events. `beiAuswahl` (the choice changed) and `beiDoppelklick` (row) are those of every list.

    std::function<void(int)> beiSpaltenklick;              ///< the column, after a click on its header has sorted
    std::function<void(int)> beiTaste;                     ///< the Qt key, before the list acts on it
    std::function<void(const QMimeData&, int)> beiAblegen; ///< what was dropped, on which row (-1: on none)

    int zeilenzahl() const override { return posten_.ItemCount(); }
    /// The texts of all columns, separators and hidden ones included, in the order of their indices, joined by TAB.
    QString zeilentext(int zeile) const override;
    bool istGewaehlt(int zeile) const override { return posten_.Item(zeile).Selected(); }
    /// One entry a column, in the order of their indices.
    std::vector<Zellfarben> zellfarben(int zeile) const override;
    /// What the user sees of a row: the visible columns in their places, without the separators.
    QString kopierzeile(int zeile) const override;
    int fokuszeile() const override { return auswahl_.fokus(); }
    bool waehleAlle() override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void maleZeile(QPainter& maler, int zeile, const QRect& rechteck) override;
    int zeilenhoehe() const override;
    int zeilenbreite() const override { return lage_.gesamtbreite(); }
    void waehle(int zeile, Qt::KeyboardModifiers tasten) override;
    void schalte(int zeile) override;
    bool ruht() const override { return !zeichnet_; }

    void changeEvent(QEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    bool viewportEvent(QEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void dragEnterEvent(QDragEnterEvent* ereignis) override;
    void dragMoveEvent(QDragMoveEvent* ereignis) override;
    void dropEvent(QDropEvent* ereignis) override;

private:
    template <class Aendere> void setze(Aendere aendere)
    {
        aendere();
        erneuere();
    }
    void setzeFarbe(QPalette::ColorRole rolle, const QColor& farbe);
    void pruefeLeer() const;
    void verbindeKopf();
    void stelleSpalten();
    void ordneSpalten();
    void ordneKopf();
    void klickeSpalte(int spalte);
    void rolleZu(int zeile);
    void vergissSortierung();

    QSize groesseFuer(int zeilen, int hoechstens) const;
    QRect zelle(int zeile, const Spaltenlage::Platz& platz) const;
    QRect kaestchen(const QRect& zelle) const;
    QRect bildplatz(const QRect& zelle) const;
    int vorDemText(int zeile, int spalte) const;
    const QPixmap* bildVon(int zeile) const;
    bool schalteKaestchenBei(QPoint ort);
    QString abgeschnittenerText(QPoint ort) const;
    Zellfarben farben(int zeile, int spalte) const;
    void maleInhalt(QPainter& maler, const QRect& zelle, int zeile, int spalte) const;
    void maleKaestchen(QPainter& maler, const QRect& kasten, int zeile) const;
    void maleZeilenfokus(QPainter& maler, const QRect& zeile) const;

    ColumnCollection spalten_;
    Spaltenlage lage_{spalten_};
    ListItemCollection posten_;
    Listenauswahl auswahl_{posten_};
    Zellmaler zellmaler_;
    std::vector<QPixmap> bilder_;
    Listenkopf* kopf_;
    ICustomDraw* faerber_ = nullptr;

    QMargins innenrand_{4, 4, 5, 4};
    QSize bildgroesse_{16, 16};
    QColor kaestchenfarbe_{Qt::black};
    QColor kaestchenfarbeGewaehlt_{Qt::white};
    QColor fokusfarbe_;
    bool zeichnet_ = true;
    bool kopfSichtbar_ = true;
    bool spaltenStrecken_ = false;
    bool zeilenStrecken_ = false;
    bool bilderSichtbar_ = true;
    bool kaestchenSichtbar_ = false;
    bool fokusSolide_ = true;
    bool imKaestchen_ = false; ///< the mouse was pressed on a check box
    int ablegemodus_ = 0;
    int sichtbareZeilen_ = 8;
    int zielzeile_ = -1; ///< to be scrolled to when drawing goes on; -1 for none
};

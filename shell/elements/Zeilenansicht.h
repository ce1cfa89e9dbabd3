#pragma once

#include <QAbstractScrollArea>
#include <QColor>

#include <functional>
#include <vector>

class Listenhandgriffe;

/// The colours of one painted cell.
struct Zellfarben {
    QColor grund;
    QColor schrift;
};

/// A scrolling area of rows of one height, painted on demand: what it costs depends on the rows in sight and not on
/// the rows there are. Base of the list box and of the result list. Rows count from 0.
class Zeilenansicht : public QAbstractScrollArea {
public:
    explicit Zeilenansicht(QWidget* eltern);

    virtual int zeilenzahl() const = 0;
    /// The text of a row as it stands; the cells of several columns are joined by TAB.
    virtual QString zeilentext(int zeile) const = 0;
    virtual bool istGewaehlt(int zeile) const = 0;
    /// The colours that the cells of a row are painted in.
    virtual std::vector<Zellfarben> zellfarben(int zeile) const;
    /// The text of a row as it is copied: one line, the cells of several columns joined by TAB.
    virtual QString kopierzeile(int zeile) const { return zeilentext(zeile); }
    /// The row that the keyboard moves from; -1 for none.
    virtual int fokuszeile() const = 0;

    /// The chosen rows, ascending.
    std::vector<int> gewaehlteZeilen() const;
    /// The user goes to a row, with the modifier keys held down; it comes into sight.
    void geheZu(int zeile, Qt::KeyboardModifiers tasten);
    /// The user chooses every row. False where only one may be chosen.
    virtual bool waehleAlle() = 0;
    /// Another number whenever rows came, went, moved or changed their text.
    unsigned zeilenstand() const { return zeilenstand_; }

    /// Scrolls as little as possible, so that the row is in sight.
    void zeigeZeile(int zeile);
    /// Where a row is in the viewport; outside of it if it is scrolled away.
    QRect zeilenrechteck(int zeile) const;
    /// The row at a height in the viewport; -1 below the last one.
    int zeileBei(int y) const;
    int obersteZeile() const;

    /// Takes over a changed number of rows at once; otherwise it happens before the next painting.
    void gleicheAb();

    std::function<void()> beiAuswahl;        ///< the user has chosen a row
    std::function<void()> beiDruecken;       ///< the user has pressed the mouse over the list
    std::function<void()> beiLoslassen;      ///< and released it
    std::function<void(int)> beiDoppelklick; ///< the user has double clicked a row

protected:
    virtual void maleZeile(QPainter& maler, int zeile, const QRect& rechteck) = 0;
    virtual int zeilenhoehe() const = 0;
    /// Width of the rows in pixels, for the horizontal scroll bar.
    virtual int zeilenbreite() const = 0;
    /// The user goes to a row, with the modifier keys held down.
    virtual void waehle(int zeile, Qt::KeyboardModifiers tasten) = 0;
    /// The user presses Space on the focus row.
    virtual void schalte(int zeile) { Q_UNUSED(zeile) }

    /// True while neither painting nor scroll bars follow what happens.
    virtual bool ruht() const { return false; }

    /// Asks for a repaint; the number of rows may have changed. Costs next to nothing while a repaint is due anyway.
    void erneuere();
    /// The same, and what stands in the rows has changed.
    void erneuereZeilen();

    bool event(QEvent* ereignis) override;
    void paintEvent(QPaintEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void contextMenuEvent(QContextMenuEvent* ereignis) override;
    void focusInEvent(QFocusEvent* ereignis) override;
    void focusOutEvent(QFocusEvent* ereignis) override;

private:
    int zeilenJeSeite() const;
    int zielzeile(int taste) const;

    bool erneuertSich_ = false; ///< asked for, not yet done
    unsigned zeilenstand_ = 0;
    Listenhandgriffe* handgriffe_;
};

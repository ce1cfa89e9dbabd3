#pragma once

#include "listcontrol/logic/Spaltenlage.h"

#include <QWidget>

#include <functional>

class QTimer;

/// The header of the result list. A click goes to who listens, a drag on a right edge gives a column a width, a drag
/// on a caption another place. All x that are spoken of count from the left edge of the first column.
class Listenkopf final : public QWidget {
public:
    /// Columns and places are the list's.
    Listenkopf(ColumnCollection& spalten, Spaltenlage& lage, QWidget* eltern);

    /// How far the columns are scrolled to the left.
    void setzeVersatz(int versatz);
    /// The column that shows the direction of its last sort; -1 for none.
    void setzeSortierspalte(int spalte);
    int sortierspalte() const { return sortierspalte_; }
    int sollhoehe() const;
    int breiteFuer(const Column& spalte) const;
    /// Forgets what is being dragged: the columns are not the same any more.
    void brichAb();

    bool anklickbar = true; ///< a caption can be pressed
    bool umordnen = true;   ///< a caption can be dragged

    std::function<void(int)> beiKlick;
    std::function<void(int, int)> beiBreite; ///< column, width: the user drags its right edge
    std::function<void(int)> beiAnpassen;    ///< double click on a right edge
    std::function<void()> beiUmordnung;      ///< a column has another place
    std::function<void(int)> beiSchub;       ///< pixels: a column is dragged beyond the left or right end

protected:
    bool event(QEvent* ereignis) override;
    void paintEvent(QPaintEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent* ereignis) override;

private:
    enum class Zug { Keiner, Druck, Breite, Platz };

    int xVon(const QMouseEvent& ereignis) const;
    void ziehe(int x);
    void beende(int x);
    void druecke(int spalte, bool gedrueckt);
    void rolleMit();
    QString hinweisBei(QPoint ort) const;
    void maleZelle(QPainter& maler, const QRect& rechteck, bool gedrueckt) const;
    void malePfeil(QPainter& maler, const QRect& rechteck, Sortierrichtung richtung) const;

    ColumnCollection& spalten_;
    Spaltenlage& lage_;
    QTimer* tmrMove;
    Zug zug_ = Zug::Keiner;
    int spalte_ = -1; ///< that is pressed or dragged
    int anfangsX_ = 0;
    int anfangsbreite_ = 0;
    int zielX_ = 0; ///< of the mouse while a column is dragged
    int versatz_ = 0;
    int sortierspalte_ = -1;
};

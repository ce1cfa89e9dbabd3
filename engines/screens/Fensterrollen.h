#pragma once

#include <QObject>

class Liste;
class QKeyEvent;
class QScrollBar;

/// Makes a list box the window onto a list that is too long to be held: the wheel over it and the keys that leave it
/// drive a scroll bar, whose value is the number of the first row in sight. A row that is chosen stays chosen by its
/// place in the window.
class Fensterrollen final : public QObject {
public:
    /// Both must outlive this; whoever follows the bar fills the list anew at each change.
    Fensterrollen(Liste& liste, QScrollBar& leiste, int zeilen);

    bool eventFilter(QObject* feld, QEvent* ereignis) override;

private:
    bool drueckt(int taste);
    void rolleZu(int wert, int zeile);

    Liste& liste_;
    QScrollBar& leiste_;
    int zeilen_;
};

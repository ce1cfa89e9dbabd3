#pragma once

#include "tips/logic/Spielscheindruck.h"

#include <QWidget>

#include <functional>

class QLabel;
class QScrollBar;
class Spielscheinbild;

/// The picture of the slip with the two scroll bars that move all crosses.
class Scheinjustage final : public QWidget {
public:
    explicit Scheinjustage(QWidget* eltern);

    Spielscheinbild& bild() const { return *Picture1; }
    Scheinversatz versatz() const;
    void stelle(const Scheinversatz& versatz);

    std::function<void()> beiVersatz; ///< the crosses are to stand elsewhere

private:
    QScrollBar* leiste(const QString& name, Qt::Orientation richtung);
    void zeigeVersatz();

    Spielscheinbild* Picture1;
    QScrollBar *HScroll1, *VScroll1;
    QLabel *Label1, *Label2;
};

#pragma once

#include "archive/logic/Kombination.h"
#include "shell/elements/Bildschirm.h"

#include <chrono>

class Kugelreihe;
class Lauf;
class QScrollBar;
class Tippfeld7x7View;

/// One random tip after the other, as balls that fill up in ascending order, until it is stopped.
class frmKugel1 final : public Bildschirm {
public:
    explicit frmKugel1(Umgebung& umgebung);

private:
    void starteOderStoppe();
    bool zeigeTip(Lauf& lauf, const Kombination& tip);
    std::chrono::milliseconds verzoegerung() const;
    void zeigeVerzoegerung();
    void drucke();

    Kugelreihe* kugeln_;
    Tippfeld7x7View* Bezeichnung6;
    Liste* Liste1;
    QScrollBar* HBildlauf1;
    QLabel *lblVerzoegerung, *lblGeordnet;
    QPushButton *Befehl1, *Befehl2, *Befehl3;
};

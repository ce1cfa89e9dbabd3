#pragma once

#include "shell/elements/Bildschirm.h"

#include <array>

class Spielartenwahl;

/// How often one or two chosen numbers were drawn together with each other number, in the draws of all chosen games.
class frmZusammenBank final : public Bildschirm {
public:
    explicit frmZusammenBank(Umgebung& umgebung);

private:
    void zeigeWahl();
    void zaehle();

    Spielartenwahl* frmArt;
    std::array<QRadioButton*, 2> optA;
    QGroupBox* frmZahl;
    QComboBox *Combo1, *Combo2;
    QPushButton *Command1, *cmdEnd;
    QLabel* lblErgebnis;
    Liste *List2, *List3;
};

#pragma once

#include "archive/screens/Einzellader.h"
#include "shell/elements/Bildschirm.h"
#include "statistics/logic/Superzahlen.h"

class Balkenfeld;

/// How often each Superzahl was drawn in all the chosen games together, and when last. The games are loaded one after
/// the other; every change of a choice counts anew.
class frmZusammenH_SZ final : public Bildschirm {
public:
    explicit frmZusammenH_SZ(Umgebung& umgebung);

    const Superzahlstatistik& ergebnis() const { return ergebnis_; }

    void beimZeigen() override { werteAus(); }

protected:
    void beimSchliessen() override { lader_.gibZurueck(); }

private:
    void ordneAn();
    void werteAus();
    void zeigeListen();
    void zeigeGraphik();

    Einzellader lader_;
    Superzahlstatistik ergebnis_;
    bool gezoomt_ = false;
    QCheckBox *check1, *Check2, *Check3;
    std::array<QRadioButton*, 2> optMi;
    Liste *List1, *List2, *List3, *List4;
    std::array<QLabel*, 3> Label4;
    QLabel* lblErklaerung;
    Balkenfeld* Picture1;
    QPushButton *Command2, *Command3, *cmdHelp;
};

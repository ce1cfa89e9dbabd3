#pragma once

#include "shell/elements/Bildschirm.h"
#include "statistics/logic/Wochenstatistik.h"

/// All draws of one Spielwoche, and how often each number came in them. The tip proposals use it as an engine.
class frmSWH final : public Bildschirm {
public:
    explicit frmSWH(Umgebung& umgebung);

    /// The last evaluation; its week is 0 before the first one.
    const Wochenstatistik& ergebnis() const { return ergebnis_; }
    /// Sets the controls and evaluates Spielwoche `sw`, 1..53.
    void werteAus(int sw, bool mitZZ);

    void beimZeigen() override;
    bool kehrtZumMenueZurueck() const override;

private:
    void werteAus();
    void zeigeStand();

    Wochenstatistik ergebnis_;
    QComboBox* Kombi1;
    QRadioButton *Option1, *Option2;
    Liste *Liste1, *Liste2, *Liste3;
    QLabel *Bezeichnung5, *Bezeichnung6;
    QPushButton *Befehl1, *Befehl2;
};

#pragma once

#include "shell/elements/Bildschirm.h"
#include "statistics/logic/JahrUndWoche.h"

class Tippfeld7x7View;
class ZZModusOptionen;

/// How often one number was drawn in each Spieljahr and in each Spielwoche.
class frmSJAHR final : public Bildschirm {
public:
    explicit frmSJAHR(Umgebung& umgebung);

    /// The last evaluation; its number is 0 before the first one.
    const JahrUndWoche& ergebnis() const { return ergebnis_; }

    void beimZeigen() override;

private:
    void waehleModus(ZZModus modus);
    void werteAus(int zahl, ZZModus modus);
    void zeigeStand();
    void zeigeErgebnis();
    void zeigeDetails();

    JahrUndWoche ergebnis_;
    Tippfeld7x7View* tippfeld_;
    ZZModusOptionen* optZ;
    Liste *Liste1, *Liste2;
    QLabel *lblMaximum, *lblMax2;
    QLabel *Bezeichnung2, *Bezeichnung4, *Bezeichnung8, *Bezeichnung10, *Bezeichnung16, *Bezeichnung58;
    QPushButton *Befehl2, *Befehl3, *Befehl4, *Befehl5, *Befehl6;
};

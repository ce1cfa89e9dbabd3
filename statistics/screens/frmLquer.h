#pragma once

#include "shell/elements/Bildschirm.h"
#include "statistics/logic/Zahlensummen.h"

/// The sum of the numbers of each draw, in the order of the sums.
class frmLquer final : public Bildschirm {
public:
    explicit frmLquer(Umgebung& umgebung);

    /// The last evaluation; without draws before the first one.
    const Zahlensummen& ergebnis() const { return ergebnis_; }

    void beimZeigen() override;

private:
    void summiereAlle(bool mitZZ);

    Zahlensummen ergebnis_;
    Liste* Liste1;
    QLabel *Bezeichnung1, *Bezeichnung3, *Bezeichnung4, *Bezeichnung5, *Bezeichnung6, *Bezeichnung7, *Bezeichnung8;
    QPushButton *Befehl1, *Befehl2, *Befehl3, *Befehl4, *cmdInfo;
};

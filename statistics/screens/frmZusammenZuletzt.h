#pragma once

#include "shell/elements/Bildschirm.h"
#include "statistics/logic/ZusammenZuletzt.h"

class Spielartenwahl;
class Zahlenblock;

/// How many draws ago each of the 49 numbers was drawn last, in all the chosen games together. Every change of a box
/// counts anew.
class frmZusammenZuletzt final : public Bildschirm {
public:
    explicit frmZusammenZuletzt(Umgebung& umgebung);

    const ZusammenZuletzt& ergebnis() const { return ergebnis_; }

    void beimZeigen() override { werteAus(); }

private:
    void werteAus();
    void zeigeZahlen();

    ZusammenZuletzt ergebnis_;
    Spielartenwahl* frmArt;
    Zahlenblock* bezeichnung114; ///< the 49 counts of draws
    Liste *lstZuletzt, *lstZuletztSort;
    std::array<QLabel*, 2> lblLegende;
    QPushButton* Command3;
};

#pragma once

#include "shell/elements/Bildschirm.h"
#include "statistics/logic/Balkengraphik.h"

class Balkenfeld;
class frmSTAT1;

/// The frequency distribution of frmSTAT1 as bars.
class frmGraph final : public Bildschirm {
public:
    static constexpr auto kTitel = "Graphische Darstellung der Häufigkeitsverteilung";

    explicit frmGraph(Umgebung& umgebung);

    /// Shows the last evaluation of frmSTAT1.
    void folge();

    bool kehrtZumMenueZurueck() const override { return false; }
    void beimZeigen() override;
    void mausUeber(QWidget* feld) override;

protected:
    void beimSchliessen() override;

private:
    void zeige(Balkenansicht ansicht);

    frmSTAT1& statistik_;
    Balkenfeld* Bild1;
    QLabel *lblErgebnis, *Bezeichnung3, *Bezeichnung4, *Bezeichnung19;
    QPushButton *Befehl1, *Befehl2, *Befehl3, *Befehl4, *Befehl5, *Befehl6, *Befehl7;
};

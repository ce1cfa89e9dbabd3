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

    bool kehrtZumMenueZurueck() const override { return false; }
    void beimZeigen() override { erneuere(); }
    void mausUeber(QWidget* feld) override;

protected:
    void beimSchliessen() override;

private:
    void erneuere();
    void werteAus(ZZModus modus);
    void zeige(const Balkengraphik& graphik, bool gezoomt);

    frmSTAT1& statistik_;
    ZuletztVor ZuletztVor_{};
    Balkenfeld* Bild1;
    QLabel *Bezeichnung3, *Bezeichnung4, *Bezeichnung19;
    QPushButton *Befehl1, *Befehl2, *Befehl3, *Befehl4, *Befehl5, *Befehl6, *Befehl7;
};

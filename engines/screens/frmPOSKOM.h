#pragma once

#include "engines/logic/Positionsliste.h"
#include "shell/elements/Bildschirm.h"

class AutomatischeAnzeige;
class Tippfeld7x7View;

/// All draws, or those of a range, with their Positionszahlen: by Positionszahl or in draw order.
class frmPOSKOM final : public Bildschirm {
public:
    explicit frmPOSKOM(Umgebung& umgebung);

    /// The last list; empty before the first one and after a fault in the range.
    const Positionsliste& ergebnis() const { return ergebnis_; }

    void beimZeigen() override;

private:
    void beimSchliessen() override;

    void ordneAn();
    void waehleUmfang();
    void listeAuf(Liste* gezeigte);
    void leereListen();
    void zeigeZiehung(const Liste& liste);
    void oeffne(const QString& bildschirm);

    Positionsliste ergebnis_;
    Liste *Liste1, *Liste2;
    std::array<QRadioButton*, 2> Option1;
    std::array<QLineEdit*, 2> Text1;
    QGroupBox* Frame1;
    Tippfeld7x7View* Bezeichnung6;
    QLabel *Bezeichnung1, *Bezeichnung2, *Label2, *Label3, *Label4, *lblBis;
    QPushButton *Befehl1, *Befehl2, *Befehl3, *Befehl4, *Command1, *cmdAuto;
    AutomatischeAnzeige* automatik_;
};

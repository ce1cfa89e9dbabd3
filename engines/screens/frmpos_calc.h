#pragma once

#include "engines/logic/Positionsrechner.h"
#include "shell/elements/Bildschirm.h"

class Tippfeld7x7View;

/// The calculator between Positionszahl and combination, both ways by counting.
class frmpos_calc final : public Bildschirm {
public:
    explicit frmpos_calc(Umgebung& umgebung);

    bool kehrtZumMenueZurueck() const override { return false; }

private:
    void baueSchritte();
    void ordneAn();
    void waehleRichtung();
    void liesGewaehlte();
    void klicke(int zahl);
    void schreite(const Positionsschritt& schritt);
    void pruefeEingabe();
    void Berechne();
    void zeigeKombination();
    void zeigePosition();

    Kombination gewaehlte_{}; ///< the marked numbers ascending, 0 behind them; only while a click is worked on
    std::array<QRadioButton*, 2> Option1;
    std::array<QPushButton*, kPositionsschritte.size()> schritte_; ///< Command2 to Command9 in the order of the steps
    QLineEdit *Text1, *Text2;
    QGroupBox *Frame1, *Rahmen6;
    Tippfeld7x7View* Bezeichnung6;
    QLabel *Label1, *Label2, *Label3, *Label4, *Label5;
    QPushButton* Command1;
};

#pragma once

#include "shell/elements/Bildschirm.h"
#include "tips/logic/Druckeinstellungen.h"
#include "tips/screens/Tippempfaenger.h"

class Scheinjustage;
class Scheinwahlfeld;

/// Prints the crosses of up to twelve tips onto a paper slip.
class frmTippen final : public Bildschirm, public Tippempfaenger {
public:
    explicit frmTippen(Umgebung& umgebung);

    void nimmTippzeilen(const std::vector<std::string>& zeilen) override;
    void beimZeigen() override;
    /// The slip that has handed its tips over stays open below.
    bool kehrtZumMenueZurueck() const override { return !vomTippschein_; }

protected:
    void beimSchliessen() override;

private:
    QLayout* baueListe();
    void verbinde();

    void zeigeTipps(std::vector<std::string> zeilen);
    void zeichne();
    void erzeugeQuicktipps();
    void zeigeDateien();
    void uebernimmDatei();
    void saveTipList();
    void folgeDruckern();
    void drucke();
    bool darfDrucken();

    std::vector<Kombination> tipps() const;
    std::vector<Scheinort> kreuze() const;
    Druckeinstellungen einstellungen() const;

    Druckeinstellungen gelesene_; ///< as they were on opening
    bool vomTippschein_ = false;
    Scheinjustage* justage_;
    Scheinwahlfeld* wahl_;
    Liste *List1, *File1;
    QGroupBox* Frame6;
    QComboBox *Combo1, *Combo2;
    QPushButton *Command1, *Command2, *Command4, *Command6, *Command10, *Command11, *cmdTippliste, *cmdBild;
};

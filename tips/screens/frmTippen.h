#pragma once

#include "shell/elements/Bildschirm.h"
#include "tips/logic/Druckeinstellungen.h"
#include "tips/screens/Tippempfaenger.h"

#include <array>

class QScrollBar;
class Spielscheinbild;

/// Prints the crosses of up to twelve tips onto a paper slip.
class frmTippen final : public Bildschirm, public Tippempfaenger {
public:
    explicit frmTippen(Umgebung& umgebung);

    void nimmTippzeilen(const std::vector<std::string>& zeilen) override;
    void beimZeigen() override;

protected:
    void beimSchliessen() override;

private:
    template <std::size_t N>
    Bloecke baueOptionen(std::array<QRadioButton*, N>& wahl, const QString& name,
                         const std::array<const char*, N>& texte);
    QGroupBox* baueLaufzeit();
    QLayout* baueWahl();
    QLayout* baueListe();
    QLayout* baueBild();
    void verbinde();

    void zeigeTipps(std::vector<std::string> zeilen);
    void zeichne();
    void zeigeVersatz();
    void erzeugeQuicktipps();
    void zeigeDateien();
    void uebernimmDatei();
    void speichereListe();
    void folgeDruckern();
    void drucke();
    bool darfDrucken();

    std::vector<Kombination> tipps() const;
    Scheinwahl wahl() const;
    Scheinversatz versatz() const;
    void stelleEin(const Druckeinstellungen& einstellungen);

    Spielscheinbild* Picture1;
    Liste *List1, *File1;
    QGroupBox* Frame6;
    QCheckBox *Check1, *Check2;
    std::array<QRadioButton*, 2> Option1, Option3, chkGlueck;
    std::array<QRadioButton*, kLaufzeiten> Option4;
    QComboBox *Combo1, *Combo2;
    QScrollBar *HScroll1, *VScroll1;
    QLabel *Label1, *Label2;
    QPushButton *Command1, *Command2, *Command3, *Command4, *Command6, *Command10, *Command11, *cmdTippliste, *cmdBild;
};

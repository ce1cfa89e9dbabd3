#pragma once

#include "shell/elements/Bildschirm.h"
#include "statistics/logic/ZusammenHaeufigkeit.h"

class Balkenfeld;
class QScrollArea;
class Spielartenwahl;
class Zahlenblock;

/// How often each number was drawn in all the chosen games together, as a block of numbers and as bars. Every change of
/// a choice counts anew.
class frmZusammenHaeufigkeit final : public Bildschirm {
public:
    explicit frmZusammenHaeufigkeit(Umgebung& umgebung);

    const ZusammenHaeufigkeit& ergebnis() const { return ergebnis_; }

    void beimZeigen() override { werteAus(); }

private:
    void baueWahl();
    void baueGraphik();
    void ordneAn();
    ZusammenHaeufigkeitswahl wahl() const;
    void waehleBereich(bool nurLetzte);
    void werteAus();
    void zeigeZahlen();
    void zeigeGraphik();

    ZusammenHaeufigkeit ergebnis_;
    bool nurLetzte_ = false;
    bool nachHaeufigkeit_ = false;
    bool gezoomt_ = false;
    Spielartenwahl* frmArt;
    std::array<QRadioButton*, 2> optMI;
    QCheckBox *chkART3, *chkZusatzzahl;
    std::array<QPushButton*, 2> cmdBereich;
    QComboBox* cmbAnz;
    QLabel *lblBereich, *lblAuswertung;
    Zahlenblock* bezeichnung114; ///< the 49 counts
    Balkenfeld* Picture1;
    QScrollArea* bildausschnitt_;
    QPushButton *cmdSort4, *cmdZoom, *Command3;
};

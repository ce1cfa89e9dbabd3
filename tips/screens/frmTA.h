#pragma once

#include "shell/elements/Bildschirm.h"
#include "shell/logic/Lottozahl.h"
#include "tips/logic/Tippreihe.h"

enum class Dateistand;
class Tippreihenfelder;
class Tippscheinliste;
class Vergleichsziehungsfelder;

/// A slip of up to twelve tips: entered, compared with a draw, saved, loaded, handed on to the slip printing.
class frmTA final : public Bildschirm {
public:
    explicit frmTA(Umgebung& umgebung);

    /// Puts the first twelve rows into the rows of the slip, whose other rows stay; from here on they count as not
    /// saved. A row without a Superzahl keeps the one that its field holds.
    void uebernimm(const std::vector<Tippreihe>& reihen);
    bool ungespeichert() const { return ungespeichert_; }

    void beimZeigen() override;

protected:
    void showEvent(QShowEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;

private:
    void baueReihen();
    void baueZiehung();
    void baueZahlenfeld();
    void baueDateien();
    void baueKnoepfe();
    void ordneAn();
    void verbinde();

    void zeigeLetzteZiehung();
    void folgeZiehung();
    bool vergleiche();
    void gibEin(int zahl);
    void leere();
    bool speichere();
    bool lade();
    void meldeUnlesbar(const std::string& name, Dateistand stand);
    void loesche(const std::string& name);
    void drucke();
    bool gibtEs(const std::string& name);
    bool darfGehen();

    bool ungespeichert_ = false;
    Tippreihenfelder* reihen_;
    Vergleichsziehungsfelder* ziehung_;
    std::array<QPushButton*, kHoechsteZahl> Befehl4;
    Tippscheinliste *scheine_, *vorhandene_;
    Liste *Datei1, *Datei2;
    QComboBox* kombo1;
    QLineEdit* Text20;
    QGroupBox *Rahmen1, *Rahmen2, *Rahmen3, *Rahmen4;
    QLabel *Bezeichnung33, *Bezeichnung46, *Bezeichnung47, *lblSuperzahl;
    QPushButton *Befehl1, *Befehl2, *Befehl3, *Befehl5, *Befehl6, *Befehl7, *Befehl8, *Befehl9, *Befehl10, *Befehl11,
        *Command1;
};

#pragma once

#include "shell/elements/Bildschirm.h"
#include "tips/logic/Scheinvergleich.h"

class Lauf;
class Tippfeld7x7View;
class Tipphaeufigkeitsfeld;
class Tippscheinliste;
class clsTimer;

/// Saved slips held against all draws of the active game, and how often each number was tipped.
class frmSSA final : public Bildschirm {
public:
    explicit frmSSA(Umgebung& umgebung);

    /// The last comparison; without slips before the first one.
    const Scheinvergleich& ergebnis() const { return vergleich_; }

    void beimZeigen() override;

protected:
    void keyPressEvent(QKeyEvent* ereignis) override;

private:
    void baueScheine();
    void baueGewinnliste();
    void baueZaehler();
    void baueHaeufigkeit();
    void ordneAn(const Bloecke& knoepfe);

    void vergleicheGewaehlten();
    void vergleicheAlle();
    void zaehleZahlen();
    Fortschritt fortschritt(Lauf& lauf, std::size_t scheine);
    std::vector<std::string> alleScheine();
    void zeigeErgebnis(const Scheingang& gang, clsTimer& uhr);
    void zeigeBilanz();
    void markiereGroessere();
    void zeigeZeile();
    void zeigeSuchzeit(const Scheingang& gang, clsTimer& uhr);
    void meldeFehler(const Scheingang& gang);
    void loesche();
    void drucke();
    bool nimmZeilen(std::vector<std::string>& zeilen);

    Scheinvergleich vergleich_;
    std::array<QLineEdit*, 11> zaehler_; ///< from one hit to six with Superzahl
    Tippscheinliste *scheine_, *alle_;
    Liste *Datei1, *Datei2, *Liste1;
    Tipphaeufigkeitsfeld* haeufigkeit_;
    Tippfeld7x7View* Bezeichnung6;
    QGroupBox *Rahmen1, *Rahmen2, *Rahmen3, *Rahmen4;
    QLabel *Text15, *Label1, *Bezeichnung1, *Bezeichnung2, *Bezeichnung3, *Bezeichnung10, *Bezeichnung16;
    QPushButton *Befehl1, *Befehl2, *Befehl3, *Befehl4, *Befehl5, *Befehl6, *Befehl18, *Befehl19;
};

#pragma once

#include "filters/logic/Verhaeltnis.h"
#include "filters/screens/Fundanzeige.h"
#include "shell/elements/Bildschirm.h"

class Spielartenwahl;

/// What the screens of the ratio filters differ in, beside what is counted.
struct VerhaeltnisfilterTexte {
    const char* name;
    const char* titel;
    const char* anzahl = " Anzahl der Ziehungen: ";
    const char* erklaerung = nullptr; ///< null: the screen has no info frame
};

/// The ratio filters: the draws of all chosen games in which so many of the six numbers are of one kind, and a table of
/// how many draws have each count. Base of the four tools.
class Verhaeltnisfilter : public Bildschirm {
protected:
    Verhaeltnisfilter(Umgebung& umgebung, const VerhaeltnisfilterTexte& texte, const Verhaeltnisart& art);

    /// Lays the screen out; `knoepfe` stand at the foot beside those of all four. To be called once.
    void ordneAn(const Bloecke& knoepfe = {});

    Fundanzeige anzeige_;

private:
    void suche();
    void folgeSpielarten();
    void leere();
    void zeigeAnzahl(std::int32_t ziehungen);
    int gesucht() const;

    const VerhaeltnisfilterTexte texte_;
    const Verhaeltnisart& art_;
    Spielartenwahl* frmArt;
    std::array<QRadioButton*, 7> Option1{};
    Liste* Liste3;
    QLabel *Bezeichnung1, *Bezeichnung3, *Bezeichnung7;
    QPushButton *Befehl1, *Befehl2;
    QPushButton* Befehl3 = nullptr;
};

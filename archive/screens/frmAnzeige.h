#pragma once

#include "shell/elements/Bildschirm.h"

class Infotafel;
class QScrollBar;
class Ziehungseingabe;
class Ziehungsfelder;

/// Shows the draws of the active game, one at a time and as a list, and appends a new one to the Ziehungsdatei.
class frmAnzeige final : public Bildschirm {
public:
    explicit frmAnzeige(Umgebung& umgebung);

    void beimZeigen() override;

private:
    void baueAnzeige();
    void baueEingabe();
    void baueKnoepfe();
    void verbinde();

    void frischeAuf();
    void zeigeZiehung(int nr);
    void fuelleListe();
    void schalteTippmuster();

    void speichere();
    void erzeugeDatei();

    void schalteAufMenue(std::int16_t spielart);
    void schalteAufMittwochB();
    void ladeNeu();
    void oeffneEditor(const QString& meldung);
    void zeigeInfo();
    QString dateiname() const;

    QGroupBox *Rahmen1, *Rahmen2, *Rahmen3, *fEditor;
    Infotafel* Frame1;
    QScrollBar* HBildlauf1;
    Ziehungsfelder* Texte; ///< Text1 to Text10
    QLabel *lblDate, *bezeichnung23, *Bezeichnung24, *lblArt, *Bezeichnung13, *Bezeichnung2;
    QCheckBox* chkTippfeld;
    Liste* Liste1;
    Ziehungseingabe* Eingabe; ///< Label6, lblZ, cmbSZ, Kombi1, Kombi2
    QPushButton *Befehl1, *Befehl2, *Befehl3, *Befehl5, *Befehl7, *Befehl8, *Befehl9, *Befehl10, *Befehl11, *Befehl12;
    QPushButton *cmdClear, *cmdNotepad;
};

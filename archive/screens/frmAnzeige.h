#pragma once

#include "archive/logic/Neueingabe.h"
#include "shell/elements/Bildschirm.h"

class Infotafel;
class QScrollBar;
class Tippfeld7x7View;
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
    void zeigeImTippfeld(std::size_t nr);
    void schalteTippmuster();
    void zeigeZahlen();
    void zeigeSuperzahl();
    void leereEingabe();

    NeueZiehung eingabe() const;
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
    QLabel *lblDate, *bezeichnung23, *Bezeichnung24, *lblArt, *Bezeichnung13, *Bezeichnung2, *lblSZ;
    QCheckBox* chkTippfeld;
    Liste* Liste1;
    Tippfeld7x7View* Label6;
    std::array<QLabel*, 6> lblZ; ///< lblZ(1) to lblZ(6)
    QComboBox *cmbSZ, *Kombi1, *Kombi2;
    QPushButton *Befehl1, *Befehl2, *Befehl3, *Befehl5, *Befehl7, *Befehl8, *Befehl9, *Befehl10, *Befehl11, *Befehl12;
    QPushButton *cmdClear, *cmdNotepad;
};

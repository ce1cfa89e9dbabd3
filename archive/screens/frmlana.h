#pragma once

#include "archive/logic/Strukturpruefung.h"
#include "shell/elements/Bildschirm.h"

/// Checks the active Ziehungsdatei record by record and lists the faults.
class frmlana final : public Bildschirm {
public:
    explicit frmlana(Umgebung& umgebung);

    const Strukturbericht& ergebnis() const { return ergebnis_; }

private:
    void fuelleListen();
    void pruefe();
    void zeigeErgebnis();
    void zeigeFehler();
    /// `meldung` is shown in front of the file name where there is no editor.
    void oeffneEditor(const QString& meldung);

    const QString Ziehungsdatei;
    Strukturbericht ergebnis_;
    QLabel *Bezeichnung1, *Bezeichnung2, *Bezeichnung3, *Bezeichnung4, *Bezeichnung5, *Bezeichnung6, *Label1;
    Liste *Liste1, *Liste2, *Liste3;
    QGroupBox* Rahmen1;
    QPushButton *Befehl1, *Befehl2, *Befehl3, *Befehl4, *Befehl5, *Befehl6, *Befehl7;
};

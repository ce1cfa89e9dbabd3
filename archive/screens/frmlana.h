#pragma once

#include "archive/logic/Strukturpruefung.h"
#include "shell/elements/Bildschirm.h"

class Infotafel;

/// Checks the active Ziehungsdatei record by record and lists the faults.
class frmlana final : public Bildschirm {
public:
    explicit frmlana(Umgebung& umgebung);

    const Strukturbericht& ergebnis() const { return ergebnis_; }

private:
    void pruefe();
    void leereErgebnis();
    void zeigeErgebnis();
    void zeigeFehler();
    /// `meldung` is shown in front of the file name where there is no editor.
    void oeffneEditor(const QString& meldung);

    const std::int16_t spielart_; ///< of the file under check, whatever game is active later
    const QString Ziehungsdatei;
    Strukturbericht ergebnis_;
    QLabel *Bezeichnung4, *Bezeichnung5, *Bezeichnung6;
    Liste *Liste1, *Liste2;
    Infotafel* Rahmen1;
};

#pragma once

#include "archive/screens/AuswertebereichView.h"
#include "shell/elements/Bildschirm.h"
#include "statistics/logic/HaeufigkeitAuswertung.h"

class Infotafel;
class Zahlenblock;

/// Frequency distribution: how often each of the 49 numbers was drawn in a range of draws.
class frmSTAT1 final : public Bildschirm {
public:
    explicit frmSTAT1(Umgebung& umgebung);

    /// The last evaluation; all zeros before the first one.
    const HaeufigkeitAuswertung& ergebnis() const { return ergebnis_; }
    /// Evaluates the range that the fields show.
    void werteAus(ZZModus modus);
    /// The title tells of the graph while that is open, else of the last evaluation.
    void zeigeTitel(bool graphikOffen);

    void beimZeigen() override;
    bool kehrtZumMenueZurueck() const override;

protected:
    void beimSchliessen() override;

private:
    void werteMittwochAus();
    void zeigeErgebnis();
    void zeigeGraphik();
    void drucke();
    void zeigeStand();

    HaeufigkeitAuswertung ergebnis_;
    AuswertebereichView* bereich_;
    Zahlenblock* bezeichnung114; ///< the 49 counts
    QLabel *Bezeichnung3, *Bezeichnung4, *Bezeichnung6, *Bezeichnung7, *Bezeichnung57, *Bezeichnung58;
    QPushButton *Befehl1, *Befehl2, *Befehl3, *Befehl4, *Befehl5, *Befehl6, *Befehl7, *Befehl8, *Befehl11;
    Infotafel* infotafel_;
};

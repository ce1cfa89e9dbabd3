#pragma once

#include "shell/elements/Bildschirm.h"
#include "statistics/logic/ZuletztTafel.h"

#include <array>

class Zahlenblock;

/// When each of the 49 numbers was drawn last, up to the newest draw or to any earlier one.
class frmZuletzt final : public Bildschirm {
public:
    explicit frmZuletzt(Umgebung& umgebung);

    /// The last evaluation; no number met before the first one.
    const ZuletztAuswertung& ergebnis() const { return ergebnis_; }
    /// Evaluates up to the draw that the field shows, and shows the week of each last draw.
    void werteAus(ZZModus modus);
    /// Shows the last evaluation in weeks.
    void zeigeWochen();

    void beimZeigen() override;
    bool kehrtZumMenueZurueck() const override;

private:
    std::int32_t grenze();
    void werteMittwochAus();
    void zeigeErgebnis();
    void zeigeTafel(ZuletztAnsicht ansicht);
    void uebernimmZiehung();
    void folgeArchiv();
    void fuelleAuswahl();
    void drucke();

    ZuletztAuswertung ergebnis_;
    ZuletztAnsicht ansicht_ = ZuletztAnsicht::JahrUndWoche;
    Zahlenblock* Bezeichnung1; ///< the 49 cells
    std::array<Liste*, 2> lstB114;
    std::array<QLabel*, 2> Label2;
    QLineEdit* Text1;
    QComboBox* cmbZ;
    QLabel *Bezeichnung2, *Bezeichnung3, *Bezeichnung4, *Bezeichnung5, *lblText1, *lbl99, *lblNeueste, *lblAelteste;
    QPushButton *Befehl1, *Befehl2, *Befehl3, *Befehl4, *Befehl5, *Befehl6, *Befehl7, *Befehl8;
};

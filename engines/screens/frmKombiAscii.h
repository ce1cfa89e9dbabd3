#pragma once

#include "engines/logic/Exporteinstellungen.h"
#include "shell/elements/Bildschirm.h"

#include <array>

/// Writes all combinations of two to six numbers, or those that pass a filter, into text files.
class frmKombiAscii final : public Bildschirm {
public:
    explicit frmKombiAscii(Umgebung& umgebung);

protected:
    void beimSchliessen() override;

private:
    static constexpr std::size_t kBankzahlen = 5;
    /// Indices of `optBZ`: none, 1 to 5 Bankzahlen, a range.
    static constexpr std::size_t kBereichswahl = kBankzahlen + 1;

    QLayout* wahlblock();
    QLayout* formblock();
    void fuelleZahlenboxen();
    void verbinde();
    void zeigeEinstellungen(const Exporteinstellungen& einstellungen);
    Exporteinstellungen einstellungen() const;
    Exportauftrag auftrag() const;
    void zeigeAuftrag();

    void starte();
    bool darfSchreiben(const Exportauftrag& auftrag);
    void schreibe(const Exportauftrag& auftrag);
    void waehleOrdner();
    void oeffneOrdner();
    void sperre(bool laeuft);

    QString ordner_; ///< where the files go
    std::array<QRadioButton*, 5> optK;
    std::array<QRadioButton*, 7> optBZ;
    std::array<QComboBox*, kBankzahlen> cmbB;
    std::array<QRadioButton*, 4> optSep;
    std::array<QRadioButton*, 2> optEx, optAll;
    QComboBox *cmbVon, *cmbBis;
    QCheckBox* chkKN;
    QGroupBox *frmK, *frmBZ, *frmForm;
    QLabel *lblBis, *lblPfad, *lblDateien, *lblAnzahl, *lblZeit;
    QPushButton *cmdSpeicherpfad, *cmdOpen, *cmdStart, *cmdAbbruch, *cmdInfo, *cmdEnd;
};

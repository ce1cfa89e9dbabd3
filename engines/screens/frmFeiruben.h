#pragma once

#include "engines/logic/Zerlegung.h"
#include "shell/elements/Bildschirm.h"

#include <array>

/// Cuts chosen draws of a game up into their sets of two to five numbers, counts and lists these.
class frmFeiruben final : public Bildschirm {
public:
    explicit frmFeiruben(Umgebung& umgebung);

    void beimZeigen() override;

private:
    /// The sizes of the sets, from the smallest.
    static constexpr std::size_t kGroessen = 4;

    /// What stands on the screen for one size.
    struct Feld {
        Liste* liste = nullptr;
        QPushButton *zerlegen = nullptr, *details = nullptr;
        QLabel *anzahl = nullptr, *herkunft = nullptr;
    };

    void baueFelder();
    QLayout* feldblock(std::size_t nummer) const;
    QLayout* auswahlblock();
    void fuelleZiehungen();
    void waehleZiehungen(const ZiehungsArchiv::Spalte& spalte, const QComboBox& wert);
    void hebeAuswahlAuf();
    void uebernimmListe();
    void uebernimmAuswahl();

    void zerlege(std::size_t nummer);
    void zeigeMengen(std::size_t nummer, const std::string& tipreihe = {});
    void zeigeHerkunft();
    void zeigeDetails(std::size_t nummer);
    void zeigeDetail(std::size_t nummer);

    Ziehungsauswahl auswahl_; ///< what `List12` shows
    std::array<Zerlegung, kGroessen> zerlegungen_;
    std::array<Feld, kGroessen> felder_;
    Liste *Liste1, *List12, *Liste3;
    QComboBox *cmbJahr, *cmbMonat;
    QLabel *Bezeichnung13, *Label333, *Text15, *Bezeichnung2;
    QPushButton *cmdAll, *cmdClear, *cmdClip7, *Befehl2;
};

#pragma once

#include "shell/elements/Bildschirm.h"
#include "statistics/logic/Jahrestabelle.h"

#include <filesystem>

class DatumOderWoche;

/// Writes the counts of all numbers in each year as an HTML page and opens it.
class frmHJAHR final : public Bildschirm {
public:
    explicit frmHJAHR(Umgebung& umgebung);

    /// The last table; without rows before the first one.
    const Jahrestabelle& ergebnis() const { return ergebnis_; }

    void beimZeigen() override;

private:
    void erzeuge(ZZModus modus);
    void zeigeStand();
    void zeigeSeite();
    std::filesystem::path ordner() const;
    std::string datei() const;

    Jahrestabelle ergebnis_;
    DatumOderWoche* optDatumOderWoche;
    QLabel *Bezeichnung1, *Bezeichnung2, *Bezeichnung3;
    QPushButton *Befehl1, *Befehl2, *Befehl3, *Befehl4;
};

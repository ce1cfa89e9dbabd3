#pragma once

#include "shell/elements/Bildschirm.h"
#include "statistics/logic/Zahlengruppen.h"

/// How many numbers of a stretch of years were even and odd, and how they fall into groups of ten and of seven.
class frmGERADE final : public Bildschirm {
public:
    explicit frmGERADE(Umgebung& umgebung);

    /// The last evaluation; all zeros before the first one.
    const Zahlengruppen& ergebnis() const { return ergebnis_; }

    void beimZeigen() override;

private:
    QLayout* baueErgebnis();
    void werteAus(ZZModus modus);
    void zeigeErgebnis();
    void zeigeInfo();

    Zahlengruppen ergebnis_;
    QLabel *lblSpielart, *lblStand;
    QLineEdit *Text1, *Text2;
    QLineEdit *Text3, *Text4, *Text5, *Text6;
    std::array<QLineEdit*, 5> zehnergruppen_{}; ///< Text7 to Text11
    std::array<QLineEdit*, 7> txtSep{};
    QPushButton *Befehl1, *Befehl2, *Befehl3, *Befehl4, *Befehl5, *Befehl6;
};

#pragma once

#include "archive/screens/Einzellader.h"
#include "filters/screens/Nachbarbildschirm.h"

/// The number neighbours of all chosen games, file by file, and the draws with several groups of them.
class frmZusammenGROUP final : public Nachbarbildschirm {
public:
    explicit frmZusammenGROUP(Umgebung& umgebung);

    /// Presses the button of a mixed pattern, 22, 222, 23, 33 or 24; the screen need not be shown.
    void SucheMuster(int code);

protected:
    void beimSchliessen() override { lader_.gibZurueck(); }

private:
    bool darfSuchen() override;
    std::vector<std::int16_t> spielarten() const override;
    void lade(std::int16_t spielart) override { lader_.lade(spielart); }
    void endetSuche() override;

    void wechsle(QCheckBox& kasten);
    void zeigeAnzahl(std::int32_t ziehungen);
    std::int32_t zaehle() const;

    Einzellader lader_;
    std::array<QCheckBox*, 3> chkSart{}; ///< of the games 1..3
    std::array<QPushButton*, kNachbarmuster.size()> cmdMulti{};
    QLabel *Bezeichnung2, *lblMulti;
};

#pragma once

#include "tips/screens/Zeitreisebildschirm.h"

/// The time travel through the draws of the active game, by the prize classes in force.
class frmLottoneu final : public Zeitreisebildschirm {
public:
    explicit frmLottoneu(Umgebung& umgebung);

protected:
    Zeitreiseart ansicht() const override;
    QString info() const override;
    void beimSchliessen() override;

private:
    void zeigeAlteKlassen();

    Markenwahl* Option3;
    QLabel* Label6;
    QGroupBox* frame3;
    QPushButton* Command3;
};

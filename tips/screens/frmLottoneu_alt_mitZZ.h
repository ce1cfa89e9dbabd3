#pragma once

#include "tips/screens/Zeitreisebildschirm.h"

/// The time travel by the prize classes with Zusatzzahl that held before 04.05.2013.
class frmLottoneu_alt_mitZZ final : public Zeitreisebildschirm {
public:
    explicit frmLottoneu_alt_mitZZ(Umgebung& umgebung);

protected:
    QString info() const override;

private:
    QLabel *Label6, *Label8;
    QPushButton* Command3;
};

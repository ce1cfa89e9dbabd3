#pragma once

#include "shell/elements/Bildschirm.h"

/// What a Positionszahl is.
class frmpos2 final : public Bildschirm {
public:
    explicit frmpos2(Umgebung& umgebung);

    bool kehrtZumMenueZurueck() const override { return false; }

private:
    Liste* Liste1;
    QPushButton* Befehl1;
};

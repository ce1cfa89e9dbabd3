#pragma once

#include "shell/elements/Bildschirm.h"

/// How long the searches through all combinations take, and which tool finds the same faster. Opened from these.
class frmInfoHGDV final : public Bildschirm {
public:
    explicit frmInfoHGDV(Umgebung& umgebung);

    bool kehrtZumMenueZurueck() const override { return false; }

private:
    Liste* Liste1;
    QPushButton* Befehl1;
};

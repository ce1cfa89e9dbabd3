#pragma once

#include "shell/elements/Bildschirm.h"

/// The slip that the printing is made for, as a picture.
class frmInfo final : public Bildschirm {
public:
    explicit frmInfo(Umgebung& umgebung);

    bool kehrtZumMenueZurueck() const override { return false; }
};

#pragma once

#include "engines/screens/Vollsuchbildschirm.h"

/// Repetitions found by brute force in the draws of the active game. The compact page uses it as an engine.
class frmHGDV final : public Vollsuchbildschirm {
public:
    explicit frmHGDV(Umgebung& umgebung);
};

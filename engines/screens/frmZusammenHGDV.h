#pragma once

#include "engines/screens/Vollsuchbildschirm.h"

/// Repetitions found by brute force in the draws of all ticked games together.
class frmZusammenHGDV final : public Vollsuchbildschirm {
public:
    explicit frmZusammenHGDV(Umgebung& umgebung);
};

#pragma once

#include "statistics/screens/Matrixbildschirm.h"

/// How often each number was drawn in each Spieljahr, over several games.
class frmZusammenHJahr final : public Matrixbildschirm {
public:
    explicit frmZusammenHJahr(Umgebung& umgebung);
};

#pragma once

#include "statistics/screens/Matrixbildschirm.h"

/// How often each Superzahl was drawn in each Spieljahr, over several games.
class frmZusammenH_SZ_Jahr final : public Matrixbildschirm {
public:
    explicit frmZusammenH_SZ_Jahr(Umgebung& umgebung);
};

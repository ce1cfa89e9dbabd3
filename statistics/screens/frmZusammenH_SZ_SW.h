#pragma once

#include "statistics/screens/Matrixbildschirm.h"

/// How often each Superzahl was drawn in each Spielwoche, over several games.
class frmZusammenH_SZ_SW final : public Matrixbildschirm {
public:
    explicit frmZusammenH_SZ_SW(Umgebung& umgebung);
};

#pragma once

#include "filters/screens/Verhaeltnisfilter.h"

/// Numbers at the edge of the ticket against those inside.
class frmZusammenRand final : public Verhaeltnisfilter {
public:
    explicit frmZusammenRand(Umgebung& umgebung);
};

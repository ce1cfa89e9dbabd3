#pragma once

#include "filters/screens/Verhaeltnisfilter.h"

/// Even against odd numbers of a draw.
class frmZusammenGU final : public Verhaeltnisfilter {
public:
    explicit frmZusammenGU(Umgebung& umgebung);
};

#pragma once

#include "filters/screens/Verhaeltnisfilter.h"

/// Low (1..24) against high (25..49) numbers of a draw.
class frmZusammenHochTief final : public Verhaeltnisfilter {
public:
    explicit frmZusammenHochTief(Umgebung& umgebung);
};

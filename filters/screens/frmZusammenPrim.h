#pragma once

#include "filters/screens/Verhaeltnisfilter.h"

/// How many prime numbers a draw holds.
class frmZusammenPrim final : public Verhaeltnisfilter {
public:
    explicit frmZusammenPrim(Umgebung& umgebung);
};

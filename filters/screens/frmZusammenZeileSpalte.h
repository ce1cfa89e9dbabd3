#pragma once

#include "filters/screens/Zellfilterbildschirm.h"

/// The draws of several games that lie wholly in chosen rows, columns or cells of the ticket.
class frmZusammenZeileSpalte final : public Zellfilterbildschirm {
public:
    explicit frmZusammenZeileSpalte(Umgebung& umgebung);
};

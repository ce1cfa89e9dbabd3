#pragma once

#include "filters/screens/Zellfilterbildschirm.h"

/// The draws of one game that lie wholly in chosen rows, columns or cells of the ticket.
class frmZeileSpalte final : public Zellfilterbildschirm {
public:
    explicit frmZeileSpalte(Umgebung& umgebung);
};

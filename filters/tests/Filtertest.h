#pragma once

#include "filters/screens/Registrierung.h"
#include "testhilfen/Archivbuehne.h"

/// The stage of the draw filters.
class Filtertest : public Archivbuehne {
protected:
    Filtertest() : Archivbuehne(registriereFilterbildschirme) {}
};

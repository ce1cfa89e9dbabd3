#pragma once

#include "testhilfen/Archivbuehne.h"
#include "tips/screens/Registrierung.h"

/// The stage of the tips.
class Tipptest : public Archivbuehne {
protected:
    Tipptest() : Archivbuehne(registriereTippbildschirme) {}
};

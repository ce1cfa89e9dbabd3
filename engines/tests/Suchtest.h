#pragma once

#include "engines/screens/Registrierung.h"
#include "testhilfen/Archivbuehne.h"

/// The stage of the searches through combinations.
class Suchtest : public Archivbuehne {
protected:
    Suchtest() : Archivbuehne(registriereSuchbildschirme) {}
};

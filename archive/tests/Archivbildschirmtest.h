#pragma once

#include "archive/screens/Registrierung.h"
#include "testhilfen/Archivbuehne.h"

/// The stage of the screens of the draw archive.
class Archivbildschirmtest : public Archivbuehne {
protected:
    Archivbildschirmtest() : Archivbuehne(registriereArchivbildschirme) {}
};

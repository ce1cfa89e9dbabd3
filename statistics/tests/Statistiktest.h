#pragma once

#include "statistics/screens/Registrierung.h"
#include "testhilfen/Archivbuehne.h"

/// The stage of the number statistics.
class Statistiktest : public Archivbuehne {
protected:
    Statistiktest() : Archivbuehne(registriereStatistikbildschirme) {}
};

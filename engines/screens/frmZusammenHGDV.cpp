#include "engines/screens/frmZusammenHGDV.h"

frmZusammenHGDV::frmZusammenHGDV(Umgebung& umgebung)
    : Vollsuchbildschirm(umgebung, "frmZusammenHGDV", Spiele::MehrereZusammen)
{}

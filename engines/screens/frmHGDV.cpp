#include "engines/screens/frmHGDV.h"

frmHGDV::frmHGDV(Umgebung& umgebung) : Vollsuchbildschirm(umgebung, "frmHGDV", Spiele::Eines) {}

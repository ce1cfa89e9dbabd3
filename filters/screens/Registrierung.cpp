#include "filters/screens/Registrierung.h"

#include "filters/screens/frmGROUP.h"
#include "filters/screens/frmZusammenGROUP.h"
#include "filters/screens/frmZusammenGU.h"
#include "filters/screens/frmZusammenHochTief.h"
#include "filters/screens/frmZusammenPrim.h"
#include "filters/screens/frmZusammenRand.h"
#include "shell/elements/BildschirmVerzeichnis.h"

void registriereFilterbildschirme(BildschirmVerzeichnis& verzeichnis)
{
    verzeichnis.registriere<frmGROUP>("frmGROUP");
    verzeichnis.registriere<frmZusammenGROUP>("frmZusammenGROUP");
    verzeichnis.registriere<frmZusammenGU>("frmZusammenGU");
    verzeichnis.registriere<frmZusammenHochTief>("frmZusammenHochTief");
    verzeichnis.registriere<frmZusammenRand>("frmZusammenRand");
    verzeichnis.registriere<frmZusammenPrim>("frmZusammenPrim");
}

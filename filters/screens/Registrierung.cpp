#include "filters/screens/Registrierung.h"

#include "filters/screens/frm49.h"
#include "filters/screens/frmDekade.h"
#include "filters/screens/frmEndziffer.h"
#include "filters/screens/frmGROUP.h"
#include "filters/screens/frmInFolge.h"
#include "filters/screens/frmZeileSpalte.h"
#include "filters/screens/frmZeileSpalte2.h"
#include "filters/screens/frmZusammenGROUP.h"
#include "filters/screens/frmZusammenGU.h"
#include "filters/screens/frmZusammenHochTief.h"
#include "filters/screens/frmZusammenPrim.h"
#include "filters/screens/frmZusammenRand.h"
#include "filters/screens/frmZusammenWiederholungenInFolgeziehung.h"
#include "filters/screens/frmZusammenZeileSpalte.h"
#include "shell/elements/BildschirmVerzeichnis.h"

void registriereFilterbildschirme(BildschirmVerzeichnis& verzeichnis)
{
    verzeichnis.registriere<frmGROUP>("frmGROUP");
    verzeichnis.registriere<frmZusammenGROUP>("frmZusammenGROUP");
    verzeichnis.registriere<frmZusammenGU>("frmZusammenGU");
    verzeichnis.registriere<frmZusammenHochTief>("frmZusammenHochTief");
    verzeichnis.registriere<frmZusammenRand>("frmZusammenRand");
    verzeichnis.registriere<frmZusammenPrim>("frmZusammenPrim");
    verzeichnis.registriere<frmInFolge>("frmInFolge");
    verzeichnis.registriere<frmZusammenWiederholungenInFolgeziehung>("frmZusammenWiederholungenInFolgeziehung");
    verzeichnis.registriere<frm49>("frm49");
    verzeichnis.registriere<frmZusammenZeileSpalte>("frmZusammenZeileSpalte");
    verzeichnis.registriere<frmZeileSpalte>("frmZeileSpalte");
    verzeichnis.registriere<frmZeileSpalte2>("frmZeileSpalte2");
    verzeichnis.registriere<frmDekade>("frmDekade");
    verzeichnis.registriere<frmEndziffer>("frmEndziffer");
}

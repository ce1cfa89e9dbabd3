#include "engines/screens/Registrierung.h"

#include "engines/screens/frmAlleKombis.h"
#include "engines/screens/frmFUENFW.h"
#include "engines/screens/frmFeiruben.h"
#include "engines/screens/frmHGDV.h"
#include "engines/screens/frmInfoHGDV.h"
#include "engines/screens/frmKombiAscii.h"
#include "engines/screens/frmPOSKOM.h"
#include "engines/screens/frmTreffer.h"
#include "engines/screens/frmZusammenBank.h"
#include "engines/screens/frmZusammenFUENFW.h"
#include "engines/screens/frmZusammenHGDV.h"
#include "engines/screens/frmpos2.h"
#include "engines/screens/frmpos_calc.h"
#include "shell/elements/BildschirmVerzeichnis.h"

void registriereSuchbildschirme(BildschirmVerzeichnis& verzeichnis)
{
    verzeichnis.registriere<frmHGDV>("frmHGDV");
    verzeichnis.registriere<frmZusammenHGDV>("frmZusammenHGDV");
    verzeichnis.registriere<frmInfoHGDV>("frmInfoHGDV");
    verzeichnis.registriere<frmPOSKOM>("frmPOSKOM");
    verzeichnis.registriere<frmpos_calc>("frmpos_calc");
    verzeichnis.registriere<frmpos2>("frmpos2");
    verzeichnis.registriere<frmAlleKombis>("frmAlleKombis");
    verzeichnis.registriere<frmFÜNFW>("frmFÜNFW");
    verzeichnis.registriere<frmZusammenFÜNFW>("frmZusammenFÜNFW");
    verzeichnis.registriere<frmTreffer>("frmTreffer");
    verzeichnis.registriere<frmFeiruben>("frmFeiruben");
    verzeichnis.registriere<frmZusammenBank>("frmZusammenBank");
    verzeichnis.registriere<frmKombiAscii>("frmKombiAscii");
}

#include "shell/app/Registrierung.h"

#include "archive/screens/frmAnzeige.h"
#include "archive/screens/frmOnline.h"
#include "archive/screens/frmlana.h"
#include "engines/screens/frmAlleKombis.h"
#include "engines/screens/frmFUENFW.h"
#include "engines/screens/frmHGDV.h"
#include "engines/screens/frmInfoHGDV.h"
#include "engines/screens/frmPOSKOM.h"
#include "engines/screens/frmTreffer.h"
#include "engines/screens/frmZusammenFUENFW.h"
#include "engines/screens/frmZusammenHGDV.h"
#include "engines/screens/frmpos2.h"
#include "engines/screens/frmpos_calc.h"
#include "shell/app/frmLSTART.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "statistics/screens/frmABSTAND.h"
#include "statistics/screens/frmGraph.h"
#include "statistics/screens/frmHJAHR.h"
#include "statistics/screens/frmSJAHR.h"
#include "statistics/screens/frmSTAT1.h"
#include "statistics/screens/frmSWH.h"
#include "statistics/screens/frmZuletzt.h"

void registriereBildschirme(BildschirmVerzeichnis& verzeichnis)
{
    verzeichnis.registriere<frmLSTART>("frmLSTART");
    verzeichnis.registriere<frmAnzeige>("frmAnzeige");
    verzeichnis.registriere<frmOnline>("frmOnline");
    verzeichnis.registriere<frmlana>("frmlana");
    verzeichnis.registriere<frmSTAT1>("frmSTAT1");
    verzeichnis.registriere<frmGraph>("frmGraph");
    verzeichnis.registriere<frmZuletzt>("frmZuletzt");
    verzeichnis.registriere<frmABSTAND>("frmABSTAND");
    verzeichnis.registriere<frmSJAHR>("frmSJAHR");
    verzeichnis.registriere<frmSWH>("frmSWH");
    verzeichnis.registriere<frmHJAHR>("frmHJAHR");
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
}

#include "statistics/screens/Registrierung.h"

#include "shell/elements/BildschirmVerzeichnis.h"
#include "statistics/screens/frmABSTAND.h"
#include "statistics/screens/frmGERADE.h"
#include "statistics/screens/frmGraph.h"
#include "statistics/screens/frmHJAHR.h"
#include "statistics/screens/frmLquer.h"
#include "statistics/screens/frmSJAHR.h"
#include "statistics/screens/frmSTAT1.h"
#include "statistics/screens/frmSWH.h"
#include "statistics/screens/frmZuletzt.h"
#include "statistics/screens/frmZusammenHJahr.h"
#include "statistics/screens/frmZusammenHSW.h"
#include "statistics/screens/frmZusammenH_SZ.h"
#include "statistics/screens/frmZusammenH_SZ_Jahr.h"
#include "statistics/screens/frmZusammenH_SZ_SW.h"
#include "statistics/screens/frmZusammenHaeufigkeit.h"
#include "statistics/screens/frmZusammenZuletzt.h"

void registriereStatistikbildschirme(BildschirmVerzeichnis& verzeichnis)
{
    verzeichnis.registriere<frmSTAT1>("frmSTAT1");
    verzeichnis.registriere<frmGraph>("frmGraph");
    verzeichnis.registriere<frmZuletzt>("frmZuletzt");
    verzeichnis.registriere<frmABSTAND>("frmABSTAND");
    verzeichnis.registriere<frmSJAHR>("frmSJAHR");
    verzeichnis.registriere<frmSWH>("frmSWH");
    verzeichnis.registriere<frmHJAHR>("frmHJAHR");
    verzeichnis.registriere<frmGERADE>("frmGERADE");
    verzeichnis.registriere<frmLquer>("frmLquer");
    verzeichnis.registriere<frmZusammenHSW>("frmZusammenHSW");
    verzeichnis.registriere<frmZusammenHJahr>("frmZusammenHJahr");
    verzeichnis.registriere<frmZusammenH_SZ_SW>("frmZusammenH_SZ_SW");
    verzeichnis.registriere<frmZusammenH_SZ_Jahr>("frmZusammenH_SZ_Jahr");
    verzeichnis.registriere<frmZusammenHaeufigkeit>("frmZusammenHaeufigkeit");
    verzeichnis.registriere<frmZusammenZuletzt>("frmZusammenZuletzt");
    verzeichnis.registriere<frmZusammenH_SZ>("frmZusammenH_SZ");
}

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
}

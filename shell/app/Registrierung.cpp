#include "shell/app/Registrierung.h"

#include "shell/app/frmLSTART.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "statistics/screens/frmGraph.h"
#include "statistics/screens/frmSTAT1.h"

void registriereBildschirme(BildschirmVerzeichnis& verzeichnis)
{
    verzeichnis.registriere<frmLSTART>("frmLSTART");
    verzeichnis.registriere<frmSTAT1>("frmSTAT1");
    verzeichnis.registriere<frmGraph>("frmGraph");
}

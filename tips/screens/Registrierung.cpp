#include "tips/screens/Registrierung.h"

#include "shell/elements/BildschirmVerzeichnis.h"
#include "tips/screens/GLOTTO.h"
#include "tips/screens/GLottoneu.h"
#include "tips/screens/frmKugel1.h"
#include "tips/screens/frmSSA.h"
#include "tips/screens/frmTA.h"

void registriereTippbildschirme(BildschirmVerzeichnis& verzeichnis)
{
    verzeichnis.registriere<GLottoneu>("GLottoneu");
    verzeichnis.registriere<GLOTTO>("GLOTTO");
    verzeichnis.registriere<frmKugel1>("frmKugel1");
    verzeichnis.registriere<frmTA>("frmTA");
    verzeichnis.registriere<frmSSA>("frmSSA");
}

#include "tips/screens/Registrierung.h"

#include "shell/elements/BildschirmVerzeichnis.h"
#include "tips/screens/GLOTTO.h"
#include "tips/screens/GLottoneu.h"
#include "tips/screens/frmInfo.h"
#include "tips/screens/frmKugel1.h"
#include "tips/screens/frmLottoneu.h"
#include "tips/screens/frmLottoneu_alt_mitZZ.h"
#include "tips/screens/frmSSA.h"
#include "tips/screens/frmTA.h"
#include "tips/screens/frmTippen.h"
#include "tips/screens/frmVorschlag.h"
#include "tips/screens/frmZusammenLottoneu.h"

void registriereTippbildschirme(BildschirmVerzeichnis& verzeichnis)
{
    verzeichnis.registriere<frmLottoneu>("frmLottoneu");
    verzeichnis.registriere<frmLottoneu_alt_mitZZ>("frmLottoneu_alt_mitZZ");
    verzeichnis.registriere<frmZusammenLottoneu>("frmZusammenLottoneu");
    verzeichnis.registriere<GLottoneu>("GLottoneu");
    verzeichnis.registriere<GLOTTO>("GLOTTO");
    verzeichnis.registriere<frmKugel1>("frmKugel1");
    verzeichnis.registriere<frmTA>("frmTA");
    verzeichnis.registriere<frmSSA>("frmSSA");
    verzeichnis.registriere<frmVorschlag>("frmVorschlag");
    verzeichnis.registriere<frmTippen>("frmTippen");
    verzeichnis.registriere<frmInfo>("frmInfo");
}

#include "archive/screens/Registrierung.h"

#include "archive/screens/frmAnzeige.h"
#include "archive/screens/frmOnline.h"
#include "archive/screens/frmlana.h"
#include "shell/elements/BildschirmVerzeichnis.h"

void registriereArchivbildschirme(BildschirmVerzeichnis& verzeichnis)
{
    verzeichnis.registriere<frmAnzeige>("frmAnzeige");
    verzeichnis.registriere<frmOnline>("frmOnline");
    verzeichnis.registriere<frmlana>("frmlana");
}

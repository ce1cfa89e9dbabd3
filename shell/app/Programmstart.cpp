#include "shell/app/Programmstart.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "archive/screens/Registrierung.h"
#include "archive/screens/Spielartlader.h"
#include "engines/screens/Registrierung.h"
#include "filters/screens/Registrierung.h"
#include "shell/app/frmLSTART.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "shell/logic/Vorlaeufige.h"
#include "statistics/screens/Registrierung.h"
#include "tips/screens/Registrierung.h"

void registriereBildschirme(BildschirmVerzeichnis& verzeichnis)
{
    verzeichnis.registriere<frmLSTART>("frmLSTART");
    registriereArchivbildschirme(verzeichnis);
    registriereStatistikbildschirme(verzeichnis);
    registriereFilterbildschirme(verzeichnis);
    registriereSuchbildschirme(verzeichnis);
    registriereTippbildschirme(verzeichnis);
}

void starteProgramm(Umgebung& umgebung)
{
    raeumeVorlaeufigeAuf(umgebung.archiv.ProgrammVerzeichnis);
    if (ladeSpielart(umgebung, SpielartStart))
        umgebung.bildschirme->oeffne("frmLSTART");
}

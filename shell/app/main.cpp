#include "shell/app/Dienste.h"
#include "shell/app/Programm.h"
#include "shell/app/Registrierung.h"
#include "shell/app/Verzeichniswahl.h"
#include "shell/elements/BildschirmVerzeichnis.h"

int main(int anzahl, char** argumente)
{
    Programm programm(anzahl, argumente);

    ZiehungsArchiv archiv;
    archiv.ProgrammVerzeichnis = waehleProgrammVerzeichnis(QCoreApplication::applicationDirPath()).toStdString();
    FensterBoxen boxen;
    SystemZwischenablage zwischenablage;
    StandardDrucker drucker;
    SystemKlang klang;
    SystemOeffner oeffner;
    SystemUhr uhr;
    Zufall zufall;
    SystemPumpe pumpe;
    Umgebung umgebung{archiv, boxen, zwischenablage, drucker, klang, oeffner, uhr, zufall, pumpe};
    BildschirmVerzeichnis bildschirme(umgebung);
    registriereBildschirme(bildschirme);

    ladeSpielart(umgebung, SpielartStart);
    bildschirme.oeffne("frmLSTART");
    return QCoreApplication::exec();
}

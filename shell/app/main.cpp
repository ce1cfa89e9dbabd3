#include "archive/logic/ZiehungsArchiv.h"
#include "shell/app/Dienste.h"
#include "shell/app/Programmstart.h"
#include "shell/app/Verzeichniswahl.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "shell/elements/Programm.h"

#include <QIcon>

int main(int anzahl, char** argumente)
{
    Programm programm(anzahl, argumente);
    QApplication::setWindowIcon(QIcon(":/bilder/tombrix.svg"));

    ZiehungsArchiv archiv;
    archiv.ProgrammVerzeichnis = waehleProgrammVerzeichnis(QCoreApplication::applicationDirPath()).toStdString();
    FensterBoxen boxen;
    SystemZwischenablage zwischenablage;
    SystemDrucker drucker;
    SystemKlang klang;
    SystemOeffner oeffner;
    SystemUhr uhr;
    Zufall zufall;
    SystemPumpe pumpe;
    Umgebung umgebung{archiv, boxen, zwischenablage, drucker, klang, oeffner, uhr, zufall, pumpe};
    BildschirmVerzeichnis bildschirme(umgebung);
    registriereBildschirme(bildschirme);

    starteProgramm(umgebung);
    return QCoreApplication::exec();
}

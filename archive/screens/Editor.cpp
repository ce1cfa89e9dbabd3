#include "archive/screens/Editor.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/elements/Umgebung.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Dateien.h"

QString aktiveZiehungsdatei(const Umgebung& umgebung)
{
    const ZiehungsArchiv& archiv = umgebung.archiv;
    return qt(findeDatei(archiv.ProgrammVerzeichnis, ziehungsdateiName(archiv.Spielart)).string());
}

bool oeffneImEditor(Umgebung& umgebung, const QString& meldung)
{
    if (umgebung.oeffner.oeffne(aktiveZiehungsdatei(umgebung)))
        return true;
    umgebung.boxen.info(kProgrammtitel, "ERROR 53: " + meldung);
    return false;
}

#include "archive/screens/Editor.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/elements/Umgebung.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Dateien.h"

QString ziehungsdatei(const Umgebung& umgebung, std::int16_t spielart)
{
    return qt(findeDatei(umgebung.archiv.ProgrammVerzeichnis, ziehungsdateiName(spielart)).string());
}

QString aktiveZiehungsdatei(const Umgebung& umgebung)
{
    return ziehungsdatei(umgebung, umgebung.archiv.Spielart);
}

bool oeffneImEditor(Umgebung& umgebung, const QString& datei, const QString& meldung)
{
    if (umgebung.oeffner.oeffne(datei))
        return true;
    umgebung.boxen.info(kProgrammtitel, "ERROR 53: " + meldung);
    return false;
}

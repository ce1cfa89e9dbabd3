#include "archive/screens/Spielartlader.h"

#include "archive/logic/Ziehungsdatei.h"
#include "shell/elements/Umgebung.h"

std::string ladeSpielarten(Umgebung& umgebung, int maske)
{
    return LadeAlleZiehungen(umgebung.archiv, maske, [&umgebung](const std::string& text) {
        umgebung.boxen.info(kProgrammtitel, QString::fromStdString(text));
        return false;
    });
}

bool ladeSpielart(Umgebung& umgebung, std::int16_t spielart)
{
    bool weiter = true;
    umgebung.archiv.Spielart = spielart;
    LadeZiehungsdatei(umgebung.archiv, [&](const std::string& text) {
        umgebung.boxen.info(kProgrammtitel, QString::fromStdString(text));
        return weiter = umgebung.pumpe.verarbeite();
    });
    return weiter;
}

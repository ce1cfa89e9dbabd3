#include "shell/elements/Umgebung.h"

#include "archive/logic/Ziehungsdatei.h"

std::string ladeSpielarten(Umgebung& umgebung, int maske)
{
    return LadeAlleZiehungen(umgebung.archiv, maske, [&umgebung](const std::string& text) {
        umgebung.boxen.info(kProgrammtitel, QString::fromStdString(text));
        return false;
    });
}

void ladeSpielart(Umgebung& umgebung, std::int16_t spielart)
{
    umgebung.archiv.Spielart = spielart;
    LadeZiehungsdatei(umgebung.archiv, [&umgebung](const std::string& text) {
        umgebung.boxen.info(kProgrammtitel, QString::fromStdString(text));
        return umgebung.pumpe.verarbeite();
    });
}

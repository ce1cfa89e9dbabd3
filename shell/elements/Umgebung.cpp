#include "shell/elements/Umgebung.h"

#include "archive/logic/Ziehungsdatei.h"

void ladeSpielart(Umgebung& umgebung, std::int16_t spielart)
{
    umgebung.archiv.Spielart = spielart;
    LadeZiehungsdatei(umgebung.archiv, [&umgebung](const std::string& text) {
        umgebung.boxen.info(kProgrammtitel, QString::fromStdString(text));
        return umgebung.pumpe.verarbeite();
    });
}

#include "shell/elements/Umgebung.h"

#include "archive/logic/Ziehungsdatei.h"

namespace {

MeldeFehlendeDatei meldung(Umgebung& umgebung)
{
    return [&umgebung](const std::string& text) {
        umgebung.boxen.info(kProgrammtitel, QString::fromStdString(text));
        return umgebung.pumpe.verarbeite();
    };
}

} // namespace

std::string ladeSpielarten(Umgebung& umgebung, int maske)
{
    return LadeAlleZiehungen(umgebung.archiv, maske, meldung(umgebung));
}

void ladeSpielart(Umgebung& umgebung, std::int16_t spielart)
{
    umgebung.archiv.Spielart = spielart;
    LadeZiehungsdatei(umgebung.archiv, meldung(umgebung));
}

#include "archive/screens/Einzellader.h"

#include "archive/logic/Ziehungsdatei.h"
#include "archive/screens/Spielartlader.h"
#include "shell/elements/Umgebung.h"

Einzellader::Einzellader(Umgebung& umgebung) : umgebung_(umgebung), gefunden_(umgebung.archiv.Spielart) {}

void Einzellader::lade(std::int16_t spielart, FehlendeDatei fehlende)
{
    fremd_ = true;
    umgebung_.archiv.Spielart = spielart;
    LadeZiehungsdatei(umgebung_.archiv, [this, fehlende](const std::string& text) {
        if (fehlende == FehlendeDatei::Nennen)
            umgebung_.boxen.info(kProgrammtitel, QString::fromStdString(text));
        return false;
    });
}

void Einzellader::gibZurueck()
{
    if (fremd_)
        ladeSpielart(umgebung_, gefunden_);
    fremd_ = false;
}

#include "archive/screens/Spielartlader.h"

#include "archive/logic/Ziehungsdatei.h"
#include "shell/elements/Umgebung.h"
#include "shell/logic/Texte.h"

#include <algorithm>
#include <vector>

std::optional<Spielartenstand> ladeSpielarten(Umgebung& umgebung, int maske)
{
    const std::vector<std::string> felder =
        teile(LadeAlleZiehungen(umgebung.archiv, maske,
                                [&umgebung](const std::string& text) {
                                    umgebung.boxen.info(kProgrammtitel, QString::fromStdString(text));
                                    return false;
                                }),
              ":");
    Spielartenstand stand;
    if (felder.size() != stand.size()) {
        umgebung.archiv.AnzahlZiehungen = 0;
        return std::nullopt;
    }
    std::ranges::copy(felder, stand.begin());
    return stand;
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

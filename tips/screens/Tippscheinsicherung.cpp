#include "tips/screens/Tippscheinsicherung.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/elements/Umgebung.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Meldung.h"
#include "tips/logic/Tippscheindatei.h"
#include "tips/logic/Tippscheinname.h"
#include "tips/logic/Tippscheintexte.h"

namespace {

/// Asks until the answer is a Spielwoche. Nothing for an empty answer.
std::optional<std::string> frageSpielwoche(Umgebung& umgebung)
{
    const QString frage = qt(tippscheinArt(umgebung.archiv.Spielart)) +
                          ":\nTipschein unter diesem Spieljahr und dieser Spielwoche speichern oder neue Spielwoche "
                          "eingeben ?";
    const QString vorschlag = qt(naechsteSpielwoche(umgebung.archiv));
    for (;;) {
        const std::string antwort = utf8(umgebung.boxen.eingabe("Lotto-Anfrage", frage, vorschlag).value_or(""));
        if (antwort.empty())
            return std::nullopt;
        if (istSpielwoche(antwort))
            return antwort;
    }
}

bool bestaetigtSpielwoche(Umgebung& umgebung, const std::string& spielwoche)
{
    return umgebung.boxen.frage(qt(kLottoNachricht),
                                QString("Tipschein wird als %1 unter Spielwoche %2 gespeichert. ")
                                    .arg(qt(tippscheinArt(umgebung.archiv.Spielart)), qt(spielwoche)));
}

bool darfUeberschreiben(Umgebung& umgebung, const std::string& spielwoche, const std::string& name)
{
    return umgebung.boxen.frage(kProgrammtitel, QString("Unter Spielwoche %1 wurden schon Tipps in einer Datei %2 "
                                                        "abgespeichert. Datei überschreiben ?")
                                                    .arg(qt(spielwoche), qt(name)));
}

/// Nothing if the user gives up. A slip that must not be overwritten leads back to the first question.
std::optional<std::string> waehleSpielwoche(Umgebung& umgebung,
                                            const std::function<bool(const std::string& name)>& gibtEs)
{
    for (;;) {
        std::optional<std::string> spielwoche = frageSpielwoche(umgebung);
        if (!spielwoche || !bestaetigtSpielwoche(umgebung, *spielwoche))
            return std::nullopt;
        const std::string name = tippscheinName(umgebung.archiv.Spielart, *spielwoche);
        if (!gibtEs(name) || darfUeberschreiben(umgebung, *spielwoche, name))
            return spielwoche;
    }
}

} // namespace

std::optional<std::string> sichereTipps(Umgebung& umgebung, const std::vector<Tippreihe>& reihen,
                                        const std::function<bool(const std::string& name)>& gibtEs)
{
    const ZiehungsArchiv& archiv = umgebung.archiv;
    const std::optional<std::string> spielwoche = waehleSpielwoche(umgebung, gibtEs);
    if (!spielwoche)
        return std::nullopt;
    if (!saveSlip(archiv.ProgrammVerzeichnis, archiv.Spielart, *spielwoche, reihen)) {
        umgebung.boxen.info(kProgrammtitel, qt(kTippdateiSchreibfehler));
        return std::nullopt;
    }
    return tippscheinName(archiv.Spielart, *spielwoche);
}

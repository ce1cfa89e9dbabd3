#include "shell/elements/DateiDialog.h"

#include "shell/elements/Utf8.h"
#include "shell/logic/DateiFilter.h"
#include "shell/logic/Texte.h"

#include <QDir>
#include <QStringList>

namespace {

QString qtFilter(const QString& filter)
{
    QStringList teile;
    for (const DateiFilter& wahl : teileDateiFilter(utf8(filter)))
        teile << QString("%1 (%2)").arg(qt(wahl.text), qt(wahl.muster).replace(';', ' '));
    return teile.join(";;");
}

} // namespace

QString DateiDialog(Umgebung& umgebung, const QString& dateiname, QString& pfad, const QString& filter,
                    const QString& titel, const QString& standardendung, DateiModus modus)
{
    DateiFrage frage;
    frage.titel = titel;
    frage.pfad = pfad.isEmpty() ? dateiname : QDir(pfad).filePath(dateiname);
    frage.filter = qtFilter(filter);
    frage.standardendung = standardendung;
    frage.speichern = modus != DateiModus::Oeffnen;
    frage.frageVorUeberschreiben = modus == DateiModus::SpeichernMitFrage;

    const std::optional<QString> gewaehlt = umgebung.boxen.datei(frage);
    if (!gewaehlt || gewaehlt->isEmpty())
        return {};
    const QString name = qt(DateiName(utf8(*gewaehlt)));
    pfad = gewaehlt->left(gewaehlt->size() - name.size());
    return name;
}

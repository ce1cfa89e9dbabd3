#include "shell/elements/DateiDialog.h"

#include "shell/elements/Utf8.h"
#include "shell/logic/DateiFilter.h"
#include "shell/logic/Texte.h"

#include <QDir>
#include <QRegularExpression>
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
    QString name = qt(DateiName(utf8(*gewaehlt)));
    pfad = gewaehlt->left(gewaehlt->size() - name.size());
    return name;
}

QString dateinameAus(const QString& titel, const QString& endung)
{
    static const QRegularExpression nachsatz("[,;:(].*");
    static const QRegularExpression verbotene(R"([\\/*?"<>|[:cntrl:]])");
    static const QRegularExpression punkteAmEnde("[. ]+$");
    return QString(titel).remove(nachsatz).replace(verbotene, " ").simplified().remove(punkteAmEnde) + "." + endung;
}

void meldeNichtGeschrieben(Umgebung& umgebung, const QString& name, const DateiErgebnis& ergebnis)
{
    umgebung.boxen.info(kProgrammtitel,
                        "Die Datei " + name + " konnte nicht geschrieben werden.\n" + qt(ergebnis.meldung));
}

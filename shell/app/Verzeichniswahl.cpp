#include "shell/app/Verzeichniswahl.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

QString mitTrenner(const QString& pfad)
{
    const QString eigen = QDir::toNativeSeparators(pfad);
    return eigen.endsWith(QDir::separator()) ? eigen : eigen + QDir::separator();
}

/// Copies what the package brings and the user's folder lacks; what is there stays.
void fuelleEinmal(const QDir& ziel, const QDir& paket)
{
    const QStringList mitgebracht{"*.DAT", "*.dat", "lotto-hilfe.*"};
    for (const QString& name : paket.entryList(mitgebracht, QDir::Files))
        if (!ziel.exists(name))
            QFile::copy(paket.filePath(name), ziel.filePath(name));
}

} // namespace

QString waehleProgrammVerzeichnis(const QString& ordnerDesProgramms)
{
    const QString gewuenscht = qEnvironmentVariable("TOMBRIX_VERZEICHNIS");
    if (!gewuenscht.isEmpty())
        return mitTrenner(gewuenscht);
    if (QFileInfo(ordnerDesProgramms).isWritable())
        return mitTrenner(ordnerDesProgramms);
    const QString eigener = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(eigener);
    fuelleEinmal(QDir(eigener), QDir(ordnerDesProgramms));
    return mitTrenner(eigener);
}

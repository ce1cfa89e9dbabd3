#pragma once

#include <QString>

/// The directory of the data files, with its trailing separator: the program's own folder, or, where that cannot be
/// written, the user's data folder, which is filled once with what the package brings. The environment variable
/// TOMBRIX_VERZEICHNIS names another one.
QString waehleProgrammVerzeichnis(const QString& ordnerDesProgramms);

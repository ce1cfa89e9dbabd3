#pragma once

#include <QString>

/// Address of a file on the update server, such as "/lotto/Salotto.dat". The server is a setting of the build; the
/// environment variable TOMBRIX_UPDATE_SERVER names another one ("http://host:port").
QString updateAdresse(const QString& pfad);

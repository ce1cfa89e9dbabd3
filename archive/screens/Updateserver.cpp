#include "archive/screens/Updateserver.h"

QString updateAdresse(const QString& pfad)
{
    QString server = qEnvironmentVariable("TOMBRIX_UPDATE_SERVER", TOMBRIX_UPDATE_SERVER);
    while (server.endsWith('/'))
        server.chop(1);
    return server + pfad;
}

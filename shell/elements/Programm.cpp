#include "shell/elements/Programm.h"

#include "shell/elements/Hinweiszeile.h"
#include "shell/elements/Stil.h"

#include <QLoggingCategory>

Programm::Programm(int& anzahl, char** argumente) : QApplication(anzahl, argumente)
{
    setApplicationName("tombrix");
    setApplicationDisplayName({});
    setQuitOnLastWindowClosed(false);
    Stil::richteEin(*this);
    new Hinweiszeile(this);
}

bool Programm::notify(QObject* ziel, QEvent* ereignis)
{
    try {
        return QApplication::notify(ziel, ereignis);
    } catch (const std::exception& fehler) {
        qWarning("%s", fehler.what());
    } catch (...) {
        qWarning("unbekannter Fehler");
    }
    return false;
}

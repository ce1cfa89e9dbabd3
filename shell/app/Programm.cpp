#include "shell/app/Programm.h"

#include "shell/elements/Hinweiszeile.h"
#include "shell/elements/Stil.h"

#include <QIcon>
#include <QLoggingCategory>

/// The resources lie in a static library, from which the linker takes only what is named.
static void ladeRessourcen() { Q_INIT_RESOURCE(ressourcen); }

Programm::Programm(int& anzahl, char** argumente) : QApplication(anzahl, argumente)
{
    ladeRessourcen();
    setApplicationName("tombrix");
    setApplicationDisplayName({});
    setQuitOnLastWindowClosed(false);
    setWindowIcon(QIcon(":/bilder/tombrix.svg"));
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

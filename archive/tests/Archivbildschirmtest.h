#pragma once

#include "archive/screens/Registrierung.h"
#include "testhilfen/Archivbuehne.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

/// The stage of the screens of the draw archive.
class Archivbildschirmtest : public Archivbuehne {
protected:
    Archivbildschirmtest() : Archivbuehne(registriereArchivbildschirme) {}

    /// Presses a shortcut such as "Alt+S", which holds its button down for a moment.
    void drueckeKuerzel(const QString& bildschirm, const QString& tasten)
    {
        QCoreApplication::processEvents();
        tippe(bildschirm, tasten);
        for (const QDeadlineTimer gedrueckt(200); !gedrueckt.hasExpired();)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
};

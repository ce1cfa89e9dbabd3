#pragma once

#include "shell/elements/Farben.h"
#include "statistics/screens/Registrierung.h"
#include "testhilfen/Archivbuehne.h"

/// The stage of the number statistics.
class Statistiktest : public Archivbuehne {
protected:
    Statistiktest() : Archivbuehne(registriereStatistikbildschirme) {}

    /// Those of the start buttons that look like the run whose result is on the screen.
    QStringList gelaufene(const QStringList& startknoepfe)
    {
        QStringList namen;
        for (const QString& name : startknoepfe)
            if (zustand(name).contains("back=" + Farben::Gelaufen.name()))
                namen << name;
        return namen;
    }
};

#pragma once

#include "testhilfen/Buehnentest.h"

/// The stage of the tools: the program directory holds a sample archive of all three games as of 21.11.2026, and a
/// stand-in for the menu loads them.
class Archivbuehne : public Buehnentest {
protected:
    /// `registriere` names the screens that the test is about.
    explicit Archivbuehne(void (*registriere)(BildschirmVerzeichnis&));

    /// Loads the archive and shows the menu.
    virtual void starte();

    /// Those of the start buttons that look like the run whose result is on the screen.
    QStringList gelaufene(const QStringList& startknoepfe);
};

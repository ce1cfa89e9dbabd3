#pragma once

#include "archive/logic/Ziehungsdatei.h"

// The real draws of ../shared/daten, seen from the root of the tree; empty where they are missing.

inline const ZiehungsArchiv& samstagsarchiv()
{
    static const ZiehungsArchiv geladen = [] {
        ZiehungsArchiv neu;
        neu.Spielart = Samstagslotto;
        neu.ProgrammVerzeichnis = "../shared/daten/";
        LadeZiehungsdatei(neu, {});
        return neu;
    }();
    return geladen;
}

/// Those of all three games.
inline const ZiehungsArchiv& alleZiehungen()
{
    static const ZiehungsArchiv geladen = [] {
        ZiehungsArchiv neu;
        neu.ProgrammVerzeichnis = "../shared/daten/";
        LadeAlleZiehungen(neu, 7, {});
        return neu;
    }();
    return geladen;
}

#pragma once

#include "archive/logic/Ziehungsdatei.h"

/// The real Saturday draws of ../shared/daten, seen from the root of the tree; empty where they are missing.
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

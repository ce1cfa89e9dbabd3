#pragma once

#include "archive/logic/Ziehungsdatei.h"
#include "testhilfen/Datenordner.h"
#include "testhilfen/Musterordner.h"

// What the benchmarks measure with: the real draws where they lie, otherwise the sample.

/// With a separator at its end.
inline const std::string& ziehungsordner()
{
    static const std::string ordner = (gibtEchteDaten() ? kEchteDaten : musterordner()).string() + "/";
    return ordner;
}

inline const ZiehungsArchiv& samstagsarchiv()
{
    static const ZiehungsArchiv geladen = [] {
        ZiehungsArchiv neu;
        neu.Spielart = Samstagslotto;
        neu.ProgrammVerzeichnis = ziehungsordner();
        LadeZiehungsdatei(neu, {});
        return neu;
    }();
    return geladen;
}

/// The draws of all three games.
inline const ZiehungsArchiv& alleZiehungen()
{
    static const ZiehungsArchiv geladen = [] {
        ZiehungsArchiv neu;
        neu.ProgrammVerzeichnis = ziehungsordner();
        LadeAlleZiehungen(neu, 7, {});
        return neu;
    }();
    return geladen;
}

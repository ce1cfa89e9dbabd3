#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/Meldung.h"

#include <string>

/// The message about the last draw of a freshly loaded archive with at least one draw.
Meldung erfolgsmeldung(const ZiehungsArchiv& archiv);

/// The message about a rejected file.
Meldung abweisung();

/// The status line of a transfer that was given up because it took too long.
std::string statusZuLange();

/// The status line of an update that came upon another program's writing.
std::string statusBesetzt();

/// What the button "Hilfe" tells.
Meldung downloadHilfe();

#pragma once

#include "archive/logic/Neueingabe.h"

#include <QString>

class Bildschirm;

/// Asks, in `spiel`'s name, whether a new draw is right, and appends it to the active Ziehungsdatei. Reloads the
/// archive and adds to the log of hand entries if there is one. False, and nothing has changed, after a "Nein" and,
/// behind a box, after an error.
bool speichereZiehung(Bildschirm& bildschirm, const NeueZiehung& ziehung, const QString& spiel);

/// Writes the active Ziehungsdatei anew from what lies in it, and reloads the archive. False, behind a box, after an
/// error.
bool erzeugeZiehungsdatei(Bildschirm& bildschirm);

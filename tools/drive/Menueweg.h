#pragma once

#include "tools/buehne/Bedienung.h"

/// The way from the selection menu to a screen, as a user would take it: the button for it on the wall, in the panel of
/// the combined tools or in the popup menu. A screen without one is left to be opened by itself.
Antwort geheAusMenue(Bedienung& bedienung, const Buehne& buehne, const QString& bildschirm);

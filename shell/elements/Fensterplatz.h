#pragma once

#include <QSize>

class Bildschirm;

/// Where the window of a screen stands: wholly on the desktop, with the frame that the window manager draws around it.
namespace Fensterplatz {

/// The largest size that a window may have without its frame.
QSize hoechstgroesse(const Bildschirm& fenster);

/// Gives the window the size of its content, as far as the desktop has room for it, in the middle of the desktop.
void richteEin(Bildschirm& fenster);
/// Puts the window in the middle of the desktop as it is.
void zentriere(Bildschirm& fenster);
/// Corrects the place once the true frame is known.
void berichtige(Bildschirm& fenster);
/// Takes back a window that stands out over the desktop, and makes it smaller if it must be.
void holeHerein(Bildschirm& fenster);

} // namespace Fensterplatz

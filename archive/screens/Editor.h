#pragma once

#include <QString>

#include <cstdint>

struct Umgebung;

/// Opens a file in the system's text editor; without one, shows the box "ERROR 53: " + `meldung`. False if there was
/// none.
bool oeffneImEditor(Umgebung& umgebung, const QString& datei, const QString& meldung);

/// Full path of the Ziehungsdatei of a game.
QString ziehungsdatei(const Umgebung& umgebung, std::int16_t spielart);
/// Full path of the active Ziehungsdatei.
QString aktiveZiehungsdatei(const Umgebung& umgebung);

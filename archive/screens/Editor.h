#pragma once

#include <QString>

struct Umgebung;

/// Opens the active Ziehungsdatei in the system's text editor; without one, shows the box "ERROR 53: " + `meldung`.
/// False if there was none.
bool oeffneImEditor(Umgebung& umgebung, const QString& meldung);

/// Full path of the active Ziehungsdatei.
QString aktiveZiehungsdatei(const Umgebung& umgebung);

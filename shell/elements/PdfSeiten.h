#pragma once

#include "shell/elements/Umgebung.h"

class QIODevice;

/// Writes the pages that a print job paints as a PDF. False if the device takes no more.
bool schreibePdf(QIODevice& ziel, const QString& titel, const Drucker::Maler& male);

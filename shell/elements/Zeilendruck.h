#pragma once

#include "shell/logic/Druckzeilen.h"

class Drucker;
class QString;

/// Sends a list to the default printer, line by line in "Courier New". False if there is no printer.
bool druckeZeilen(Drucker& drucker, const QString& titel, const Druckauftrag& auftrag);

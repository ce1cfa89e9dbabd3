#pragma once

#include "shell/logic/Druckzeilen.h"

class Bildschirm;
class Drucker;
class QString;

/// Sends a list to the default printer, line by line in "Courier New". False if there is no printer.
bool druckeZeilen(Drucker& drucker, const QString& titel, const Druckauftrag& auftrag);

/// The same as a run of a screen, which ends between two pages when it is stopped. Without a printer the title says so,
/// and the list is offered as a PDF file.
void druckeZeilen(Bildschirm& bildschirm, const QString& titel, const Druckauftrag& auftrag);

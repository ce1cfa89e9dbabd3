#pragma once

#include "statistics/logic/Superzahlen.h"

#include <string>
#include <vector>

/// The report: the draws of each game and of all, then how often each digit came, with the games beside it. Nothing if
/// no game was counted.
std::vector<std::string> superzahlBericht(const Superzahlstatistik& statistik);

/// "7 vor  3 Wochen, Sa, 27.06.2026": a line for each digit that came in a game, ascending. Nothing for a game that was
/// not counted.
std::vector<std::string> zuletztZeilen(const Superzahlstatistik& statistik, std::int16_t spielart);

/// The same of Saturday and Wednesday together, the digit that came last first.
std::vector<std::string> zuletztZeilenGemeinsam(const Superzahlstatistik& statistik);

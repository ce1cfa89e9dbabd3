#pragma once

#include "archive/logic/ZiehungsArchiv.h"

#include <array>
#include <string>

/// The Spieljahr of the last draw, kept to four digits whatever the file holds; 0 for an empty archive.
std::int32_t letztesSpieljahr(const ZiehungsArchiv& archiv);

/// The Spieljahr and Spielwoche proposed for the next draw. Behind week 53 comes week 1 of the next year, behind week
/// 52 always week 53: whether a year has it, the user knows. An empty archive gives 0 and 1.
struct Vorschlag {
    std::int32_t jjjj = 0;
    std::int32_t sw = 1;
};
Vorschlag naechsteZiehung(const ZiehungsArchiv& archiv);

/// A draw as the user has entered it.
struct NeueZiehung {
    std::int32_t jjjj = 0;
    std::int32_t sw = 0;
    std::array<std::int32_t, 6> zahlen{}; ///< 1..49, ascending
    std::int32_t superzahl = 0;           ///< 0..9
};

/// The record for the Ziehungsdatei, without Zusatzzahl: "2024,31,03,12,24,33,41,49,00,7".
std::string neuerDatensatz(const NeueZiehung& ziehung);
/// The same for the eye: "2024,31,03,12,24,33,41,49  SZ:7".
std::string anzeigeform(const NeueZiehung& ziehung);
/// The line of the log of all draws entered by hand; `datum` is the date text of the draw.
std::string sicherungszeile(const NeueZiehung& ziehung, std::int16_t spielart, const std::string& datum);

/// The Zusatzzahl in two places; "-" for none.
std::string zusatzzahlText(const ZiehungsArchiv& archiv, std::size_t nr);
/// The Superzahl, or "-" before the first one of the active game.
std::string superzahlText(const ZiehungsArchiv& archiv, std::size_t nr);
/// Line of the list of all draws: number, date, year and week, numbers, Zusatzzahl, Superzahl.
std::string listenzeile(const ZiehungsArchiv& archiv, std::size_t nr);

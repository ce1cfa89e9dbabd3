#pragma once

#include "archive/logic/ZiehungsArchiv.h"

#include <string>
#include <string_view>

// What the screens of the slips say in boxes, and the question for the Spielwoche of a slip.

inline constexpr std::string_view kTippdateiFehlt = "ERROR 53: Tipdatei nicht gefunden !";
inline constexpr std::string_view kTippdateiSchreibfehler =
    "Fehler beim Schreiben! Mögliche Ursachen:\n"
    "1. Der aktuelle Ordner befindet sich auf einen schreibgeschützten Datenträger.\n"
    "2. Sie besitzen keine Rechte um in diesen Ordner zu schreiben.";

/// "Samstag-Tipschein" or "Mittwoch-Tipschein".
std::string_view tippscheinArt(std::int16_t spielart);

/// The Spielwoche behind the last draw as JJJJSW, "202418"; behind week 53 the first of the next year.
std::string naechsteSpielwoche(const ZiehungsArchiv& archiv);

/// True if a slip can be saved under this answer: six characters of a file name, of which the last two are a
/// week 1..53.
bool istSpielwoche(std::string_view antwort);

#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "engines/logic/WiederholungDetails.h"

#include <span>
#include <string>
#include <string_view>

/// The name of the games in a report of all games: a dash for every blank of `namen`, so that a last name that ends
/// with a blank leaves a dash behind.
std::string spielartenMitStrichen(std::string_view namen);

/// "Erfassungstand der Ziehungen: 2026 / 29" of the last draw.
std::string erfassungstand(const ZiehungsArchiv& archiv);

/// The clipboard text of a result list, or of any other list under the title `art`: the title, the lines, and
/// `schluss`. Without lines it is `schluss` alone.
std::string listenBericht(std::string_view art, std::string_view spiel, std::span<const std::string> zeilen,
                          std::string_view schluss);

/// The same of the details.
std::string detailBericht(std::string_view art, std::string_view spiel, const Detailzeilen& zeilen,
                          std::string_view schluss);

/// The same of the triples that were never drawn, with their count.
std::string nieGezogeneBericht(std::string_view spiel, std::span<const std::string> zeilen);

#pragma once

#include "shell/logic/Druckzeilen.h"
#include "shell/logic/Lottozahl.h"
#include "statistics/logic/ZuletztAuswertung.h"

#include <array>
#include <string>
#include <vector>

/// What is shown of a last draw: its week, or for how many weeks the number has stayed away.
enum class ZuletztAnsicht { JahrUndWoche, Wochen };

/// The texts of the screen for one evaluation. Of the two lists the first is sorted by number, the second by its text,
/// which begins with the last draw.
struct ZuletztTafel {
    std::array<std::string, kHoechsteZahl> zellen;  ///< index: number - 1
    std::array<std::string, 2> listenkoepfe;        ///< the line above each of the lists
    std::array<std::vector<std::string>, 2> listen; ///< a line for each number, ascending
};

ZuletztTafel zuletztTafel(const ZuletztAuswertung& auswertung, ZuletztAnsicht ansicht);

/// The lines above the two lists.
std::array<std::string, 2> zuletztListenkoepfe(ZuletztAnsicht ansicht);

/// The game in upper case; "Mittwochslotto (A+B)" for both Wednesday games.
std::string spielLabel(const ZuletztAuswertung& auswertung);

/// "2026/29 ZNr: 3693": how a draw stands in the choice of the last one. `nr` is 1..AnzahlZiehungen.
std::string ziehungsauswahl(const ZiehungsArchiv& archiv, std::int32_t nr);

/// "Gespeicherte Ziehungen von: 1955/41 bis: 2026/29, 3693 Ziehungen"; empty with an empty archive.
std::string gespeicherteZiehungenVonBis(const ZiehungsArchiv& archiv);

/// Two heading lines, then a line for each number.
Druckauftrag druckauftrag(const ZuletztAuswertung& auswertung, ZuletztAnsicht ansicht);

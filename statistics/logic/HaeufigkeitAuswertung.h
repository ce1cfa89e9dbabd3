#pragma once

#include "shell/logic/Druckzeilen.h"
#include "statistics/logic/Haeufigkeit.h"
#include "statistics/logic/ZuletztVor.h"

#include <cstdint>
#include <string>

/// One evaluation with all that its titles, its print and its graph tell of it.
struct HaeufigkeitAuswertung {
    Haeufigkeit haeufigkeit;
    std::int16_t spielart = SpielartStart; ///< the game that was counted, for A+B the one it began with
    bool mittwochAB = false;               ///< both Wednesday games together
    ZZModus ZaehlModus = ZZModus::Ohne;
    Ziehungsbereich bereich;
    Bereichsangabe angabe;              ///< the fields after the check
    bool erreichtLetzteZiehung = false; ///< the range ends with the last Spieljahr, or with the last draw
    ZuletztVor zuletztVor{};            ///< counted from the last draw of the archive, whatever the range
};

/// Counts the active archive. `bereich` and `angabe` are those of one checked Auswertebereich.
HaeufigkeitAuswertung werteAus(const ZiehungsArchiv& archiv, const Ziehungsbereich& bereich,
                               const Bereichsangabe& angabe, ZZModus modus);

/// Adds the other Wednesday game, over the same range and without Zusatzzahl, to an evaluation of the one that was
/// made without Zusatzzahl. What it says of the last draw holds for game A, which is still drawn.
void ergaenzeMittwoch(HaeufigkeitAuswertung& auswertung, const ZiehungsArchiv& archiv);

/// The game in upper case; "MITTWOCHSLOTTO (A+B)" for both Wednesday games.
std::string spielLabel(const HaeufigkeitAuswertung& auswertung);

/// "Samstagslotto: Auswertung von 1955 bis 2026 ; 3693 Ziehungen; ohne Zusatzzahl", or by draw
/// "Samstagslotto: Auswertung von Ziehung 1 bis Ziehung 100 , ohne Zusatzzahl".
std::string ergebniszeile(const HaeufigkeitAuswertung& auswertung);

/// "Max: Zahl -> 49 (123 mal gezogen)".
std::string maximumText(const Extremwerte& extreme);
/// "Min: Zahl -> 13 (98 mal gezogen)".
std::string minimumText(const Extremwerte& extreme);

/// The text line for the bar of a number 1..49: its count and, if the evaluation reached the last draw, how many
/// weeks ago it came.
std::string balkenText(const HaeufigkeitAuswertung& auswertung, int zahl);

/// Two heading lines and a line of blanks, then a line for each number. The heading comes anew on every page.
Druckauftrag druckauftrag(const HaeufigkeitAuswertung& auswertung);

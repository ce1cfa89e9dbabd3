#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/Lottozahl.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// How long ago a number was drawn in one of the chosen games.
struct Zuletzteintrag {
    int zahl = 0;
    std::int32_t ausspielungen = 0; ///< draws since then, those of all chosen games; 0 in the newest draw
    std::string datum;              ///< date text of the draw; empty for a number that was never taken
};

/// When each number was drawn last in all the chosen games together.
struct ZusammenZuletzt {
    int maske = 0;                                         ///< games: 1 Samstag, 2 Mittwoch, 4 Mittwoch (B)
    std::int32_t ziehungen = 0;                            ///< draws of the chosen games
    std::array<Zuletzteintrag, kHoechsteZahl> eintraege{}; ///< index: number - 1
};

/// Looks through a combined archive of the games of `maske`; with 0 no draw of it is looked at. The draws of
/// Mittwoch (B) are taken together with those of Mittwoch only: alone, they count as draws, but none of their numbers
/// does. A number that was never taken stands as if it had come in the first draw.
ZusammenZuletzt lastDrawn(const ZiehungsArchiv& archiv, int maske);

/// " 7  12  Sa, 18.04.2026": a line for each number, ascending; nothing without draws.
std::vector<std::string> zeilenNachZahl(const ZusammenZuletzt& zuletzt);
/// The same lines, the number that has stayed away longest first; equals ascend by number.
std::vector<std::string> zeilenNachAusspielungen(const ZusammenZuletzt& zuletzt);

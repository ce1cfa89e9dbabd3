#pragma once

#include "archive/logic/ZiehungsArchiv.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Which draws of a combined archive are counted, and which of their numbers.
struct ZusammenHaeufigkeitswahl {
    int maske = 0;                      ///< games: 1 Samstag, 2 Mittwoch, 4 Mittwoch (B); 0: no draw at all
    std::int32_t samstagsziehungen = 0; ///< so many draws of Saturday the archive begins with
    std::optional<std::int32_t> letzte; ///< only so many of the latest draws; nothing: all
    bool mitZZ = false;
    bool nurAb2000 = false; ///< of game A of Wednesday only the draws from 06.12.2000 on
    bool mit7aus38 = false; ///< the old Wednesday game of 1982 to 1986 too
};

/// How often each number was drawn in all the chosen games together.
struct ZusammenHaeufigkeit {
    ZusammenHaeufigkeitswahl wahl;
    std::vector<std::int32_t> anzahl; ///< index: number - 1; 49 numbers, or 38 if only "7 aus 38" has been counted
    std::int32_t ziehungen = 0;
    std::string von; ///< date text of the first and the last draw of the archive that was counted; empty: none was
    std::string bis;
};

/// Counts the draws of a combined archive. A Zusatzzahl of 0 is no number and never counts. Only the count of draws,
/// not the single draws, is known of "7 aus 38": it is added whole, however few of the latest draws are counted.
ZusammenHaeufigkeit frequencyRange(const ZiehungsArchiv& archiv, const ZusammenHaeufigkeitswahl& wahl);

/// "Auswertung von: So, 09.10.1955 bis Sa, 18.07.2026"; empty if no draw was counted.
std::string ueberschrift(const ZusammenHaeufigkeit& haeufigkeit);

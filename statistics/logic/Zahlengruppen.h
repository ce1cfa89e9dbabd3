#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/Druckzeilen.h"
#include "shell/logic/ZZModus.h"

#include <array>
#include <cstdint>
#include <string>

/// How the numbers of a stretch of draws fall into groups, with all that its print tells of it.
struct Zahlengruppen {
    std::int16_t spielart = SpielartStart;
    ZZModus ZaehlModus = ZZModus::Ohne;
    std::int32_t von = 0; ///< Spieljahre, both included
    std::int32_t bis = 0;

    std::int32_t Ausgewertet = 0;    ///< draws of these years
    std::int32_t OhneZusatzzahl = 0; ///< of them, those that should have had a Zusatzzahl counted and have none
    std::int32_t Gerade = 0;
    std::int32_t Ungerade = 0;
    std::int32_t Einer = 0;                 ///< 1..9
    std::int32_t Zehner = 0;                ///< 10..19
    std::int32_t Zwanziger = 0;             ///< 20..29
    std::int32_t Dreissiger = 0;            ///< 30..39
    std::int32_t Vierziger = 0;             ///< 40..49
    std::array<std::int32_t, 7> Septiden{}; ///< the rows of the ticket: 1..7, 8..14 ... 43..49

    /// How many numbers the draws hold, reckoned from their count.
    std::int32_t gesamtzahl() const;
    /// The five groups of ten, the lowest first.
    std::array<std::int32_t, 5> zehnergruppen() const { return {Einer, Zehner, Zwanziger, Dreissiger, Vierziger}; }
};

/// Counts the draws with a Spieljahr from `von` to `bis`; none if `bis` lies before `von`. What is no number 1..49
/// counts nowhere.
Zahlengruppen zaehleGruppen(const ZiehungsArchiv& archiv, std::int32_t von, std::int32_t bis, ZZModus modus);

/// The counts as a list for the printer.
Druckauftrag druckauftrag(const Zahlengruppen& gruppen);

#pragma once

#include "shell/logic/Lottozahl.h"
#include "statistics/logic/ZuletztGezogen.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// The last draw that holds a number, with the week and the day of the file that it lies in.
struct LetztesAuftreten {
    std::int32_t ZiehungsNr = 0;           ///< 0: not met
    std::int16_t Spielart = SpielartStart; ///< the game of the file
    std::string jahrUndWoche = "0000/00";  ///< "jjjj/sw"
    std::string datum;                     ///< "Sa, 18.07.2026"; empty if not met

    bool operator==(const LetztesAuftreten&) const = default;
};

/// When each number was drawn last, looking back from one draw.
struct ZuletztAuswertung {
    std::array<LetztesAuftreten, kHoechsteZahl> auftreten; ///< index: number - 1
    std::int16_t Spielart = SpielartStart; ///< the game that was searched, for A+B the one it began with
    bool mittwochAB = false;               ///< both Wednesday games together
    ZZModus ZaehlModus = ZZModus::Ohne;
    std::int32_t Suchbeginn = 1;   ///< ZiehungsNr of the first draw that was looked at
    std::int32_t Grenze = 0;       ///< ZiehungsNr that the look-back starts at; below 1: no draw was looked at
    std::string stand = "0000/00"; ///< "jjjj/sw" of that draw

    /// Of a number 1..49.
    const LetztesAuftreten& fuer(int zahl) const { return auftreten[static_cast<std::size_t>(zahl - 1)]; }
    /// How many draws a number 1..49 has stayed away: 0 if the look-back starts with it, `Grenze` if it was not met.
    std::int32_t wochen(int zahl) const { return Grenze - fuer(zahl).ZiehungsNr; }
};

/// The draw that the look-back starts at, as it was read from a field.
struct Ziehungsgrenze {
    std::int32_t nr = 0;     ///< below 1: no draw
    bool berichtigt = false; ///< the field named more draws than there are: `nr` is the last one
};

/// Reads the text of the field; one that is no whole number gives 0.
Ziehungsgrenze liesGrenze(std::string_view text, std::int32_t anzahlZiehungen);

/// Searches the active archive. `grenze` is at most the count of its draws; if it is below, the search begins with the
/// first draw, else at `suchbeginn`.
ZuletztAuswertung werteZuletztAus(const ZiehungsArchiv& archiv, std::int32_t grenze, ZZModus modus);

/// Adds the other Wednesday game, over the same draws and without Zusatzzahl, to an evaluation of the one that was made
/// without Zusatzzahl. The calendars of both are the same, so that the later draw is the one with the higher number.
void ergaenzeMittwoch(ZuletztAuswertung& auswertung, const ZiehungsArchiv& archiv);

/// The numbers that show the same week as the one drawn last, and the same as the one away longest. With one week for
/// all, every number is in both.
struct ZuletztMarken {
    std::bitset<50> neueste;  ///< [1..49]
    std::bitset<50> aelteste; ///< [1..49]
};

ZuletztMarken zuletztMarken(const ZuletztAuswertung& auswertung);

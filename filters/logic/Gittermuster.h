#pragma once

#include "filters/logic/Ziehungsfund.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The lines of the ticket over which the six numbers of a draw spread.
enum class Linienart { Zeile, Spalte };

/// How many ways there are to spread six numbers over seven lines, whichever lines these are.
inline constexpr std::size_t kGittermuster = 11;

/// The caption of a way, `muster` 0..10.
std::string_view beschriftung(std::size_t muster, Linienart art);

/// The code of a way, `muster` 0..10: how many numbers each line holds, the most last, as the digits of one decimal
/// number. 123 is a line of one, one of two and one of three.
std::int32_t musterCode(std::size_t muster);

/// The code of six numbers. One that is none of 1..49 lies in no line.
std::int32_t codeVon(const Kombination& zahlen, Linienart art);

/// The draws that spread in a chosen way.
struct Mustersuche {
    Linienart art{};
    std::size_t muster = 0;
    std::int32_t AnzahlZiehungen = 0; ///< all that were looked at
    std::vector<Ziehungsfund> funde;  ///< oldest first
};

/// Looks through the archive of one game. `muster` is 0..10.
Mustersuche BerechneMuster(const ZiehungsArchiv& archiv, Linienart art, std::size_t muster);

/// "12 Ziehungen (0,32%) von 3693 Ziehungen ".
std::string ergebniszeile(const Mustersuche& suche);

/// How many draws spread in each way.
struct Musterverteilung {
    std::int32_t AnzahlZiehungen = 0;
    std::array<std::int32_t, kGittermuster> zeilen{};
    std::array<std::int32_t, kGittermuster> spalten{};
};

Musterverteilung zaehleMuster(const ZiehungsArchiv& archiv);

/// The two tables, rows before columns: head between dashes and a line with count and share for each way.
std::vector<std::string> uebersicht(const Musterverteilung& verteilung);

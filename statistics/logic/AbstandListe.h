#pragma once

#include "listcontrol/logic/Listenfarben.h"
#include "statistics/logic/AbstandAuswertung.h"

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

/// The list of the hits: twelve columns of data, and between them eleven narrow ones that separate. Columns count
/// from 0.
struct AbstandSpalten {
    static constexpr int kAnzahl = 23;
    static constexpr int kJahr = 2;
    static constexpr int kDatum = 6;
    static constexpr int kZ1 = 8;
    static constexpr int kZZ = 20;
    static constexpr int kWochen = 22;

    static constexpr std::array<std::string_view, kAnzahl> kSchluessel{
        "Zieh.Nr", "trenner0", "Jahr", "trenner1", "SW", "trenner2",  "Datum", "trenner3",
        "Z1",      "trenner4", "Z2",   "trenner5", "Z3", "trenner6",  "Z4",    "trenner7",
        "Z5",      "trenner8", "Z6",   "trenner9", "ZZ", "trenner10", "Wochen"};

    static constexpr bool istTrenner(int spalte) { return spalte % 2 == 1; }
};

using AbstandZellen = std::array<std::string, AbstandSpalten::kAnzahl>;

/// The cells of a hit; those of the separators are empty. The number that was searched carries a blank at its end
/// where it counts; a Zusatzzahl of 0 is "-".
AbstandZellen abstandZellen(const AbstandAuswertung& auswertung, std::size_t treffer);

/// The colours of a cell, by its place and its text; `laengster` marks the row of the longest absence.
Farbpaar abstandFarbe(int zeile, int spalte, std::string_view text, bool laengster);

/// The report for the clipboard, with the hits in the order in which the list shows them; empty without a hit.
std::string abstandBericht(const AbstandAuswertung& auswertung, std::span<const std::size_t> reihenfolge);

#pragma once

#include "filters/logic/Zahlennachbarn.h"

/// The list of the hits: eleven columns of data, and between them ten narrow ones that separate. Columns count from 0.
/// Over several games it tells year and week in one column and the game in the next.
struct Nachbarspalten {
    static constexpr int kAnzahl = 21;
    static constexpr int kJahr = 2;
    static constexpr int kWoche = 4;
    static constexpr int kDatum = 6;
    static constexpr int kZ1 = 8;
    static constexpr int kZ6 = 18;
    static constexpr int kSZ = 20;

    using Schluessel = std::array<std::string_view, kAnzahl>;
    static constexpr Schluessel kEinzeln{"Gruppe", "trenner1",  "Jahr", "trenner2", "SW", "trenner3",
                                         "Datum",  "trenner4",  "Z1",   "trenner5", "Z2", "trenner6",
                                         "Z3",     "trenner7",  "Z4",   "trenner8", "Z5", "trenner9",
                                         "Z6",     "trenner10", "SZ"};
    static constexpr Schluessel kZusammen{"Gruppe", "trenner1",  "Jahr/SW", "trenner2", "SArt", "trenner3",
                                          "Datum",  "trenner4",  "Z1",      "trenner5", "Z2",   "trenner6",
                                          "Z3",     "trenner7",  "Z4",      "trenner8", "Z5",   "trenner9",
                                          "Z6",     "trenner10", "SZ"};

    static constexpr bool istTrenner(int spalte) { return spalte % 2 == 1; }
    static constexpr bool istZahl(int spalte) { return !istTrenner(spalte) && spalte >= kZ1 && spalte <= kZ6; }
};

using Nachbarzellen = std::array<std::string, Nachbarspalten::kAnzahl>;

/// The cells of a hit. Of its numbers only those of the group are shown.
Nachbarzellen nachbarzellen(const Nachbarsuche& suche, const Nachbartreffer& treffer);

/// True for a number of the draw that belongs to the group.
bool gehoertZurGruppe(const Nachbartreffer& treffer, std::int32_t zahl);

/// "Sa", "Mi" or "MiB".
std::string_view nachbarspiel(std::int16_t spielart);

/// The Superzahl, or "-" where there was none.
std::string superzahltext(const Nachbartreffer& treffer);

#pragma once

#include "archive/logic/Kombination.h"
#include "archive/logic/ZiehungsArchiv.h"
#include "engines/logic/Trefferzaehler.h"
#include "shell/logic/Binomial.h"

#include <cstdint>
#include <string>
#include <vector>

/// Rows in sight of the list of all combinations, and the number of the first row that fills them to the end.
inline constexpr std::int32_t kZeilenJeSeite = 30;
inline constexpr std::int32_t kLetzteSeite = kKombinationen6aus49 - kZeilenJeSeite + 1;

/// A row of the list: a combination, its number and what it would have won.
struct Kombinationszeile {
    std::int32_t nummer = 0; ///< 1..13,983,816
    Kombination zahlen{};
    Trefferzaehler zaehler;
};

/// The 30 rows from number `erste` on, fewer at the end of all combinations; `superzahl` is the chosen one.
std::vector<Kombinationszeile> kombinationsseite(const ZiehungsArchiv& archiv, std::int32_t erste,
                                                 std::int32_t superzahl);

/// " 2.101.234   02 05 11 24 35 48  |  0 |  0 | ... |  52 |  8 | GF: 064": the number, the combination, the counts from
/// six right with Superzahl down to two right with Superzahl, and their sum.
std::string kombinationszeile(const Kombinationszeile& zeile);

/// The column heads above such rows.
inline constexpr auto kKombinationskopf =
    " Kombi.-Nr.   Kombination       |6-SZ|6-er|5-SZ|5-er|4-SZ|4-er|3-SZ| 3-er|2-SZ|Gewinnfälle";

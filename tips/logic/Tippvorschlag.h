#pragma once

#include "archive/logic/Kombination.h"
#include "shell/logic/Zufall.h"
#include "statistics/logic/Haeufigkeit.h"
#include "statistics/logic/Wochenstatistik.h"
#include "statistics/logic/ZuletztAuswertung.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// A row of a statistic that proposals take a number from.
struct Statistikzeile {
    std::string text;
    int zahl = 0; ///< 1..49
};

/// The 49 numbers in the order of a statistic, as the screen lists them.
struct Statistikliste {
    std::vector<Statistikzeile> zeilen;
    bool besteZuletzt = false; ///< the number to be taken first stands in the last row

    /// The number of rank 1 (the first to be taken) to 49.
    int zahl(std::size_t rang) const;
};

/// "12 *  7": the most frequent of the Spielwoche first, of equals the highest number.
Statistikliste fillWochenListe(const Wochenstatistik& statistik);
/// "531 49": the rarest first, in the order of the text, so that of equals the highest number is the better one.
Statistikliste fillHaeufigkeitListe(const Haeufigkeit& haeufigkeit);
/// "017 49": draws since the last one with this number, the newest first, in the order of the text.
Statistikliste fillAbwesenheitListe(const ZuletztAuswertung& zuletzt);

/// What the tips of one press are made from.
struct Tippwunsch {
    std::optional<int> bank1, bank2;         ///< 1..49, in every tip
    std::vector<Statistikliste> statistiken; ///< at most three; each gives one number to a tip

    bool gleicheBankzahlen() const { return bank1 && bank1 == bank2; }
};

/// Tip `rang` (1..12): the Bankzahlen, from each statistic the number of this rank or the next one that the tip does
/// not hold yet, and random numbers for the rest. Ascending.
Kombination generateTip(const Tippwunsch& wunsch, std::size_t rang, Zufall& zufall, double sekunden);

/// " Tip   3:   4  8 15 30 38 43".
std::string tippzeile(std::size_t nummer, const Kombination& tip);

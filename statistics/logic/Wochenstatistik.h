#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/Lottozahl.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// A draw of the chosen Spielwoche.
struct Wochenziehung {
    std::int32_t ZiehungsNr = 0;
    std::int32_t jjjj = 0;
    std::array<std::int32_t, 6> gewinnzahlen{};
    std::int32_t zz = 0; ///< 0: none
    std::string datum;   ///< "So, 09.10.1955"
};

/// All draws of one Spielwoche, and how often each number came in them.
struct Wochenstatistik {
    std::int32_t sw = 0; ///< 0: nothing evaluated yet
    bool mitZZ = false;
    std::vector<Wochenziehung> ziehungen;             ///< oldest first
    std::array<std::int32_t, kHoechsteZahl> anzahl{}; ///< index: number - 1
};

/// Evaluates Spielwoche `sw`; one that no draw has gives no draws and all zeros. With `mitZZ` the Zusatzzahl counts
/// too, where a draw has one.
Wochenstatistik weekStatistics(const ZiehungsArchiv& archiv, std::int32_t sw, bool mitZZ);

/// The week after that of the last draw, 1..53; after week 53, and with an empty archive, 1.
std::int32_t naechsteSpielwoche(const ZiehungsArchiv& archiv);

/// "1955/41  03 12 13 16 23 41      So, 09.10.1955": the numbers begin at characters 10, 13, 16, 19, 22 and 25, the
/// Zusatzzahl, if it counts, at 29 ("-" for none), the date at 33.
std::vector<std::string> ziehungszeilen(const Wochenstatistik& statistik);

/// The 49 numbers in the order of their lines below.
std::vector<int> zahlenNachHaeufigkeit(const Wochenstatistik& statistik);

/// "  7 mal die 13" for each number, in the order of the text: the most frequent last, of equals the highest number.
std::vector<std::string> zeilenNachHaeufigkeit(const Wochenstatistik& statistik);

/// "13 Zahl  ->   7 mal" for each number from 1 to 49.
std::vector<std::string> zeilenNachZahl(const Wochenstatistik& statistik);

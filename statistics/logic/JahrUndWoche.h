#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/ZZModus.h"
#include "statistics/logic/Spielwochen.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// How often a number was drawn in one Spieljahr.
struct Jahresanzahl {
    std::int32_t jahr = 0;
    std::int32_t anzahl = 0;

    bool operator==(const Jahresanzahl&) const = default;
};

struct HaeufigkeitProJahr {
    std::vector<Jahresanzahl> jahre; ///< in the order of the draws
    std::int32_t gesamt = 0;         ///< draws with the number
};

/// index: Spielwoche - 1
using HaeufigkeitProWoche = std::array<std::int32_t, kSpielwochen>;

/// The Spielwochen of one Spieljahr in which a number was drawn.
struct Jahrestreffer {
    std::int32_t jahr = 0;
    std::vector<std::int32_t> wochen;

    bool operator==(const Jahrestreffer&) const = default;
};

/// Counts the draws with `number`, 1..49, a row for each Spieljahr: the first row is that of the game's first year
/// (1955, or 1986 on Wednesday) even if the archive begins later, further ones follow where the year changes.
HaeufigkeitProJahr countPerYear(const ZiehungsArchiv& archiv, int number, ZZModus zzModus);

/// Counts them by Spielwoche. A draw of a week outside 1..53 is left out.
HaeufigkeitProWoche countPerWeek(const ZiehungsArchiv& archiv, int number, ZZModus zzModus);

/// The same rows as `countPerYear`, each with its hits.
std::vector<Jahrestreffer> trefferProJahr(const ZiehungsArchiv& archiv, int number, ZZModus zzModus);

/// One number over years and weeks, with all that the screen and its reports tell of it.
struct JahrUndWoche {
    int zahl = 0; ///< 1..49; 0: nothing evaluated yet
    ZZModus ZaehlModus = ZZModus::Ohne;
    std::int16_t Spielart = SpielartStart;
    HaeufigkeitProJahr proJahr;
    HaeufigkeitProWoche proWoche{};
    std::vector<Jahrestreffer> treffer;    ///< the rows of `proJahr`, each with its hits
    std::string letzteZiehung = "0000/00"; ///< "jjjj/sw"
};

JahrUndWoche werteJahrUndWocheAus(const ZiehungsArchiv& archiv, int zahl, ZZModus modus);

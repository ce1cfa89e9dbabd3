#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "tips/logic/Tippreihe.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

/// The draw that a slip is compared with.
struct Vergleichsziehung {
    Kombination zahlen{};
    std::int32_t superzahl = 0; ///< 0..9

    bool operator==(const Vergleichsziehung&) const = default;
};

/// The six numbers and the Superzahl of a draw as its fields hold them.
using Ziehungstexte = std::array<std::string, 7>;

/// The fields of a draw, 1..AnzahlZiehungen.
Ziehungstexte ziehungstexte(const ZiehungsArchiv& archiv, std::size_t nr);

/// The draw of seven fields. Nothing unless the numbers of 1..49 rise strictly and the Superzahl is 0..9.
std::optional<Vergleichsziehung> vergleichsziehung(const Ziehungstexte& felder);

/// One row of a slip held against the draw.
struct Reihenvergleich {
    Reihenstand stand = Reihenstand::Leer;
    std::array<bool, 6> getroffen{}; ///< for each field whether its number was drawn, in a row with an error too
    bool superzahlGetroffen = false; ///< of a row with two hits or more; of others the Superzahl is not looked at
    std::string gewinn{};            ///< "4-er+SZ", "2-er+SZ", or the bare count of hits; empty unless the row is valid

    bool operator==(const Reihenvergleich&) const = default;
};

/// Compares each row with the draw. Whether a draw had a Superzahl at its time does not matter: the one given counts.
std::vector<Reihenvergleich> compareSlip(const std::vector<Tippreihe>& reihen, const Kombination& gewinnzahlen,
                                         std::int32_t superzahl);

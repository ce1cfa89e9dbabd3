#pragma once

#include "tips/rules/Gewinnklassen.h"

#include <array>
#include <cstdint>

/// One tip held against one draw.
struct Tippbewertung {
    std::array<bool, 6> getroffen{}; ///< for each number of the tip whether it was drawn
    std::int32_t Trefferzahl = 0;
    Gewinnklasse klasse = Gewinnklasse::Keine;

    bool istGewinn() const { return klasse != Gewinnklasse::Keine; }
};

/// Scores the tip by `GewinnklassenplanNeu`. `ziehungsNr` is 1-based; one that the archive does not have gives no hit.
Tippbewertung bewerteNeu(const ZiehungsArchiv& archiv, std::int32_t ziehungsNr, const Kombination& tip,
                         std::int32_t tipSZ, std::int16_t spielart);
/// The same by `GewinnklassenplanAlt`.
Tippbewertung bewerteAlt(const ZiehungsArchiv& archiv, std::int32_t ziehungsNr, const Kombination& tip,
                         std::int32_t tipSZ, std::int16_t spielart);

/// The counters of a tip, or of several, over many draws.
struct Trefferbilanz {
    std::array<std::int32_t, 6> haeufigkeit{}; ///< how often each number of the tip was drawn
    std::int32_t Null = 0;
    std::int32_t Einer = 0;
    std::int32_t zweierRoh = 0;                             ///< two hits, with a Superzahl or without
    std::array<std::int32_t, kGewinnklassen + 1> klassen{}; ///< by class; [0] stays 0

    void zaehle(const Tippbewertung& bewertung);
    Trefferbilanz& operator+=(const Trefferbilanz& andere);
    bool operator==(const Trefferbilanz&) const = default;

    std::int32_t anzahl(Gewinnklasse klasse) const { return klassen[static_cast<std::size_t>(klasse)]; }
    /// Two hits without the Superzahl: one with it is shown as GK9 alone.
    std::int32_t Zweier() const { return zweierRoh - anzahl(Gewinnklasse::GK9); }
    /// Draws with a class.
    std::int32_t gewinne() const;
};

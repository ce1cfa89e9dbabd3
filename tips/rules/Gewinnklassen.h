#pragma once

#include "archive/logic/Kombination.h"
#include "archive/logic/ZiehungsArchiv.h"

#include <array>
#include <cstddef>
#include <cstdint>

/// The prize classes of either plan; `Keine` is no win.
enum class Gewinnklasse : std::uint8_t { Keine, GK1, GK2, GK3, GK4, GK5, GK6, GK7, GK8, GK9 };
inline constexpr std::size_t kGewinnklassen = 9;

/// What splits the draws of one Trefferzahl into two classes, and the class of a draw where it matches and where not.
struct Gewinnstufe {
    enum class Merkmal : std::uint8_t { Superzahl, Zusatzzahl };

    Merkmal merkmal = Merkmal::Superzahl;
    Gewinnklasse mit = Gewinnklasse::Keine;
    Gewinnklasse ohne = Gewinnklasse::Keine;
};

/// A plan of prize classes: its entry for each Trefferzahl 0..6. The date of a draw never chooses the plan.
class Gewinnklassenplan {
public:
    using Stufen = std::array<Gewinnstufe, 7>;

    constexpr explicit Gewinnklassenplan(const Stufen& stufen) : stufen_(stufen) {}

    /// An entry without classes for a Trefferzahl outside 0..6.
    constexpr Gewinnstufe stufe(std::int32_t trefferzahl) const
    {
        return trefferzahl < 0 || trefferzahl > 6 ? Gewinnstufe{} : stufen_[static_cast<std::size_t>(trefferzahl)];
    }
    constexpr Gewinnklasse klasse(std::int32_t trefferzahl, bool merkmalTrifft) const
    {
        return merkmalTrifft ? stufe(trefferzahl).mit : stufe(trefferzahl).ohne;
    }

private:
    Stufen stufen_;
};

/// In force since 04.05.2013; every tool uses it, over the whole archive.
inline constexpr Gewinnklassenplan GewinnklassenplanNeu{{{
    {},
    {},
    {Gewinnstufe::Merkmal::Superzahl, Gewinnklasse::GK9, Gewinnklasse::Keine},
    {Gewinnstufe::Merkmal::Superzahl, Gewinnklasse::GK7, Gewinnklasse::GK8},
    {Gewinnstufe::Merkmal::Superzahl, Gewinnklasse::GK5, Gewinnklasse::GK6},
    {Gewinnstufe::Merkmal::Superzahl, Gewinnklasse::GK3, Gewinnklasse::GK4},
    {Gewinnstufe::Merkmal::Superzahl, Gewinnklasse::GK1, Gewinnklasse::GK2},
}}};

/// The plan with Zusatzzahl that held before.
inline constexpr Gewinnklassenplan GewinnklassenplanAlt{{{
    {},
    {},
    {},
    {Gewinnstufe::Merkmal::Zusatzzahl, Gewinnklasse::GK7, Gewinnklasse::GK8},
    {Gewinnstufe::Merkmal::Zusatzzahl, Gewinnklasse::GK5, Gewinnklasse::GK6},
    {Gewinnstufe::Merkmal::Zusatzzahl, Gewinnklasse::GK3, Gewinnklasse::GK4},
    {Gewinnstufe::Merkmal::Superzahl, Gewinnklasse::GK1, Gewinnklasse::GK2},
}}};

/// The same on Mittwochslotto (B), whose plan of 1997-2000 splits neither six hits nor four.
inline constexpr Gewinnklassenplan GewinnklassenplanAltMittwochB{{{
    {},
    {},
    {},
    {Gewinnstufe::Merkmal::Zusatzzahl, Gewinnklasse::GK7, Gewinnklasse::GK8},
    {Gewinnstufe::Merkmal::Zusatzzahl, Gewinnklasse::GK6, Gewinnklasse::GK6},
    {Gewinnstufe::Merkmal::Zusatzzahl, Gewinnklasse::GK3, Gewinnklasse::GK4},
    {Gewinnstufe::Merkmal::Superzahl, Gewinnklasse::GK2, Gewinnklasse::GK2},
}}};

// Below, `ziehungsNr` is 1-based. One that the archive does not have gives no hit, no match and no class. A number of
// a tip or of a draw outside 1..49 (0 where a tip has none) hits nothing.

/// For each number of the tip whether it stands among the six Gewinnzahlen. The Zusatzzahl never counts.
std::array<bool, 6> getroffeneZahlen(const ZiehungsArchiv& archiv, const Kombination& tip, std::int32_t ziehungsNr);

/// The Trefferzahl: how many numbers of the tip stand among the six Gewinnzahlen.
std::int32_t countTreffer(const ZiehungsArchiv& archiv, const Kombination& tip, std::int32_t ziehungsNr);

/// True if a draw of this game has a Superzahl and it equals `tipSZ`. What is no digit 0..9 never matches.
bool superzahlTrifft(const ZiehungsArchiv& archiv, std::int32_t ziehungsNr, std::int32_t tipSZ, std::int16_t spielart);

/// True if the Zusatzzahl of the draw is one of the tip's numbers.
bool zusatzzahlTrifft(const ZiehungsArchiv& archiv, std::int32_t ziehungsNr, const Kombination& tip);

Gewinnklasse classifyNeu(const ZiehungsArchiv& archiv, std::int32_t trefferzahl, std::int32_t ziehungsNr,
                         std::int32_t tipSZ, std::int16_t spielart);
Gewinnklasse classifyAlt(const ZiehungsArchiv& archiv, std::int32_t trefferzahl, std::int32_t ziehungsNr,
                         const Kombination& tip, std::int32_t tipSZ, std::int16_t spielart);

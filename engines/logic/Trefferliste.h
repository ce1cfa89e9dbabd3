#pragma once

#include "archive/logic/Kombination.h"
#include "archive/logic/ZiehungsArchiv.h"
#include "engines/logic/Trefferzaehler.h"
#include "listcontrol/logic/Farbe.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// A draw in which a combination wins, as it stood in the archive.
struct Gewinnfall {
    std::int32_t jjjj = 0;
    std::int32_t sw = 0;
    Kombination zahlen{};      ///< the numbers drawn, of any size and order
    std::int32_t s = 0;        ///< Superzahl; 11 where the draw has none
    std::string tag;           ///< see `ziehungstag`
    int treffer = 0;           ///< right numbers, 2..6
    bool mitSuperzahl = false; ///< the chosen Superzahl was drawn

    bool operator==(const Gewinnfall&) const = default;
};

/// The draws, oldest first, in which `kombination` has three numbers or more right; with a chosen Superzahl also those
/// with two right and this Superzahl. Without a chosen one the Superzahl plays no part. A number that a draw holds
/// twice counts once; numbers outside of 1..49 never count.
std::vector<Gewinnfall> gewinnfaelle(const ZiehungsArchiv& archiv, const Kombination& kombination,
                                     std::optional<std::int32_t> superzahl);

/// True if a draw's `s` is the chosen Superzahl: "none" never is.
constexpr bool istSuperzahl(std::int32_t s, std::int32_t gewaehlt)
{
    return s == gewaehlt && s != kOhneSuperzahl;
}

Trefferzaehler zaehle(std::span<const Gewinnfall> faelle);

/// What a column of the list shows.
enum class Trefferfeld {
    Trenner,
    JahrUndWoche,
    Zahl1,
    Zahl2,
    Zahl3,
    Zahl4,
    Zahl5,
    Zahl6,
    Superzahl,
    Gewinn,
    Ziehungstag
};

struct Trefferspalte {
    std::string_view schluessel;
    std::string_view titel{};
    Trefferfeld feld = Trefferfeld::Trenner;
    int zeichen = 0; ///< of its widest text, the title included
};

/// The columns with and without the Superzahl; every other one separates.
extern const std::array<Trefferspalte, 19> kTrefferspaltenMitSuperzahl;
extern const std::array<Trefferspalte, 17> kTrefferspalten;

/// The text of a cell. A right number, and the Superzahl that was chosen, carry a blank at their end; the cells of
/// the separators are empty.
std::string trefferzelle(Trefferfeld feld, const Gewinnfall& fall, const Kombination& kombination);

/// "Sa", "Mi", "Mi(B)" from a date text such as "Mi, 04.06.1986 (B)": a draw on a Sunday or Monday is one of "Sa".
std::string ziehungstag(std::string_view datumAlle);

/// The colours of a cell as far as its column and its text call for any; the foreground may stay as it is.
struct Trefferfarbe {
    Farbe grund;
    std::optional<Farbe> schrift;

    bool operator==(const Trefferfarbe&) const = default;
};
std::optional<Trefferfarbe> trefferfarbe(Trefferfeld feld, std::string_view text);

/// The six numbers of a text such as "01 02 03 04 05 06"; nothing if it does not hold six ascending ones.
std::optional<Kombination> liesKombination(std::string_view text);

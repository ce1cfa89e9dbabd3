#pragma once

#include "archive/logic/Kombination.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The printed slip. Lengths are millimetres, from the upper left corner of the paper to the right and downward.

struct Scheinort {
    float senkrecht = 0;
    float waagerecht = 0;
};

/// How long a slip plays, in the order of the options on the screen. The last but one is offered and has no box.
enum class Laufzeit : std::uint8_t {
    EineWoche,
    ZweiWochen,
    DreiWochen,
    VierWochen,
    FuenfWochen,
    DreizehnAlt,
    Dauerspiel
};
inline constexpr std::size_t kLaufzeiten = 7;

/// What is crossed beside the tips.
struct Scheinwahl {
    bool samstag = false;
    bool mittwoch = false;
    bool spiel77 = false;
    bool super6 = false;
    bool gluecksspirale = false;
    Laufzeit laufzeit = Laufzeit::EineWoche;

    bool operator==(const Scheinwahl&) const = default;
};

/// How far all crosses are moved, in tenths of a millimetre.
struct Scheinversatz {
    int waagerecht = 0;
    int senkrecht = 0;

    bool operator==(const Scheinversatz&) const = default;
};

/// The fields of a slip: the cells of the 49 numbers of each tip.
struct Scheinfeld {
    static constexpr float kZellenbreite = 3.5F;
    static constexpr float kZellenhoehe = 3.8F;

    Scheinort ecke; ///< the upper left one
};

/// The field of a tip, counted from 0: even ones stand in the upper row, odd ones below.
Scheinfeld scheinfeld(std::size_t tip);

/// The boxes of the slip that a cross may stand in, whether chosen or not, with what they are for.
struct Scheinkaestchen {
    Scheinort ort;
    std::string_view gruppe;       ///< "Spiel 77"
    std::string_view beschriftung; ///< "Ja"
};
const std::vector<Scheinkaestchen>& scheinkaestchen();

/// Where the crosses stand: those of the tips, then those of the choice.
std::vector<Scheinort> layoutSlip(const std::vector<Kombination>& tips, const Scheinwahl& wahl,
                                  const Scheinversatz& versatz);

/// The six numbers of a list line, which stand from its 12th character on, three characters apart. What is no number
/// 1..49 is 0 and gets no cross.
Kombination kombinationAusZeile(std::string_view zeile);

/// " Tipp  1:   3  7 12 23 34 45".
std::string quicktippzeile(std::size_t nummer, const Kombination& tip);

/// What the user is asked before the slip is printed.
std::string druckfrage(const Scheinwahl& wahl, std::size_t tipps, std::string_view drucker);

#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

/// Formats the whole number with the sign `negativ` and the given magnitude; see `Format`.
std::string FormatGanzzahl(bool negativ, std::uint64_t betrag, std::string_view maske);

/// Formats a value by a mask, with German signs (decimal comma, group point).
///
/// Number masks: "0" is a digit that is always shown, "#" one that is shown when it counts, "." the decimal sign,
/// "," between digits groups by thousands, "%" shows the value times 100; everything else stands as it is. "\" before
/// a character and double quotes around several make them plain text. Digits beyond the mask are never cut; halves of
/// the decimal value that a reader would see round away from zero; a value shown as zero has no sign. "#,###,###"
/// of 0 is the empty text.
///
/// Text masks consist of places alone: "@" is a place filled with blanks on the left, or with a "!" anywhere in the
/// mask on the right. Places count characters, not bytes; a longer value widens the field. The empty mask gives the
/// value as plain text.
template <std::integral Ganzzahl>
    requires(!std::same_as<Ganzzahl, bool>)
std::string Format(Ganzzahl wert, std::string_view maske)
{
    const bool negativ = wert < Ganzzahl{0};
    const auto betrag = static_cast<std::uint64_t>(wert);
    return FormatGanzzahl(negativ, negativ ? std::uint64_t{0} - betrag : betrag, maske);
}

/// As above. The shortest decimal text that reads back as `wert` is what is rounded: 0.125 with "0.00" is "0,13" and
/// 1.005 is "1,01". Infinite values and NaN give the empty text.
std::string Format(double wert, std::string_view maske);

/// As above. A number mask formats the number that `text` holds (German or plain decimal sign); a text that is no
/// number comes back as it is.
std::string Format(std::string_view text, std::string_view maske);

/// The value rounded to at most `stellen` decimals (0..15), without padding: 0.5 is "0,5", 2.0 is "2".
std::string Dezimaltext(double wert, int stellen);

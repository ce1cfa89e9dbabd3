#pragma once

#include "shell/logic/Zeichensatz.h" // IWYU pragma: export

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What ends a line of the text files that the program writes.
inline constexpr std::string_view kZeilenende = "\r\n";

constexpr bool istZiffer(char zeichen)
{
    return zeichen >= '0' && zeichen <= '9';
}

enum class Vergleich {
    Binaer, ///< byte by byte
    Text    ///< without regard to case, German letters included
};

/// The text behind the last "/" or "\"; the whole text if there is none.
std::string DateiName(std::string_view pfad);

/// Trims both ends and makes one blank of each run of blanks, in place. Returns `text`.
std::string& LeerzeichenKuerzen(std::string& text);

/// How often `suche` stands in `text`, overlapping places included; -1 if `suche` is empty.
int ZaehleVorkommen(std::string_view text, std::string_view suche, Vergleich vergleich = Vergleich::Binaer);

/// The value of a text of binary digits; every digit but 0 counts as 1. Digits from the 32nd place from the right on
/// do not fit the result and are left out, as are characters that are no digits.
std::int32_t BinaerNachLong(std::string_view text);

/// The UTF-8 bytes of the text, without a terminator.
std::vector<std::uint8_t> Utf8Bytes(std::string_view text);

/// Upper and lower case of the ASCII and Latin-1 letters, so of all German ones; "ß" stays. The length in bytes stays.
std::string grossbuchstaben(std::string_view text);
std::string kleinbuchstaben(std::string_view text);

/// Orders two texts without regard to case: -1, 0 or 1.
int vergleicheText(std::string_view links, std::string_view rechts);
bool gleichOhneGrossKlein(std::string_view links, std::string_view rechts);

/// The text without the given characters at both ends.
std::string_view trim(std::string_view text, std::string_view zeichen = " ");

/// The parts between the separators, empty ones included; of an empty text there are none. An empty separator cuts
/// nothing.
std::vector<std::string> teile(std::string_view text, std::string_view trenner);

/// The count of characters, not bytes.
std::size_t anzahlZeichen(std::string_view text);

/// `anzahl` characters from the 1-based character `ab` on; what lies beyond the end is left out. `ab` 0 counts as 1.
std::string_view Mid(std::string_view text, std::size_t ab, std::size_t anzahl = std::string_view::npos);

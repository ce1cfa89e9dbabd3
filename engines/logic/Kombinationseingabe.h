#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

inline constexpr auto kMeldungNummer = "Die Kombinationsnummer muss >1 und <=13.983.816 sein.";
inline constexpr auto kMeldungAnzahl =
    "Falsche Zahleneingabe! Es müssen 6 Zahlen durch Komma oder Leerzeichen getrennt eingegeben werden.";
inline constexpr auto kMeldungZahl =
    "Falsche Zahleneingabe. Die einzelnen Zahlen müssen grösser 1 und kleiner 49 sein.";

/// The text without its points.
std::string ohnePunkte(std::string_view text);

/// The number of a combination, 1..13,983,816, that an entry such as "12.000.000" names; nothing for any other entry.
std::optional<std::int32_t> liesKombinationsnummer(std::string_view eingabe);

/// What an entry of six numbers says.
struct Zahlensuche {
    std::optional<std::int32_t> nummer; ///< what the numbers add up to as a place among all combinations
    std::vector<std::string> meldungen; ///< why there is none, a text for each box
};

/// Six numbers of 1..49 in any order, with commas or runs of blanks between them. Numbers may repeat: the sum stands
/// for no combination then.
Zahlensuche sucheZahlen(std::string_view eingabe);

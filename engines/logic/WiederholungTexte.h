#pragma once

#include "engines/logic/Wiederholungen.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

/// In what the texts of the tool for one game and of its twin for all games differ.
struct Wiederholungsart {
    std::string_view anzahlMaske; ///< of the counts of pairs and triples; with all games they pass 99
    std::size_t striche = 0;      ///< length of a dash line among the details
    bool datumAlle = false;       ///< the dates are those of a combined load
};

inline constexpr Wiederholungsart kEineSpielart{"@@", 43, false};
inline constexpr Wiederholungsart kAlleSpielarten{"@@@", 48, true};

/// How the screens call the sets of `k` numbers.
struct Wiederholungsname {
    std::string_view wiederholungen; ///< "Zweierwiederholungen"
    std::string_view kombinationen;  ///< "Zweierkombinationen"
    std::string_view moegliche;      ///< how many sets there are, as the summary shows it
    std::string_view zerlegen;       ///< title of the first step of a search
    std::string_view vergleichen;    ///< title of the second one
};

/// `k` is 2..6.
const Wiederholungsname& wiederholungsname(int k);

inline constexpr std::string_view kSucheLaeuft =
    "       ***************   BITTE WARTEN, SUCHE LÄUFT !  ***************";
inline constexpr std::string_view kSucheFertig = "Fertig !";
inline constexpr std::string_view kKeineSechserwiederholungen = "Keine Sechserwiederholungen !";

/// True for the line that says that there is nothing to list.
bool istKeineSechser(std::string_view ergebniszeile);

/// The line of a set of `k` numbers, such as " 9 mal ->   7 19". A list in the order of these texts is the ranking.
std::string ergebniszeile(const Wiederholung& wiederholung, int k, const Wiederholungsart& art);

/// The numbers that a line shows, read back from its columns: the first `k` count. A window without digits gives 0.
std::array<std::int32_t, 6> zahlenDerZeile(std::string_view ergebniszeile, int k);

/// The numbers of a line as the head of its details shows them, with the blanks in front of them.
std::string_view zahlenteil(std::string_view ergebniszeile, int k);

/// The summary before any search.
std::string leereWiederholungszusammenfassung();

/// The summary of a search that was not stopped.
std::string zusammenfassung(const Wiederholungen& ergebnis);

/// "Suchzeit = 0,25 s" of a duration in milliseconds.
std::string suchzeittext(double millisekunden);

#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/Uhr.h"

#include <chrono>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

struct Suchergebnis;

/// What the search of one size is called.
struct Groessentexte {
    std::string_view befehl;         ///< caption of its button
    std::string_view wiederholungen; ///< its name during the run and in the report
    std::string_view kopf;           ///< first line of its summary
    std::string_view titel;          ///< the title during the run; empty: that of every wait
    std::string_view maske;          ///< of the frequency in its lines
};

/// `groesse` is 2..6.
const Groessentexte& groessentexte(int groesse);

inline constexpr std::string_view kSuchtitel = "Suche nach Wiederholungen (brute force)";
inline constexpr std::string_view kSucheAbgebrochen = "Berechnung wurde abgebrochen!";
inline constexpr std::string_view kKeineSechser = "Keine Sechserwiederholungen!";

/// "  12 mal -> 01 02": the frequency in the width of the size, so that the order of the texts is a ranking.
std::string wiederholungszeile(std::span<const std::int32_t> zahlen, std::uint32_t haeufigkeit);

/// The title with the game and the first and last week of its draws, in whatever order the draws stand. Without a game
/// or draws that part is missing.
std::string suchtitel(const ZiehungsArchiv& archiv, std::string_view spiel);

/// The summary of a finished search, and its form before the first one; lines joined by CR LF.
std::string zusammenfassung(const Suchergebnis& ergebnis);
std::string leereZusammenfassung();

/// "Suchläufe: 500 von 1.176", and the same with the part done in percent, or with all of it.
std::string suchlaeufeText(const Suchergebnis& ergebnis);
std::string suchlaeufeMitProzent(const Suchergebnis& ergebnis);
std::string alleSuchlaeufe(const Suchergebnis& ergebnis);

/// How long a search has run, as it is shown: one second more than the whole ones that have passed, 2 at least.
std::int64_t suchzeit(Zeitpunkt start, Zeitpunkt jetzt);
/// The time that the whole search will take, if it has taken `sekunden` so far; "00.00.00" where there is no telling.
std::string schaetzung(const Suchergebnis& ergebnis, std::int64_t sekunden);

/// Whose draws a search went through, and up to which one.
struct Suchquelle {
    std::string spiel;
    std::string jahrUndWoche; ///< of the latest draw by its date, in whatever order the draws stand
    std::string datum;
    std::int32_t ziehungen = 0;
};

/// `daten` are the date texts that go with the columns.
Suchquelle suchquelle(const ZiehungsArchiv& archiv, std::string_view spiel, const std::vector<std::string>& daten);

/// The report of the repetitions in the order of `zeilen`, and the one of the triples never drawn; empty without lines.
std::string wiederholungsbericht(const Suchquelle& quelle, int groesse, std::span<const std::string> zeilen);
std::string nieGezogenBericht(const Suchquelle& quelle, std::span<const std::string> zeilen);

#pragma once

#include "tips/rules/Trefferbilanz.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What a time travel shows: the draws that a full tip would have won in, all draws with what it met there, or the
/// draws that hold a combination of one to six numbers.
enum class Zeitreiseart : std::uint8_t { Gewinne, Alle, Suche };

/// The three forms of the tool. They differ in their draws, in the plan of prize classes and in the columns.
enum class Zeitreiseform : std::uint8_t {
    EineSpielart, ///< the active game, the plan in force
    Zusammen,     ///< several games one after the other, the plan in force
    AlterPlan,    ///< the active game, the plan with Zusatzzahl
};

/// What a time travel is asked.
struct Zeitreisefrage {
    Zeitreiseart art = Zeitreiseart::Gewinne;
    std::vector<std::int32_t> zahlen; ///< ascending; six of a tip, one to six of a combination
    std::int32_t tipSZ = 0;           ///< 0..9

    /// False while there are too few numbers. The list of all draws stands without any.
    bool istVollstaendig() const;
};

/// A draw in the result, with what the numbers asked for met in it.
struct Zeitreisezeile {
    std::int16_t Spielart = SpielartStart;
    std::int32_t ziehungsNr = 0; ///< 1-based, within its game
    std::int32_t jjjj = 0;
    std::int32_t sw = 0;
    Kombination zahlen{};
    std::int32_t zz = 0;             ///< 0 or less where the draw has none
    std::int32_t s = kOhneSuperzahl; ///< `kOhneSuperzahl` where the draw has none
    std::array<bool, 6> getroffen{}; ///< for each number of the draw whether it was asked for
    Gewinnklasse klasse = Gewinnklasse::Keine;

    bool operator==(const Zeitreisezeile&) const = default;
};

/// The result of a time travel, with all that it was computed from.
struct Zeitreise {
    Zeitreiseart art = Zeitreiseart::Gewinne;
    Zeitreiseform form = Zeitreiseform::EineSpielart;
    std::vector<std::int32_t> zahlen; ///< the tip or the combination, ascending; empty: nothing was asked for
    std::int32_t tipSZ = 0;
    std::vector<std::int16_t> spielarten; ///< 1..3, in the order in which they were gone through
    std::string von = "9999/99";          ///< earliest draw of them all; as it is here without any draw
    std::string bis = "0000/00";          ///< latest one
    std::int32_t ziehungen = 0;           ///< how many draws were gone through
    Trefferbilanz bilanz;                 ///< in a combination search only how often each number was drawn
    std::vector<Zeitreisezeile> zeilen;   ///< oldest draw first

    /// True if the archive still holds what the result of one game was computed from.
    bool istVon(const ZiehungsArchiv& archiv) const;
    /// True if a game that began in 1955 is among them.
    bool seit1955() const;
    bool operator==(const Zeitreise&) const = default;
};

// The evaluations. `tip` holds six numbers, ascending, and `tipSZ` is 0..9; `spielart` is the game that the archive
// holds. Each is one pass over the columns.

/// The draws with a class, and the counters over all draws. The form chooses the plan.
Zeitreise evaluateGewinne(const ZiehungsArchiv& archiv, const Kombination& tip, std::int32_t tipSZ,
                          std::int16_t spielart, Zeitreiseform form = Zeitreiseform::EineSpielart);
/// The same with a row for every draw, that of ZiehungsNr n at n-1.
Zeitreise evaluateAlle(const ZiehungsArchiv& archiv, const Kombination& tip, std::int32_t tipSZ, std::int16_t spielart);
/// The draws that hold all of one to six numbers, and how often each of these was drawn on its own.
Zeitreise searchKombination(const ZiehungsArchiv& archiv, std::span<const std::int32_t> zahlen, std::int16_t spielart,
                            Zeitreiseform form = Zeitreiseform::EineSpielart);

/// Answers a complete question by one of these. All draws without a tip are rows without marks.
Zeitreise evaluate(const ZiehungsArchiv& archiv, const Zeitreisefrage& frage, std::int16_t spielart,
                   Zeitreiseform form);

/// A result of no game yet, to which those of several are added.
Zeitreise ohneSpiele(const Zeitreisefrage& frage, Zeitreiseform form);
/// Adds the result of the same question to another game: counters are summed, rows stand behind the others.
void fuegeHinzu(Zeitreise& summe, const Zeitreise& weitere);
/// Orders the rows of several games by year and week. Rows of one week stand as the list control's sort leaves them.
void ordneNachWoche(Zeitreise& zeitreise);

/// The last draw of an archive; nothing if it is empty or its numbers do not ascend in 1..49.
std::optional<Zeitreisezeile> letzteZiehung(const ZiehungsArchiv& archiv, std::int16_t spielart);
/// The day of a draw.
std::chrono::sys_days ziehungstag(const Zeitreisezeile& zeile);

/// The draws with so many hits. `mit`: those of them whose Superzahl or Zusatzzahl makes a class of its own; without
/// it, the others. In a combination search the found draws count for exactly as many hits as numbers were asked for.
std::int32_t zaehlerstand(const Zeitreise& zeitreise, std::int32_t trefferzahl, bool mit);

/// The class as the list shows it: "Fünfer+SZ"; empty without a class.
std::string_view gewinntext(Zeitreiseform form, Gewinnklasse klasse);

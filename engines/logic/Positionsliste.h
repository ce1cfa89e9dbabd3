#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "engines/logic/Positionszahl.h"
#include "shell/logic/Fortschritt.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The whole number that the text holds: blanks around it, a sign and group points are allowed. Of more than 18
/// digits it gives +-10^18. Nothing for any other text.
std::optional<std::int64_t> liesGruppierteZahl(std::string_view text);

/// The same if it is a Positionszahl.
std::optional<Positionszahl> liesPositionszahl(std::string_view text);

/// Both ends included.
struct Positionsbereich {
    Positionszahl von = 1;
    Positionszahl bis = kKombinationen6aus49;

    bool enthaelt(Positionszahl position) const { return von <= position && position <= bis; }
};

/// What the two fields of a range hold: either the range, or what is wrong with them.
struct Positionsbereichspruefung {
    std::optional<Positionsbereich> bereich;
    std::string_view fehler;
};
Positionsbereichspruefung pruefePositionsbereich(std::string_view von, std::string_view bis);

/// The line of a draw: "    121.212  ->  1955/41  03 12 13 16 23 41". `nr` is 1-based, within the columns.
std::string positionszeile(const ZiehungsArchiv& archiv, std::size_t nr);

/// The Positionszahl at the head of a line; nothing where the line has none.
std::optional<Positionszahl> positionInZeile(std::string_view zeile);

/// The six numbers of a line by their columns; 0 where there is no number.
Kombination zahlenInZeile(std::string_view zeile);

/// The draws with their Positionszahlen, oldest first.
struct Positionsliste {
    std::vector<std::string> zeilen;
    bool ausBereich = false;

    /// "Anzahl der Ziehungen: 3693"
    std::string anzahlText() const;
};

/// All draws, or those with a Positionszahl in the range. Stops with what it has when `fortschritt` gives false.
Positionsliste positionsliste(const ZiehungsArchiv& archiv, const std::optional<Positionsbereich>& bereich,
                              const Fortschritt& fortschritt = {});

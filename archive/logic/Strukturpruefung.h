#pragma once

#include "shell/logic/Fortschritt.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// The first fault of a record `jjjj,sw,z1,z2,z3,z4,z5,z6,zz,s`: 1..40, the number of its description; 0 for a record
/// without one. The tests leave gaps on purpose: no comma before the sixth number is looked at, and a number is judged
/// by its first digit and by the ascending order alone. The faults of the Superzahl carry the numbers 26 and 28.
int pruefeDatensatz(std::string_view satz);

/// Description of fault 1..40; row 0 is one blank.
extern const std::array<std::string_view, 41> kStrukturfehler;

/// What a check of a whole file found.
struct Strukturbericht {
    std::vector<std::string> fehlerzeilen; ///< "Error 39 nach Ziehung: 1998 >> ... <<", a faulty record each
    std::int32_t KorrekteZiehungen = 0;    ///< number of records without a fault
    std::string letzterSatz;               ///< "jjjj/sw" as the last record writes it
    bool vollstaendig = true;              ///< false if the check was stopped
};

/// Checks every line of a file. A line ends with CR LF, CR or LF; a Ctrl-Z ends the file.
///
/// The label in an error line is the year of the correct record before it, rounded from "jjjj,sw" read as a decimal
/// number, so that the weeks from 51 on give the next year; before the first one it is "1955/4X".
Strukturbericht pruefeStruktur(std::string_view bytes,
                               const std::function<bool(const Strukturbericht&)>& zwischenstand);

/// Number 1..40 of the fault in an error line; 0 for any other line.
int fehlernummer(std::string_view fehlerzeile);

inline constexpr std::string_view kStrukturRichtig = "*** Alle Datensätze haben die richtige Struktur ***";

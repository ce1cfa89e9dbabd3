#pragma once

#include "shell/logic/Fortschritt.h"
#include "shell/logic/Lesedatei.h"

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

/// What a check of a file found. A file may hold nothing but faults, millions of them, so the report keeps the file and
/// some places in it, and makes the line of a fault when someone looks at it.
struct Strukturbericht {
    /// A faulty record, and what is needed to go on from there.
    struct Lesezeichen {
        std::size_t nr;                ///< index of the record among the faulty ones
        std::size_t ab;                ///< its offset
        std::size_t VorherigeKorrekte; ///< offset of the last correct record before it; npos if there is none
    };

    /// "Error 39 nach Ziehung: 1998 >> ... <<" for the faulty record `nr`, 0..FalscheZiehungen - 1; of a long record
    /// the first 200 characters.
    ///
    /// The label is the year of the correct record before it, rounded from "jjjj,sw" read as a decimal number, so that
    /// the weeks from 51 on give the next year; before the first one it is "1955/4X".
    std::string fehlerzeile(std::size_t nr) const;

    std::string bytes;                    ///< what was to be checked
    std::vector<Lesezeichen> lesezeichen; ///< ascending; some faulty records, the first one among them
    std::size_t FalscheZiehungen = 0;     ///< number of faulty records
    std::int32_t KorrekteZiehungen = 0;   ///< number of records without a fault
    std::string letzterSatz;              ///< "jjjj/sw" as the last record writes it
    bool vollstaendig = true;             ///< false if the check was stopped
    bool ganzeDatei = true;               ///< false if the file goes on behind what was checked

    bool allesRichtig() const { return FalscheZiehungen == 0 && vollstaendig && ganzeDatei; }
};

/// Checks every line of a file. A line ends with CR LF, CR or LF; a Ctrl-Z ends the file. Of a file that was not read
/// to its end the last line, which may go on, is not judged.
Strukturbericht pruefeStruktur(Dateiinhalt&& inhalt, const std::function<bool(const Strukturbericht&)>& zwischenstand);

/// Number 1..40 of the fault in an error line; 0 for any other line.
int fehlernummer(std::string_view fehlerzeile);

inline constexpr std::string_view kStrukturRichtig = "*** Alle Datensätze haben die richtige Struktur ***";

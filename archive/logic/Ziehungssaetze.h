#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "archive/logic/Ziehungsleser.h"
#include "shell/logic/Lesedatei.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// The longest Ziehungsdatei in bytes: 128 for each of the most records, four times what one takes.
inline constexpr std::size_t kGroessteZiehungsdatei = std::size_t{128} * kMaxZiehungenJeDatei;

/// What a Ziehungsdatei holds.
struct Ziehungssaetze {
    std::vector<Ziehungssatz> ganze;
    std::optional<Ziehungssatz> teilsatz{}; ///< what could be read of the record in which the file breaks off
    bool fehlerfrei{false};                 ///< read up to the end, and not too many
    std::size_t ende{0};                    ///< offset behind the last whole record, its line end not included
};

/// Takes the records out of a file; a file that is missing or unreadable has none.
Ziehungssaetze liesZiehungssaetze(const Dateiinhalt& inhalt);
/// The same for bytes that are a whole file.
Ziehungssaetze liesZiehungssaetze(std::string_view bytes, bool vollstaendig = true);

/// The record as a Ziehungsdatei holds it, without line end: "1998,13,02,08,10,12,22,35,46,3".
std::string datensatz(const Ziehungssatz& satz);

#pragma once

#include "archive/logic/ZiehungsArchiv.h"
#include "shell/logic/Dateien.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string_view>

/// How a change of a Ziehungsdatei ended.
enum class Schreibausgang {
    Gut,            ///< it holds what was written: it has been read again since
    Besetzt,        ///< another program was changing it all the time; it is as before
    Unlesbar,       ///< it cannot be read to its end; it is as before
    Schreibfehler,  ///< it cannot be written; it is as before
    NichtBestaetigt ///< it was written, but what was read again is something else
};

struct Schreibergebnis {
    Schreibausgang ausgang{Schreibausgang::Schreibfehler};
    std::int32_t nr{0}; ///< ZiehungsNr of the last draw: that of the new one, or the last before what cannot be read
};

/// Called every few milliseconds while another program holds the file; false gives up.
using Sperrpause = std::function<bool()>;

/// Appends a record to a Ziehungsdatei, as the only one that changes it meanwhile; a missing file is made. What may
/// stand behind the last record without being one (blanks, blank lines, a Ctrl-Z) is cut off first; if there is more
/// behind the Ctrl-Z, the content from before is kept as `bewahreAlteFassung` does.
Schreibergebnis haengeZiehungAn(const std::filesystem::path& datei, std::string_view satz,
                                const Sperrpause& sperrpause = {});

/// Writes the Ziehungsdatei that the archive's `Spielart` names anew, record by record with CR LF, from what it holds
/// at that moment, as the only one that changes it; its name is in upper case afterwards. The last content is kept; at
/// no moment is there neither the one nor the other. A missing file is made from the draws of the archive, if it has
/// any.
Schreibergebnis erzeugeZiehungsdatei(const ZiehungsArchiv& archiv, const Sperrpause& sperrpause = {});

/// Keeps a copy of a file beside it, under its name with ".alt" behind it. An older copy is replaced only by a file
/// that can be read whole and has draws. A missing file is no error; an empty one has nothing to keep.
DateiErgebnis bewahreAlteFassung(const std::filesystem::path& datei);

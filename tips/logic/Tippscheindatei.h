#pragma once

#include "shell/logic/Dateien.h"
#include "shell/logic/Lesedatei.h"
#include "tips/logic/Tippreihe.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// A slip is a text file in Windows-1252 with a line for each tip, 26 characters in fixed columns: JJJJSW, then six
// times a point and a number in two places, then a colon and the Superzahl, if there is one:
//
//     202418. 3. 7.12.23.34.45:5

/// What a reader of slips takes in at most. A yearly collection has some 20,000 bytes.
inline constexpr std::size_t kGroessterTippschein = std::size_t{1} << 20;
inline constexpr std::size_t kMaxTippzeilen = 10'000;
inline constexpr std::size_t kMaxTippzeile = 80; ///< bytes of a line; what is behind them is left out

/// The lines of a slip as they stand, in UTF-8, without their ends.
struct Tippscheinzeilen {
    Dateistand stand = Dateistand::Fehlt;
    bool zuGross = false; ///< more bytes or lines than any slip has; nothing was read
    std::vector<std::string> zeilen{};

    bool gelesen() const { return stand == Dateistand::Gelesen && !zuGross; }
};

/// Cuts the bytes of a slip into lines, which end in CR LF, LF or CR; a line end at the very end begins no further
/// line.
Tippscheinzeilen tippscheinzeilen(std::string_view bytes);
Tippscheinzeilen liesTippscheinzeilen(const std::filesystem::path& datei);

/// The tip of a line by its columns. A number of one digit keeps its blank; what a short line lacks stays empty.
Tippreihe tippreiheAus(std::string_view zeile);
/// The tips of the first twelve lines.
std::vector<Tippreihe> tippreihenAus(const Tippscheinzeilen& zeilen);

/// The bytes of a slip: a line for each of the first twelve valid rows in their order; the others are left out. A
/// Superzahl that is no digit is left out too.
std::string tippscheinBytes(std::string_view jjjjsw, const std::vector<Tippreihe>& reihen);

struct Tippschein {
    Dateistand stand = Dateistand::Fehlt;
    bool zuGross = false; ///< the file is none that a slip could be; nothing was read
    std::vector<Tippreihe> reihen{};

    bool gelesen() const { return stand == Dateistand::Gelesen && !zuGross; }
};

/// Reads the first twelve tips of a slip.
Tippschein loadSlip(const std::filesystem::path& datei);

/// Saves the rows as the slip of a game and Spielwoche, in one step: whatever happens, the folder holds the old slip
/// or the new one. An old slip with more tips is kept beside the new one as `<name>.bak`; if that fails, nothing is
/// saved.
DateiErgebnis saveSlip(const std::filesystem::path& ordner, std::int16_t spielart, std::string_view jjjjsw,
                       const std::vector<Tippreihe>& reihen);

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// The ten values of a record in the order of the file: jjjj, sw, z1 to z6, zz, s.
using Ziehungssatz = std::array<std::int32_t, 10>;

/// Reads the records of a Ziehungsdatei from its bytes.
///
/// Values are a stream of decimal numbers that fit in 32 bits, with leading zeros, a sign and blanks around them
/// allowed. A comma or a line end (CR LF, LF or CR) ends a value; neither widths nor lines are checked. Behind a whole
/// record, nothing but blanks and blank lines up to the end or a Ctrl-Z is the end of the file.
class Ziehungsleser {
public:
    enum class Ergebnis {
        Satz,  ///< a whole record
        Ende,  ///< the file ended behind a whole record, or is empty
        Bruch, ///< no number where one must be, or the end inside a record; nothing more can be read
    };

    /// The bytes must outlive the reader. `vollstaendig` is false if they are only the first part of a file: what
    /// would be the end is a break then.
    explicit Ziehungsleser(std::string_view bytes, bool vollstaendig = true);

    /// Reads the next record. After a break the values read before it stand in `satz`, 0 in the others.
    Ergebnis lies(Ziehungssatz& satz);

    /// Offset behind the last digit of the record just read.
    std::size_t satzende() const { return satzende_; }

private:
    void ueberspringeLeerzeichen();
    bool ueberspringeLeerzeilen();
    bool beendeWert();
    bool liesZahl(std::int32_t& zahl);
    bool liesGenormt(Ziehungssatz& satz);

    const char* anfang_;
    const char* stelle_;
    const char* ende_;
    bool vollstaendig_;
    std::size_t satzende_{0};
};

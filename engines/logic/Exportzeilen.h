#pragma once

#include "engines/logic/Exportauftrag.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/// The places of a line that hold a number which grows by one from line to line. Only its last two digits are written
/// for each line, the others stand in the pattern of the lines and change every hundred of them.
class Nummernfeld {
public:
    /// `breite` places behind the first `anfang` characters; 0 for none. A number has two places at least.
    Nummernfeld(std::size_t anfang, std::size_t breite) : anfang_(anfang), breite_(breite) {}

    explicit operator bool() const { return breite_ > 0; }

    /// The number of the next line.
    void setze(std::uint64_t nummer, char* muster);

    /// Puts the number into a line that is a copy of `muster`, and counts on.
    void schreibe(char* zeile, char* muster)
    {
        const char* ziffern = ziffern_ + 2 * zweistellig_;
        char* ziel = zeile + anfang_ + breite_ - 2;
        ziel[0] = ziffern[0];
        ziel[1] = ziffern[1];
        if (++zweistellig_ == 100)
            setze((hunderter_ + 1) * 100, muster);
    }

private:
    std::size_t anfang_;
    std::size_t breite_;
    std::uint64_t hunderter_ = 0;
    std::size_t zweistellig_ = 0;
    const char* ziffern_ = nullptr; ///< two characters for each of 0..99
};

/// Makes the lines of an export.
class Exportzeilen {
public:
    /// What `schreibe` may touch behind the lines, and the most characters of a line.
    static constexpr std::size_t kBreite = 64;

    explicit Exportzeilen(const Exportauftrag& auftrag);

    /// Writes the lines of the combinations that begin with `davor` and end with von..bis, one behind the other. Gives
    /// the place behind the last one; `kBreite` characters behind it must be free.
    char* schreibe(char* ziel, std::span<const std::int32_t> davor, std::int32_t von, std::int32_t bis);

private:
    template <std::size_t Kopie> char* schreibeMit(char* ziel, std::int32_t von, std::int32_t bis);
    void setzeKombinationsnummer(std::span<const std::int32_t> davor, std::int32_t letzte);

    std::array<char, kBreite> muster_{}; ///< a line without what changes from line to line
    std::size_t letzteZahl_;             ///< where it stands
    std::size_t laenge_;
    Nummernfeld laufend_, kombination_;
};

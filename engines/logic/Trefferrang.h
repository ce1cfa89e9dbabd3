#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

/// How often a combination has six, five, four and three numbers right.
struct Trefferstand {
    std::uint32_t n6 = 0, n5 = 0, n4 = 0, n3 = 0;

    bool operator==(const Trefferstand&) const = default;
};

/// A ranking of combinations by their hits, of any length: a combination takes four bytes, its line is made when
/// someone looks at it. The order is that of the lines' text.
class Trefferrang {
public:
    /// `nummer` is the Kombinationsnummer, 1..13983816; numbers come in ascending.
    void fuegeHinzu(const Trefferstand& stand, std::int32_t nummer);
    /// Brings the ranking in order; to be called after the last one was added.
    void ordne();

    std::size_t anzahl() const { return anzahl_; }
    /// The line at `index` (0 to `anzahl` - 1) of the ordered ranking.
    std::string zeile(std::size_t index) const;
    /// Its Kombinationsnummer.
    std::int32_t nummer(std::size_t index) const;

private:
    /// Combinations with the same hits, in the order of their numbers.
    struct Fach {
        Trefferstand stand;
        std::vector<std::int32_t> nummern;
        std::string text;   ///< how its lines begin, and what they are ordered by
        std::size_t ab = 0; ///< index of its first line
    };
    struct Streuung {
        std::size_t operator()(const Trefferstand& stand) const;
    };
    struct Ort {
        const Fach& fach;
        std::int32_t nummer;
    };
    Ort ort(std::size_t index) const;

    std::vector<Fach> faecher_;
    std::unordered_map<Trefferstand, std::size_t, Streuung> fachVon_;
    std::size_t anzahl_ = 0;
};

/// " 0 |  1 | 12 |  88 |    01 02 03 04 05 06".
std::string trefferzeile(const Trefferstand& stand, std::int32_t nummer);
